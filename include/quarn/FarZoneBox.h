#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

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

    /// An invalid box.
    FarZoneBox() = default;

    /// The boundary conditions answer for the types that they have cached.
    FarZoneBox(const BoundaryConditions& boundaries, const Grid& grid);

    bool isValid() const { return m_isValid; }

    /// Whether the box touches a PEC plane, and where.
    bool useImage() const { return m_useImage; }
    Face getImageFace() const { return m_imageFace; }

    /// The grid's node indices of the faces.
    std::uint32_t getXLower() const { return m_x.lower; }
    std::uint32_t getYLower() const { return m_y.lower; }
    std::uint32_t getZLower() const { return m_z.lower; }
    std::uint32_t getXUpper() const { return m_x.upper; }
    std::uint32_t getYUpper() const { return m_y.upper; }
    std::uint32_t getZUpper() const { return m_z.upper; }

    /// Cells between the faces; 0 for an invalid box, as are the cells on a face and the centre.
    std::uint32_t getNumberInX() const { return m_x.cells; }
    std::uint32_t getNumberInY() const { return m_y.cells; }
    std::uint32_t getNumberInZ() const { return m_z.cells; }

    /// Cells on a face that is normal to the axis; the largest number where there are more.
    std::uint32_t getNumberOnXFace() const { return product(m_y.cells, m_z.cells); }
    std::uint32_t getNumberOnYFace() const { return product(m_x.cells, m_z.cells); }
    std::uint32_t getNumberOnZFace() const { return product(m_x.cells, m_y.cells); }

    /// The phase reference in metres: the middle of the grid's bounding box, which on a graded grid is not the middle
    /// of this box. With a PEC plane it lies on that side of the bounding box.
    double getXCenter() const { return m_x.center; }
    double getYCenter() const { return m_y.center; }
    double getZCenter() const { return m_z.center; }

    /// Whether a direction (azimuth and polar angle in radians, in this order) points behind the PEC plane. Directions
    /// within 0.001 degree of the plane do not; without an image none does.
    bool isAngleUnderGround(float phi, float theta) const;

    QUARN_EXPORT friend bool operator==(const FarZoneBox& a, const FarZoneBox& b);
    friend bool operator!=(const FarZoneBox& a, const FarZoneBox& b) { return !(a == b); }

private:
    struct Axis {
        std::uint32_t lower = 0;
        std::uint32_t upper = 0;
        std::uint32_t cells = 0;
        double center = 0.0;
    };

    static std::uint32_t product(std::uint64_t a, std::uint64_t b) {
        return static_cast<std::uint32_t>(std::min<std::uint64_t>(a * b, std::numeric_limits<std::uint32_t>::max()));
    }
    bool placeFaces(const BoundaryConditions& boundaries, const Grid& grid);
    void useImageAt(Face face);
    void setCenter(const Grid& grid);

    bool m_isValid = false;
    bool m_useImage = false;
    Face m_imageFace = NoFace;
    Axis m_x;
    Axis m_y;
    Axis m_z;
};

}  // namespace quarn
