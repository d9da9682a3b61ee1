#pragma once

#include <array>
#include <cstdint>

#include "blocktext/BlockWalker.h"
#include "blocktext/BlockWriter.h"

/// The lines that bound a region of the grid, with two blanks behind their keys.
namespace quarn {

using GridBound = std::array<std::uint32_t, 3>;

using blocktext::operator""_key;
constexpr auto lowerBoundKey = "lower_bound"_key;
constexpr auto upperBoundKey = "upper_bound"_key;

inline void putBounds(DelimManager& delim, const GridBound& lower, const GridBound& upper) {
    blocktext::putLine(delim, lowerBoundKey, QLatin1String(), lower[0], lower[1], lower[2]);
    blocktext::putLine(delim, upperBoundKey, QLatin1String(), upper[0], upper[1], upper[2]);
}

inline auto onBound(QLatin1String key, GridBound& bound) {
    return blocktext::onWord(key, [&bound](QTextStream& in) { blocktext::readAll(in, bound[0], bound[1], bound[2]); });
}

}  // namespace quarn
