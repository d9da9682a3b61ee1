#pragma once

#include <QLatin1String>
#include <QString>
#include <QTextStream>

#include "quarn/DelimManager.h"

namespace quarn::blocktext {

/// A block that is open for writing as long as the object lives.
class WrittenBlock {
public:
    WrittenBlock(DelimManager& delim, QLatin1String name, const QString& value = QString()) : m_delim(delim) {
        m_delim.BeginDelim(name, value, QString());
    }
    ~WrittenBlock() { m_delim.EndDelim(); }
    WrittenBlock(const WrittenBlock&) = delete;
    WrittenBlock& operator=(const WrittenBlock&) = delete;

private:
    DelimManager& m_delim;
};

/// Writes a line that holds `key` alone.
inline void putLine(DelimManager& delim, QLatin1String key) { delim.GetStream() << key << '\n'; }

/// Writes a line that holds `key` alone where the flag is set.
inline void putFlag(DelimManager& delim, QLatin1String key, bool isSet) {
    if (isSet) putLine(delim, key);
}

/// Writes the line of a key and its values, which blanks separate.
template <class... Values>
void putLine(DelimManager& delim, QLatin1String key, const Values&... values) {
    QTextStream& out = delim.GetStream();
    out << key;
    ((out << ' ' << values), ...);
    out << '\n';
}

}  // namespace quarn::blocktext
