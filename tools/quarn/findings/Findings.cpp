#include "findings/Findings.h"

#include <QJsonArray>

#include "Console.h"
#include "files/ProjectOnDisk.h"
#include "findings/GeometryFindings.h"
#include "quarn/BoundaryConditions.h"
#include "sheets/Sheets.h"

namespace quarn::tool {

namespace {

QString savedContent(v6ProjectFile& project) { return QString::fromUtf8(savedBytes(project)); }

QString savedContentWithoutBoundaries(v6ProjectFile& project) {
    constexpr auto any = BoundaryConditions::PEC;
    const QString endOfBoundaries = text("end_<OuterBoundaries>\n");
    project.setBoundaryConditions(new BoundaryConditions(any, any, any, any, any, any, 0));
    QString text = savedContent(project);
    const int start = text.indexOf(QLatin1String("begin_<OuterBoundaries>"));
    const int end = text.indexOf(endOfBoundaries) + endOfBoundaries.size();
    return text.remove(start, end - start);
}

Findings lossIn(BlockScan input, int invalidCharacters, const BlockScan& saved) {
    Findings findings;
    if (invalidCharacters > 0) {
        findings.warnings
            << text("Characters that are not valid UTF-8 are replaced in %1.").arg(counted(invalidCharacters, "place"));
    }
    findings.lost = linesLost(input.lines, saved.lines);
    findings.unclosed = std::move(input.unclosed);
    return findings;
}

}  // namespace

bool Findings::none() const { return errors.empty() && warnings.empty() && lost.empty() && unclosed.empty(); }

QString Findings::summary() const {
    QStringList parts;
    if (!errors.empty()) parts << counted(errors.size(), "error");
    if (!warnings.empty()) parts << counted(warnings.size(), "warning");
    if (!lost.empty()) parts << counted(lost.size(), "line") + text(" not kept");
    if (!unclosed.empty()) parts << counted(unclosed.size(), "block") + text(" not closed");
    return parts.empty() ? text("no findings") : parts.join(", ");
}

QStringList Findings::lossTexts(const QString& path) const {
    QStringList texts;
    for (const LostLine& line : lost) {
        const QString becomes = line.becomes.isNull() ? QString() : text(", becomes \"%1\"").arg(line.becomes);
        texts << path + text(":%1: not kept: ").arg(line.number) + line.text + becomes;
    }
    for (const UnclosedBlock& block : unclosed) {
        texts << path + text(":%1: block <%2> is not closed").arg(block.line).arg(block.name);
    }
    return texts;
}

QJsonObject Findings::toJson(const QString& path) const {
    QJsonArray lostLines;
    for (const LostLine& line : lost) {
        QJsonObject object{{"line", line.number}, {"text", line.text}};
        if (!line.becomes.isNull()) object.insert("becomes", line.becomes);
        lostLines << object;
    }
    QJsonArray unclosedBlocks;
    for (const UnclosedBlock& block : unclosed) {
        unclosedBlocks << QJsonObject{{"line", block.line}, {"block", block.name}};
    }
    return {{"file", path},
            {"circuit", QJsonArray::fromStringList(circuit)},
            {"errors", QJsonArray::fromStringList(errors)},
            {"warnings", QJsonArray::fromStringList(warnings)},
            {"notKept", lostLines},
            {"unclosed", unclosedBlocks}};
}

void Findings::print(const QString& path) const {
    for (const QString& text : circuit) out() << printable(path) << ": " << printable(text) << '\n';
    for (const QString& text : errors) out() << printable(path) << ": error: " << printable(text) << '\n';
    for (const QString& text : warnings) out() << printable(path) << ": warning: " << printable(text) << '\n';
    for (const QString& text : lossTexts(path)) out() << printable(text) << '\n';
    out() << printable(path) << ": " << summary() << '\n';
}

Findings lossIn(const LoadedProject& loaded, const QString& saved) {
    BlockNumbers numbers;
    return lossIn(scanBlocks(loaded.text, numbers), loaded.invalidCharacters, scanBlocks(saved, numbers));
}

Findings lossIn(const LoadedGeometry& loaded, const QString& saved) {
    BlockNumbers numbers;
    BlockScan input = scanBlocks(loaded.text, numbers);
    normalize(input.lines, numbers);
    return lossIn(std::move(input), loaded.invalidCharacters, scanBlocks(saved, numbers));
}

Findings examine(LoadedProject& loaded) {
    v6ProjectFile& project = loaded.project;
    const QStringList circuit = circuitLines(project);
    QStringList errors, warnings;
    project.checkValidity(errors, warnings);
    Findings findings = lossIn(
        loaded, project.getBoundaryConditions() ? savedContent(project) : savedContentWithoutBoundaries(project));
    findings.circuit = circuit;
    findings.errors = errors;
    findings.warnings = warnings + findings.warnings;
    return findings;
}

Findings examine(const LoadedGeometry& loaded) {
    Findings findings = lossIn(loaded, QString::fromUtf8(savedBytes(loaded)));
    findings.errors = errorsIn(loaded);
    return findings;
}

}  // namespace quarn::tool
