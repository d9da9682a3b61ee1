#pragma once

#include <cstdint>

#include "quarn/ivec3.h"

namespace quarn {

/// A grid point of the near zone with a type code, whose meaning is the user's.
class NearZonePoint {
public:
    int Type() const { return m_type; }
    void Type(int type) { m_type = type; }

    int X() const { return m_point.x; }
    int Y() const { return m_point.y; }
    int Z() const { return m_point.z; }

    const ivec3& Point() const { return m_point; }
    void Point(const ivec3& point) { m_point = point; }

    friend bool operator==(const NearZonePoint& a, const NearZonePoint& b) {
        return a.m_point == b.m_point && a.m_type == b.m_type;
    }
    friend bool operator!=(const NearZonePoint& a, const NearZonePoint& b) { return !(a == b); }

private:
    std::int32_t m_type = 0;
    ivec3 m_point;
};

}  // namespace quarn
