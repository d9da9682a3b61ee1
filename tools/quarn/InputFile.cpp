#include "InputFile.h"

#include <QFile>
#include <QTextCodec>
#include <algorithm>

#include "Console.h"
#include "GeometryOnDisk.h"
#include "PatternFile.h"
#include "ViaSheet.h"

namespace quarn::tool {

namespace {

constexpr int mebibyte = 1 << 20;
constexpr int sizeLimit = 512 * mebibyte;

bool isProject(const QByteArray& content) {
    return content.contains("begin_<FDTDProject>") || content.contains("begin_<FEMProject>");
}

struct Recogniser {
    FileKind kind;
    bool (*recognises)(const QByteArray& content);
};

constexpr Recogniser recognisers[] = {
    {FileKind::MeshlessVias, isViaFile},
    {FileKind::Geometry, isGeometryFile},
    {FileKind::Project, isProject},
    {FileKind::AntennaPattern, isPatternFile},
};

}  // namespace

FileKind kindOf(const QByteArray& content) {
    for (const Recogniser& recogniser : recognisers) {
        if (recogniser.recognises(content)) return recogniser.kind;
    }
    return FileKind::Unknown;
}

void checkName(const QString& path) {
    if (path.isEmpty()) throw FileProblem(path, QStringLiteral("the file name is empty"));
}

// In pieces and with the limit checked as it goes, since a device or a pipe does not tell its size.
QByteArray readFile(const QString& path) {
    checkName(path);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) throw FileProblem(path, file.errorString());
    QByteArray content;
    content.reserve(static_cast<int>(std::min<qint64>(file.size(), sizeLimit)));
    while (content.size() <= sizeLimit) {
        const QByteArray piece = file.read(mebibyte);
        if (piece.isEmpty()) break;
        content += piece;
    }
    if (content.size() > sizeLimit) {
        throw FileProblem(path, QStringLiteral("larger than the %1 MiB that can be read").arg(sizeLimit / mebibyte));
    }
    if (file.error() != QFileDevice::NoError) throw FileProblem(path, file.errorString());
    return content;
}

DecodedText decodedAsUtf8(const QByteArray& content) {
    QTextCodec::ConverterState state;
    const QString text = QTextCodec::codecForName("UTF-8")->toUnicode(content.constData(), content.size(), &state);
    return {text, state.invalidChars};
}

}  // namespace quarn::tool
