#pragma once

#include <cstdint>

namespace quarn {

/// A plane of grid cells in which SAR values are wanted.
class SARPlane {
public:
    enum Plane : std::int32_t { XY = 0, YZ = 1, ZX = 2 };

    SARPlane() = default;
    SARPlane(Plane plane, unsigned int index) : m_plane(plane), m_index(index) {}

    Plane getPlane() const { return m_plane; }

    /// The grid index of the plane along its normal.
    unsigned int getIndex() const { return m_index; }
    void setIndex(unsigned int index) { m_index = index; }

    friend bool operator==(const SARPlane& a, const SARPlane& b) {
        return a.m_plane == b.m_plane && a.m_index == b.m_index;
    }
    friend bool operator!=(const SARPlane& a, const SARPlane& b) { return !(a == b); }

private:
    Plane m_plane = XY;
    std::uint32_t m_index = 0;
};

}  // namespace quarn
