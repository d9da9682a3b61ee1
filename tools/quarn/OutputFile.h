#pragma once

#include <QByteArray>
#include <QString>
#include <functional>

namespace quarn::tool {

/// Writes the file so that an earlier one stays as it is on any failure. What is there and no regular file, such as a
/// device or a pipe, stays too and is written into. Throws a FileProblem.
void writeFile(const QString& path, const QByteArray& bytes);

/// Likewise, with what `make` writes to the file that it is given; it returns false when it cannot.
void writeFile(const QString& path, const std::function<bool(const QString& path)>& make);

}  // namespace quarn::tool
