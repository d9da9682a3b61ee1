#pragma once

#include <array>
#include <complex>
#include <vector>

#include "reference/ExactFields.h"

/// The sums over a closed box from which far fields follow, written down as they are defined: every cell by itself, in
/// double precision.
namespace quarn::reference {

/// By the axis across the face (x, y and z are 0, 1 and 2), side (lower 0, upper 1) and component (both electric ones,
/// then both magnetic ones, each along the lower of the two in-plane axes first).
template <class Item>
using OnFaces = std::array<std::array<std::array<Item, 4>, 2>, 3>;

/// The sums over the cells of a face of sample times cell area times cell weight times exp(j k r' . r), r' being the
/// middle of the cell and r the direction. The weight is the mean over the cell of the same exponential from its
/// middle.
using FaceSums = OnFaces<Complex>;

/// A box of cells whose faces carry waves of a few directions with noise on them: a face then has a peak. Lengths are
/// in metres; samples follow the lower in-plane axis.
class SampledBox {
public:
    /// Sizes of the cells along x, y and z; the lower corner stands at `corner`. Along an axis no wave has more than
    /// two thirds of the wave number, which is in 1/m.
    SampledBox(const std::array<std::vector<double>, 3>& sizes, const Vector& corner, double waveNumber);

    /// What the faces radiate in the direction of a unit vector.
    FaceSums sumsIn(const Vector& direction, double waveNumber) const;

    /// The box as the far-zone transformation takes it, whose type is not public. It refers to the samples of this box.
    template <class Surface>
    Surface as() const {
        Surface surface;
        for (std::size_t axis = 0; axis < 3; ++axis) {
            surface.axes[axis] = {m_axes[axis].middles, m_axes[axis].sizes, m_axes[axis].faces};
            for (std::size_t side = 0; side < 2; ++side) {
                auto& face = surface.pairs[axis].faces[side];
                face.isSummed = true;
                for (std::size_t i = 0; i < 4; ++i) face.samples[i] = m_samples[axis][side][i].data();
            }
        }
        return surface;
    }

private:
    struct Axis {
        std::vector<double> middles;
        std::vector<double> sizes;
        std::array<double, 2> faces;
    };

    std::array<Axis, 3> m_axes;
    OnFaces<std::vector<std::complex<float>>> m_samples;
};

/// How far face sums are from those expected, over any number of directions. A sum that is not a number is infinitely
/// far away.
class Deviation {
public:
    void add(const FaceSums& found, const FaceSums& expected);

    /// The largest deviation, in units of the largest sum that was expected of the same face.
    double largest() const;

private:
    std::array<double, 6> m_peaks{};
    std::array<double, 6> m_deviations{};
};

}  // namespace quarn::reference
