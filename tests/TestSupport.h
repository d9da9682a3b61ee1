#pragma once

#include <gtest/gtest.h>

#include <QString>
#include <QTextStream>
#include <string>

#include "quarn/OwnedProject.h"

inline void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }

namespace quarn::test {

/// Names a parameterised test after its row.
template <class Row>
std::string rowName(const testing::TestParamInfo<Row>& row) {
    return row.param.name;
}

/// Calls `use` with a stream over the text and again with one over a device: the two must not differ.
template <class Use>
void onBothStreams(QString text, Use use) {
    QTextStream overString(&text, QIODevice::ReadOnly), overDevice(text.toUtf8());
    overDevice.setCodec("UTF-8");
    for (QTextStream* stream : {&overString, &overDevice}) {
        SCOPED_TRACE(stream->device() ? "device stream" : "string stream");
        use(*stream);
    }
}

/// Writes out the short form that rows use: "A{ key 1; B{ } }" is block A with a key line and an empty block B.
inline QString expanded(const QString& shortForm) {
    QString text, line;
    QStringList open;
    for (const QChar c : shortForm) {
        if (c == '{') open << line;
        if (c == '{') text += "begin_<" + line + "> \n";
        if (c == '}') text += "end_<" + open.takeLast() + ">\n";
        if (c == ';') text += line + '\n';
        if (c == '{' || c == '}' || c == ';') {
            line.clear();
        } else if (c != ' ' || !line.isEmpty()) {
            line += c;
        }
    }
    return text;
}

inline QString saved(v6ProjectFile& project) {
    QByteArray bytes;
    QTextStream stream(&bytes, QIODevice::WriteOnly);
    EXPECT_FALSE(project.saveToStream(stream)) << "true stands for an error here";
    return QString::fromUtf8(bytes);
}

inline void load(v6ProjectFile& project, QString text) {
    QTextStream stream(&text, QIODevice::ReadOnly);
    QStringList errors;
    EXPECT_TRUE(project.loadFromStream(stream, errors));
    EXPECT_EQ(errors, QStringList());
}

}  // namespace quarn::test
