#pragma once

#include <QFile>
#include <QString>
#include <filesystem>

namespace quarn {

/// The path in the encoding of the system.
inline std::filesystem::path toSystemPath(const QString& path) {
#ifdef Q_OS_WIN
    return path.toStdWString();
#else
    return QFile::encodeName(path).toStdString();
#endif
}

inline QString toQtPath(const std::filesystem::path& path) {
#ifdef Q_OS_WIN
    return QString::fromStdWString(path.native());
#else
    return QFile::decodeName(path.c_str());
#endif
}

}  // namespace quarn
