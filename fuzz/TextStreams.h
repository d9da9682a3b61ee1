#pragma once

#include <QByteArray>
#include <QRegularExpression>
#include <QString>
#include <QTextStream>
#include <algorithm>

namespace fuzz {

/// The same text as a device stream and as a string stream.
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

/// Whether the text may end within a character: a device stream then does not report its end after the last complete
/// one.
inline bool endsInsideCharacter(const QByteArray& bytes) {
    const QByteArray end = bytes.right(3);
    return std::any_of(end.begin(), end.end(), [](char byte) { return static_cast<unsigned char>(byte) >= 0xC0; });
}

/// Whether a value contains the mark of an open or close line. The format cannot represent this: the value is read as
/// an open or close line.
inline bool hasMarkInValue(const QString& text) {
    static const QRegularExpression mark(QStringLiteral("[^\\n](begin|end)_<"));
    return text.contains(mark);
}

}  // namespace fuzz
