#pragma once

#include <cmath>
#include <complex>
#include <random>
#include <vector>

#include "results/FarZoneSurface.h"

/// The far-zone sums by their definition: cell by cell, in double precision.
namespace quarn::test {

inline double sinc(double x) { return x == 0.0 ? 1.0 : std::sin(x) / x; }

inline farzone::FaceSums referenceSums(const farzone::Surface& surface, double waveNumber,
                                       const farzone::Vector& direction) {
    farzone::FaceSums sums{};
    for (std::size_t normal = 0; normal < farzone::numAxes; ++normal) {
        const auto [a, b] = farzone::inPlaneAxes(normal);
        const farzone::Axis& alongA = surface.axes[a];
        const farzone::Axis& alongB = surface.axes[b];
        for (const farzone::Side side : {farzone::Lower, farzone::Upper}) {
            const farzone::Face& face = surface.pairs[normal].faces[side];
            if (!face.isSummed) continue;
            const double normalPath = surface.axes[normal].faces[side] * direction[normal];
            for (std::size_t cell = 0; cell < alongA.cells() * alongB.cells(); ++cell) {
                const std::size_t i = cell % alongA.cells();
                const std::size_t j = cell / alongA.cells();
                const double path = alongA.middles[i] * direction[a] + alongB.middles[j] * direction[b] + normalPath;
                const double weight = alongA.sizes[i] * sinc(0.5 * waveNumber * alongA.sizes[i] * direction[a]) *
                                      alongB.sizes[j] * sinc(0.5 * waveNumber * alongB.sizes[j] * direction[b]);
                const std::complex<double> phasor(weight * std::cos(waveNumber * path),
                                                  weight * std::sin(waveNumber * path));
                for (std::size_t component = 0; component < farzone::numComponents; ++component) {
                    const std::complex<double> sample = face.samples[component][cell];
                    sums[normal][side][component] += sample * phasor;
                }
            }
        }
    }
    return sums;
}

/// A surface with its own samples: waves of a few directions with noise, so that the sums of a face have a peak.
class SampledBox {
public:
    /// Sizes of the cells along x, y and z; the lower corner lies at `corner`.
    SampledBox(const std::array<std::vector<double>, 3>& sizes, const farzone::Vector& corner, double waveNumber) {
        for (std::size_t axis = 0; axis < farzone::numAxes; ++axis) place(axis, sizes[axis], corner[axis]);
        std::mt19937 random(1);
        for (std::size_t normal = 0; normal < farzone::numAxes; ++normal) {
            for (farzone::Face& face : m_surface.pairs[normal].faces) fill(normal, face, waveNumber, random);
        }
    }

    farzone::Surface& surface() { return m_surface; }

private:
    using Samples = std::vector<std::complex<float>>;

    void place(std::size_t number, const std::vector<double>& sizes, double corner) {
        farzone::Axis& axis = m_surface.axes[number];
        axis.sizes = sizes;
        axis.faces[farzone::Lower] = corner;
        for (const double size : sizes) {
            axis.middles.push_back(corner + 0.5 * size);
            corner += size;
        }
        axis.faces[farzone::Upper] = corner;
    }

    void fill(std::size_t normal, farzone::Face& face, double waveNumber, std::mt19937& random) {
        std::uniform_real_distribution<double> uniform(-1.0, 1.0);
        const auto [a, b] = farzone::inPlaneAxes(normal);
        face.isSummed = true;
        for (const std::complex<float>*& samples : face.samples) {
            Samples& component = m_samples[m_numSamples++];
            const double alongA = waveNumber * uniform(random) / 1.5;
            const double alongB = waveNumber * uniform(random) / 1.5;
            for (const double y : m_surface.axes[b].middles) {
                for (const double x : m_surface.axes[a].middles) {
                    const auto value = std::polar(1.0, -alongA * x - alongB * y) +
                                       0.3 * std::complex<double>(uniform(random), uniform(random));
                    component.emplace_back(static_cast<float>(value.real()), static_cast<float>(value.imag()));
                }
            }
            samples = component.data();
        }
    }

    farzone::Surface m_surface;
    std::array<Samples, 2 * farzone::numAxes * farzone::numComponents> m_samples;
    std::size_t m_numSamples = 0;
};

}  // namespace quarn::test
