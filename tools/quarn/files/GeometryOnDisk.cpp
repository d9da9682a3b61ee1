#include "files/GeometryOnDisk.h"

#include <QTextStream>

#include "Console.h"
#include "files/InputFile.h"
#include "findings/BlockScan.h"

namespace quarn::tool {

LoadedGeometry::LoadedGeometry(const QString& path, const QByteArray& content) {
    if (!isGeometryFile(content)) {
        throw FileProblem(path, "not a geometry file: its first line does not name a geometry file version");
    }
    DecodedContent decoded = decodedAsUtf8(content);
    text = decoded.text;
    invalidCharacters = decoded.invalidCharacters;
    QTextStream stream(&decoded.text, QIODevice::ReadOnly);
    QStringList errors;
    if (!geometry.loadFromStream(stream, &grid, errors)) throw FileProblem(path, errors.join(u' '));
}

bool isGeometryFile(const QByteArray& content) {
    constexpr int longestLine = 255;
    const QByteArray start = content.left(longestLine);
    return isGeometryVersionLine(QString::fromUtf8(start.left(start.indexOf('\n'))));
}

QByteArray savedBytes(const LoadedGeometry& loaded) {
    QByteArray bytes;
    QTextStream stream(&bytes, QIODevice::WriteOnly);
    loaded.geometry.saveToStream(loaded.grid, stream);
    return bytes;
}

}  // namespace quarn::tool
