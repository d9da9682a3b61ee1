#include "Console.h"
#include "commands/Commands.h"
#include "files/InputFile.h"
#include "sheets/Sheets.h"

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
            throw FileProblem(name, "is of an unknown kind; if it holds records, 'quarn export --as KIND' reads it");
    }
}

}  // namespace

void addShow(CLI::App& quarn, int& status) {
    const auto paths = std::make_shared<QStringList>();
    CLI::App& command =
        addCommand(quarn,
                   "show",
                   "Says what files are and what they hold",
                   text("Says what files are and what they hold. Their content tells the kind, not their names.\n"
                        "It knows project and geometry files, files of meshless vias, NSMA antenna patterns and these\n"
                        "results of the engine: near-zone points, multi-point results (give the BASE_info.bin), SAR\n"
                        "planes and fields on the far-zone box. '-' is standard input. Files of records do not say\n"
                        "what they are: see 'quarn export'."));
    addArguments(command, "FILE", *paths, "The files to show.");
    command.callback([paths, &status] {
        bool isFirst = true;
        status = forEachFile(*paths, [&isFirst](const QString& path) {
            const Sheet sheet = sheetOf(path);
            if (!isFirst) out() << '\n';
            isFirst = false;
            sheet.print();
            return ExitFine;
        });
    });
}

}  // namespace quarn::tool
