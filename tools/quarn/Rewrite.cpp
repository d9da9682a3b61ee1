#include "CommandLine.h"
#include "Console.h"
#include "GeometryOnDisk.h"
#include "InputFile.h"
#include "OutputFile.h"
#include "ProjectOnDisk.h"
#include "Subcommands.h"

namespace quarn::tool {

namespace {

QByteArray canonicalForm(const QString& path) {
    const QByteArray content = readFile(path);
    if (kindOf(content) == FileKind::Geometry) return savedBytes(LoadedGeometry(path, content));
    LoadedProject loaded(path, content);
    try {
        return savedBytes(loaded.project);
    } catch (const std::runtime_error& problem) {
        throw FileProblem(path, QString::fromUtf8(problem.what()));
    }
}

}  // namespace

int runRewrite(const QStringList& arguments) {
    CommandLine commandLine(
        QStringLiteral("rewrite"),
        QStringLiteral("Loads a project or geometry file and saves it in its canonical form: sections and lines in "
                       "their order, no\n"
                       "indentation, numbers in full. What 'quarn check' names as not kept is gone in OUT.\n"
                       "OUT may be IN; when anything fails, an earlier OUT stays as it was."));
    commandLine.addFile(QStringLiteral("IN"), QStringLiteral("The project or geometry file to load."));
    commandLine.addFile(QStringLiteral("OUT"), QStringLiteral("The file to write."));
    if (!commandLine.parse(arguments)) return ExitFine;

    writeFile(commandLine.files().at(1), canonicalForm(commandLine.files().at(0)));
    return ExitFine;
}

}  // namespace quarn::tool
