#include "files/InputFile.h"

#include <QFile>
#include <QFileInfo>
#include <QTextCodec>
#include <QtEndian>
#include <algorithm>
#include <cstdio>
#include <filesystem>

#include "Console.h"
#include "files/GeometryOnDisk.h"
#include "files/PatternFile.h"
#include "quarn/FileHeader.h"
#include "quarn/MeshlessVia.h"

namespace quarn::tool {

namespace {

constexpr int mebibyte = 1 << 20;
constexpr int sizeLimit = 512 * mebibyte;
constexpr int beginningSize = mebibyte / 16;

bool isNearZonePoint(const QByteArray& content) { return content.startsWith("Rnzp"); }
bool isMultiPoint(const QByteArray& content) { return content.startsWith("Rmpt"); }

/// Also true when the content ends within the mark at the beginning of the header.
bool hasRecordHeader(const QByteArray& content) {
    constexpr int fewestCharacters = 4;
    const QByteArray mark = "!tavrixfdtd";
    return content.startsWith(mark) || (content.size() >= fewestCharacters && mark.startsWith(content));
}

template <std::uint32_t fileType>
bool isRecordFile(const QByteArray& content) {
    constexpr int typeAt = 12;
    constexpr int versionAt = 14;
    constexpr int headerSize = 16;
    return content.startsWith("!tavrixfdtdL") && content.size() >= headerSize &&
           qFromLittleEndian<quint16>(content.constData() + typeAt) == fileType &&
           qFromLittleEndian<quint16>(content.constData() + versionAt) == 0;
}

bool isViaFile(const QByteArray& content) {
    constexpr int headerSize = 16;
    return content.size() >= headerSize &&
           qFromUnaligned<std::uint64_t>(content.constData()) == MeshlessVia::byte_order_check;
}

bool isProject(const QByteArray& content) {
    return content.contains("begin_<FDTDProject>") || content.contains("begin_<FEMProject>");
}

struct Recogniser {
    FileKind kind;
    const char* description;
    bool (*recognises)(const QByteArray& content);
};

constexpr Recogniser recognisers[] = {
    {FileKind::NearZonePoint, "a near-zone point", isNearZonePoint},
    {FileKind::MultiPoint, "the info file of a multi-point result", isMultiPoint},
    {FileKind::SarPlane, "a SAR plane", isRecordFile<FileHeader::sarPlane>},
    {FileKind::FarZoneBox, "a far-zone box file", isRecordFile<FileHeader::farZoneBoxFields>},
    {FileKind::OtherResult, "a result of an unknown type or version, or cut short in its header", hasRecordHeader},
    {FileKind::MeshlessVias, "a file of meshless vias", isViaFile},
    {FileKind::Geometry, "a geometry", isGeometryFile},
    {FileKind::Project, "a project", isProject},
    {FileKind::AntennaPattern, "an antenna pattern", isPatternFile},
};

bool isDash(const QString& path) { return path == QLatin1String("-"); }

void openForReading(QFile& file) {
    const QString path = file.fileName();
    checkName(path);
    if (!isDash(path) && QFileInfo(path).isDir()) throw FileProblem(path, "is a folder, not a file");
    const bool isOpen = isDash(path) ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    if (!isOpen) throw FileProblem(path, file.errorString());
}

// Reads in pieces and checks the limit after each, since a device or a pipe has no size.
QByteArray readFile(const QString& path, const QString& tooLarge) {
    QFile file(path);
    openForReading(file);
    QByteArray content;
    content.reserve(static_cast<int>(std::min<qint64>(file.size(), sizeLimit)));
    while (content.size() <= sizeLimit) {
        const QByteArray piece = file.read(mebibyte);
        if (piece.isEmpty()) break;
        content += piece;
    }
    if (content.size() > sizeLimit) throw FileProblem(path, tooLarge.arg(sizeLimit / mebibyte));
    if (file.error() != QFileDevice::NoError) throw FileProblem(path, file.errorString());
    return content;
}

/// Some systems keep a temporary file without a name, so that it disappears however the program ends. Asking for its
/// name would give it one.
QString pathOf(const QTemporaryFile& file) {
    const QString withoutName = text("/proc/self/fd/%1").arg(file.handle());
    return QFile::exists(withoutName) ? withoutName : file.fileName();
}

}  // namespace

FileKind kindOf(const QByteArray& content) {
    for (const Recogniser& recogniser : recognisers) {
        if (recogniser.recognises(content)) return recogniser.kind;
    }
    return FileKind::Unknown;
}

QString description(FileKind kind) {
    for (const Recogniser& recogniser : recognisers) {
        if (recogniser.kind == kind) return QString::fromLatin1(recogniser.description);
    }
    return text("of an unknown kind");
}

QString withoutDash(const QString& name, const char* device) { return isDash(name) ? text(device) : name; }

void checkName(const QString& path) {
    if (path.isEmpty()) throw FileProblem(path, "the file name is empty");
    std::error_code error;
    const auto status = std::filesystem::status(QFile::encodeName(path).toStdString(), error);
    if (status_known(status) || error != std::errc::too_many_symbolic_link_levels) return;
    throw FileProblem(path, "is a link that leads nowhere but to itself; remove it or give another name");
}

QByteArray readFile(const QString& path) { return readFile(path, text("larger than the %1 MiB that can be read")); }

InputFile::InputFile(const QString& name) : m_name(name), m_path(name) {
    if (isDash(name) || !QFileInfo(name).isFile()) {
        copyToTemporaryFile();
        return;
    }
    QFile file(name);
    openForReading(file);
    m_beginning = file.read(beginningSize);
}

void InputFile::copyToTemporaryFile() {
    const QByteArray content =
        readFile(m_name, text("more than the %1 MiB that can be read from a pipe; give the name of a file"));
    if (!m_copy.open() || m_copy.write(content) != content.size() || !m_copy.flush()) {
        throw FileProblem(m_name, text("cannot be copied to a temporary file: ") + m_copy.errorString());
    }
    m_path = pathOf(m_copy);
    m_beginning = content.left(beginningSize);
}

DecodedContent decodedAsUtf8(const QByteArray& content) {
    QTextCodec::ConverterState state;
    const QString text = QTextCodec::codecForName("UTF-8")->toUnicode(content.constData(), content.size(), &state);
    return {text, state.invalidChars};
}

}  // namespace quarn::tool
