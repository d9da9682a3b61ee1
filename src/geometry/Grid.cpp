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

Grid::Axis::Axis(std::uint32_t cells, float origin, const Runs& runs, bool withNodes)
    : m_cells(cells), m_electricNodes(withNodes ? std::max(cells, 1U) : 1U, origin), m_electricDeltas(cells) {
    const auto inOrder = ordered(runs);
    for (std::size_t k = 0; k < inOrder.size() && inOrder[k].begin < cells; ++k) {
        const auto [begin, size] = inOrder[k];
        const std::uint32_t end = k + 1 < inOrder.size() ? std::min(inOrder[k + 1].begin, cells) : cells;
        std::fill(m_electricDeltas.begin() + begin, m_electricDeltas.begin() + end, size);
        if (withNodes) placeElectricNodes(begin, end, size);
    }
    if (withNodes) placeMagneticNodes();
}

// Distances are measured from the node where the run begins, so that rounding errors do not accumulate over the runs.
// They are rounded to single precision on purpose: the engine computes positions in the same way.
void Grid::Axis::placeElectricNodes(std::uint32_t begin, std::uint32_t end, float size) {
    const double anchor = m_electricNodes[begin];
    for (std::uint32_t i = begin; i < end && i + 1 < m_cells; ++i) {
        const float distance = static_cast<float>(i - begin + 1) * size;
        m_electricNodes[i + 1] = anchor + static_cast<double>(distance);
    }
}

void Grid::Axis::placeMagneticNodes() {
    m_magneticNodes.resize(m_cells);
    m_magneticDeltas.resize(m_cells);
    for (std::uint32_t i = 0; i < m_cells; ++i) {
        const bool isLast = i + 1 == m_cells;
        m_magneticNodes[i] = isLast ? m_electricNodes[i] + static_cast<double>(0.5F * m_electricDeltas[i])
                                    : (m_electricNodes[i] + m_electricNodes[i + 1]) * 0.5;
        m_magneticDeltas[i] =
            i == 0 ? m_electricDeltas[0] : static_cast<float>(m_magneticNodes[i] - m_magneticNodes[i - 1]);
    }
}

bool Grid::initialize(std::uint32_t cellsInX, std::uint32_t cellsInY, std::uint32_t cellsInZ, float originX,
                      float originY, float originZ, const Runs& runsInX, const Runs& runsInY, const Runs& runsInZ,
                      bool withNodes) {
    if (std::max({cellsInX, cellsInY, cellsInZ}) > maximumCells) return false;
    try {
        m_axes = {Axis(cellsInX, originX, runsInX, withNodes),
                  Axis(cellsInY, originY, runsInY, withNodes),
                  Axis(cellsInZ, originZ, runsInZ, withNodes)};
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
