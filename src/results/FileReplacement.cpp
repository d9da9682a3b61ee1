#include "results/FileReplacement.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <filesystem>
#include <system_error>

#include "quarn/LongPathUtil.h"

namespace quarn {

namespace {

std::filesystem::path toSystemPath(const QString& path) {
#ifdef Q_OS_WIN
    return path.toStdWString();
#else
    return QFile::encodeName(path).toStdString();
#endif
}

}  // namespace

FileReplacement::FileReplacement(const QString& target) : m_target(resolveLongPath(target, true)), m_path(m_target) {
    const QFileInfo earlier(m_target);
    if (earlier.exists() && !earlier.isFile()) return;
    if (earlier.exists() && earlier.isSymLink()) m_target = earlier.canonicalFilePath();
    // No longer than the target where that has a name of some length: paths may be as long as they can be.
    constexpr int lengthOfEnding = 5;
    const int spare = std::min(QFileInfo(m_target).fileName().size() - 1, lengthOfEnding);
    for (int i = 0; m_path == m_target || QFileInfo::exists(m_path); ++i) {
        m_path = m_target.chopped(spare) + QLatin1String(".new") + QString::number(i);
    }
}

FileReplacement::~FileReplacement() {
    if (isBeside()) QFile::remove(m_path);
}

bool FileReplacement::takePlace() {
    if (!isBeside()) return true;
    const QFileInfo earlier(m_target);
    if (earlier.exists()) QFile::setPermissions(m_path, earlier.permissions());
    std::error_code failure;
    std::filesystem::rename(toSystemPath(m_path), toSystemPath(m_target), failure);
    if (failure) return false;
    m_path = m_target;
    return true;
}

}  // namespace quarn
