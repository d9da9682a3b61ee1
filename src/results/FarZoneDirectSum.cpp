#include "results/FarZoneDirectSum.h"

#include <cmath>

namespace quarn::farzone {

namespace {

constexpr double nsPerPhasor = 60.0;
constexpr double nsPerGatheredCell = 2.0;
constexpr double nsPerCell = 3.5;

/// sin(x) / x: the mean of exp(j x s) over s from -1 to 1.
double sinc(double x) { return x == 0.0 ? 1.0 : std::sin(x) / x; }

/// The integral over each cell of an axis of exp(j k u x), u being the direction's component along it.
void fillPhasors(const Axis& axis, double waveNumber, double u, Phasor* phasors) {
    for (std::size_t i = 0; i < axis.cells(); ++i) {
        const double weight = axis.sizes[i] * sinc(0.5 * waveNumber * axis.sizes[i] * u);
        const double phase = waveNumber * axis.middles[i] * u;
        phasors[i] = {weight * std::cos(phase), weight * std::sin(phase)};
    }
}

double costOfFace(double cellsA, double cellsB, double numDirections) {
    const double blocks = std::ceil(numDirections / static_cast<double>(DirectSum::blockSize));
    return cellsA * cellsB * (blocks * nsPerGatheredCell + numDirections * nsPerCell);
}

}  // namespace

DirectSum::DirectSum(const Surface& surface, double waveNumber) : m_surface(surface), m_waveNumber(waveNumber) {
    for (std::size_t axis = 0; axis < numAxes; ++axis) {
        m_phasors[axis].resize(blockSize * surface.axes[axis].cells());
    }
}

double DirectSum::cost(const Surface& surface, double numDirections) {
    double cost = 0.0;
    for (std::size_t normal = 0; normal < numAxes; ++normal) {
        const auto [a, b] = inPlaneAxes(normal);
        const auto cellsA = static_cast<double>(surface.axes[a].cells());
        const auto cellsB = static_cast<double>(surface.axes[b].cells());
        cost += static_cast<double>(surface.pairs[normal].numberSummed()) * costOfFace(cellsA, cellsB, numDirections);
        cost += static_cast<double>(surface.axes[normal].cells()) * numDirections * nsPerPhasor;
    }
    return cost;
}

bool DirectSum::evaluate(const Vector* directions, std::size_t count, FaceSums* sums, Progress& progress) {
    for (std::size_t axis = 0; axis < numAxes; ++axis) {
        const std::size_t cells = m_surface.axes[axis].cells();
        for (std::size_t d = 0; d < count; ++d) {
            fillPhasors(m_surface.axes[axis], m_waveNumber, directions[d][axis], phasors(axis, d));
        }
        if (!progress.advance(static_cast<double>(count * cells) * nsPerPhasor)) return false;
    }
    for (std::size_t d = 0; d < count; ++d) sums[d] = {};
    for (std::size_t normal = 0; normal < numAxes; ++normal) {
        for (const Side side : {Lower, Upper}) {
            if (!m_surface.pairs[normal].faces[side].isSummed) continue;
            if (!sumRows(normal, side, count, progress)) return false;
            for (std::size_t d = 0; d < count; ++d) sums[d][normal][side] = faceSum(normal, side, d, directions[d]);
        }
    }
    return true;
}

// Leaves the sums along the rows of the face in m_rowSums.
bool DirectSum::sumRows(std::size_t normal, Side side, std::size_t count, Progress& progress) {
    const auto [a, b] = inPlaneAxes(normal);
    const std::size_t cells = m_surface.axes[a].cells();
    const std::size_t rows = m_surface.axes[b].cells();
    m_row.resize(cells);
    m_rowSums.resize(blockSize * rows);
    const double rowCost = costOfFace(static_cast<double>(cells), 1.0, static_cast<double>(count));
    for (std::size_t row = 0; row < rows; ++row) {
        gatherRow(m_surface.pairs[normal].faces[side], row, m_row);
        for (std::size_t d = 0; d < count; ++d) {
            m_rowSums[d * rows + row] = sumOf(m_row.data(), phasors(a, d), cells).withPhase();
        }
        if (!progress.advance(rowCost)) return false;
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
