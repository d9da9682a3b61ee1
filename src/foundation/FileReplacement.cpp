#include "foundation/FileReplacement.h"

#include <QFile>
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <string>
#include <system_error>

namespace quarn {

namespace fs = std::filesystem;

namespace {

using Name = fs::path::string_type;

// In UTF-8 or, where names are wide, UTF-16.
template <class Unit>
constexpr bool isInsideCharacter(Unit unit) {
    if constexpr (sizeof(Unit) == 1) {
        return (static_cast<unsigned char>(unit) & 0xC0U) == 0x80U;
    } else {
        return unit >= 0xDC00 && unit <= 0xDFFF;
    }
}

// Of a file beside the target, no longer than its name where that has some length: paths may be as long as they can be.
Name startOfNameBeside(const fs::path& target) {
    constexpr std::size_t lengthOfEnding = 5;
    const Name name = target.filename().native();
    std::size_t length = name.size() - std::min(name.size() - 1, lengthOfEnding);
    while (length > 1 && isInsideCharacter(name[length])) --length;
    return name.substr(0, length);
}

std::FILE* open(const fs::path& path, const char* mode) {
#ifdef Q_OS_WIN
    return _wfopen(path.c_str(), fs::path(mode).c_str());
#else
    return std::fopen(path.c_str(), mode);
#endif
}

bool opens(const fs::path& path, const char* mode) {
    std::FILE* const file = open(path, mode);
    return file && std::fclose(file) == 0;
}

bool isWritableFile(const fs::path& path) {
    std::error_code failure;
    return fs::is_regular_file(path, failure) && opens(path, "r+b");
}

// By this call: false with EEXIST when the file was there, even as a link to nothing.
bool isMade(const fs::path& path) { return opens(path, "wbx"); }

}  // namespace

fs::path toSystemPath(const QString& path) {
#ifdef Q_OS_WIN
    return path.toStdWString();
#else
    return QFile::encodeName(path).toStdString();
#endif
}

QString toQtPath(const fs::path& path) {
#ifdef Q_OS_WIN
    return QString::fromStdWString(path.native());
#else
    return QFile::decodeName(path.c_str());
#endif
}

FileReplacement::FileReplacement(fs::path target) : m_target(std::move(target)), m_path(m_target) {
    std::error_code failure;
    if (fs::is_symlink(m_target, failure)) {
        const fs::path linked = fs::canonical(m_target, failure);
        if (failure) return;
        m_target = m_path = linked;
    }
    if (!m_target.has_filename() || (fs::exists(m_target, failure) && !isWritableFile(m_target))) return;
    const Name start = startOfNameBeside(m_target);
    for (int i = 0; m_path == m_target || (!isMade(m_path) && errno == EEXIST); ++i) {
        m_path.replace_filename(fs::path(start) += ".new" + std::to_string(i));
    }
}

FileReplacement::~FileReplacement() {
    std::error_code failure;
    if (isBeside()) fs::remove(m_path, failure);
}

bool FileReplacement::takePlace() {
    if (!isBeside()) return true;
    std::error_code failure;
    const fs::file_status earlier = fs::status(m_target, failure);
    if (fs::exists(earlier)) fs::permissions(m_path, earlier.permissions(), failure);
    failure.clear();
    fs::rename(m_path, m_target, failure);
    if (failure) return false;
    m_path = m_target;
    return true;
}

}  // namespace quarn
