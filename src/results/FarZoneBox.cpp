#include "quarn/FarZoneBox.h"

#include <cmath>
#include <tuple>

#include "quarn/BoundaryConditions.h"
#include "quarn/Grid.h"
#include "quarn/PhysicalConstants.h"

namespace quarn {

namespace {

// How far a face stays away from the boundary of the grid: from the first node at a lower one, from the number of cells
// at an upper one, whose last node is one less.
constexpr std::uint32_t absorberMargin = 4;
constexpr std::uint32_t lastNode = 1;

}  // namespace

FarZoneBox::FarZoneBox(const BoundaryConditions& boundaries, const Grid& grid) {
    m_isValid = boundaries.getNumberOfPECBoundaries() < 2 && !boundaries.hasPMCBoundary() &&
                !boundaries.hasPeriodicBoundary() && placeFaces(boundaries, grid);
    if (!m_isValid) return;
    for (Axis* axis : {&m_x, &m_y, &m_z}) axis->cells = axis->upper - axis->lower;
    setCenter(grid);
}

void FarZoneBox::useImageAt(Face face) {
    m_useImage = true;
    m_imageFace = face;
}

// False when the grid is too small for the box.
bool FarZoneBox::placeFaces(const BoundaryConditions& boundaries, const Grid& grid) {
    struct Placement {
        Axis& axis;
        BoundingBoxSide lowerSide, upperSide;
        Face lowerFace, upperFace;
        std::uint32_t gridCells;
    };
    const Placement placements[] = {
        {m_x, BoundingBoxSide::LowerX, BoundingBoxSide::UpperX, XLower, XUpper, grid.getNumberOfUserCellsInX()},
        {m_y, BoundingBoxSide::LowerY, BoundingBoxSide::UpperY, YLower, YUpper, grid.getNumberOfUserCellsInY()},
        {m_z, BoundingBoxSide::LowerZ, BoundingBoxSide::UpperZ, ZLower, ZUpper, grid.getNumberOfUserCellsInZ()}};
    const auto isPEC = [&](BoundingBoxSide side) {
        return boundaries.getBoundaryType(side) == BoundaryConditions::PEC;
    };

    for (const auto& [axis, lowerSide, upperSide, lowerFace, upperFace, gridCells] : placements) {
        axis.lower = isPEC(lowerSide) ? 0 : absorberMargin;
        if (isPEC(lowerSide)) useImageAt(lowerFace);
    }
    for (const auto& [axis, lowerSide, upperSide, lowerFace, upperFace, gridCells] : placements) {
        const std::uint32_t distance = isPEC(upperSide) ? lastNode : absorberMargin + lastNode;
        if (isPEC(upperSide)) useImageAt(upperFace);
        if (gridCells < distance) return false;
        axis.upper = gridCells - distance;
    }
    for (const Axis* axis : {&m_x, &m_y, &m_z}) {
        if (axis->lower <= axis->upper) continue;
        m_imageFace = NoFace;
        return false;
    }
    return true;
}

void FarZoneBox::setCenter(const Grid& grid) {
    const double lower[] = {grid.getUserXOrigin(), grid.getUserYOrigin(), grid.getUserZOrigin()};
    const double upper[] = {grid.getUserXUpperBound(), grid.getUserYUpperBound(), grid.getUserZUpperBound()};
    double center[3];
    for (int k = 0; k < 3; ++k) center[k] = 0.5 * (lower[k] + upper[k]);
    if (m_imageFace < XUpper) {
        center[m_imageFace] = lower[m_imageFace];
    } else if (m_imageFace < NoFace) {
        center[m_imageFace - XUpper] = upper[m_imageFace - XUpper];
    }
    m_x.center = center[0];
    m_y.center = center[1];
    m_z.center = center[2];
}

bool FarZoneBox::isAngleUnderGround(float phi, float theta) const {
    if (!m_useImage || m_imageFace >= NoFace) return false;
    static const double tolerance = std::sin(1e-3 * constants::radiansPerDegree);
    const double azimuth = phi;
    const double polar = theta;
    const double direction[] = {
        std::sin(polar) * std::cos(azimuth), std::sin(polar) * std::sin(azimuth), std::cos(polar)};
    return m_imageFace < XUpper ? direction[m_imageFace] <= -tolerance : direction[m_imageFace - XUpper] >= tolerance;
}

bool operator==(const FarZoneBox& a, const FarZoneBox& b) {
    const auto members = [](const FarZoneBox& box) {
        const auto axis = [](const FarZoneBox::Axis& of) { return std::tie(of.lower, of.upper, of.cells, of.center); };
        return std::tuple(box.m_isValid, box.m_useImage, box.m_imageFace, axis(box.m_x), axis(box.m_y), axis(box.m_z));
    };
    return members(a) == members(b);
}

}  // namespace quarn
