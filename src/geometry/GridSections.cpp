#include <cmath>
#include <limits>

#include "geometry/GeometryBlock.h"
#include "geometry/GeometrySections.h"

namespace quarn {

using namespace blocktext;

namespace {

struct AxisKeys {
    Key numberOfCells;
    Key deltas;
};

constexpr std::array<AxisKeys, 3> axes = {{
    {"NumberOfCellsInX", "DelX"},
    {"NumberOfCellsInY", "DelY"},
    {"NumberOfCellsInZ", "DelZ"},
}};

struct CellCount : OneValue {
    // An invalid count becomes the largest one, which no grid accepts.
    static bool read(QTextStream& in, std::uint32_t& count) {
        constexpr auto most = std::numeric_limits<std::uint32_t>::max();
        qint64 number = 0;
        in >> number;
        if (in.status() != QTextStream::Ok) return false;
        count = number >= 0 && number <= most ? static_cast<std::uint32_t>(number) : most;
        return true;
    }
};

constexpr auto allAxes = [](auto& all) -> auto& { return all; };

template <class Value>
constexpr auto ofAxis(std::size_t axis, Value GridAxis::*member) {
    return path(element(allAxes, axis), member);
}

constexpr auto originLine() {
    return value("GridOriginInMeters",
                 allAxes,
                 parts(ofAxis(0, &GridAxis::origin), ofAxis(1, &GridAxis::origin), ofAxis(2, &GridAxis::origin)))
        .in("m");
}

constexpr auto cellsLine(std::size_t axis) {
    return value(axes[axis].numberOfCells, ofAxis(axis, &GridAxis::cells), CellCount());
}

// Where runs of cells of one size begin, and that size.
constexpr auto runsBlock(std::size_t axis) {
    using Run = Grid::Runs::value_type;
    return innerBlock(ofAxis(axis, &GridAxis::runs),
                      bareValues<Grid::Runs>(axes[axis].deltas, Unreadable::Fails, parts(&Run::first, &Run::second)))
        .in("m");
}

constexpr auto gridDefinition = [] {
    return geometryBlock<GridAxes>("GridDefinition",
                                   originLine(),
                                   dropped("BaseCellSize", 3),
                                   dropped("TargetSizeOfGridInMeters", 3),
                                   dropped("OffsetX", 1),
                                   dropped("OffsetY", 1),
                                   dropped("OffsetZ", 1),
                                   cellsLine(0),
                                   cellsLine(1),
                                   cellsLine(2));
}();

constexpr auto deltas = geometryBlock<GridAxes>("Deltas", runsBlock(0), runsBlock(1), runsBlock(2));

// Always empty.
constexpr auto averagedBins = geometryBlock<GridAxes>("AveragedMaterialBins");

constexpr Key adaptiveGrid = "AdaptiveGridDefinition";
constexpr auto refusedDefinition = "Error loading grid definition."_key;

// NaNs count as one size, so that they too stay a single run.
bool isSameSize(float a, float b) { return a == b || (std::isnan(a) && std::isnan(b)); }

Grid::Runs runsOf(const Grid::Axis& axis) {
    Grid::Runs runs;
    for (std::uint32_t i = 0; i < axis.cells(); ++i) {
        const float size = axis.electricDelta(i);
        if (i == 0 || !isSameSize(size, runs.back().second)) runs.emplace_back(static_cast<std::int32_t>(i), size);
    }
    return runs;
}

template <const auto& block>
bool write(DelimManager& delim, const GeometryFile&, const GridAxes& all) {
    return block.write(delim, all);
}

template <const auto& block>
bool read(DelimManager& delim, GeometryContents& contents) {
    return block.read(delim, contents.gridAxes);
}

template <const auto& block>
void describe(FormatBuilder& builder) {
    block.describeTo(builder, {});
}

// Reads the first block inside, whatever its name, as the grid definition.
bool readAdaptiveGrid(DelimManager& delim, GeometryContents& contents) {
    QString name, value, description;
    while (delim.ContinueReading()) {
        name.clear();
        if (!delim.IsDelim(name, value, description)) {
            dropLine(delim.GetStream());
            continue;
        }
        const bool isRead = read<gridDefinition>(delim, contents);
        delim.SeekToEndOfDelim();
        return isRead;
    }
    return true;
}

void describeAdaptiveGrid(FormatBuilder& builder) {
    builder.begin(adaptiveGrid);
    builder.add({QString(), "block of any name, as " + gridDefinition.name, {}, {}, {}, "never"});
    builder.end();
}

}  // namespace

const GeometrySection adaptiveGridSection = {
    adaptiveGrid, nullptr, readAdaptiveGrid, refusedDefinition, describeAdaptiveGrid};
const GeometrySection gridDefinitionSection = {
    gridDefinition.name, write<gridDefinition>, read<gridDefinition>, refusedDefinition, describe<gridDefinition>};
const GeometrySection deltasSection = {
    deltas.name, write<deltas>, read<deltas>, "Error loading deltas."_key, describe<deltas>};
const GeometrySection averagedBinsSection = {
    averagedBins.name, write<averagedBins>, nullptr, QLatin1String(), describe<averagedBins>};

GridAxes axesOf(const Grid& grid) {
    GridAxes all;
    for (std::size_t n = 0; n < all.size(); ++n) {
        const Grid::Axis& axis = grid.axis(n);
        all[n] = {axis.origin(), axis.cells(), runsOf(axis)};
    }
    return all;
}

}  // namespace quarn
