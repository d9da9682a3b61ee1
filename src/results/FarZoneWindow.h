#pragma once

#include <array>
#include <cstddef>
#include <vector>

namespace quarn::farzone {

/// The Kaiser-Bessel window I0(beta sqrt(1 - (2 t / taps)^2)) by which uniform samples are interpolated; t is in
/// spacings of the samples (Jackson, Meyer, Nishimura and Macovski, IEEE Trans. Med. Imaging 10, 1991; its shape beta
/// after Beatty, Nishimura and Pauly, IEEE Trans. Med. Imaging 24, 2005).
class Window {
public:
    static constexpr std::size_t taps = 10;
    static constexpr double oversampling = 2.0;
    using Weights = std::array<double, taps>;

    /// Tabulates the window.
    Window();

    /// The weights of the samples around a point that lies `fraction` of a spacing, 0 to 1, behind the sample taps / 2
    /// - 1.
    Weights weights(double fraction) const;

    /// The integral of the window times exp(j angle t): what interpolation multiplies exp(j angle m) at samples m with.
    static double transform(double angle);

private:
    static constexpr std::size_t steps = 128;  ///< of the table for one spacing
    std::vector<Weights> m_table;              ///< from one step before fraction 0 to two after fraction 1
};

}  // namespace quarn::farzone
