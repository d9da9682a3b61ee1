// The first bytes of the input choose operations, the rest is the text on which they are performed. Every operation
// must end, and a device stream must give the same results as a string stream.

#include <QTextStream>
#include <algorithm>
#include <cstdint>

#include "Harness.h"
#include "MemoryBound.h"
#include "tests/blocktext/DelimScript.h"

namespace {

constexpr const char* operations[] = {
    "is", "more", "seek", "first", "next", "find", "findnext", "line", "space", "word"};

// The low bits of a byte choose the operation, the high bit whether only the block "Units" is wanted.
QString scriptOf(const std::uint8_t* data, std::size_t size) {
    QStringList script;
    for (std::size_t i = 0; i < size; ++i) {
        const QString operation = operations[std::min<std::size_t>(data[i] & 0x0F, std::size(operations) - 1)];
        script << ((data[i] & 0x80) != 0 || operation.startsWith("find") ? operation + ":Units" : operation);
    }
    return script.join(' ');
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const fuzz::MemoryBound bound(size);
    constexpr std::size_t longestScript = 16;
    const std::size_t scriptSize = std::min(size / 4, longestScript);
    const auto* text = reinterpret_cast<const char*>(data + scriptSize);
    QString string = QString::fromLatin1(text, static_cast<int>(size - scriptSize));
    QTextStream overString(&string, QIODevice::ReadOnly), overDevice(string.toUtf8());
    overDevice.setCodec("UTF-8");
    const QString script = scriptOf(data, scriptSize);
    fuzz::require(quarn::test::outcome(overString, script) == quarn::test::outcome(overDevice, script));
    return 0;
}
