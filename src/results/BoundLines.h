#pragma once

#include "blocktext/BlockDescription.h"

/// The lines that bound a region of the grid, with two blanks behind their keys.
namespace quarn {

template <class Access>
constexpr auto lowerBound(Access access) {
    return blocktext::value("lower_bound", access, blocktext::SpacedElements());
}
template <class Access>
constexpr auto upperBound(Access access) {
    return blocktext::value("upper_bound", access, blocktext::SpacedElements());
}

}  // namespace quarn
