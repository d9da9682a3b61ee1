#pragma once

#include <gtest/gtest.h>

#include <QString>
#include <QTextStream>
#include <stdexcept>
#include <string>

#include "quarn/OwnedProject.h"

inline void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }

namespace quarn::test {

/// Names a parameterised test after its row.
template <class Row>
std::string rowName(const testing::TestParamInfo<Row>& row) {
    return row.param.name;
}

/// Calls `use` with a string stream and with a device stream over the same text: both must give the same result.
template <class Use>
void onBothStreams(QString text, Use use) {
    QTextStream overString(&text, QIODevice::ReadOnly), overDevice(text.toUtf8());
    overDevice.setCodec("UTF-8");
    for (QTextStream* stream : {&overString, &overDevice}) {
        SCOPED_TRACE(stream->device() ? "device stream" : "string stream");
        use(*stream);
    }
}

/// Expands the short form of a text: "A{ key 1; B{ } }" is block A with a key line and an empty block B.
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
    EXPECT_FALSE(project.saveToStream(stream)) << "saveToStream returns true on error";
    return QString::fromUtf8(bytes);
}

/// Loads a project from both kinds of stream and compares the text that `textOf` returns for it.
template <class Project = OwnedProject, class TextOf>
void expectLoads(const QString& file, const QString& expected, TextOf textOf) {
    onBothStreams(file, [&](QTextStream& stream) {
        Project project;
        QStringList errors;
        EXPECT_TRUE(project.loadFromStream(stream, errors));
        EXPECT_EQ(textOf(project), expected);
    });
}

inline void load(v6ProjectFile& project, QString text) {
    QTextStream stream(&text, QIODevice::ReadOnly);
    QStringList errors;
    EXPECT_TRUE(project.loadFromStream(stream, errors));
    EXPECT_EQ(errors, QStringList());
}

/// The message of the std::runtime_error that `call` throws, or "nothing".
template <class Call>
std::string thrownBy(Call call) {
    try {
        call();
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return "nothing";
}

/// The findings that a check appends to lists that already have an entry: errors, then warnings.
template <class Checked, class... Arguments>
QStringList findingsOf(const Checked& checked, const Arguments&... arguments) {
    QStringList errors("error: "), warnings("warning: "), found;
    checked.checkValidity(errors, warnings, arguments...);
    for (const QString& text : errors.mid(1)) found << errors.first() + text;
    for (const QString& text : warnings.mid(1)) found << warnings.first() + text;
    return found;
}

}  // namespace quarn::test
