#include "OutputFile.h"

#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryDir>

#include "Console.h"
#include "InputFile.h"

namespace quarn::tool {

namespace {

bool finish(QSaveFile& file) { return file.commit(); }

bool finish(QFile& file) {
    file.close();
    return file.error() == QFileDevice::NoError;
}

template <class File>
void writeAs(const QString& path, const QByteArray& bytes) {
    File file(path);
    // A commit does not look whether what is still in the buffer could be written.
    const bool isWritten =
        file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush() && finish(file);
    if (isWritten) return;
    // A disk that takes a part only gives no reason; then the text is that of a file without an error.
    const bool hasReason = file.errorString() != QFile().errorString();
    throw FileProblem(path, hasReason ? file.errorString() : QStringLiteral("cannot be written"));
}

}  // namespace

void writeFile(const QString& path, const QByteArray& bytes) {
    checkName(path);
    const QFileInfo target(path);
    if (!target.exists() || target.isFile()) {
        writeAs<QSaveFile>(path, bytes);
    } else {
        writeAs<QFile>(path, bytes);
    }
}

void writeFile(const QString& path, const std::function<bool(const QString& path)>& make) {
    const QTemporaryDir folder;
    QFile made(folder.filePath(QStringLiteral("made")));
    if (!folder.isValid() || !make(made.fileName()) || !made.open(QIODevice::ReadOnly)) {
        throw FileProblem(path, QStringLiteral("no temporary file can be written for it"));
    }
    writeFile(path, made.readAll());
}

}  // namespace quarn::tool
