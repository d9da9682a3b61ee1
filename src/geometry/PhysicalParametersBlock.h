#pragma once

#include "geometry/GeometryBlock.h"
#include "quarn/Material.h"

namespace quarn {

/// The thermal properties of a medium, with the medium's label on the open line.
template <>
struct blocktext::Description<PhysicalParameters> {
    using P = PhysicalParameters;
    static constexpr auto block() {
        return describeWords<P>("PhysicalParameters",
                                Unknown::DropLine,
                                Unreadable::KeepsValue,
                                value("density", &P::m_density).in("kg/m^3"),
                                value("heatCapacity", &P::m_heatCapacity).in("J/(kg K)"),
                                value("thermalConductivity", &P::m_thermalConductivity).in("W/(m K)"),
                                value("perfussionByBlood", &P::m_perfussionByBlood),
                                value("metabolicHeat", &P::m_metabolicHeat));
    }
    /// Within a material of the geometry file, which has a line of its own for the density.
    static constexpr auto blockInMaterial() {
        return geometryBlock<P>("TemperatureRiseMaterialParameters",
                                value("heat_capacity", &P::m_heatCapacity).in("J/(kg K)"),
                                value("thermal_conductivity", &P::m_thermalConductivity).in("W/(m K)"),
                                value("perfusion_rate", &P::m_perfussionByBlood),
                                value("metabolic_heat", &P::m_metabolicHeat));
    }
};

}  // namespace quarn
