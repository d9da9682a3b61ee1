#include "quarn/Grid.h"

#include <algorithm>
#include <new>
#include <stdexcept>

namespace quarn {

namespace {

struct OrderedRun {
    std::uint32_t begin;
    float size;
};

// The runs in strictly ascending order, starting at cell 0, so that every cell is filled once for any input.
std::vector<OrderedRun> ordered(const Grid::Runs& runs) {
    std::vector<OrderedRun> result{{0, 0.0F}};
    for (const auto& [start, size] : runs) {
        const auto begin = static_cast<std::uint32_t>(std::max(start, 0));
        while (!result.empty() && result.back().begin >= begin) result.pop_back();
        result.push_back({begin, size});
    }
    return result;
}

}  // namespace

Grid::Grid() = default;
Grid::Grid(const Grid& other) = default;
Grid& Grid::operator=(const Grid& other) = default;
Grid::~Grid() = default;

Grid::Axis::Axis(std::uint32_t cells_, float origin, const Runs& runs, bool withNodes)
    : cells(cells_), electricNodes(withNodes ? std::max(cells_, 1U) : 1U, origin), electricDeltas(cells_) {
    const auto inOrder = ordered(runs);
    for (std::size_t k = 0; k < inOrder.size() && inOrder[k].begin < cells; ++k) {
        const auto [begin, size] = inOrder[k];
        const std::uint32_t end = k + 1 < inOrder.size() ? std::min(inOrder[k + 1].begin, cells) : cells;
        std::fill(electricDeltas.begin() + begin, electricDeltas.begin() + end, size);
        if (withNodes) placeElectricNodes(begin, end, size);
    }
    if (withNodes) placeMagneticNodes();
}

// Distances are measured from the node where the run begins, so that rounding errors do not accumulate over the runs.
// They are rounded to single precision on purpose: the engine computes positions in the same way.
void Grid::Axis::placeElectricNodes(std::uint32_t begin, std::uint32_t end, float size) {
    const double anchor = electricNodes[begin];
    for (std::uint32_t i = begin; i < end && i + 1 < cells; ++i) {
        const float distance = static_cast<float>(i - begin + 1) * size;
        electricNodes[i + 1] = anchor + static_cast<double>(distance);
    }
}

void Grid::Axis::placeMagneticNodes() {
    magneticNodes.resize(cells);
    magneticDeltas.resize(cells);
    for (std::uint32_t i = 0; i < cells; ++i) {
        const bool isLast = i + 1 == cells;
        magneticNodes[i] = isLast ? electricNodes[i] + static_cast<double>(0.5F * electricDeltas[i])
                                  : (electricNodes[i] + electricNodes[i + 1]) * 0.5;
        magneticDeltas[i] = i == 0 ? electricDeltas[0] : static_cast<float>(magneticNodes[i] - magneticNodes[i - 1]);
    }
}

bool Grid::initialize(std::uint32_t cellsInX, std::uint32_t cellsInY, std::uint32_t cellsInZ, float originX,
                      float originY, float originZ, const Runs& runsInX, const Runs& runsInY, const Runs& runsInZ,
                      bool withNodes) {
    if (std::max({cellsInX, cellsInY, cellsInZ}) > maximumCells) return false;
    try {
        Axis x(cellsInX, originX, runsInX, withNodes);
        Axis y(cellsInY, originY, runsInY, withNodes);
        Axis z(cellsInZ, originZ, runsInZ, withNodes);
        m_x = std::move(x);
        m_y = std::move(y);
        m_z = std::move(z);
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

void Grid::getUserBoundingBox(double& xMin, double& xMax, double& yMin, double& yMax, double& zMin,
                              double& zMax) const {
    xMin = getUserXOrigin();
    xMax = getUserXUpperBound();
    yMin = getUserYOrigin();
    yMax = getUserYUpperBound();
    zMin = getUserZOrigin();
    zMax = getUserZUpperBound();
}

}  // namespace quarn
