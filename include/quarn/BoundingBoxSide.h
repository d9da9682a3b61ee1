#pragma once

#include <cstdint>

namespace quarn {

/// The six faces of the computational box.
enum class BoundingBoxSide : std::int32_t {
    LowerX = 0,
    UpperX = 1,
    LowerY = 2,
    UpperY = 3,
    LowerZ = 4,
    UpperZ = 5,
    Bottom = LowerZ,
    Top = UpperZ,
};

}  // namespace quarn
