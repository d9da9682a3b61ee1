#pragma once

#include <QLatin1String>
#include <QString>
#include <QTextStream>
#include <utility>

#include "quarn/DelimManager.h"

namespace quarn::blocktext {

/// A block that is open for writing until end() is called or the object goes.
class WrittenBlock {
public:
    WrittenBlock(DelimManager& delim, QLatin1String name, const QString& value = QString()) : m_delim(delim) {
        m_isOpen = m_delim.BeginDelim(name, value, QString());
    }
    ~WrittenBlock() { end(); }
    WrittenBlock(const WrittenBlock&) = delete;
    WrittenBlock& operator=(const WrittenBlock&) = delete;

    /// Whether the whole block could be written. A block that could not be opened is not closed either.
    bool end() {
        const bool isWritten = m_isOpen && m_delim.GetStream().status() == QTextStream::Ok;
        return std::exchange(m_isOpen, false) && m_delim.EndDelim() && isWritten;
    }

private:
    DelimManager& m_delim;
    bool m_isOpen;
};

}  // namespace quarn::blocktext
