#pragma once

#include "blocktext/BlockDescription.h"
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
};

}  // namespace quarn
