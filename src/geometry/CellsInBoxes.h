#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "quarn/GridIndexBoxes.h"

namespace quarn {

/// A box and a cell in it, as positions in their lists.
struct BoxAndCell {
    std::uint32_t box;
    std::uint32_t cell;
};

/// Throws the std::runtime_error for too many pairs.
[[noreturn]] void throwTooMuchOverlap();

/// Every pair of a box and a cell in it, ordered by box, then cell. With n boxes and cells the time is of order n log^3
/// n at most, plus that for the pairs. Throws a std::runtime_error when there are more than `limit` pairs.
std::vector<BoxAndCell> findCellsInBoxes(const std::vector<GridIndexBoxes::Box>& boxes, const std::vector<ivec3>& cells,
                                         std::size_t limit);

}  // namespace quarn
