#include "Findings.h"

#include <QJsonArray>

#include "CircuitText.h"
#include "Console.h"
#include "GeometryFindings.h"
#include "ProjectOnDisk.h"
#include "quarn/BoundaryConditions.h"

namespace quarn::tool {

namespace {

QString savedText(v6ProjectFile& project) { return QString::fromUtf8(savedBytes(project)); }

QString savedTextWithoutBoundaries(v6ProjectFile& project) {
    constexpr auto any = BoundaryConditions::PEC;
    const QString endOfBoundaries = QStringLiteral("end_<OuterBoundaries>\n");
    project.setBoundaryConditions(new BoundaryConditions(any, any, any, any, any, any, 0));
    QString text = savedText(project);
    const int start = text.indexOf(QLatin1String("begin_<OuterBoundaries>"));
    const int end = text.indexOf(endOfBoundaries) + endOfBoundaries.size();
    return text.remove(start, end - start);
}

void addInvalidCharacters(Findings& findings, int count) {
    if (count == 0) return;
    findings.warnings << QStringLiteral("The file is not UTF-8 throughout; what is not is replaced in %1.")
                             .arg(counted(count, QStringLiteral("place")));
}

void compare(Findings& findings, BlockText input, const BlockText& saved) {
    findings.lost = linesLost(input.lines, saved.lines);
    findings.unclosed = std::move(input.unclosed);
}

void printAt(const QString& path, int line, const QString& text) {
    out() << printable(path) << ':' << line << ": " << printable(text) << '\n';
}

}  // namespace

bool Findings::none() const { return errors.empty() && warnings.empty() && lost.empty() && unclosed.empty(); }

QString Findings::summary() const {
    QStringList parts;
    if (!errors.empty()) parts << counted(errors.size(), QStringLiteral("error"));
    if (!warnings.empty()) parts << counted(warnings.size(), QStringLiteral("warning"));
    if (!lost.empty()) parts << counted(lost.size(), QStringLiteral("line")) + QStringLiteral(" not kept");
    if (!unclosed.empty()) parts << counted(unclosed.size(), QStringLiteral("block")) + QStringLiteral(" not closed");
    return parts.empty() ? QStringLiteral("no findings") : parts.join(QStringLiteral(", "));
}

QJsonObject Findings::toJson() const {
    QJsonArray lostLines;
    for (const LostLine& line : lost) {
        QJsonObject object{{QStringLiteral("line"), line.number}, {QStringLiteral("text"), line.text}};
        if (!line.becomes.isNull()) object.insert(QStringLiteral("becomes"), line.becomes);
        lostLines << object;
    }
    QJsonArray unclosedBlocks;
    for (const UnclosedBlock& block : unclosed) {
        unclosedBlocks << QJsonObject{{QStringLiteral("line"), block.line}, {QStringLiteral("block"), block.name}};
    }
    return {{QStringLiteral("circuit"), QJsonArray::fromStringList(circuit)},
            {QStringLiteral("errors"), QJsonArray::fromStringList(errors)},
            {QStringLiteral("warnings"), QJsonArray::fromStringList(warnings)},
            {QStringLiteral("notKept"), lostLines},
            {QStringLiteral("unclosed"), unclosedBlocks}};
}

void Findings::print(const QString& path) const {
    for (const QString& text : circuit) out() << printable(path) << ": " << printable(text) << '\n';
    for (const QString& text : errors) out() << printable(path) << ": error: " << printable(text) << '\n';
    for (const QString& text : warnings) out() << printable(path) << ": warning: " << printable(text) << '\n';
    for (const LostLine& line : lost) {
        const QString becomes =
            line.becomes.isNull() ? QString() : QStringLiteral(", becomes \"%1\"").arg(line.becomes);
        printAt(path, line.number, QStringLiteral("not kept: ") + line.text + becomes);
    }
    for (const UnclosedBlock& block : unclosed) {
        printAt(path, block.line, QStringLiteral("block <%1> is not closed").arg(block.name));
    }
    out() << printable(path) << ": " << summary() << '\n';
}

Findings examine(LoadedProject& loaded) {
    Findings findings;
    v6ProjectFile& project = loaded.project;
    findings.circuit = circuitLines(project);
    project.checkValidity(findings.errors, findings.warnings);
    addInvalidCharacters(findings, loaded.invalidCharacters);
    BlockNumbers numbers;
    const QString saved = project.getBoundaryConditions() ? savedText(project) : savedTextWithoutBoundaries(project);
    compare(findings, scanBlockText(loaded.text, numbers), scanBlockText(saved, numbers));
    return findings;
}

Findings examine(const LoadedGeometry& loaded) {
    Findings findings;
    findings.errors = errorsIn(loaded);
    addInvalidCharacters(findings, loaded.invalidCharacters);
    BlockNumbers numbers;
    BlockText input = scanBlockText(loaded.text, numbers);
    normalize(input.lines, numbers);
    const QString saved = QString::fromUtf8(savedBytes(loaded));
    compare(findings, std::move(input), scanBlockText(saved, numbers));
    return findings;
}

}  // namespace quarn::tool
