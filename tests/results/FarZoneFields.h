#pragma once

#include <cmath>
#include <memory>

#include "quarn/BoundaryConditions.h"
#include "quarn/FieldsOnSSFarZoneBox.h"
#include "quarn/Grid.h"
#include "quarn/PhysicalConstants.h"
#include "quarn/PostProcessSSFarZoneFields.h"
#include "reference/ExactFields.h"
#include "results/ResultFolder.h"

namespace quarn::test {

using constants::pi;

inline BoundaryConditions openBoundaries() {
    constexpr auto open = BoundaryConditions::CPML;
    return {open, open, open, open, open, open, 8};
}

/// A PEC plane at the side, or no plane for FarZoneBox::NoFace, and open boundaries elsewhere.
inline BoundaryConditions boundariesWithPlaneAt(FarZoneBox::Face face) {
    BoundaryConditions boundaries = openBoundaries();
    const auto side = static_cast<BoundingBoxSide>(face % 3 * 2 + face / 3);
    if (face != FarZoneBox::NoFace) boundaries.setBoundaryType(side, BoundaryConditions::PEC);
    boundaries.cacheVariables();
    return boundaries;
}

/// A run whose engine knows the fields of a source exactly.
class ExactRun {
public:
    ExactRun(const Grid& grid, const BoundaryConditions& boundaries) : m_grid(grid), m_box(boundaries, grid) {}

    const Grid& grid() const { return m_grid; }
    const FarZoneBox& box() const { return m_box; }
    reference::Vector origin() const { return {m_box.getXCenter(), m_box.getYCenter(), m_box.getZCenter()}; }

    FieldsOnSSFarZoneBox fieldsOf(const reference::Source& source, double frequency) const {
        const QString path = m_folder.path("box");
        EXPECT_TRUE(reference::writeBoxFields(path, m_grid, m_box, source, frequency));
        QString problem;
        FieldsOnSSFarZoneBox fields(m_grid, path, m_box, problem);
        EXPECT_EQ(problem.toStdString(), "");
        EXPECT_TRUE(fields.setupImageFields(m_grid));
        return fields;
    }

private:
    ResultFolder m_folder;
    Grid m_grid;
    FarZoneBox m_box;
};

/// All directions at a step in degrees, the poles included.
inline std::vector<FarZoneRequest::Angle> sphere(int step) {
    std::vector<FarZoneRequest::Angle> angles;
    for (int theta = 0; theta <= 180; theta += step) {
        for (int phi = 0; phi < 360; phi += step) {
            angles.emplace_back(static_cast<float>(theta * pi / 180.0), static_cast<float>(phi * pi / 180.0));
        }
    }
    return angles;
}

inline std::vector<FarZoneSSFieldFile::Record> patternOf(const FieldsOnSSFarZoneBox& fields, double frequency,
                                                         const std::vector<FarZoneRequest::Angle>& angles) {
    std::vector<FarZoneSSFieldFile::Record> records;
    const PostProcessSSFarZoneFields processor(&fields, static_cast<float>(frequency), 0, 0);
    EXPECT_TRUE(processor.computeFields(angles, records));
    EXPECT_EQ(records.size(), angles.size());
    return records;
}

}  // namespace quarn::test
