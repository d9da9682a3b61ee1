#include "CommandLine.h"
#include "Console.h"
#include "Subcommands.h"
#include "files/InputFile.h"
#include "sheets/GeometrySheet.h"
#include "sheets/PatternSheet.h"
#include "sheets/ProjectSheet.h"
#include "sheets/ResultSheet.h"
#include "sheets/ViaSheet.h"

namespace quarn::tool {

namespace {

Sheet sheetOf(const QString& name) {
    const InputFile file(name);
    const FileKind result = kindOf(file.beginning());
    if (isResult(result)) return sheetOfResult(file, result);
    const QByteArray content = readFile(file.path());
    switch (kindOf(content)) {
        case FileKind::Project:
            return sheetOfProject(name, content);
        case FileKind::Geometry:
            return sheetOfGeometry(name, content);
        case FileKind::MeshlessVias:
            return sheetOfVias(name, content);
        case FileKind::AntennaPattern:
            return sheetOfPattern(name, content);
        default:
            throw FileProblem(
                name, QStringLiteral("is of an unknown kind; if it holds records, 'quarn export --as KIND' reads it"));
    }
}

}  // namespace

int runShow(const QStringList& arguments) {
    CommandLine commandLine(
        QStringLiteral("show"),
        QStringLiteral("Says what files are and what they hold. Their content tells the kind, their names do not.\n"
                       "Known are project and geometry files, files of meshless vias, NSMA antenna patterns, and of\n"
                       "the engine's results near-zone points, multi-point results (give the BASE_info.bin), SAR\n"
                       "planes and fields on the far-zone box; '-' is standard input. Files of records do not say\n"
                       "what they are: see 'quarn export'."));
    commandLine.addFiles(QStringLiteral("FILE"), QStringLiteral("The files to show."));
    if (!commandLine.parse(arguments)) return ExitFine;

    bool first = true;
    return forEachFile(commandLine.files(), [&first](const QString& path) {
        const Sheet sheet = sheetOf(path);
        if (!first) out() << '\n';
        first = false;
        sheet.print();
        return ExitFine;
    });
}

}  // namespace quarn::tool
