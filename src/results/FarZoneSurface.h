#pragma once

#include <array>
#include <complex>
#include <cstddef>
#include <vector>

/// The closed box of the far-zone transformation as plain numbers: three axes of cells, six faces of samples. Positions
/// are in metres from the box's centre; the far-zone phase refers to it. X, y and z are the axes 0, 1 and 2.
namespace quarn::farzone {

using Complex = std::complex<double>;

enum Side : std::size_t { Lower = 0, Upper = 1 };

/// The cells of an axis from the box's lower face to its upper one.
struct Axis {
    std::vector<double> middles;
    std::vector<double> sizes;
    std::array<double, 2> faces{};  ///< where the two faces across the axis stand

    std::size_t cells() const { return middles.size(); }
};

inline constexpr std::size_t numAxes = 3;
using Vector = std::array<double, numAxes>;

inline constexpr std::size_t numComponents = 4;

/// The tangential fields at the middles of a face's cells: both electric components (V/m), then both magnetic ones
/// (A/m), each along the lower of the two in-plane axes first. The samples of a component follow the lower axis.
struct Face {
    std::array<const std::complex<float>*, numComponents> samples{};
    bool isSummed = false;
};

/// The two faces across an axis share the cells of the two in-plane axes.
struct FacePair {
    std::array<Face, 2> faces;

    std::size_t numberSummed() const { return std::size_t{faces[Lower].isSummed} + std::size_t{faces[Upper].isSummed}; }
};

struct InPlane {
    std::size_t a;
    std::size_t b;
};

/// The in-plane axes of the faces across an axis, the lower one first.
constexpr InPlane inPlaneAxes(std::size_t normal) {
    return normal == 0 ? InPlane{1, 2} : normal == 1 ? InPlane{0, 2} : InPlane{0, 1};
}

struct Surface {
    static constexpr std::size_t noMirror = numAxes;

    std::array<Axis, numAxes> axes;
    std::array<FacePair, numAxes> pairs;  ///< by their normal
    std::size_t mirrorAxis = noMirror;    ///< the normal of a perfectly conducting plane that the box is mirrored in
    double mirrorPosition = 0.0;          ///< where the plane stands on that axis

    bool isMirrored() const { return mirrorAxis != noMirror; }
};

/// What a face's four components radiate in one direction: the sums over its cells, one for each component, of sample
/// times cell area times cell weight times exp(j k r' . r), by normal axis and side.
using ComponentSums = std::array<Complex, numComponents>;
using FaceSums = std::array<std::array<ComponentSums, 2>, numAxes>;

}  // namespace quarn::farzone
