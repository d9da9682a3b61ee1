#include "files/ProjectOnDisk.h"

#include <QTextStream>

#include "Console.h"
#include "files/InputFile.h"

namespace quarn::tool {

LoadedProject::LoadedProject(const QString& path, const QByteArray& content) {
    if (kindOf(content) != FileKind::Project) {
        throw FileProblem(path, "not a project file: it has no FDTDProject or FEMProject block");
    }
    DecodedContent decoded = decodedAsUtf8(content);
    text = decoded.text;
    invalidCharacters = decoded.invalidCharacters;
    QTextStream stream(&decoded.text, QIODevice::ReadOnly);
    QStringList errors;
    if (!project.loadFromStream(stream, errors)) throw FileProblem(path, errors.join(u' '));
}

QByteArray savedBytes(v6ProjectFile& project) {
    QByteArray bytes;
    QTextStream stream(&bytes, QIODevice::WriteOnly);
    project.saveToStream(stream);
    return bytes;
}

}  // namespace quarn::tool
