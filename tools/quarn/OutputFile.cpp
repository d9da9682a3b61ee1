#include "OutputFile.h"

#include <QFile>
#include <QTemporaryDir>

#include "Console.h"
#include "DeferredSignals.h"
#include "InputFile.h"
#include "quarn/FileReplacement.h"

namespace quarn::tool {

namespace {

bool closes(QFile& file) {
    file.close();
    return file.error() == QFileDevice::NoError;
}

// Writes the file that stands for `path`, which is what messages name.
void writeFor(const QString& path, const QString& fileName, const QByteArray& bytes) {
    QFile file(fileName);
    const bool isWritten =
        file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush() && closes(file);
    if (isWritten) return;
    // A disk that takes a part only gives no reason; then the text is that of a file without an error.
    const bool hasReason = file.errorString() != QFile().errorString();
    throw FileProblem(path, hasReason ? file.errorString() : QStringLiteral("cannot be written"));
}

}  // namespace

void writeFile(const QString& path, const QByteArray& bytes) {
    checkName(path);
    const DeferredSignals deferred(path);
    FileReplacement replacement(path);
    if (replacement.path().isEmpty()) throw FileProblem(path, replacement.errorString());
    writeFor(path, replacement.path(), bytes);
    if (!deferred.isPending() && !replacement.takePlace()) throw FileProblem(path, replacement.errorString());
}

void writeFile(const QString& path, const std::function<bool(const QString& path)>& make) {
    const DeferredSignals deferred(path);
    const QTemporaryDir folder;
    QFile made(folder.filePath(QStringLiteral("made")));
    if (!folder.isValid() || !make(made.fileName()) || !made.open(QIODevice::ReadOnly)) {
        throw FileProblem(path, QStringLiteral("no temporary file can be written for it"));
    }
    if (!deferred.isPending()) writeFile(path, made.readAll());
}

}  // namespace quarn::tool
