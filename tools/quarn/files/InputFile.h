#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryFile>

namespace quarn::tool {

/// What a file is, as its content tells; its name does not count.
enum class FileKind {
    // Results of the engine, which may be large and are read piece by piece.
    NearZonePoint,
    MultiPoint,
    SarPlane,
    FarZoneBox,
    OtherResult,  ///< with the header of record files, but of an unknown type or version

    MeshlessVias,
    Geometry,
    Project,
    AntennaPattern,

    Unknown,
};

/// The beginning of the content is enough, except for projects with much text before their first block.
FileKind kindOf(const QByteArray& content);

/// Such as "a SAR plane".
QString description(FileKind kind);

constexpr bool isResult(FileKind kind) { return kind <= FileKind::OtherResult; }

/// The name of a file, or of the device for a standard stream when the name is "-".
QString withoutDash(const QString& name, const char* device);

/// Throws a FileProblem for the empty name, for which Qt has a warning of its own, and for a link that only leads back
/// to itself.
void checkName(const QString& path);

/// The content of a file, or of standard input for the name "-". Throws a FileProblem when it cannot be read or exceeds
/// 512 MiB.
QByteArray readFile(const QString& path);

/// A file as the command line names it. What is no regular file (a pipe, a device, standard input for the name "-") is
/// read to its end and copied to a temporary file, since results are read by going to and fro in them.
class InputFile {
public:
    /// Throws a FileProblem for what cannot be read, such as a folder, and for more than 512 MiB from a pipe.
    explicit InputFile(const QString& name);

    /// As on the command line, for messages.
    const QString& name() const { return m_name; }

    /// Where the content can be read as often as needed.
    const QString& path() const { return m_path; }

    /// Enough of the content to tell what it is.
    const QByteArray& beginning() const { return m_beginning; }

private:
    void copyToTemporaryFile();

    QString m_name;
    QString m_path;
    QByteArray m_beginning;
    QTemporaryFile m_copy;
};

struct DecodedText {
    QString text;
    int invalidCharacters = 0;
};
DecodedText decodedAsUtf8(const QByteArray& content);

}  // namespace quarn::tool
