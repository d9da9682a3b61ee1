// A text and a script of operations on it: the first bytes choose the operations, the rest is the text. Every operation
// ends, and a stream over a device gives what one over a string gives.

#include <QTextStream>
#include <algorithm>
#include <cstdint>

#include "Harness.h"
#include "MemoryBound.h"
#include "quarn/DelimManager.h"

namespace {

// What came of one operation.
struct Outcome {
    bool result;
    QString name;
    QString value;
    QString description;
    QString word;

    bool operator==(const Outcome& other) const {
        return result == other.result && name == other.name && value == other.value &&
               description == other.description && word == other.word;
    }
};

Outcome perform(quarn::DelimManager& delim, std::uint8_t operation) {
    Outcome o{true, QString(), QString(), QString(), QString()};
    const bool named = (operation & 0x80) != 0;
    if (named) o.name = QStringLiteral("Units");
    switch (operation & 0x0F) {
        case 0:
            o.result = delim.IsDelim(o.name, o.value, o.description);
            break;
        case 1:
            o.result = delim.ContinueReading();
            break;
        case 2:
            o.result = delim.SeekToEndOfDelim();
            break;
        case 3:
            o.result = delim.GetFirstDelim(o.name, o.value, o.description);
            break;
        case 4:
            o.result = delim.GetNextDelim(o.name, o.value, o.description);
            break;
        case 5:
            o.result = delim.FindFirstDelim(QStringLiteral("Units"), o.value, o.description);
            break;
        case 6:
            o.result = delim.FindNextDelim(QStringLiteral("Units"), o.value, o.description);
            break;
        case 7:
            o.word = delim.GetStream().readLine();
            break;
        case 8:
            quarn::DelimManager::skipWhiteSpace(delim.GetStream());
            break;
        default:
            delim.GetStream() >> o.word;
    }
    return o;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const fuzz::MemoryBound bound(size);
    constexpr std::size_t longestScript = 16;
    const std::size_t operations = std::min(size / 4, longestScript);
    const auto text =
        QString::fromLatin1(reinterpret_cast<const char*>(data + operations), static_cast<int>(size - operations));
    QString string = text;
    QTextStream overString(&string, QIODevice::ReadOnly);
    QTextStream overDevice(text.toUtf8());
    overDevice.setCodec("UTF-8");
    quarn::DelimManager fromString(overString, QString());
    quarn::DelimManager fromDevice(overDevice, QString());
    for (std::size_t i = 0; i < operations; ++i) {
        fuzz::require(perform(fromString, data[i]) == perform(fromDevice, data[i]));
    }
    return 0;
}
