#include "files/ResultFile.h"

#include "Console.h"
#include "quarn/FileHeader.h"
#include "quarn/LongPathUtil.h"
#include "quarn/SarResult.h"

namespace quarn::tool {

void checkPathLength(const QString& path) {
    if (!isPathTooLong(path)) return;
    throw FileProblem(path,
                      text("the path has %1 characters; set the environment variable KIVEN_LONGPATHSUPPORT to 1 to "
                           "have such long paths opened, or give a shorter one")
                          .arg(path.size()));
}

FileProblem unreadable(const QString& path) {
    checkPathLength(path);
    return {path, text("cannot be read")};
}

void open(DataFileReader& reader, const InputFile& file) {
    checkPathLength(file.path());
    if (!reader.open(file.path())) throw FileProblem(file.name(), "cannot be opened");
}

void openFarZoneBox(DataFileReader& reader, const InputFile& file) {
    FileHeader header;
    const FileKind kind = kindOf(file.beginning());
    open(reader, file);
    if (kind == FileKind::FarZoneBox && header.read(reader)) return;
    throw FileProblem(file.name(), text("is %1; a far-zone box file of version 0 is needed").arg(description(kind)));
}

void open(SarResultReader& reader, const InputFile& file) {
    checkPathLength(file.path());
    if (reader.beginResultReading(file.path())) return;
    throw FileProblem(file.name(), "is a SAR plane whose header is cut short or names no known plane");
}

QString incompleteRecordText(std::size_t bytes) {
    return counted(bytes, "byte") + text(" at the end ") + QLatin1String(bytes == 1 ? "belongs" : "belong") +
           text(" to no whole record");
}

}  // namespace quarn::tool
