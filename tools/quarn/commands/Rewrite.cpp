#include <QFileInfo>

#include "Console.h"
#include "commands/Commands.h"
#include "files/GeometryOnDisk.h"
#include "files/InputFile.h"
#include "files/OutputFile.h"
#include "files/ProjectOnDisk.h"
#include "findings/Findings.h"
#include "quarn/LongPathUtil.h"

namespace quarn::tool {

namespace {

struct CanonicalForm {
    QByteArray bytes;
    Findings loss;
};

template <class Loaded>
CanonicalForm withLoss(const Loaded& loaded, const QByteArray& saved) {
    return {saved, lossIn(loaded, QString::fromUtf8(saved))};
}

CanonicalForm canonicalForm(const QString& path) {
    const QByteArray content = readFile(path);
    if (kindOf(content) == FileKind::Geometry) {
        const LoadedGeometry loaded(path, content);
        return withLoss(loaded, savedBytes(loaded));
    }
    LoadedProject loaded(path, content);
    try {
        return withLoss(loaded, savedBytes(loaded.project));
    } catch (const std::runtime_error& problem) {
        throw FileProblem(path, QString::fromUtf8(problem.what()));
    }
}

// Whether writing would change the file that was read. A terminal may be both standard input and output.
bool isSameStoredFile(const QString& in, const QString& out) {
    const QString source = withoutDash(in, "/dev/stdin");
    return QFileInfo(source).isFile() && isSameFile(source, withoutDash(out, "/dev/stdout"));
}

void printLoss(const QString& path, const Findings& loss) {
    constexpr int most = 5;
    for (const QString& warning : loss.warnings) printError(text("%1: warning: %2").arg(path, warning));
    const QStringList texts = loss.lossTexts(path);
    for (const QString& line : texts.mid(0, most)) printError(line);
    QString summary = path + text(": ") + loss.summary();
    if (texts.size() > most) summary += text("; 'quarn check' names all of them");
    printError(summary);
}

ExitStatus rewrite(const QString& in, const QString& out, bool force) {
    const CanonicalForm form = canonicalForm(in);
    if (!form.loss.none()) {
        printLoss(in, form.loss);
        if (!force && isSameStoredFile(in, out)) {
            throw FileProblem(out,
                              "not written: it is the file that was read, which would lose what is not kept; write to "
                              "another file, or add --force");
        }
    }
    writeFile(out, form.bytes);
    return form.loss.none() ? ExitFine : ExitFindings;
}

}  // namespace

void addRewrite(CLI::App& quarn, int& status) {
    struct Options {
        QString in;
        QString out;
        bool force = false;
    };
    const auto options = std::make_shared<Options>();
    CLI::App& command = addCommand(
        quarn,
        "rewrite",
        "Loads a file and saves it in its canonical form",
        text("Loads a project or geometry file and saves it in its canonical form: sections and lines in\n"
             "their order, no indentation, numbers in full. OUT lacks what 'quarn check' names as not kept;\n"
             "the number of these lines and the first of them are printed. OUT may be IN; where IN would\n"
             "lose something, that needs --force. When anything fails, an earlier OUT stays as it was.\n"
             "Exit status: 0 all is kept, 1 written, but not all is kept, 2 nothing is written."));
    addFlag(command, "--force", options->force, "Writes into IN itself even where something of it is lost.");
    addArgument(command, "IN", options->in, "The project or geometry file to load.");
    addArgument(command, "OUT", options->out, "The file to write; '-' is standard output.");
    command.callback([options, &status] { status = rewrite(options->in, options->out, options->force); });
}

}  // namespace quarn::tool
