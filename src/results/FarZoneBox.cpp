#include "quarn/FarZoneBox.h"

#include <cmath>

#include "quarn/BoundaryConditions.h"
#include "quarn/Grid.h"
#include "quarn/PhysicalConstants.h"

namespace quarn {

namespace {

// How many nodes a face stands away from the first or the last node of the grid, and how much less than the number of
// cells the index of the last node is.
constexpr std::uint32_t absorberMargin = 4;
constexpr std::uint32_t lastNode = 1;

}  // namespace

FarZoneBox::FarZoneBox(const BoundaryConditions& boundaries, const Grid& grid) {
    m_isValid = boundaries.getNumberOfPECBoundaries() < 2 && !boundaries.hasPMCBoundary() &&
                !boundaries.hasPeriodicBoundary() && placeFaces(boundaries, grid);
    if (!m_isValid) return;
    for (Axis& axis : m_axes) axis.cells = axis.upper - axis.lower;
    setCenter(grid);
}

void FarZoneBox::useImageAt(Face face) {
    m_useImage = true;
    m_imageFace = face;
}

// Returns false when the grid is too small for the box.
bool FarZoneBox::placeFaces(const BoundaryConditions& boundaries, const Grid& grid) {
    // BoundingBoxSide has the lower and the upper side of x first, then those of y and of z.
    const auto isPEC = [&](std::uint32_t side) {
        return boundaries.getBoundaryType(static_cast<BoundingBoxSide>(side)) == BoundaryConditions::PEC;
    };
    for (std::uint32_t n = 0; n < m_axes.size(); ++n) {
        m_axes[n].lower = isPEC(2 * n) ? 0 : absorberMargin;
        if (isPEC(2 * n)) useImageAt(static_cast<Face>(XLower + n));
    }
    for (std::uint32_t n = 0; n < m_axes.size(); ++n) {
        const std::uint32_t distance = isPEC(2 * n + 1) ? lastNode : absorberMargin + lastNode;
        if (isPEC(2 * n + 1)) useImageAt(static_cast<Face>(XUpper + n));
        if (grid.axis(n).cells() < distance) return false;
        m_axes[n].upper = grid.axis(n).cells() - distance;
    }
    for (const Axis& axis : m_axes) {
        if (axis.lower <= axis.upper) continue;
        m_imageFace = NoFace;
        return false;
    }
    return true;
}

void FarZoneBox::setCenter(const Grid& grid) {
    for (std::size_t n = 0; n < m_axes.size(); ++n) {
        m_axes[n].center = 0.5 * (grid.axis(n).origin() + grid.axis(n).upperBound());
    }
    if (m_imageFace == NoFace) return;
    const Grid::Axis& axis = grid.axis(m_imageFace % 3);
    m_axes[m_imageFace % 3].center = m_imageFace < XUpper ? axis.origin() : axis.upperBound();
}

bool FarZoneBox::isAngleUnderGround(float phi, float theta) const {
    if (!m_useImage || m_imageFace >= NoFace) return false;
    static const double tolerance = std::sin(1e-3 * constants::radiansPerDegree);
    const double azimuth = phi;
    const double polar = theta;
    const double direction[] = {
        std::sin(polar) * std::cos(azimuth), std::sin(polar) * std::sin(azimuth), std::cos(polar)};
    const double component = direction[m_imageFace % 3];
    return m_imageFace < XUpper ? component <= -tolerance : component >= tolerance;
}

bool operator==(const FarZoneBox& a, const FarZoneBox& b) {
    const auto members = [](const FarZoneBox& box) {
        return std::tie(box.m_isValid, box.m_useImage, box.m_imageFace, box.m_axes);
    };
    return members(a) == members(b);
}

}  // namespace quarn
