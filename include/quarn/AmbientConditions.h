#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "quarn/BoundingBoxSide.h"
#include "quarn/Description.h"
#include "quarn/Export.h"

namespace quarn {

/// The medium around the computational box in a thermal run, and how heat passes through each face. The project file
/// carries the temperature and the coefficients of the top and the bottom face.
class QUARN_EXPORT AmbientConditions {
public:
    using BoundingBoxSide = quarn::BoundingBoxSide;

    /// Which thermal quantity is given at a face.
    enum SpecificationType : std::int32_t { FixedTemperature = 0, FixedHeatFlux = 1, HeatTransfer = 2 };

    /// The background temperature is in kelvin, heat transfer coefficients are in W/(m^2 K). The four lateral faces
    /// start at zero.
    AmbientConditions(float backgroundTemperature, SpecificationType bottomType, float bottomCoefficient,
                      SpecificationType topType, float topCoefficient);

    float getBackgroundTemperature() const { return m_backgroundTemperature; }
    void setBackgroundTemperature(float temperature) { m_backgroundTemperature = temperature; }

    /// The side must be one of the six; it is not checked.
    SpecificationType getSpecificationType(BoundingBoxSide side) const {
        return m_types[static_cast<std::size_t>(side)];
    }
    void setSpecificationType(BoundingBoxSide side, SpecificationType type) {
        m_types[static_cast<std::size_t>(side)] = type;
    }
    float getHeatTransferCoefficient(BoundingBoxSide side) const {
        return m_coefficients[static_cast<std::size_t>(side)];
    }
    void setHeatTransferCoefficient(BoundingBoxSide side, float coefficient) {
        m_coefficients[static_cast<std::size_t>(side)] = coefficient;
    }

    QUARN_EXPORT friend bool operator==(const AmbientConditions& a, const AmbientConditions& b);
    friend bool operator!=(const AmbientConditions& a, const AmbientConditions& b) { return !(a == b); }

private:
    friend struct blocktext::Description<AmbientConditions>;

    std::array<SpecificationType, 6> m_types{};
    float m_backgroundTemperature;
    std::array<float, 6> m_coefficients{};
};

}  // namespace quarn
