#include "quarn/v6ProjectFile.h"

#include <QFile>
#include <QTextStream>

#include "blocktext/TextValues.h"
#include "blocktext/WholeText.h"
#include "project/Sections.h"
#include "quarn/DelimManager.h"

namespace quarn {

namespace {

constexpr unsigned int newestVersion = 8;
const QLatin1String versionLine("Version 8\n");

// Appends what belongs below the version line.
bool appendTo(const QString& path, const QString& text) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append)) return false;
    const QByteArray bytes = text.toUtf8();
    return file.write(bytes) == bytes.size() && file.flush();
}

QString textOfBlocks(const v6ProjectFile& project) {
    QString text;
    QTextStream stream(&text, QIODevice::WriteOnly);
    stream.setRealNumberPrecision(17);
    DelimManager delim(stream, QString());
    StreamOutProject(delim, project);
    return text;
}

}  // namespace

v6ProjectFile::v6ProjectFile() {
    m_displayUnits = {QStringLiteral("m"), 1.0};
    m_modelingUnits = m_displayUnits;
}

v6ProjectFile::v6ProjectFile(const v6ProjectFile& other) = default;
v6ProjectFile& v6ProjectFile::operator=(const v6ProjectFile& other) = default;
v6ProjectFile::~v6ProjectFile() = default;

bool v6ProjectFile::saveToStream(QTextStream& stream) {
    const QString text = textOfBlocks(*this);
    stream.setCodec("UTF-8");
    stream.setRealNumberPrecision(17);
    stream << versionLine << text;
    stream.flush();
    return stream.status() != QTextStream::Ok;
}

bool v6ProjectFile::save(const QString& path, QTextStream& stream, QFile& file) {
    const QString text = textOfBlocks(*this);
    stream << versionLine;
    stream.flush();
    file.close();
    appendTo(path, text);
    return false;
}

void v6ProjectFile::getFileVersion(QTextStream& stream, unsigned int& major, unsigned int& minor) {
    static const QLatin1String olderPhrase("FDTD file version");
    if (stream.status() != QTextStream::Ok) return;
    major = 0;
    minor = 0;
    const QString line = stream.readLine();
    if (line.contains(QLatin1String("Version"))) {
        major = line.mid(line.indexOf(u' ') + 1, 1).toUInt();
    } else if (const int at = line.indexOf(olderPhrase); at >= 0) {
        major = line.mid(at + 18, 1).toUInt();
        minor = line.mid(at + 20, 2).toUInt();
    }
}

bool v6ProjectFile::acceptsVersionOf(QTextStream& stream, QStringList& errors) {
    getFileVersion(stream, m_majorFileVersion, m_minorFileVersion);
    if (m_majorFileVersion <= newestVersion) return true;
    errors << QStringLiteral("This project file version is unsupported.");
    return false;
}

bool v6ProjectFile::loadFromStream(QTextStream& stream, QStringList& errors) {
    if (!acceptsVersionOf(stream, errors)) return false;
    blocktext::decodeAsUtf8(stream);
    loadBlocks(stream, QString());
    return true;
}

bool v6ProjectFile::load(const QString& path, QFile& file, QTextStream& stream, QStringList& errors) {
    const bool hasFirstLine = stream.status() == QTextStream::Ok;
    const qint64 start = stream.pos();
    if (!acceptsVersionOf(stream, errors)) return false;
    stream.setDevice(nullptr);
    file.close();
    QFile reopened(path);
    if (!reopened.open(QIODevice::ReadOnly)) return false;
    QTextStream rest(&reopened);
    rest.setCodec("UTF-8");
    rest.seek(start);
    if (hasFirstLine) rest.readLine();  // once more, as a stream that has read damage cannot tell where it stands
    loadBlocks(rest, path);
    return true;
}

// The reader of the project block may come back before that block ends, since the close line of a nested block ends it
// (StreamInUnits says why), and is then called again. The outer block's name is looked at once only.
void v6ProjectFile::loadBlocks(QTextStream& stream, const QString& path) {
    if (stream.status() != QTextStream::Ok) {
        stream.resetStatus();
        return;
    }
    m_createdByLoad.clear();
    blocktext::WholeText text(stream);
    DelimManager delim(text.stream(), path);
    QString name, value, description;
    if (!delim.IsDelim(name, value, description)) return;
    while (delim.ContinueReading()) {
        if (!StreamInProject(name, delim, *this) && !delim.SeekToEndOfDelim()) break;
    }
    m_createdByLoad.clear();
}

void v6ProjectFile::StripEscapeCharacters(QString& text) { blocktext::stripEscapeCharacters(text); }

void v6ProjectFile::StripEscapeCharactersAndTrimWhitespace(QString& text) {
    StripEscapeCharacters(text);
    text = text.trimmed();
}

BoundaryConditions::BoundaryType v6ProjectFile::OuterBoundaryDescriptorToType(const QString& descriptor) {
    return boundaryTypeOf(descriptor);
}

BoundaryConditions::BoundaryType v6ProjectFile::OuterBoundaryDescriptorToType(int number) {
    const bool isType = number >= BoundaryConditions::Liao && number <= BoundaryConditions::MSymmetry;
    return isType ? static_cast<BoundaryConditions::BoundaryType>(number) : BoundaryConditions::CPML;
}

QString v6ProjectFile::OuterBoundaryTypeToDescriptor(BoundaryConditions::BoundaryType type) {
    return boundaryTypeName(type);
}

}  // namespace quarn
