// Loads, checks and saves any bytes as a project file without endless loops or leaks. A device stream must give the
// same result as a string stream, and a saved text must be loaded and saved without a change.

#include <QTextStream>
#include <cstdint>

#include "Harness.h"
#include "MemoryBound.h"
#include "TextStreams.h"
#include "tests/Rewriting.h"

using fuzz::require;
using quarn::test::rewrittenProject;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const fuzz::MemoryBound bound(size);
    const QByteArray bytes = fuzz::bytesOf(data, size);
    fuzz::TwoStreams streams(bytes);
    QStringList errors, errorsOfString;
    QString saved = rewrittenProject(streams.overDevice, errors);
    const QString savedOfString = rewrittenProject(streams.overString, errorsOfString);
    if (!fuzz::endsInsideCharacter(bytes)) require(savedOfString == saved && errorsOfString == errors);
    if (saved.isNull() || fuzz::hasMarkInValue(saved)) return 0;

    // The reader takes the close line of this pulse for that of the section and does not read the rest of the section.
    if (saved.contains(QStringLiteral("begin_<IEC_61000_4_2>"))) return 0;
    QTextStream again(&saved, QIODevice::ReadOnly);
    require(rewrittenProject(again, errors) == saved);
    return 0;
}
