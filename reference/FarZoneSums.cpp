#include "reference/FarZoneSums.h"

#include <algorithm>
#include <cmath>
#include <random>

namespace quarn::reference {

namespace {

struct InPlane {
    std::size_t a;
    std::size_t b;
};

/// The in-plane axes of the faces across an axis, the lower one first.
constexpr InPlane inPlaneAxes(std::size_t normal) { return {normal == 0 ? 1U : 0U, normal == 2 ? 1U : 2U}; }

double sinc(double x) { return x == 0.0 ? 1.0 : std::sin(x) / x; }

}  // namespace

SampledBox::SampledBox(const std::array<std::vector<double>, 3>& sizes, const Vector& corner, double waveNumber) {
    for (std::size_t axis = 0; axis < 3; ++axis) {
        double place = corner[axis];
        m_axes[axis] = {{}, sizes[axis], {place, place}};
        for (const double size : sizes[axis]) {
            m_axes[axis].middles.push_back(place + 0.5 * size);
            place += size;
        }
        m_axes[axis].faces[1] = place;
    }
    std::mt19937 random(1);
    std::uniform_real_distribution<double> uniform(-1.0, 1.0);
    for (std::size_t normal = 0; normal < 3; ++normal) {
        const auto [a, b] = inPlaneAxes(normal);
        for (auto& face : m_samples[normal]) {
            for (auto& component : face) {
                const double alongA = waveNumber * uniform(random) / 1.5;
                const double alongB = waveNumber * uniform(random) / 1.5;
                for (const double y : m_axes[b].middles) {
                    for (const double x : m_axes[a].middles) {
                        component.emplace_back(std::polar(1.0, -alongA * x - alongB * y) +
                                               0.3 * Complex(uniform(random), uniform(random)));
                    }
                }
            }
        }
    }
}

FaceSums SampledBox::sumsIn(const Vector& direction, double waveNumber) const {
    FaceSums sums{};
    for (std::size_t normal = 0; normal < 3; ++normal) {
        const auto [a, b] = inPlaneAxes(normal);
        const Axis& alongA = m_axes[a];
        const Axis& alongB = m_axes[b];
        for (std::size_t side = 0; side < 2; ++side) {
            const double normalPath = m_axes[normal].faces[side] * direction[normal];
            for (std::size_t cell = 0; cell < alongA.sizes.size() * alongB.sizes.size(); ++cell) {
                const std::size_t i = cell % alongA.sizes.size();
                const std::size_t j = cell / alongA.sizes.size();
                const double path = alongA.middles[i] * direction[a] + alongB.middles[j] * direction[b] + normalPath;
                const double weight = alongA.sizes[i] * sinc(0.5 * waveNumber * alongA.sizes[i] * direction[a]) *
                                      alongB.sizes[j] * sinc(0.5 * waveNumber * alongB.sizes[j] * direction[b]);
                const Complex phasor(weight * std::cos(waveNumber * path), weight * std::sin(waveNumber * path));
                for (std::size_t component = 0; component < 4; ++component) {
                    const Complex sample = m_samples[normal][side][component][cell];
                    sums[normal][side][component] += sample * phasor;
                }
            }
        }
    }
    return sums;
}

void Deviation::add(const FaceSums& found, const FaceSums& expected) {
    for (std::size_t face = 0; face < 6; ++face) {
        for (std::size_t component = 0; component < 4; ++component) {
            const Complex value = expected[face / 2][face % 2][component];
            const double difference = std::abs(found[face / 2][face % 2][component] - value);
            m_peaks[face] = std::max(m_peaks[face], std::abs(value));
            m_deviations[face] = std::max(m_deviations[face], std::isnan(difference) ? HUGE_VAL : difference);
        }
    }
}

double Deviation::largest() const {
    double result = 0.0;
    for (std::size_t face = 0; face < 6; ++face) {
        if (m_deviations[face] > 0.0) result = std::max(result, m_deviations[face] / m_peaks[face]);
    }
    return result;
}

}  // namespace quarn::reference
