#include "quarn/SarResult.h"

#include <gtest/gtest.h>

#include <QFileInfo>

#include "Faults.h"
#include "results/ResultFolder.h"

namespace quarn::test {
namespace {

using Records = std::vector<SarResult::Record>;

const QByteArray header("!tavrixfdtdL\x0D\0\0\0", 16);
const QByteArray record = QByteArray::fromHex("01000000 02000000 00004040");

QByteArray start(const char* hex) { return header + QByteArray::fromHex(hex); }

// A file of the plane z = 9. The number of records in its header may differ from that of `records`.
QByteArray plane(char numRecords, const QByteArray& records) {
    return start("0200000009000000") + numRecords + QByteArray(3, '\0') + records;
}

struct SarFile : testing::Test {
    Records read(const QString& name) const {
        SarResultReader reader;
        EXPECT_TRUE(reader.beginResultReading(folder.path(name)));
        Records records;
        for (SarResult::Record next; reader.readRecord(next);) records.push_back(next);
        EXPECT_TRUE(reader.endResultReading());
        return records;
    }

    bool combine(const QStringList& names, const QString& output) {
        QStringList paths;
        for (const QString& name : names) paths << folder.path(name);
        error.clear();
        warning.clear();
        return SarResult::combineFiles(paths, output, error, warning);
    }

