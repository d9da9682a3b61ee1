#include "ResultFile.h"

#include <QFileInfo>

#include "Console.h"
#include "quarn/DataFileReader.h"
#include "quarn/FileHeader.h"
#include "quarn/SarResult.h"

namespace quarn::tool {

void checkPathLength(const QString& path) {
    constexpr int pathLimit = 259;
    const char* variable = "KIVEN_LONGPATHSUPPORT";
    if (path.size() < pathLimit || qEnvironmentVariableIsSet(variable)) return;
    throw FileProblem(path,
                      QStringLiteral("the path has %1 characters or more; set the environment variable %2 to 1 to have "
                                     "such paths opened, or give a shorter one")
                          .arg(pathLimit)
                          .arg(QLatin1String(variable)));
}

FileProblem unreadable(const QString& path) {
    checkPathLength(path);
    return {path, QStringLiteral("cannot be read")};
}

void open(DataFileReader& reader, const InputFile& file) {
    checkPathLength(file.path());
    if (!reader.open(file.path())) throw FileProblem(file.name(), QStringLiteral("cannot be opened"));
}

void openFarZoneBox(DataFileReader& reader, const InputFile& file) {
    FileHeader header;
    open(reader, file);
    if (kindOf(file.beginning()) == FileKind::FarZoneBox && header.read(reader)) return;
    throw FileProblem(file.name(),
                      QStringLiteral("is not a far-zone box file: it does not begin with the header of one"));
}

void open(SarResultReader& reader, const InputFile& file) {
    checkPathLength(file.path());
    if (reader.beginResultReading(file.path())) return;
    throw FileProblem(file.name(), QStringLiteral("is a SAR plane whose header is cut short or names no known plane"));
}

std::int64_t sizeOf(const InputFile& file) { return QFileInfo(file.path()).size(); }

QString incompleteRecordText(std::size_t bytes) {
    return counted(bytes, QStringLiteral("byte")) + QStringLiteral(" at the end ") +
           QLatin1String(bytes == 1 ? "belongs" : "belong") + QStringLiteral(" to no whole record");
}

}  // namespace quarn::tool
