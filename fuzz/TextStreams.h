#pragma once

#include <QByteArray>
#include <QRegularExpression>
#include <QString>
#include <QTextStream>
#include <algorithm>

namespace fuzz {

/// One text as a stream over a device and as one over a string.
class TwoStreams {
public:
    explicit TwoStreams(const QByteArray& bytes) : overDevice(bytes) {
        QTextStream whole(bytes);
        for (QTextStream* stream : {&whole, &overDevice}) stream->setCodec("UTF-8");
        m_text = whole.readAll();
        overString.setString(&m_text, QIODevice::ReadOnly);
    }

    QTextStream overDevice;
    QTextStream overString;

private:
    QString m_text;
};

/// Whether the text may end in the middle of a character: then a device stream is not at its end behind the last one.
inline bool endsInsideCharacter(const QByteArray& bytes) {
    const QByteArray end = bytes.right(3);
    return std::any_of(end.begin(), end.end(), [](char byte) { return static_cast<unsigned char>(byte) >= 0xC0; });
}

/// Whether a value holds what opens or closes a block. The format has no way to write that: it is read as an open or a
/// close line.
inline bool hasMarkInValue(const QString& text) {
    static const QRegularExpression mark(QStringLiteral("[^\\n](begin|end)_<"));
    return text.contains(mark);
}

}  // namespace fuzz
