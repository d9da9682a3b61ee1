#pragma once

#include <QByteArray>
#include <QString>

namespace quarn::tool {

/// What a file is, as its content tells; its name does not count.
enum class FileKind { Project, Geometry, MeshlessVias, AntennaPattern, Unknown };
FileKind kindOf(const QByteArray& content);

/// Throws a FileProblem for the empty name, for which Qt has a warning of its own.
void checkName(const QString& path);

/// The content of a file. Throws a FileProblem when it cannot be read or exceeds 512 MiB.
QByteArray readFile(const QString& path);

struct DecodedText {
    QString text;
    int invalidCharacters = 0;
};
DecodedText decodedAsUtf8(const QByteArray& content);

}  // namespace quarn::tool
