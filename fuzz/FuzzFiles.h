#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <cstddef>
#include <cstdint>

#include "Harness.h"

/// The files of one input, in a temporary folder; shared by the harnesses of file formats.
namespace fuzz {

inline const QTemporaryDir& folder() {
    static const QTemporaryDir result;
    return result;
}

inline QString pathOf(const QString& name) { return folder().filePath(name); }
inline QStringList names() { return QDir(folder().path()).entryList(QDir::Files); }

inline void put(const QString& name, const QByteArray& bytes) {
    QFile file(pathOf(name));
    require(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

inline QByteArray contents(const QString& name) {
    QFile file(pathOf(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Splits an input into several files: one byte before each file except the last gives its length.
class Pieces {
public:
    Pieces(const std::uint8_t* data, std::size_t size) : m_rest(bytesOf(data, size)) {}

    QByteArray next() {
        if (m_rest.isEmpty()) return {};
        const int length = static_cast<std::uint8_t>(m_rest[0]);
        const QByteArray piece = m_rest.mid(1, length);
        m_rest = m_rest.mid(1 + length);
        return piece;
    }

    const QByteArray& rest() const { return m_rest; }

private:
    QByteArray m_rest;
};

}  // namespace fuzz