    ResultFolder folder;
    QString error, warning;
};

TEST_F(SarFile, EachPlaneHasItsBytes) {
    struct Row {
        SARPlane::Plane plane;
        const char* code;
        const char* indices;  // of the cell 1, 2, 3
        SarResult::Record read;
    };
    const Row rows[] = {{SARPlane::XY, "02000000", "0100000002000000", {1, 2, -9, 3}},
                        {SARPlane::YZ, "00000000", "0200000003000000", {-9, 2, 3, 3}},
                        {SARPlane::ZX, "01000000", "0100000003000000", {1, -9, 3, 3}}};
    for (const Row& row : rows) {
        SarResultWriter writer;
        ASSERT_TRUE(writer.beginResultWriting(folder.path("f"), row.plane, -9, 2));
        EXPECT_TRUE(writer.writeRecord({1, 2, 3, 3}) && writer.endResultWriting());
        EXPECT_FALSE(writer.writeRecord({1, 2, 3, 3}) || writer.endResultWriting());
        EXPECT_EQ(folder.bytes("f").toHex(),
                  header.toHex() + row.code + "f7ffffff" + "02000000" + row.indices + "00004040");
        ASSERT_TRUE(writer.beginResultAppending(folder.path("f"), row.plane, -9));
        EXPECT_TRUE(writer.writeRecord({}) && writer.writeRecord({}) && writer.endResultWriting());

        SarResultReader reader;
        ASSERT_TRUE(reader.beginResultReading(folder.path("f")));
        EXPECT_EQ(reader.getPlane(), row.plane);
        EXPECT_EQ(reader.getPlaneIndex(), -9);
        EXPECT_EQ(reader.getNumberOfRecords(), 2) << "appending does not change the number";
        EXPECT_EQ(reader.getNumberOfRecordsLeft(), 3);
        EXPECT_EQ(read("f").front(), row.read);
        EXPECT_EQ(read("f").size(), 3U);
    }
}

TEST_F(SarFile, RefusesInvalidFilesAndPlanes) {
    const QByteArray good = plane(1, record);
    EXPECT_EQ(read(QFileInfo(folder.put("f", good)).fileName()).size(), 1U);
    const auto begins = [&](int offset, char byte) {
        SarResultReader reader;
        return reader.beginResultReading(folder.put("f", QByteArray(good).replace(offset, 1, &byte, 1))) ||
               reader.endResultReading();
    };
    EXPECT_FALSE(begins(12, 8)) << "another type of file";
    EXPECT_FALSE(begins(14, 1)) << "another version";
    EXPECT_FALSE(begins(16, 3)) << "no plane";
    EXPECT_FALSE(begins(27, '\xFF')) << "a negative number of records";
    SarResultWriter writer;
    const auto noPlane = static_cast<SARPlane::Plane>(3);
    EXPECT_FALSE(writer.beginResultWriting(folder.path("new"), noPlane, 0, 0));
    EXPECT_FALSE(writer.beginResultWriting(folder.path("new"), SARPlane::XY, 0, -1));
    EXPECT_FALSE(writer.beginResultAppending(folder.path("new"), noPlane, 0));
    EXPECT_FALSE(writer.beginResultWriting(folder.path("no/f"), SARPlane::XY, 0, 0) || writer.endResultWriting());
    EXPECT_FALSE(folder.has("new"));
}

TEST_F(SarFile, CombiningTakesTheStatedNumberOfRecords) {
    const QByteArray other = QByteArray::fromHex("07000000 08000000 000080bf");
    folder.put("a", plane(2, record + other + other));
    folder.put("b", plane(0, record));
    folder.put("c", plane(1, record));
    const QString output = folder.put("out", "earlier");
    EXPECT_TRUE(combine({"a", "missing", "b", "c"}, output));
    EXPECT_EQ(folder.bytes("out").toHex(), plane(3, record + other + record).toHex());
    EXPECT_EQ(error + warning, QString());
    EXPECT_EQ(folder.names(), (QStringList{"a", "b", "c", "out"})) << "no file is added or removed";
    EXPECT_TRUE(combine({"a", "c"}, folder.path("a"))) << "the output is one of the parts";
    EXPECT_EQ(folder.bytes("a").toHex(), plane(3, record + other + record).toHex());
    ASSERT_TRUE(QFile::link(folder.path("c"), folder.path("link")));
    EXPECT_TRUE(combine({"c", "c"}, folder.path("link")));
    EXPECT_EQ(folder.bytes("c").toHex(), plane(2, record + record).toHex()) << "the link is followed";
}

TEST_F(SarFile, FailedCombinationsKeepJoinedRecordsOrChangeNothing) {
    const QString a = folder.put("%2a", plane(1, record));
    const QString output = folder.put("out", "earlier");
    const QString incompatible = "Incompatible plane data found when combining output file '%1' into '%2'.";
    const QString unopened = "Failed to open temporary SAR output file '%1' for combining into '%2'.";
    const QString corrupt = "Partial SAR data file '%1' is corrupt or missing data needed for SAR output file '%2'.";
    const QByteArray tooMany = start("0200000009000000ffffff7f");
    struct Row {
        const char* name;
        QByteArray second;
        QString error;
        const char* consequence;
        QByteArray output = "earlier";
    };
    const Row rows[] = {
        {"AnotherPlane", start("010000000900000000000000"), incompatible, "unavailable"},
        {"AnotherIndex", start("020000000800000000000000"), incompatible, "unavailable"},
        {"AnEmptyFile", "", unopened, "unavailable"},
        {"AShortFile", plane(2, record + record).chopped(1), corrupt, "incomplete", plane(3, record + record)},
        {"TooLargeANumber", tooMany + record, corrupt, "incomplete", tooMany + record + record},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const QString b = folder.put("b%1", row.second);
        EXPECT_FALSE(combine({"%2a", "b%1"}, output));
        EXPECT_EQ(error, QString(row.error).arg(b, output));
        EXPECT_EQ(warning, QString("SAR data will be %1 on disk.").arg(row.consequence));
        EXPECT_EQ(folder.bytes("out"), row.output);
        folder.put("out", "earlier");
        ASSERT_TRUE(QFile::link(b, folder.path("symlink")) && folder.linkHard("b%1", "link"));
        for (const char* same : {"b%1", "./b%1", "symlink", "link"}) {
            EXPECT_FALSE(combine({"%2a", "b%1"}, folder.path(same))) << "the output is one of the parts";
            EXPECT_EQ(folder.bytes("b%1"), row.second);
        }
        EXPECT_EQ(folder.names(), (QStringList{"%2a", "b%1", "link", "out", "symlink"}));
        EXPECT_TRUE(QFile::remove(folder.path("link")) && QFile::remove(folder.path("symlink")));
    }
    ASSERT_EQ(mkfifo(folder.path("pipe").toLocal8Bit(), 0600), 0);
    EXPECT_FALSE(combine({"%2a", "pipe"}, output)) << "without waiting for a writer";
    EXPECT_EQ(error, unopened.arg(folder.path("pipe"), output));
    const QString creation = "Failed to create SAR output file '%1'.";
    for (const QString& nowhere : {folder.path("no/out"), folder.path(".")}) {
        EXPECT_FALSE(combine({"%2a"}, nowhere));
        EXPECT_EQ(error, creation.arg(nowhere));
        EXPECT_EQ(warning, "SAR data will be unavailable on disk.");
    }
    EXPECT_FALSE(combine({"missing"}, output)) << "there is nothing to combine";
    EXPECT_EQ(error, creation.arg(output));
    EXPECT_EQ(folder.bytes("%2a"), plane(1, record));
}

TEST_F(SarFile, CombiningReportsJoinedRecordsUntilStopped) {
    const QString a = folder.put("a", start("0200000009000000a0860100") + record.repeated(100000));
    const QString output = folder.put("out", "earlier");
    for (const bool continues : {false, true}) {
        std::vector<std::size_t> steps;
        const auto reporter = [&](std::size_t done, std::size_t total) {
            steps.push_back(done);
            return total == 100000 && (continues || done == 0);
        };
        EXPECT_EQ(SarResult::combineFiles({a}, output, error, warning, reporter), continues);
        EXPECT_EQ(steps.front() + (continues ? steps.back() : 100000), 100000U);
        EXPECT_EQ(folder.bytes("out") == "earlier", !continues);
    }
    EXPECT_EQ(error + warning,
              "Combining into SAR output file '" + output + "' was stopped.SAR data will be unavailable on disk.");
}

TEST_F(SarFile, FullDiskLeavesTheCompleteRecordsThatFit) {
    folder.put("a", plane(9, record.repeated(9)));
    const QString output = folder.put("out", "earlier");
    for (const rlim_t room : {28 + 2 * 12 + 5, 28, 27}) {
        EXPECT_FALSE((FullDisk(room), combine({"a"}, output)));
        EXPECT_EQ(error, QString("Failed to write data to SAR output file '%1'.").arg(output));
        EXPECT_EQ(folder.bytes("out").toHex(), plane(9, record.repeated(room > 28 ? 2 : 0)).toHex()) << room;
    }
}

#ifdef Q_OS_LINUX
TEST_F(SarFile, FullDiskMakesCombiningFail) {
    folder.put("a", plane(1, record));
    EXPECT_FALSE(combine({"a"}, "/dev/full"));
    EXPECT_EQ(error, "Failed to write data to SAR output file '/dev/full'.");
    EXPECT_EQ(warning, "SAR data will be incomplete on disk.");
    EXPECT_FALSE(QFileInfo("/dev/full").isFile()) << "a device is not replaced";
}

// Uses a sparse file, which takes no space on the disk.
TEST_F(SarFile, RefusesATotalBeyondTheRangeOfInt) {
    folder.put("a", start("0200000009000000ffffff7f"));
    if (!QFile::resize(folder.path("a"), 28 + 12LL * 0x7FFFFFFF)) GTEST_SKIP() << "no sparse files here";
    EXPECT_FALSE(combine({"a", "a"}, folder.path("out")));
    EXPECT_EQ(error, QString("Failed to create SAR output file '%1'.").arg(folder.path("out")));
    EXPECT_EQ(folder.names(), QStringList{"a"});
}
#endif

}  // namespace
}  // namespace quarn::test
