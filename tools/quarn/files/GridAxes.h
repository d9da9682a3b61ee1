#pragma once

#include <cstdint>

#include "quarn/Grid.h"

namespace quarn::tool {

/// The functions of a grid for one axis, so that the same code serves all three.
struct GridAxis {
    const char* name;
    std::uint32_t (Grid::*getNumberOfCells)() const;
    float (Grid::*getDelta)(std::uint32_t) const;
    double (Grid::*getOrigin)() const;
    double (Grid::*getUpperBound)() const;
};

constexpr GridAxis gridAxes[] = {
    {"x",
     &Grid::getNumberOfUserCellsInX,
     &Grid::getUserXElectricDelta,
     &Grid::getUserXOrigin,
     &Grid::getUserXUpperBound},
    {"y",
     &Grid::getNumberOfUserCellsInY,
     &Grid::getUserYElectricDelta,
     &Grid::getUserYOrigin,
     &Grid::getUserYUpperBound},
    {"z",
     &Grid::getNumberOfUserCellsInZ,
     &Grid::getUserZElectricDelta,
     &Grid::getUserZOrigin,
     &Grid::getUserZUpperBound},
};

}  // namespace quarn::tool
