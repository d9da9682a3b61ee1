#include "results/FarZoneDirectSum.h"

#include <algorithm>
#include <cmath>

namespace quarn::farzone {

namespace {

constexpr double nsPerPhasor = 60.0;
constexpr double nsPerGatheredCell = 2.0;
constexpr double nsPerCell = 3.5;

/// sin(x) / x: the mean of exp(j x s) over s from -1 to 1.
double sinc(double x) { return x == 0.0 ? 1.0 : std::sin(x) / x; }

double costOfFace(double cellsA, double cellsB, double numDirections) {
    const double blocks = std::ceil(numDirections / static_cast<double>(DirectSum::blockSize));
    return cellsA * cellsB * blocks * nsPerGatheredCell + (cellsA + 1.0) * cellsB * numDirections * nsPerCell;
}

std::size_t cellsOfLongestAxis(const Surface& surface) {
    return std::max({surface.axes[0].cells(), surface.axes[1].cells(), surface.axes[2].cells()});
}

}  // namespace

bool DirectSum::prepare(Progress& progress) {
    for (std::size_t axis = 0; axis < numAxes; ++axis) {
        if (!fillWithZeros(m_phasors[axis], blockSize * m_surface.axes[axis].cells(), progress)) return false;
    }
    const std::size_t cells = cellsOfLongestAxis(m_surface);
    return fillWithZeros(m_row, cells, progress) && fillWithZeros(m_rowSums, blockSize * cells, progress);
}

double DirectSum::cost(const Surface& surface, double numDirections) {
    const std::size_t rows = (1 + blockSize) * cellsOfLongestAxis(surface);
    double cost = static_cast<double>(rows * sizeof(Lanes)) * nsPerNewByte;
    for (std::size_t normal = 0; normal < numAxes; ++normal) {
        const auto [a, b] = inPlaneAxes(normal);
        const auto cells = static_cast<double>(surface.axes[normal].cells());
        const auto cellsA = static_cast<double>(surface.axes[a].cells());
        const auto cellsB = static_cast<double>(surface.axes[b].cells());
        cost += static_cast<double>(surface.pairs[normal].numberSummed()) * costOfFace(cellsA, cellsB, numDirections);
        cost += cells * (numDirections * nsPerPhasor + static_cast<double>(blockSize * sizeof(Phasor)) * nsPerNewByte);
    }
    return cost;
}

bool DirectSum::evaluate(const Vector* directions, std::size_t count, FaceSums* sums, Progress& progress) {
    for (std::size_t axis = 0; axis < numAxes; ++axis) {
        for (std::size_t d = 0; d < count; ++d) {
            if (!fillPhasors(axis, directions[d][axis], phasors(axis, d), progress)) return false;
        }
    }
    for (std::size_t d = 0; d < count; ++d) sums[d] = {};
    for (std::size_t normal = 0; normal < numAxes; ++normal) {
        const double costOfRowSums = static_cast<double>(m_surface.axes[inPlaneAxes(normal).b].cells()) * nsPerCell;
        for (const Side side : {Lower, Upper}) {
            if (!m_surface.pairs[normal].faces[side].isSummed) continue;
            if (!sumRows(normal, side, count, progress)) return false;
            for (std::size_t d = 0; d < count; ++d) {
                sums[d][normal][side] = faceSum(normal, side, d, directions[d]);
                if (!progress.advance(costOfRowSums)) return false;
            }
        }
    }
    return true;
}

// The integral over each cell of an axis of exp(j k u x), u being the direction's component along it.
bool DirectSum::fillPhasors(std::size_t axis, double u, Phasor* phasors, Progress& progress) const {
    const Axis& cells = m_surface.axes[axis];
    for (std::size_t i = 0; i < cells.cells(); ++i) {
        const double weight = cells.sizes[i] * sinc(0.5 * m_waveNumber * cells.sizes[i] * u);
        const double phase = m_waveNumber * cells.middles[i] * u;
        phasors[i] = {weight * std::cos(phase), weight * std::sin(phase)};
        if (!progress.advance(nsPerPhasor)) return false;
    }
    return true;
}

// Leaves the sums along the rows of the face in m_rowSums.
bool DirectSum::sumRows(std::size_t normal, Side side, std::size_t count, Progress& progress) {
    const auto [a, b] = inPlaneAxes(normal);
    const std::size_t cells = m_surface.axes[a].cells();
    const std::size_t rows = m_surface.axes[b].cells();
    for (std::size_t row = 0; row < rows; ++row) {
        gatherRow(m_surface.pairs[normal].faces[side], row, cells, m_row.data());
        if (!progress.advance(static_cast<double>(cells) * nsPerGatheredCell)) return false;
        for (std::size_t d = 0; d < count; ++d) {
            m_rowSums[d * rows + row] = sumOf(m_row.data(), phasors(a, d), cells).withPhase();
            if (!progress.advance(static_cast<double>(cells) * nsPerCell)) return false;
        }
    }
    return true;
}

ComponentSums DirectSum::faceSum(std::size_t normal, Side side, std::size_t d, const Vector& direction) {
    const std::size_t b = inPlaneAxes(normal).b;
    const std::size_t rows = m_surface.axes[b].cells();
    const Lanes sum = sumOf(m_rowSums.data() + d * rows, phasors(b, d), rows).withPhase();
    const double position = m_surface.axes[normal].faces[side];
    return shifted(sum.data(), m_waveNumber * position * direction[normal]);
}

}  // namespace quarn::farzone
