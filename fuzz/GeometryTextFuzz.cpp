// Any bytes as a geometry file: loading, copying and saving end, and leave nothing behind; and what was saved is loaded
// and saved as it is.

#include <QStringList>
#include <QTextStream>
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "MemoryBound.h"
#include "quarn/quarn.h"

namespace {

// Large grids are legal and would take most of the time.
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

QString saved(const quarn::v6GeometryFile& file, const quarn::Grid& grid) {
    QString text;
    QTextStream stream(&text, QIODevice::WriteOnly);
    if (!file.saveToStream(grid, stream)) std::abort();
    return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const fuzz::MemoryBound bound(size);
    const auto bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<int>(size));
    QTextStream input(bytes);
    QStringList errors;
    quarn::v6GeometryFile file;
    SmallGrid grid;
    if (!file.loadFromStream(input, &grid, errors)) return errors.size() == 1 ? 0 : (std::abort(), 1);
    const quarn::v6GeometryFile copy(file);
    QString text = saved(copy, grid);
    QTextStream again(&text, QIODevice::ReadOnly);
    if (!file.loadFromStream(again, &grid, errors) || saved(file, grid) != text) std::abort();
    return 0;
}
