#include "ResultFile.h"

#include <QFile>
#include <QFileInfo>

#include "Console.h"
#include "quarn/DataFileReader.h"
#include "quarn/FileHeader.h"

namespace quarn::tool {

namespace {

ResultKind kindByHeader(DataFileReader& reader) {
    FileHeader header;
    if (!header.read(reader)) return ResultKind::None;
    if (header.fileType == FileHeader::sarPlane) return ResultKind::SarPlane;
    return header.fileType == FileHeader::farZoneBoxFields ? ResultKind::FarZoneBox : ResultKind::None;
}

}  // namespace

// A pipe must not be opened twice, hence the look at what the path is.
ResultKind resultKindOf(const QString& path) {
    constexpr int magicSize = 4;
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) return ResultKind::None;
    const QByteArray magic = file.read(magicSize);
    if (magic == "Rnzp") return ResultKind::NearZonePoint;
    const bool isMultiPoint = magic == "Rmpt";
    if (!isMultiPoint && magic != "!tav") return ResultKind::None;
    // That it opens is known; but a reader takes no path of any length.
    DataFileReader reader;
    if (!reader.open(path)) {
        throw FileProblem(path,
                          QStringLiteral("the path of %1 characters is too long for a file of results; set the "
                                         "environment variable KIVEN_LONGPATHSUPPORT to any value to open it")
                              .arg(path.size()));
    }
    return isMultiPoint ? ResultKind::MultiPoint : kindByHeader(reader);
}

std::int64_t sizeOfFile(const QString& path) { return QFileInfo(path).size(); }

}  // namespace quarn::tool
