#include "results/FarZoneWindow.h"

#include <algorithm>
#include <cmath>

#include "quarn/PhysicalConstants.h"

namespace quarn::farzone {

namespace {

constexpr double halfWidth = 0.5 * static_cast<double>(Window::taps);

double square(double x) { return x * x; }

double shape() {
    constexpr double spread = 2.0 * halfWidth / Window::oversampling * (Window::oversampling - 0.5);
    return constants::pi * std::sqrt(square(spread) - 0.8);
}

/// The Bessel function I0 of the square root of `squared`, which may be slightly negative, by its power series.
double besselI0(double squared) {
    double term = 1.0;
    double sum = 1.0;
    for (int k = 1; std::abs(term) > 1e-17 * std::abs(sum); ++k) {
        term *= 0.25 * squared / square(k);
        sum += term;
    }
    return sum;
}

double window(double t) { return besselI0(square(shape()) * (1.0 - square(t / halfWidth))); }

}  // namespace

Window::Window() : m_table(steps + 4) {
    for (std::size_t row = 0; row < m_table.size(); ++row) {
        const double fraction = (static_cast<double>(row) - 1.0) / static_cast<double>(steps);
        for (std::size_t tap = 0; tap < taps; ++tap) {
            m_table[row][tap] = window(fraction + halfWidth - 1.0 - static_cast<double>(tap));
        }
    }
}

// The cubic through the four rows around the fraction has an error of 1e-9.
Window::Weights Window::weights(double fraction) const {
    const double position = fraction * static_cast<double>(steps);
    const std::size_t row = std::min(static_cast<std::size_t>(position), steps);
    const double s = position - static_cast<double>(row);
    const double cubic[] = {-s * (s - 1) * (s - 2) / 6,
                            (s + 1) * (s - 1) * (s - 2) / 2,
                            -(s + 1) * s * (s - 2) / 2,
                            (s + 1) * s * (s - 1) / 6};
    Weights weights{};
    for (std::size_t i = 0; i < 4; ++i) {
        for (std::size_t tap = 0; tap < taps; ++tap) weights[tap] += cubic[i] * m_table[row + i][tap];
    }
    return weights;
}

double Window::transform(double angle) {
    const double root = std::sqrt(square(shape()) - square(angle * halfWidth));
    return 2.0 * halfWidth * std::sinh(root) / root;
}

}  // namespace quarn::farzone
