#include <cmath>
#include <limits>

#include "blocktext/BlockWalker.h"
#include "blocktext/BlockWriter.h"
#include "geometry/GeometrySections.h"
#include "geometry/MaterialLines.h"

namespace quarn {

using namespace geometry;

namespace {

namespace key {
constexpr auto GridDefinition = "GridDefinition"_key;
constexpr auto GridOriginInMeters = "GridOriginInMeters"_key;
constexpr auto BaseCellSize = "BaseCellSize"_key;
constexpr auto TargetSizeOfGridInMeters = "TargetSizeOfGridInMeters"_key;
constexpr auto OffsetX = "OffsetX"_key;
constexpr auto OffsetY = "OffsetY"_key;
constexpr auto OffsetZ = "OffsetZ"_key;
constexpr auto Deltas = "Deltas"_key;
}  // namespace key

struct AxisKeys {
    QLatin1String numberOfCells;
    QLatin1String deltas;
};

constexpr std::array<AxisKeys, 3> axes = {{
    {"NumberOfCellsInX"_key, "DelX"_key},
    {"NumberOfCellsInY"_key, "DelY"_key},
    {"NumberOfCellsInZ"_key, "DelZ"_key},
}};

// An invalid count becomes the largest one, which no grid accepts.
bool readCount(QTextStream& in, std::uint32_t& count) {
    constexpr auto most = std::numeric_limits<std::uint32_t>::max();
    qint64 number = 0;
    in >> number;
    if (in.status() != QTextStream::Ok) return false;
    count = number >= 0 && number <= most ? static_cast<std::uint32_t>(number) : most;
    return true;
}

auto onCount(QLatin1String word, std::uint32_t& count) {
    return onWord(word, [&count](QTextStream& in) { return readCount(in, count); });
}

// NaNs count as one size, so that they too stay a single run.
bool isSameSize(float a, float b) { return a == b || (std::isnan(a) && std::isnan(b)); }

void writeRuns(DelimManager& delim, QLatin1String key, const Grid::Axis& axis) {
    const WrittenBlock block(delim, key);
    float last = 0.0F;
    for (std::uint32_t i = 0; i < axis.cells(); ++i) {
        const float size = axis.electricDelta(i);
        if (i > 0 && isSameSize(size, last)) continue;
        delim.GetStream() << i << ' ' << size << '\n';
        last = size;
    }
}

bool readRuns(DelimManager& delim, Grid::Runs& runs) {
    bool isRead = true;
    walkList(delim, [&](QTextStream& in) {
        Grid::Runs::value_type run;
        isRead = readAll(in, run.first, run.second);
        if (isRead) runs.push_back(run);
    });
    return isRead;
}

// Drops the words behind a key that the grid does not need, whatever they are, but nothing of the lines below.
auto onUnusedWords(QLatin1String key, int count) {
    return onWord(key, [count](QTextStream& in) { dropWordsOfLine(in, count); });
}

}  // namespace

void writeGridDefinition(DelimManager& delim, const Grid& grid) {
    const WrittenBlock block(delim, key::GridDefinition);
    putLine(delim, key::GridOriginInMeters, grid.getUserXOrigin(), grid.getUserYOrigin(), grid.getUserZOrigin());
    for (std::size_t n = 0; n < axes.size(); ++n) putLine(delim, axes[n].numberOfCells, grid.axis(n).cells());
}

bool readGridDefinition(DelimManager& delim, GeometryContents& contents) {
    auto& [x, y, z] = contents.gridAxes;
    const auto readOrigin = [&x = x, &y = y, &z = z](QTextStream& in) {
        return readAll(in, x.origin, y.origin, z.origin);
    };
    return walkBlock(delim,
                     Unknown::DropLine,
                     onWord(key::GridOriginInMeters, readOrigin),
                     onUnusedWords(key::BaseCellSize, 3),
                     onUnusedWords(key::TargetSizeOfGridInMeters, 3),
                     onUnusedWords(key::OffsetX, 1),
                     onUnusedWords(key::OffsetY, 1),
                     onUnusedWords(key::OffsetZ, 1),
                     onCount(axes[0].numberOfCells, x.cells),
                     onCount(axes[1].numberOfCells, y.cells),
                     onCount(axes[2].numberOfCells, z.cells));
}

bool readAdaptiveGridDefinition(DelimManager& delim, GeometryContents& contents) {
    QString name, value, description;
    while (delim.ContinueReading()) {
        name.clear();
        if (!delim.IsDelim(name, value, description)) {
            dropLine(delim.GetStream());
            continue;
        }
        const bool isRead = readGridDefinition(delim, contents);
        delim.SeekToEndOfDelim();
        return isRead;
    }
    return true;
}

void writeDeltas(DelimManager& delim, const Grid& grid) {
    const WrittenBlock block(delim, key::Deltas);
    for (std::size_t n = 0; n < axes.size(); ++n) writeRuns(delim, axes[n].deltas, grid.axis(n));
}

bool readDeltas(DelimManager& delim, GeometryContents& contents) {
    const auto onRuns = [&](std::size_t axis) {
        return onBlock(axes[axis].deltas, [&, axis] { return readRuns(delim, contents.gridAxes[axis].runs); });
    };
    return walkBlock(delim, Unknown::DropLine, onRuns(0), onRuns(1), onRuns(2));
}

}  // namespace quarn
