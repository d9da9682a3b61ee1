#include <QFileInfo>

#include "CommandLine.h"
#include "Console.h"
#include "Subcommands.h"
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

/// Whether both are names of one file, which writing would change. A terminal may be both standard input and output.
bool isSameStoredFile(const QString& in, const QString& out) {
    const QString source = in == QLatin1String("-") ? QStringLiteral("/dev/stdin") : in;
    const QString target = out == QLatin1String("-") ? QStringLiteral("/dev/stdout") : out;
    return QFileInfo(source).isFile() && isSameFile(source, target);
}

void complainAboutLoss(const QString& path, const Findings& loss) {
    constexpr int most = 5;
    for (const QString& text : loss.warnings) complain(QStringLiteral("%1: warning: %2").arg(path, text));
    const QStringList texts = loss.lossTexts(path);
    for (const QString& text : texts.mid(0, most)) complain(text);
    QString summary = path + QStringLiteral(": ") + loss.summary();
    if (texts.size() > most) summary += QStringLiteral("; 'quarn check' names all of them");
    complain(summary);
}

}  // namespace

int runRewrite(const QStringList& arguments) {
    const QString force = QStringLiteral("force");
    CommandLine commandLine(
        QStringLiteral("rewrite"),
        QStringLiteral("Loads a project or geometry file and saves it in its canonical form: sections and lines in\n"
                       "their order, no indentation, numbers in full. What 'quarn check' names as not kept is gone in\n"
                       "OUT; how much that is, and the first lines of it, are told. OUT may be IN, where something\n"
                       "would be gone only with --force. When anything fails, an earlier OUT stays as it was.\n"
                       "Exit status: 0 all is kept, 1 written, but not all is kept, 2 nothing is written."));
    commandLine.addOption(force, QStringLiteral("Writes into IN itself even where something of it would be gone."));
    commandLine.addFile(QStringLiteral("IN"), QStringLiteral("The project or geometry file to load."));
    commandLine.addFile(QStringLiteral("OUT"), QStringLiteral("The file to write; '-' is standard output."));
    if (!commandLine.parse(arguments)) return ExitFine;

    const QString in = commandLine.files().at(0);
    const QString out = commandLine.files().at(1);
    const CanonicalForm form = canonicalForm(in);
    if (!form.loss.none()) {
        complainAboutLoss(in, form.loss);
        if (!commandLine.isSet(force) && isSameStoredFile(in, out)) {
            throw FileProblem(out,
                              QStringLiteral("not written: it is the file that was read, which would lose what is not "
                                             "kept; write to another file, or add --force"));
        }
    }
    writeFile(out, form.bytes);
    return form.loss.none() ? ExitFine : ExitFindings;
}

}  // namespace quarn::tool
