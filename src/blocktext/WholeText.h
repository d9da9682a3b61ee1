#pragma once

#include <QString>
#include <QTextStream>

namespace quarn::blocktext {

/// Sets the codec of a stream to UTF-8 unless it is UTF-8 already: setting it makes a stream that has been read from
/// decode its buffer again, which can lose the position in damaged text.
void decodeAsUtf8(QTextStream& stream);

/// The rest of a text stream as one string in memory, read through a separate stream with the default locale and number
/// settings. A string stream is read in place, and its position is updated at the end; a device stream is read to its
/// end. A text of more than `maximumInMemory` characters is read from its device if that can be rewound, and is cut at
/// that length otherwise.
class WholeText {
public:
    explicit WholeText(QTextStream& source, qint64 maximumInMemory = qint64(1) << 28);
    ~WholeText();
    WholeText(const WholeText&) = delete;
    WholeText& operator=(const WholeText&) = delete;

    QTextStream& stream() { return m_onDevice ? m_source : m_stream; }

private:
    QTextStream& m_source;
    QString m_text;
    QTextStream m_stream;
    bool m_onDevice = false;
};

}  // namespace quarn::blocktext
