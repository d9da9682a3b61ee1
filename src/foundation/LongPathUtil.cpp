#include "quarn/LongPathUtil.h"

#include <QDir>
#include <cstdlib>

#include "foundation/LongPathText.h"
#include "foundation/SystemPath.h"

namespace quarn {

namespace {

const QLatin1String longPathPrefix("\\\\?\\");

// The size of the fixed buffer of an open call on systems with a path-length limit, without its final zero. It holds on
// all systems, so that a run does not depend on the machine that prepared it.
constexpr int pathLimit = 259;

QString absolutePath(const QString& path) {
    if (!QDir::isRelativePath(path)) return path;
    const std::string& directory = LongPathUtil::getWorkingDir();
    if (directory.empty()) return QDir(path).absolutePath();
    return QDir::cleanPath(QStringLiteral("%1/%2").arg(QString::fromStdString(directory), path));
}

}  // namespace

bool supportsLongPaths() { return std::getenv("KIVEN_LONGPATHSUPPORT") != nullptr; }

bool isPathTooLong(const QString& path) { return path.size() >= pathLimit && !supportsLongPaths(); }

bool isSameFile(const QString& a, const QString& b) {
    std::error_code failure;
    return std::filesystem::equivalent(
        toSystemPath(resolveLongPath(a, true)), toSystemPath(resolveLongPath(b, true)), failure);
}

std::string& LongPathUtil::getWorkingDir() {
    static std::string directory;
    return directory;
}

void LongPathUtil::setWorkingDir(const std::string& directory) { getWorkingDir() = directory; }

QString withoutLongPathPrefix(const QString& path) {
    const bool hasPrefix = path.startsWith(longPathPrefix) || path.startsWith(QLatin1String("//?/"));
    return hasPrefix && path.size() > longPathPrefix.size() ? path.mid(longPathPrefix.size()) : path;
}

QString toLongPathText(QString path, bool addPrefix) {
    path.replace(QLatin1Char('/'), QLatin1Char('\\'));
    path.replace(QLatin1String("\\\\"), QLatin1String("\\"));
    return addPrefix ? longPathPrefix + path : path;
}

QString resolveLongPath(const QString& path, bool addPrefix) {
    if (!supportsLongPaths()) return path;
    QString absolute = absolutePath(withoutLongPathPrefix(path));
#ifdef Q_OS_WIN
    return toLongPathText(absolute, addPrefix);
#else
    Q_UNUSED(addPrefix)
    return absolute;
#endif
}

std::string resolveLongPath(const std::string& path, bool addPrefix) {
    if (!supportsLongPaths()) return path;
    return resolveLongPath(QString::fromStdString(path), addPrefix).toStdString();
}

std::wstring resolveLongPathAndConvertToNative(const std::string& path) {
    const QString resolved = QString::fromStdString(resolveLongPath(path, true));
    return std::wstring(resolved.utf16(), resolved.utf16() + resolved.size());
}

}  // namespace quarn
