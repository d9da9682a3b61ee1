#include "Console.h"
#include "commands/Commands.h"
#include "quarn/FormatReference.h"

namespace quarn::tool {

namespace {

using Blocks = std::vector<FormatBlock>;

// A vertical bar would end the column.
QString cell(QString content) { return content.replace(u'|', text("\\|")); }

QString code(const QString& content) { return content.isEmpty() ? content : text("`%1`").arg(content); }

QString kindText(const FormatLine& line) {
    return line.names.isEmpty() ? line.kind : text("one of ") + line.names.join(text(", "));
}

void printBlock(const FormatBlock& block) {
    out() << "\n### " << block.name << "\n\nPath: " << code(block.path) << "\n\n";
    if (block.lines.empty()) {
        out() << "The block has no lines of its own.\n";
        return;
    }
    out() << "| key | value | unit | default | written |\n|---|---|---|---|---|\n";
    for (const FormatLine& line : block.lines) {
        const QString columns[] = {code(line.key), kindText(line), line.unit, code(line.defaultValue), line.written};
        for (const QString& column : columns) out() << "| " << cell(column) << (column.isEmpty() ? "" : " ");
        out() << "|\n";
    }
}

void printAll() {
    out() << "# The text formats\n\n"
             "The blocks that the library reads and writes, in the order in which they are written, and the lines of\n"
             "each. Readers take lines and inner blocks in any order. A block without a line stands for the line's\n"
             "default. What a reader does not know it skips. `quarn format` prints this page.\n";
    out() << "\n## Project file\n";
    for (const FormatBlock& block : projectFormat()) printBlock(block);
    out() << "\n## Geometry file\n";
    for (const FormatBlock& block : geometryFormat()) printBlock(block);
}

// All blocks of the name, or the one with the path.
ExitStatus printBlocks(const QString& nameOrPath) {
    bool isFound = false;
    for (const Blocks& blocks : {projectFormat(), geometryFormat()}) {
        for (const FormatBlock& block : blocks) {
            if (block.name != nameOrPath && block.path != nameOrPath) continue;
            printBlock(block);
            isFound = true;
        }
    }
    if (isFound) return ExitFine;
    printError(text("format: unknown block '%1'; 'quarn format' prints all blocks").arg(nameOrPath));
    return ExitUnusable;
}

}  // namespace

void addFormat(CLI::App& quarn, int& status) {
    const auto block = std::make_shared<QString>();
    CLI::App& command =
        addCommand(quarn,
                   "format",
                   "Prints the reference of the text formats",
                   text("Prints the blocks of the project and the geometry file with their lines: key,\n"
                        "value, unit, default, and when a save writes the line. The text is Markdown."));
    addOptionalArgument(command, "BLOCK", *block, "Prints only the blocks of this name, or the one with this path.");
    command.callback([block, &status] { status = block->isNull() ? (printAll(), ExitFine) : printBlocks(*block); });
}

}  // namespace quarn::tool
