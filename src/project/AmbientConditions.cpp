#include "quarn/AmbientConditions.h"

#include <algorithm>
#include <iterator>

namespace quarn {

static_assert(sizeof(AmbientConditions) == 52, "plain data without padding");

AmbientConditions::AmbientConditions(float backgroundTemperature, SpecificationType bottomType, float bottomCoefficient,
                                     SpecificationType topType, float topCoefficient)
    : m_backgroundTemperature(backgroundTemperature) {
    setSpecificationType(BoundingBoxSide::Bottom, bottomType);
    setHeatTransferCoefficient(BoundingBoxSide::Bottom, bottomCoefficient);
    setSpecificationType(BoundingBoxSide::Top, topType);
    setHeatTransferCoefficient(BoundingBoxSide::Top, topCoefficient);
}

bool operator==(const AmbientConditions& a, const AmbientConditions& b) {
    return std::equal(std::begin(a.m_types), std::end(a.m_types), std::begin(b.m_types)) &&
           a.m_backgroundTemperature == b.m_backgroundTemperature &&
           std::equal(std::begin(a.m_coefficients), std::end(a.m_coefficients), std::begin(b.m_coefficients));
}

}  // namespace quarn
