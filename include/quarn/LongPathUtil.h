#pragma once

#include <QString>
#include <string>

#include "quarn/Export.h"

namespace quarn {

/// The directory against which relative paths are resolved in place of the process's current directory. One for the
/// process, empty until it is set; meant to be set once at start-up, without synchronisation.
class QUARN_EXPORT LongPathUtil {
public:
    /// UTF-8.
    static std::string& getWorkingDir();
    static void setWorkingDir(const std::string& directory);
};

/// Resolves a path against the working directory and, on systems that limit the length of paths, gives it the form and
/// the prefix that lift the limit. Only while the environment variable KIVEN_LONGPATHSUPPORT is set; otherwise the path
/// is returned unchanged. Narrow paths are UTF-8.
QUARN_EXPORT QString resolveLongPath(const QString& path, bool addPrefix);
QUARN_EXPORT std::string resolveLongPath(const std::string& path, bool addPrefix);

/// Whether openFile refuses the path for its length: 259 characters or more while KIVEN_LONGPATHSUPPORT is not set.
QUARN_EXPORT bool isPathTooLong(const QString& path);

/// Whether both paths lead to one file that exists, also by symbolic or hard links. Resolves both.
QUARN_EXPORT bool isSameFile(const QString& a, const QString& b);

/// The resolved path, prefixed where the system wants that, as UTF-16 in a wide string.
QUARN_EXPORT std::wstring resolveLongPathAndConvertToNative(const std::string& path);

}  // namespace quarn
