#pragma once

#include <QString>

namespace quarn {

/// Whether the environment variable KIVEN_LONGPATHSUPPORT is set, to any value.
bool supportsLongPaths();

/// The path without its prefix "\\?\" or "//?/", if it has one.
QString withoutLongPathPrefix(const QString& path);

/// The native form of an absolute path on systems with a path-length limit: single backslashes, and the prefix in front
/// where wanted. Text only, so that it can be tested on every system.
QString toLongPathText(QString path, bool addPrefix);

}  // namespace quarn
