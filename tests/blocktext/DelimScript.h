#pragma once

#include <QStringList>

#include "quarn/DelimManager.h"

namespace quarn::test {

/// Performs the operations of a script, separated by blanks and each with an optional name behind a colon, and returns
/// their outcomes: "-" and "+" for false and true, [name|value|description] for a block with "?" for what was not set,
/// a line in quotes, the rest of the stream in braces. An error that an operation leaves in the stream is "!".
inline QString outcome(QTextStream& stream, const QString& script) {
    DelimManager delim(stream, "file");
    QStringList outcomes;
    for (const QString& call : script.split(' ')) {
        const QString operation = call.section(':', 0, 0), wanted = call.section(':', 1);
        QString name = wanted, value = "?", description = "?";
        const auto note = [&](bool found) {
            outcomes << (found ? QString("[%1|%2|%3]").arg(name, value, description) : QString("-"));
        };
        if (operation == "bad") stream.setStatus(QTextStream::ReadCorruptData);
        if (operation == "is") note(delim.IsDelim(name, value, description));
        if (operation == "first") note(delim.GetFirstDelim(name, value, description));
        if (operation == "next") note(delim.GetNextDelim(name, value, description));
        if (operation == "find") note(delim.FindFirstDelim(wanted, value, description));
        if (operation == "findnext") note(delim.FindNextDelim(wanted, value, description));
        if (operation == "more") outcomes << (delim.ContinueReading() ? "+" : "-");
        if (operation == "seek") outcomes << (delim.SeekToEndOfDelim() ? "+" : "-");
        if (operation == "space") DelimManager::skipWhiteSpace(stream);
        if (operation == "word") stream >> value;
        if (operation == "word") outcomes << "'" + value + "'";
        if (operation == "line") outcomes << "'" + stream.readLine() + "'";
        if (operation == "rest") outcomes << "{" + stream.readAll() + "}";
        if (operation != "bad" && stream.status() != QTextStream::Ok) outcomes << "!";
    }
    return outcomes.join(' ');
}

}  // namespace quarn::test
