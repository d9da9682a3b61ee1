// Loads, copies and saves any bytes as a geometry file without endless loops or leaks. A device stream must give the
// same result as a string stream, and a saved text must be loaded and saved without a change.

#include <QStringList>
#include <QTextStream>
#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "Harness.h"
#include "MemoryBound.h"
#include "TextStreams.h"
#include "tests/Rewriting.h"

namespace {

using fuzz::require;

// Refuses large grids, which are valid but would take most of the time.
class SmallGrid : public quarn::Grid {
public:
    bool initialize(std::uint32_t cellsInX, std::uint32_t cellsInY, std::uint32_t cellsInZ, float originX,
                    float originY, float originZ, const Runs& runsInX, const Runs& runsInY, const Runs& runsInZ,
                    bool withNodes) override {
        return std::max({cellsInX, cellsInY, cellsInZ}) <= 5000 &&
               Grid::initialize(
                   cellsInX, cellsInY, cellsInZ, originX, originY, originZ, runsInX, runsInY, runsInZ, withNodes);
    }
};

constexpr auto rewritten = quarn::test::rewrittenGeometry<SmallGrid>;

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const fuzz::MemoryBound bound(size);
    const QByteArray bytes = fuzz::bytesOf(data, size);
    fuzz::TwoStreams streams(bytes);
    QStringList errors, errorsOfString;
    QString saved = rewritten(streams.overDevice, errors);
    const QString savedOfString = rewritten(streams.overString, errorsOfString);
    require(errors.size() == (saved.isNull() ? 1 : 0));
    if (saved.isNull()) return 0;
    if (!fuzz::endsInsideCharacter(bytes)) require(savedOfString == saved);
    if (fuzz::hasMarkInValue(saved)) return 0;

    QTextStream again(&saved, QIODevice::ReadOnly);
    require(rewritten(again, errors) == saved);
    return 0;
}
