#pragma once

#include <QString>
#include <QTextStream>

namespace quarn::blocktext {

/// Sets the codec of a stream that has been read from, unless it is that already: a stream rereads what it has when the
/// codec is set, and where that is damaged may go astray.
void decodeAsUtf8(QTextStream& stream);

/// What is left of a text stream as one string in memory, under a stream of its own with the default locale and number
/// settings. A string stream is walked where it is, and its position follows; a device stream is read to its end. A
/// text of more characters than `mostInMemory` stays on its device where that can be rewound, and is cut there where it
/// cannot.
class WholeText {
public:
    explicit WholeText(QTextStream& source, qint64 mostInMemory = qint64(1) << 28);
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
