#include "quarn/FileReplacement.h"

#include <QDir>
#include <QTemporaryFile>
#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <fstream>
#include <string>
#include <system_error>

#ifndef Q_OS_WIN
#include <sys/stat.h>
#endif

#include "foundation/SystemPath.h"
#include "quarn/LongPathUtil.h"

namespace quarn {

namespace fs = std::filesystem;

namespace {

QString reasonOf(int error) {
    return QString::fromLocal8Bit(std::error_code(error, std::generic_category()).message().c_str());
}

// Zero, or the errno of the failure.
int openAndClose(const fs::path& path, const char* mode) {
#ifdef Q_OS_WIN
    std::FILE* const file = _wfopen(path.c_str(), fs::path(mode).c_str());
#else
    std::FILE* const file = std::fopen(path.c_str(), mode);
#endif
    return file && std::fclose(file) == 0 ? 0 : errno;
}

bool isWritableFile(const fs::path& path) {
    std::error_code failure;
    return fs::is_regular_file(path, failure) && openAndClose(path, "r+b") == 0;
}

// The file at the end of a chain of symbolic links, which need not exist.
fs::path targetOfLinks(fs::path path) {
    constexpr int maximumLinks = 40;  // that systems follow
    std::error_code failure;
    for (int i = 0; i < maximumLinks && fs::is_symlink(path, failure); ++i) {
        path = path.parent_path() / fs::read_symlink(path, failure);
    }
    return path;
}

bool isClosedFolder(int error) { return error == EACCES || error == EPERM || error == EROFS; }

// Whoever can open the target must be able to open the file beside it.
bool isOnlyNewPathTooLong(const fs::path& path, const fs::path& target) {
    return isPathTooLong(toQtPath(path)) && !isPathTooLong(toQtPath(target));
}

// Readable by the owner only, since the folder of the target may be closed to others. Empty when it cannot be created.
fs::path fileInTemporaryFolder(const fs::path& target) {
    QTemporaryFile file(QDir::tempPath() + u'/' + toQtPath(target.filename()) + QStringLiteral(".XXXXXX"));
    file.setAutoRemove(false);
    return file.open() ? toSystemPath(file.fileName()) : fs::path();
}

// Nobody may read in the new file what they may not read in the earlier one.
void restrictPermissions(const fs::path& made, const fs::path& earlier) {
    std::error_code failure;
    const fs::perms toOthers =
        fs::status(earlier, failure).permissions() & (fs::perms::group_all | fs::perms::others_all);
    fs::permissions(made, toOthers | fs::perms::owner_read | fs::perms::owner_write, failure);
}

// Renaming would detach the other hard links of a file and change its owner.
bool mustStayInPlace(const fs::path& earlier, const fs::path& made) {
#ifdef Q_OS_WIN
    Q_UNUSED(made)
    std::error_code failure;
    return fs::hard_link_count(earlier, failure) > 1 && !failure;
#else
    struct stat old {};
    struct stat replacing {};
    if (stat(earlier.c_str(), &old) != 0 || stat(made.c_str(), &replacing) != 0) return false;
    return old.st_nlink > 1 || old.st_uid != replacing.st_uid || old.st_gid != replacing.st_gid;
#endif
}

bool copyRange(std::istream& source, std::ostream& target, std::streamoff begin, std::streamoff end) {
    std::array<char, 1 << 16> buffer;
    source.seekg(begin);
    target.seekp(begin);
    while (begin < end && source && target) {
        const auto size = std::min(end - begin, static_cast<std::streamoff>(buffer.size()));
        source.read(buffer.data(), size);
        target.write(buffer.data(), source.gcount());
        begin += size;
    }
    return source && target.flush();
}

// The part beyond the earlier end is written first: on a full disk it can be cut off again and the rest is untouched.
bool copyInto(const fs::path& target, const fs::path& source) {
    std::error_code failure;
    const auto oldSize = static_cast<std::streamoff>(fs::file_size(target, failure));
    if (failure) return false;
    const auto newSize = static_cast<std::streamoff>(fs::file_size(source, failure));
    std::ifstream in(source, std::ios::binary);
    std::fstream out(target, std::ios::in | std::ios::out | std::ios::binary);
    if (failure || !in || !out) return false;
    if (newSize > oldSize && !copyRange(in, out, oldSize, newSize)) {
        const int reason = errno;
        fs::resize_file(target, static_cast<std::uintmax_t>(oldSize), failure);
        errno = reason;
        return false;
    }
    if (!copyRange(in, out, 0, std::min(oldSize, newSize))) return false;
    out.close();
    if (newSize < oldSize) fs::resize_file(target, static_cast<std::uintmax_t>(newSize), failure);
    return out && !failure;
}

}  // namespace

FileReplacement::FileReplacement(const QString& target)
    : FileReplacement(toSystemPath(resolveLongPath(target, true))) {}

FileReplacement::FileReplacement(const fs::path& target) : m_target(target), m_path(target) {
    std::error_code failure;
    const fs::file_status status = fs::status(target, failure);
    if (failure == std::errc::too_many_symbolic_link_levels) {
        m_path.clear();
        fail(QStringLiteral("the symbolic link leads back to itself; remove it or choose another file"));
        return;
    }
    const bool exists = fs::exists(status);
    if (!target.has_filename() || (exists && !isWritableFile(target))) return;
    const fs::path linked = targetOfLinks(target);
    // A link below /proc may name an open file that has no path any more.
    const bool isElsewhere = exists && !fs::equivalent(linked, target, failure);
    if (isElsewhere || isOnlyNewPathTooLong(linked, target)) return;
    m_target = linked;
    makeTemporaryFile(exists);
}

void FileReplacement::makeTemporaryFile(bool targetExists) {
    int error = EEXIST;
    for (int i = 0; error == EEXIST; ++i) {
        m_path = m_target;
        m_path += ".new" + std::to_string(i);
        error = isOnlyNewPathTooLong(m_path, m_target) ? ENAMETOOLONG : openAndClose(m_path, "wbx");
    }
    if (error == 0) {
        if (targetExists) restrictPermissions(m_path, m_target);
        return;
    }
    m_path.clear();
    if (targetExists && isClosedFolder(error)) {
        m_path = fileInTemporaryFolder(m_target);
        if (m_path.empty()) m_path = m_target;
    } else if (error == ENAMETOOLONG) {
        m_path = m_target;
    } else {
        fail(reasonOf(error));
    }
}

FileReplacement::~FileReplacement() {
    std::error_code failure;
    if (!m_path.empty() && !isTarget()) fs::remove(m_path, failure);
}

QString FileReplacement::path() const { return toQtPath(m_path); }

bool FileReplacement::takePlace() {
    if (m_path.empty() || isTarget()) return !m_path.empty();
    std::error_code failure;
    if (m_path.parent_path() == m_target.parent_path() && !mustStayInPlace(m_target, m_path)) {
        const fs::file_status earlier = fs::status(m_target, failure);
        if (fs::exists(earlier)) fs::permissions(m_path, earlier.permissions(), failure);
        fs::rename(m_path, m_target, failure);
        if (!failure) {
            m_path = m_target;
            return true;
        }
    }
    errno = 0;
    if (!copyInto(m_target, m_path)) return fail(reasonOf(errno ? errno : EIO));
    fs::remove(m_path, failure);
    m_path = m_target;
    return true;
}

bool FileReplacement::fail(const QString& reason) {
    m_errorString = reason;
    return false;
}

}  // namespace quarn
