#pragma once

#include <array>
#include <cstddef>

#include "results/FarZoneSurface.h"

/// The inner loop that all far-zone sums share: many samples times one table of phasors. No trigonometry, and eight
/// sums side by side, which a compiler makes into vector instructions without reordering any of them.
namespace quarn::farzone {

/// Real and imaginary parts of a face's four components.
inline constexpr std::size_t numLanes = 2 * numComponents;
using Lanes = std::array<double, numLanes>;

/// A cell's weight times the cosine and the sine of its phase.
struct Phasor {
    double cosine;
    double sine;
};

/// The sums of samples times cosine, and of samples times sine.
struct LaneSums {
    Lanes cosines{};
    Lanes sines{};

    /// The samples times exp(j phase) and, with the same two sums, times exp(-j phase).
    Lanes withPhase() const { return rotated(1.0); }
    Lanes withOppositePhase() const { return rotated(-1.0); }

private:
    Lanes rotated(double sign) const {
        Lanes result;
        for (std::size_t lane = 0; lane < numLanes; lane += 2) {
            result[lane] = cosines[lane] - sign * sines[lane + 1];
            result[lane + 1] = cosines[lane + 1] + sign * sines[lane];
        }
        return result;
    }
};

inline LaneSums sumOf(const Lanes* samples, const Phasor* phasors, std::size_t count) {
    LaneSums sums;
    for (std::size_t i = 0; i < count; ++i) {
        const Phasor phasor = phasors[i];
        for (std::size_t lane = 0; lane < numLanes; ++lane) sums.cosines[lane] += samples[i][lane] * phasor.cosine;
        for (std::size_t lane = 0; lane < numLanes; ++lane) sums.sines[lane] += samples[i][lane] * phasor.sine;
    }
    return sums;
}

/// One row of a face along its lower in-plane axis, which has so many cells, the components of a cell side by side.
inline void gatherRow(const Face& face, std::size_t row, std::size_t cells, Lanes* samples) {
    const std::size_t begin = row * cells;
    const auto* const first = face.samples[0] + begin;
    const auto* const second = face.samples[1] + begin;
    const auto* const third = face.samples[2] + begin;
    const auto* const fourth = face.samples[3] + begin;
    for (std::size_t i = 0; i < cells; ++i) {
        samples[i] = {first[i].real(),
                      first[i].imag(),
                      second[i].real(),
                      second[i].imag(),
                      third[i].real(),
                      third[i].imag(),
                      fourth[i].real(),
                      fourth[i].imag()};
    }
}

/// The components that the lanes hold, times exp(j phase).
inline ComponentSums shifted(const double* lanes, double phase) {
    const Complex factor = std::polar(1.0, phase);
    ComponentSums result;
    for (std::size_t component = 0; component < numComponents; ++component) {
        result[component] = Complex(lanes[2 * component], lanes[2 * component + 1]) * factor;
    }
    return result;
}

}  // namespace quarn::farzone
