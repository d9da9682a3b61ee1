#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryFile>

namespace quarn::tool {

/// The kind of a file by its content; its name does not matter.
enum class FileKind {
    // Results of the engine; they may be large and are read piece by piece.
    NearZonePoint,
    MultiPoint,
    SarPlane,
    FarZoneBox,
    OtherResult,  ///< has the header of record files, but an unknown type or version

    MeshlessVias,
    Geometry,
    Project,
    AntennaPattern,

    Unknown,
};

/// The beginning of the content is sufficient, except for projects with much text before their first block.
FileKind kindOf(const QByteArray& content);

/// A noun phrase such as "a SAR plane".
QString description(FileKind kind);

constexpr bool isResult(FileKind kind) { return kind <= FileKind::OtherResult; }

/// The name of a file, or of the device for a standard stream when the name is "-".
QString withoutDash(const QString& name, const char* device);

/// Throws a FileProblem for an empty name and for a symbolic link that leads only to itself.
void checkName(const QString& path);

/// The content of a file, or of standard input for the name "-". Throws a FileProblem when it cannot be read or exceeds
/// 512 MiB.
QByteArray readFile(const QString& path);

/// A file that the command line names. A pipe, a device or, for the name "-", standard input is read to its end and
/// copied to a temporary file, since the readers of results seek.
class InputFile {
public:
    /// Throws a FileProblem for a file that cannot be read, for a folder and for more than 512 MiB from a pipe.
    explicit InputFile(const QString& name);

    /// The name on the command line, for messages.
    const QString& name() const { return m_name; }

    /// A path at which the content can be read repeatedly.
    const QString& path() const { return m_path; }

    /// A part of the content that is sufficient to recognise its kind.
    const QByteArray& beginning() const { return m_beginning; }

private:
    void copyToTemporaryFile();

    QString m_name;
    QString m_path;
    QByteArray m_beginning;
    QTemporaryFile m_copy;
};

struct DecodedContent {
    QString text;
    int invalidCharacters = 0;
};
DecodedContent decodedAsUtf8(const QByteArray& content);

}  // namespace quarn::tool
