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
#include "quarn/quarn.h"

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

struct Geometry {
    explicit Geometry(QTextStream& input) : isLoaded(file.loadFromStream(input, &grid, errors)) {
        require(errors.size() == (isLoaded ? 0 : 1));
    }

    QString saved() const {
        const quarn::v6GeometryFile copy(file);
        QString text;
        QTextStream stream(&text, QIODevice::WriteOnly);
        require(copy.saveToStream(grid, stream));
        return text;
    }

    quarn::v6GeometryFile file;
    SmallGrid grid;
    QStringList errors;
    bool isLoaded;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const fuzz::MemoryBound bound(size);
    const QByteArray bytes = fuzz::bytesOf(data, size);
    fuzz::TwoStreams streams(bytes);
    const Geometry geometry(streams.overDevice), fromString(streams.overString);
    if (!geometry.isLoaded) return 0;
    QString saved = geometry.saved();
    if (!fuzz::endsInsideCharacter(bytes)) require(fromString.isLoaded && fromString.saved() == saved);
    if (fuzz::hasMarkInValue(saved)) return 0;

    QTextStream again(&saved, QIODevice::ReadOnly);
    const Geometry reloaded(again);
    require(reloaded.isLoaded && reloaded.saved() == saved);
    return 0;
}
