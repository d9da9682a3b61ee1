#include "results/FarZoneSpectrum.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

#include "quarn/PhysicalConstants.h"

namespace quarn::farzone {

namespace {

constexpr double nsPerGatheredCell = 2.0;
constexpr double nsPerPhasor = 3.5;
constexpr double nsPerTabulatedPhasor = 20.0;
constexpr double nsPerTap = 3.0;
constexpr double nsPerWindow = 1e6;
constexpr double nsPerDirection = 600.0;

/// Six points of Gauss-Legendre quadrature on -1 to 1 (Abramowitz and Stegun, table 25.4), a pair for each weight.
struct GaussPair {
    double point;
    double weight;
};
constexpr GaussPair gauss[] = {
    {0.238619186083197, 0.467913934572691},
    {0.661209386466265, 0.360761573048139},
    {0.932469514203152, 0.171324492379170},
};

/// The largest phase from the middle of a panel to its end that six points integrate to ten digits.
constexpr double largestPanelPhase = 1.5;

/// How fast the window's transform can vary, in radians of its logarithm for each radian of angle.
constexpr double windowSlope = 2.0;

constexpr std::size_t halfTaps = Window::taps / 2;

struct Extent {
    double middle = 0.0;
    double half = 0.0;
};

/// The interval that the cells of an axis cover. It is not a number when the place or the size of a cell is not finite.
Extent extentOf(const Axis& axis) {
    if (axis.cells() == 0) return {};
    double low = std::numeric_limits<double>::infinity();
    double high = -low;
    double sum = 0.0;
    for (std::size_t i = 0; i < axis.cells(); ++i) {
        const double half = 0.5 * std::abs(axis.sizes[i]);
        low = std::min(low, axis.middles[i] - half);
        high = std::max(high, axis.middles[i] + half);
        sum += axis.middles[i] + half;
    }
    return std::isfinite(sum) ? Extent{0.5 * (low + high), 0.5 * (high - low)} : Extent{sum - sum, sum - sum};
}

/// How many samples there are from the direction component 0 to 1, as a fraction: twice the half length in wavelengths
/// times the oversampling. A very short axis counts as one of some thousandth of a wavelength.
double samplesWithin(double halfLength, double waveNumber) {
    return Window::oversampling * std::max(waveNumber * halfLength, 1e-3) / constants::pi;
}

/// The index of the last sample. The window needs some samples beyond the component 1.
double lastSample(const Axis& axis, double waveNumber) {
    return std::ceil(samplesWithin(extentOf(axis).half, waveNumber)) + static_cast<double>(halfTaps);
}

/// The indices of the last samples of the three axes.
std::array<double, numAxes> lastSamples(const Surface& surface, double waveNumber) {
    return {lastSample(surface.axes[0], waveNumber),
            lastSample(surface.axes[1], waveNumber),
            lastSample(surface.axes[2], waveNumber)};
}

double cellsOf(const Surface& surface, std::size_t axis) { return static_cast<double>(surface.axes[axis].cells()); }

double memoryFor(const Surface& surface, const std::array<double, numAxes>& last) {
    double bytes = 0.0;
    for (std::size_t normal = 0; normal < numAxes; ++normal) {
        const auto [a, b] = inPlaneAxes(normal);
        const double samplesA = 2.0 * last[a] + 1.0;
        const double samplesB = 2.0 * last[b] + 1.0;
        bytes += samplesA * (samplesB * 2.0 * sizeof(Lanes) + cellsOf(surface, b) * sizeof(Lanes));
        bytes += (last[normal] + 1.0) * cellsOf(surface, normal) * sizeof(Phasor);
    }
    return bytes;
}

double costOfRow(double cellsA, double lastA) { return cellsA * (nsPerGatheredCell + (lastA + 1.0) * nsPerPhasor); }
double costOfColumn(double cellsB, double lastB) { return cellsB * (lastB + 1.0) * nsPerPhasor; }

/// Adds the amplitude times the exponentials of 0, 1, 2, ... times the angle to a column of a table.
void addPhasors(double amplitude, double angle, std::size_t stride, std::size_t count, Phasor* column) {
    const double cosine = std::cos(angle);
    const double sine = std::sin(angle);
    Phasor phasor{amplitude, 0.0};
    for (std::size_t m = 0; m < count; ++m) {
        column[m * stride].cosine += phasor.cosine;
        column[m * stride].sine += phasor.sine;
        phasor = {phasor.cosine * cosine - phasor.sine * sine, phasor.cosine * sine + phasor.sine * cosine};
    }
}

bool isFinite(const Vector& v) { return std::isfinite(v[0] + v[1] + v[2]); }

FaceSums notNumbers() {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    FaceSums sums;
    for (auto& pair : sums) {
        for (ComponentSums& face : pair) face.fill({nan, nan});
    }
    return sums;
}

/// The weighted sum of rows of numbers that begin `stride` numbers apart. All numbers of a row are summed side by side,
/// so that compilers use vector instructions.
template <std::size_t numbersInRow>
void combine(const double* rows, std::size_t stride, const Window::Weights& weights, double* sums) {
    for (std::size_t i = 0; i < numbersInRow; ++i) {
        double sum = 0.0;
        for (std::size_t row = 0; row < Window::taps; ++row) sum += weights[row] * rows[row * stride + i];
        sums[i] = sum;
    }
}

}  // namespace

Spectrum::Spectrum(const Surface& surface, double waveNumber) : m_surface(surface), m_waveNumber(waveNumber) {
    for (std::size_t axis = 0; axis < numAxes; ++axis) {
        const Extent extent = extentOf(surface.axes[axis]);
        m_samplings[axis] = {waveNumber * extent.middle,
                             1.0 / samplesWithin(extent.half, waveNumber),
                             static_cast<std::size_t>(lastSample(surface.axes[axis], waveNumber))};
    }
}

double Spectrum::samplingCost(const Surface& surface, double waveNumber) {
    const auto last = lastSamples(surface, waveNumber);
    double cost = nsPerWindow + memoryFor(surface, last) * nsPerNewByte;
    for (std::size_t normal = 0; normal < numAxes; ++normal) {
        const auto [a, b] = inPlaneAxes(normal);
        cost += static_cast<double>(surface.pairs[normal].numberSummed()) *
                (cellsOf(surface, b) * costOfRow(cellsOf(surface, a), last[a]) +
                 (2.0 * last[a] + 1.0) * costOfColumn(cellsOf(surface, b), last[b]));
        cost += (cellsOf(surface, normal) + last[normal]) * (last[normal] + 1.0) * nsPerTabulatedPhasor;
    }
    return cost;
}

double Spectrum::lookupCost() {
    return nsPerDirection + numAxes * static_cast<double>(Window::taps * Window::taps) * nsPerTap;
}

double Spectrum::memory(const Surface& surface, double waveNumber) {
    return memoryFor(surface, lastSamples(surface, waveNumber));
}

// The phase is integrated over the whole of each cell, by quadrature on panels that are short enough for the fastest
// sample. At each point the integrand is divided by the transform of the window.
bool Spectrum::fillPhasors(std::size_t axis, Progress& progress) {
    const Axis& cells = m_surface.axes[axis];
    const Sampling& sampling = m_samplings[axis];
    const std::size_t count = sampling.last + 1;
    if (!fillWithZeros(m_phasors[axis], count * cells.cells(), progress)) return false;
    const double costOfPoint = static_cast<double>(count) * nsPerTabulatedPhasor / (2.0 * std::size(gauss));
    const double anglePerLength = m_waveNumber * sampling.spacing;
    const double fastest = (static_cast<double>(sampling.last) + windowSlope) * anglePerLength;
    for (std::size_t i = 0; i < cells.cells(); ++i) {
        const double halfSize = 0.5 * cells.sizes[i];
        const double panels = std::max(1.0, std::ceil(std::abs(halfSize) * fastest / largestPanelPhase));
        const double halfPanel = halfSize / panels;
        for (double panel = 0.0; panel < panels; ++panel) {
            const double middle = cells.middles[i] - halfSize + (2.0 * panel + 1.0) * halfPanel;
            for (const auto& [point, weight] : gauss) {
                for (const double side : {-1.0, 1.0}) {
                    const double angle =
                        anglePerLength * (middle + side * point * halfPanel) - sampling.centre * sampling.spacing;
                    const double amplitude = weight * halfPanel / Window::transform(angle);
                    addPhasors(amplitude, angle, cells.cells(), count, m_phasors[axis].data() + i);
                    if (!progress.advance(costOfPoint)) return false;
                }
            }
        }
    }
    return true;
}

bool Spectrum::prepare(Progress& progress) {
    if (!progress.advance(nsPerWindow)) return false;
    std::size_t longest = 0;
    for (std::size_t axis = 0; axis < numAxes; ++axis) {
        if (!fillPhasors(axis, progress)) return false;
        longest = std::max(longest, m_surface.axes[axis].cells());
    }
    if (!fillWithZeros(m_row, longest, progress)) return false;
    for (std::size_t normal = 0; normal < numAxes; ++normal) {
        const auto [a, b] = inPlaneAxes(normal);
        const std::size_t samplesA = m_samplings[a].samples();
        if (!fillWithZeros(m_samples[normal], samplesA * m_samplings[b].samples() * sampleSize, progress) ||
            !fillWithZeros(m_columns, samplesA * m_surface.axes[b].cells(), progress)) {
            return false;
        }
        for (const Side side : {Lower, Upper}) {
            if (!m_surface.pairs[normal].faces[side].isSummed) continue;
            if (!sampleRows(normal, side, progress) || !sampleColumns(normal, side, progress)) return false;
        }
    }
    return true;
}

// Samples the rows of the face along the lower in-plane axis, into m_columns.
bool Spectrum::sampleRows(std::size_t normal, Side side, Progress& progress) {
    const auto [a, b] = inPlaneAxes(normal);
    const std::size_t cells = m_surface.axes[a].cells();
    const std::size_t rows = m_surface.axes[b].cells();
    const std::size_t last = m_samplings[a].last;
    for (std::size_t row = 0; row < rows; ++row) {
        gatherRow(m_surface.pairs[normal].faces[side], row, cells, m_row.data());
        if (!progress.advance(static_cast<double>(cells) * nsPerGatheredCell)) return false;
        for (std::size_t m = 0; m <= last; ++m) {
            const LaneSums sums = sumOf(m_row.data(), m_phasors[a].data() + m * cells, cells);
            m_columns[(last + m) * rows + row] = sums.withPhase();
            m_columns[(last - m) * rows + row] = sums.withOppositePhase();
            if (!progress.advance(static_cast<double>(cells) * nsPerPhasor)) return false;
        }
    }
    return true;
}

// Samples m_columns along the upper in-plane axis, into m_samples.
bool Spectrum::sampleColumns(std::size_t normal, Side side, Progress& progress) {
    const auto [a, b] = inPlaneAxes(normal);
    const std::size_t cells = m_surface.axes[b].cells();
    const std::size_t columns = m_samplings[a].samples();
    const std::size_t last = m_samplings[b].last;
    const auto store = [&](std::size_t row, std::size_t column, const Lanes& lanes) {
        double* const sample = m_samples[normal].data() + (row * columns + column) * sampleSize;
        std::copy(lanes.begin(), lanes.end(), sample + side * numLanes);
    };
    for (std::size_t column = 0; column < columns; ++column) {
        for (std::size_t m = 0; m <= last; ++m) {
            const LaneSums sums = sumOf(m_columns.data() + column * cells, m_phasors[b].data() + m * cells, cells);
            store(last + m, column, sums.withPhase());
            store(last - m, column, sums.withOppositePhase());
            if (!progress.advance(static_cast<double>(cells) * nsPerPhasor)) return false;
        }
    }
    return true;
}

bool Spectrum::evaluate(const Vector* directions, std::size_t count, FaceSums* sums, Progress& progress) {
    for (std::size_t d = 0; d < count; ++d) sums[d] = isFinite(directions[d]) ? sumsAt(directions[d]) : notNumbers();
    return progress.advance(static_cast<double>(count) * lookupCost());
}

// The in-plane components of the direction choose the samples. The phases of the middle of the cells and of the two
// faces are then added.
FaceSums Spectrum::sumsAt(const Vector& direction) const {
    std::array<Neighbours, numAxes> neighbours;
    for (std::size_t axis = 0; axis < numAxes; ++axis) neighbours[axis] = neighboursOf(axis, direction[axis]);
    FaceSums sums;
    for (std::size_t normal = 0; normal < numAxes; ++normal) {
        const auto [a, b] = inPlaneAxes(normal);
        const Sample both = interpolated(normal, neighbours[a], neighbours[b]);
        const double phase = m_samplings[a].centre * direction[a] + m_samplings[b].centre * direction[b];
        for (const Side side : {Lower, Upper}) {
            const double facePhase = m_waveNumber * m_surface.axes[normal].faces[side] * direction[normal];
            sums[normal][side] = shifted(both.data() + side * numLanes, phase + facePhase);
        }
    }
    return sums;
}

Spectrum::Neighbours Spectrum::neighboursOf(std::size_t axis, double component) const {
    const double position = component / m_samplings[axis].spacing;
    const double below = std::floor(position);
    const auto index = static_cast<std::ptrdiff_t>(below) + static_cast<std::ptrdiff_t>(m_samplings[axis].last);
    return {static_cast<std::size_t>(index) - (halfTaps - 1), m_window.weights(position - below)};
}

Spectrum::Sample Spectrum::interpolated(std::size_t normal, const Neighbours& a, const Neighbours& b) const {
    const std::size_t columns = m_samplings[inPlaneAxes(normal).a].samples();
    const double* const first = m_samples[normal].data() + (b.first * columns + a.first) * sampleSize;
    double row[Window::taps * sampleSize];
    Sample result;
    combine<Window::taps * sampleSize>(first, columns * sampleSize, b.weights, row);
    combine<sampleSize>(row, sampleSize, a.weights, result.data());
    return result;
}

}  // namespace quarn::farzone
