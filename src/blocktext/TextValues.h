#pragma once

#include <QString>
#include <QStringView>
#include <QTextStream>

namespace quarn::blocktext {

/// Reads the next word. The view lives until `buffer` or the stream's string changes; it is empty at the end.
QStringView readWord(QTextStream& in, QString& buffer);

/// Reads a number or a word. When there is none, `value` is unchanged and the stream's status tells why.
///
/// What is read is what QTextStream reads, hexadecimal and octal integers, "nan" and "inf" included. Plain decimal
/// numbers on a string stream, of which files hold millions, are read many times faster without it.
bool readValue(QTextStream& in, float& value);
bool readValue(QTextStream& in, double& value);
bool readValue(QTextStream& in, int& value);
bool readValue(QTextStream& in, unsigned& value);
bool readValue(QTextStream& in, QString& word);

/// Reads what is left of the line, cleaned of escape characters and trimmed: the form of names and file names.
QString readRestOfLine(QTextStream& in);

/// Drops what is left of the line.
void dropLine(QTextStream& in);

/// Drops the next `count` words of the line, or what is left of it where it has fewer.
void dropWordsOfLine(QTextStream& in, int count);

/// Removes every character whose code equals the index of the first CR in the text, then likewise for the first LF. In
/// practice that removes a CR at index 13 and a LF at index 10; the engine reads its files this way.
void stripEscapeCharacters(QString& text);

}  // namespace quarn::blocktext
