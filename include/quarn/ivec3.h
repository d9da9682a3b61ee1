#pragma once

#include <cstdint>
#include <tuple>

namespace quarn {

/// The indices of a grid cell, ordered by x, then y, then z.
struct ivec3 {
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::int32_t z = 0;

    ivec3() = default;
    ivec3(int xIndex, int yIndex, int zIndex) : x(xIndex), y(yIndex), z(zIndex) {}

    void Set(const int& xIndex, const int& yIndex, const int& zIndex) { *this = ivec3(xIndex, yIndex, zIndex); }

    friend bool operator==(const ivec3& a, const ivec3& b) { return a.x == b.x && a.y == b.y && a.z == b.z; }
    friend bool operator!=(const ivec3& a, const ivec3& b) { return !(a == b); }
    friend bool operator<(const ivec3& a, const ivec3& b) { return std::tie(a.x, a.y, a.z) < std::tie(b.x, b.y, b.z); }
    friend bool operator<=(const ivec3& a, const ivec3& b) { return !(b < a); }
    friend bool operator>(const ivec3& a, const ivec3& b) { return b < a; }
    friend bool operator>=(const ivec3& a, const ivec3& b) { return !(a < b); }
};

}  // namespace quarn
