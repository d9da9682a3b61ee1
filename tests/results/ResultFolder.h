#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace quarn::test {

/// A temporary folder for the files of one test.
class ResultFolder {
public:
    QString path(const QString& name) const { return m_folder.filePath(name); }
    bool has(const QString& name) const { return QFile::exists(path(name)); }
    QStringList names() const { return QDir(m_folder.path()).entryList(QDir::Files, QDir::Name); }

    bool linkHard(const QString& file, const QString& link) const {
        return ::link(path(file).toLocal8Bit(), path(link).toLocal8Bit()) == 0;
    }

    QByteArray bytes(const QString& name) const {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        return file.readAll();
    }

    /// Writes a file and returns its path.
    QString put(const QString& name, const QByteArray& bytes) const {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << name.toStdString();
        file.write(bytes);
        return path(name);
    }

private:
    QTemporaryDir m_folder;
};

}  // namespace quarn::test
