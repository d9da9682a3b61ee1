#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

#include "quarn/GridIndexBoxes.h"

/// Arithmetic on boxes of grid cells that cannot overflow for any corners: an extent may need 33 bits and a volume 99.
namespace quarn::indexbox {

using Box = GridIndexBoxes::Box;

inline constexpr std::int32_t ivec3::*axes[] = {&ivec3::x, &ivec3::y, &ivec3::z};
inline constexpr std::uint64_t unlimited = std::numeric_limits<std::uint64_t>::max();

inline bool isEmpty(const Box& box) {
    return box.first.x > box.second.x || box.first.y > box.second.y || box.first.z > box.second.z;
}

/// The number of cells along an axis of a box that is not empty.
inline std::uint64_t extent(const Box& box, std::int32_t ivec3::*axis) {
    return static_cast<std::uint64_t>(std::int64_t{box.second.*axis} - box.first.*axis + 1);
}

/// a * b + c, or `unlimited` when the result would overflow.
inline std::uint64_t multiplyAdd(std::uint64_t a, std::uint64_t b, std::uint64_t c) {
    return b != 0 && a > (unlimited - c) / b ? unlimited : a * b + c;
}

/// The number of cells, or `unlimited`.
inline std::uint64_t volume(const Box& box) {
    if (isEmpty(box)) return 0;
    const std::uint64_t layer = multiplyAdd(extent(box, &ivec3::x), extent(box, &ivec3::y), 0);
    return multiplyAdd(layer, extent(box, &ivec3::z), 0);
}

/// The number of a cell in its box, z fastest, or `unlimited`.
inline std::uint64_t cellNumber(const Box& box, const ivec3& cell) {
    const auto offset = [&](auto axis) { return extent({box.first, cell}, axis) - 1; };
    const std::uint64_t row = multiplyAdd(offset(&ivec3::x), extent(box, &ivec3::y), offset(&ivec3::y));
    return multiplyAdd(row, extent(box, &ivec3::z), offset(&ivec3::z));
}

/// The cell with a number below the volume of its box.
inline ivec3 cellAt(const Box& box, std::uint64_t number) {
    const std::uint64_t ey = extent(box, &ivec3::y);
    const std::uint64_t ez = extent(box, &ivec3::z);
    const std::uint64_t row = number / ez;
    const std::uint64_t layer = row / ey;
    const auto moved = [](std::int32_t from, std::uint64_t by) {
        return static_cast<std::int32_t>(from + static_cast<std::int64_t>(by));
    };
    return {moved(box.first.x, layer), moved(box.first.y, row - layer * ey), moved(box.first.z, number - row * ez)};
}

inline bool contains(const Box& box, const ivec3& cell) {
    return std::all_of(std::begin(axes), std::end(axes), [&](auto axis) {
        return box.first.*axis <= cell.*axis && cell.*axis <= box.second.*axis;
    });
}

}  // namespace quarn::indexbox
