#pragma once

#include <QByteArray>
#include <QString>
#include <functional>

namespace quarn::tool {

/// Writes the file by way of a FileReplacement: an earlier one stays as it is on any failure where it can be replaced,
/// and a device or a pipe is written into. SIGINT and SIGTERM take effect when the file is whole or given up. The name
/// "-" stands for standard output. Throws a FileProblem.
void writeFile(const QString& path, const QByteArray& bytes);

/// Likewise, with what `make` writes to the file that it is given; it returns false when it cannot.
void writeFile(const QString& path, const std::function<bool(const QString& path)>& make);

}  // namespace quarn::tool
