#include "files/OutputFile.h"

#include <QFile>
#include <QTemporaryDir>
#include <cstdio>

#include "Console.h"
#include "files/DeferredSignals.h"
#include "files/InputFile.h"
#include "quarn/FileReplacement.h"

namespace quarn::tool {

namespace {

bool isClosed(QFile& file) {
    file.close();
    return file.error() == QFileDevice::NoError;
}

// Messages name `path`, which the file is to replace.
void write(const QString& path, QFile& file, const QByteArray& bytes) {
    const bool isWritten = file.isOpen() && file.write(bytes) == bytes.size() && file.flush() && isClosed(file);
    if (isWritten) return;
    // When a full disk takes a part only, there is no reason: the text is that of a file without an error.
    const bool hasReason = file.errorString() != QFile().errorString();
    throw FileProblem(path, hasReason ? file.errorString() : text("cannot be written"));
}

void writeToStandardOutput(const QByteArray& bytes) {
    out().flush();
    QFile file;
    file.open(stdout, QIODevice::WriteOnly);
    write(text("standard output"), file, bytes);
}

}  // namespace

void writeFile(const QString& path, const QByteArray& bytes) {
    if (path == QLatin1String("-")) return writeToStandardOutput(bytes);
    checkName(path);
    const DeferredSignals deferred(path);
    FileReplacement replacement(path);
    if (replacement.path().isEmpty()) throw FileProblem(path, replacement.errorString());
    QFile file(replacement.path());
    file.open(QIODevice::WriteOnly);
    write(path, file, bytes);
    if (!deferred.isPending() && !replacement.takePlace()) throw FileProblem(path, replacement.errorString());
}

void writeFile(const QString& path, const std::function<bool(const QString& path)>& make) {
    const DeferredSignals deferred(path);
    const QTemporaryDir folder;
    QFile made(folder.filePath(text("made")));
    if (!folder.isValid() || !make(made.fileName()) || !made.open(QIODevice::ReadOnly)) {
        throw FileProblem(path, "no temporary file can be written for it");
    }
    if (!deferred.isPending()) writeFile(path, made.readAll());
}

}  // namespace quarn::tool
