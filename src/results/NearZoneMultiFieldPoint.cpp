#include "quarn/NearZoneMultiFieldPoint.h"

#include <tuple>
#include <typeinfo>

namespace quarn {

NearZoneMultiFieldPoint::~NearZoneMultiFieldPoint() = default;

NearZoneMultiFieldPoint::NearZoneMultiFieldPoint(bool scatteredE, bool totalE, bool scatteredH, bool totalH,
                                                 bool scatteredB, bool totalB, bool j, int minTimestep, int maxTimestep,
                                                 int deltaTimestep, const QString& filename)
    : m_groups{scatteredE, totalE, scatteredH, totalH, scatteredB, totalB, j},
      m_minTimestep(minTimestep),
      m_maxTimestep(maxTimestep),
      m_deltaTimestep(deltaTimestep),
      m_filename(filename) {}

bool NearZoneMultiFieldPoint::operator==(const NearZoneMultiFieldPoint& other) const {
    const auto members = [](const NearZoneMultiFieldPoint& p) {
        return std::tie(p.m_groups, p.m_minTimestep, p.m_maxTimestep, p.m_deltaTimestep, p.m_filename);
    };
    return typeid(*this) == typeid(other) && members(*this) == members(other);
}

NearZoneMultiFieldIndexedPoint::NearZoneMultiFieldIndexedPoint(const ivec3& point, bool scatteredE, bool totalE,
                                                               bool scatteredH, bool totalH, bool scatteredB,
                                                               bool totalB, bool j, int minTimestep, int maxTimestep,
                                                               int deltaTimestep, const QString& filename)
    : NearZoneMultiFieldPoint(scatteredE, totalE, scatteredH, totalH, scatteredB, totalB, j, minTimestep, maxTimestep,
                              deltaTimestep, filename),
      m_x(point.x),
      m_y(point.y),
      m_z(point.z) {}

bool NearZoneMultiFieldIndexedPoint::operator==(const NearZoneMultiFieldIndexedPoint& other) const {
    return NearZoneMultiFieldPoint::operator==(other) &&
           std::tie(m_x, m_y, m_z) == std::tie(other.m_x, other.m_y, other.m_z);
}

NearZoneMultiFieldInterpolatedPoint::NearZoneMultiFieldInterpolatedPoint(float x, float y, float z, bool scatteredE,
                                                                         bool totalE, bool scatteredH, bool totalH,
                                                                         bool scatteredB, bool totalB, bool j,
                                                                         int minTimestep, int maxTimestep,
                                                                         int deltaTimestep, const QString& filename)
    : NearZoneMultiFieldPoint(scatteredE, totalE, scatteredH, totalH, scatteredB, totalB, j, minTimestep, maxTimestep,
                              deltaTimestep, filename),
      m_x(x),
      m_y(y),
      m_z(z) {}

bool NearZoneMultiFieldInterpolatedPoint::operator==(const NearZoneMultiFieldInterpolatedPoint& other) const {
    return NearZoneMultiFieldPoint::operator==(other) &&
           std::tie(m_x, m_y, m_z) == std::tie(other.m_x, other.m_y, other.m_z);
}

}  // namespace quarn
