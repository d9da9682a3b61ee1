#include "quarn/NearZoneMultiFieldPoint.h"

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

NearZoneMultiFieldIndexedPoint::NearZoneMultiFieldIndexedPoint(const ivec3& point, bool scatteredE, bool totalE,
                                                               bool scatteredH, bool totalH, bool scatteredB,
                                                               bool totalB, bool j, int minTimestep, int maxTimestep,
                                                               int deltaTimestep, const QString& filename)
    : NearZoneMultiFieldPoint(scatteredE, totalE, scatteredH, totalH, scatteredB, totalB, j, minTimestep, maxTimestep,
                              deltaTimestep, filename),
      m_x(point.x),
      m_y(point.y),
      m_z(point.z) {}

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

}  // namespace quarn
