#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <cerrno>
#include <csignal>
#include <system_error>

#include "tool/ToolFixture.h"

namespace quarn::test {
namespace {

// The plane x = 7 has the parts `a` with one record and `bb` with two.
class WritingToolTest : public ToolTest {
protected:
    void SetUp() override {
        write("a", plane(1));
        write("bb", plane(2));
        for (const auto& [to, name] : {std::pair("a", "link"), {"loop", "loop"}, {"new", "to"}}) {
            ASSERT_TRUE(QFile::link(to, path(name)));
        }
        ASSERT_EQ(link(path("a").toLocal8Bit(), path("hard").toLocal8Bit()), 0);
        ASSERT_EQ(mkfifo(path("pipe").toLocal8Bit(), 0600), 0);
    }

    static QByteArray plane(char numRecords) {
        const QByteArray start("!tavrixfdtdL\x0D\0\0\0\0\0\0\0\7\0\0\0", 24);
        return start + numRecords + QByteArray(3 + 12 * numRecords, '\0');
    }
    QString path(const QString& name) const { return folder.filePath(name); }
    QStringList names() const { return QDir(folder.path()).entryList(QDir::Files | QDir::System, QDir::Name); }
};

TEST_F(WritingToolTest, SarCombineReportsOddPartsAndTheOutput) {
    const std::string none = ": does not exist; its records are not in the output\n";
    const std::string twice =
        ": is the same file as 'a'; its records are in the output once for each time it was given. Name each part "
        "once.\n";
    const std::string action =
        "quarn: sar: Unknown action 'join'; the only one is 'combine'. See 'quarn sar --help'.\n";
    const std::string cure = ": to use paths of 259 and more, set the environment variable KIVEN_LONGPATHSUPPORT.\n";
    const std::string written = "out: SAR plane YZ, index 7, ";
    const std::tuple<QString, std::string, int> rows[] = {
        {"combine out a bb", written + "3 records\n", 0},
        {"combine out no a never", written + "1 record\nquarn: no" + none + "quarn: never" + none, 1},
        {"combine out ./a bb hard", written + "4 records\nquarn: hard: is the same file as './a'; its records", 1},
        {"combine other no", "quarn: no" + none + "quarn: other: not written, as none of the parts exists\n", 2},
        {"join other a", action, 2},
        {"join", action, 2},
        {"combine out LONGbb", "bb' has 260 characters" + cure, 2},
        {"combine LONGother a", "other' has 263 characters" + cure, 2},
        {"combine other a pipe", "'pipe' is not a regular file: copy what it holds into one.\n", 2},
        {"combine other a text", "'text' is of an unknown kind, not a SAR plane.\n", 2},
        {"combine other a loop", "quarn: loop: cannot be opened: " + std::generic_category().message(ELOOP), 2},
        {"combine out more bb", "quarn: more: holds 2 records, but its header says 1; only these are joined\n", 1},
        {"combine out a link bb a", written + "5 records\nquarn: link" + twice + "quarn: a" + twice, 1},
        {"combine loop a", "loop: is a link that leads nowhere but to itself; remove it or give another name\n", 2},
        {"combine no/out a", "'no/out': " + std::generic_category().message(ENOENT) + ".\n", 2},
    };
    write("out", "");
    write("text", "not a plane");
    write("more", plane(1) + plane(1).mid(28));
    const QStringList before = names();
    for (const auto& [words, printed, status] : rows) {
        QStringList arguments = ("sar " + words).split(' ');
        const ToolResult result = run(arguments.replaceInStrings("LONG", QString("./").repeated(129)));
        EXPECT_THAT(result.out + result.err, testing::HasSubstr(printed));
        EXPECT_EQ(result.status, status);
        EXPECT_EQ(names(), before);
    }
    EXPECT_EQ(read("out"), plane(5)) << "a refused combination must not change it";
}

// The part is sparse and takes no space; joining it would take seconds.
TEST_F(WritingToolTest, InterruptedSarCombineKeepsTheEarlierOutput) {
    write("out", "earlier");
    write("part", plane(0).replace(24, 4, QByteArray::fromHex("00e1f505")));
    ASSERT_TRUE(QFile::resize(path("part"), 28 + 12LL * 100000000));
    const QStringList before = names();
    for (const int signal : {SIGINT, SIGTERM}) {
        const auto earlier = std::signal(signal, SIG_DFL);  // background jobs ignore one of them
        QProcess process;
        process.setWorkingDirectory(folder.path());
        process.start(QUARN_TOOL_PATH, {"sar", "combine", "out", "part"});
        std::signal(signal, earlier);
        while (!QFile::exists(path("out.new0"))) ASSERT_FALSE(process.waitForFinished(1));
        ASSERT_EQ(kill(static_cast<pid_t>(process.processId()), signal), 0);
        ASSERT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitStatus(), QProcess::CrashExit) << "the signal must end the process";
        EXPECT_EQ(process.exitCode(), signal);
        EXPECT_EQ(process.readAll() + process.readAllStandardError(), "");
        EXPECT_EQ(read("out"), "earlier");
        EXPECT_EQ(names(), before);
    }
}

TEST_F(WritingToolTest, RewriteFollowsLinksAndKeepsHardLinks) {
    write("in", clean.toUtf8());
    EXPECT_EQ(run({"rewrite", "in", "hard"}).status + run({"rewrite", "in", "to"}).status, 0);
    EXPECT_EQ(read("a") + read("new"), clean.toUtf8() + clean.toUtf8());
    EXPECT_EQ(run({"rewrite", "in", "-"}).out, clean.toStdString());
    EXPECT_EQ(names().join(' '), "a bb hard in link loop new pipe to");
}

}  // namespace
}  // namespace quarn::test
