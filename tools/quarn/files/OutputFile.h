#pragma once

#include <QByteArray>
#include <QString>
#include <functional>

namespace quarn::tool {

/// Writes the file through a FileReplacement, so that an earlier file stays as it was on a failure wherever it can be
/// replaced. Devices and pipes are written directly. SIGINT and SIGTERM take effect when the file is complete or
/// dropped. The name "-" stands for standard output. Throws a FileProblem.
void writeFile(const QString& path, const QByteArray& bytes);

/// Writes the content that `make` writes to the path that it is given. `make` returns false when it fails.
void writeFile(const QString& path, const std::function<bool(const QString& path)>& make);

}  // namespace quarn::tool
