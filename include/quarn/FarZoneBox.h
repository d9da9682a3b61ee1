#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <tuple>

#include "quarn/Export.h"

namespace quarn {

class BoundaryConditions;
class Grid;

/// The closed box on which the engine records the fields that radiate into the far zone. It lies four cells inside
/// absorbing boundaries. At a boundary that is a perfect electric conductor (PEC) it lies on the last node before it,
/// and the image of the fields behind that plane closes the box.
///
/// There is no box for two or more PEC boundaries, for magnetic conductors, for periodic boundaries, or in a grid that
/// is too small: isValid() is false then.
class QUARN_EXPORT FarZoneBox {
public:
    /// A face of the box. The face of an invalid box may be one that was considered before it turned out invalid.
    enum Face : std::uint32_t { XLower = 0, YLower = 1, ZLower = 2, XUpper = 3, YUpper = 4, ZUpper = 5, NoFace = 6 };

    /// Where the box lies on one axis. The functions of the box that name an axis return the same.
    struct Axis {
        std::uint32_t lower = 0;
        std::uint32_t upper = 0;
        std::uint32_t cells = 0;
        double center = 0.0;

        friend bool operator==(const Axis& a, const Axis& b) {
            return std::tie(a.lower, a.upper, a.cells, a.center) == std::tie(b.lower, b.upper, b.cells, b.center);
        }
        friend bool operator!=(const Axis& a, const Axis& b) { return !(a == b); }
    };

    /// An invalid box.
    FarZoneBox() = default;

    /// The boundary conditions answer for the types that they have cached.
    FarZoneBox(const BoundaryConditions& boundaries, const Grid& grid);

    bool isValid() const { return m_isValid; }

    /// Whether the box touches a PEC plane, and where.
    bool useImage() const { return m_useImage; }
    Face getImageFace() const { return m_imageFace; }

    /// The axes x, y and z have the numbers 0, 1 and 2.
    const Axis& axis(std::size_t n) const { return m_axes[n]; }

    /// The grid's node indices of the faces.
    std::uint32_t getXLower() const { return axis(0).lower; }
    std::uint32_t getYLower() const { return axis(1).lower; }
    std::uint32_t getZLower() const { return axis(2).lower; }
    std::uint32_t getXUpper() const { return axis(0).upper; }
    std::uint32_t getYUpper() const { return axis(1).upper; }
    std::uint32_t getZUpper() const { return axis(2).upper; }

    /// Cells between the faces; 0 for an invalid box, as are the cells on a face and the centre.
    std::uint32_t getNumberInX() const { return axis(0).cells; }
    std::uint32_t getNumberInY() const { return axis(1).cells; }
    std::uint32_t getNumberInZ() const { return axis(2).cells; }

    /// Cells on a face that is normal to the axis; the largest number where there are more.
    std::uint32_t getNumberOnXFace() const { return product(axis(1).cells, axis(2).cells); }
    std::uint32_t getNumberOnYFace() const { return product(axis(0).cells, axis(2).cells); }
    std::uint32_t getNumberOnZFace() const { return product(axis(0).cells, axis(1).cells); }

    /// The phase reference in metres: the middle of the grid's bounding box, which on a graded grid is not the middle
    /// of this box. With a PEC plane it lies on that side of the bounding box.
    double getXCenter() const { return axis(0).center; }
    double getYCenter() const { return axis(1).center; }
    double getZCenter() const { return axis(2).center; }

    /// Whether a direction (azimuth and polar angle in radians, in this order) points behind the PEC plane. Directions
    /// within 0.001 degree of the plane do not; without an image none does.
    bool isAngleUnderGround(float phi, float theta) const;

    QUARN_EXPORT friend bool operator==(const FarZoneBox& a, const FarZoneBox& b);
    friend bool operator!=(const FarZoneBox& a, const FarZoneBox& b) { return !(a == b); }

private:
    static std::uint32_t product(std::uint64_t a, std::uint64_t b) {
        return static_cast<std::uint32_t>(std::min<std::uint64_t>(a * b, std::numeric_limits<std::uint32_t>::max()));
    }
    bool placeFaces(const BoundaryConditions& boundaries, const Grid& grid);
    void useImageAt(Face face);
    void setCenter(const Grid& grid);

    bool m_isValid = false;
    bool m_useImage = false;
    Face m_imageFace = NoFace;
    std::array<Axis, 3> m_axes;
};

}  // namespace quarn
