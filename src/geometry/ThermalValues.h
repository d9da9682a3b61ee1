#pragma once

#include <memory>
#include <utility>

#include "quarn/Material.h"

/// The physical parameters of a material that is being read or written. A material that is being read shares them with
/// no other yet.
namespace quarn::geometry {

inline bool hasThermalValues(const Material& material) { return material.getPhysicalParameters() != nullptr; }

/// Leads to the parameters, which are zero where the material has none. Reading begins with zeros, save the density.
struct ThermalValues {
    const PhysicalParameters& operator()(const Material& material) const {
        static const PhysicalParameters none(0.0F, 0.0F, 0.0F, 0.0F, 0.0F);
        return hasThermalValues(material) ? *material.getPhysicalParameters() : none;
    }
    PhysicalParameters& operator()(Material& material) const {
        const float density = (*this)(std::as_const(material)).getDensity();
        material.sharePhysicalParameters(std::make_shared<PhysicalParameters>(density, 0.0F, 0.0F, 0.0F, 0.0F));
        return *material.getPhysicalParameters();
    }
};

inline float densityOf(const Material& material) { return ThermalValues()(material).getDensity(); }

/// A density of zero alone does not give the material any parameters.
inline void setDensity(Material& material, float density) {
    if (density == 0.0F && !hasThermalValues(material)) return;
    const PhysicalParameters& old = ThermalValues()(std::as_const(material));
    material.sharePhysicalParameters(std::make_shared<PhysicalParameters>(density,
                                                                          old.getHeatCapacity(),
                                                                          old.getThermalConductivity(),
                                                                          old.getPerfussionByBlood(),
                                                                          old.getMetabolicHeat()));
}

}  // namespace quarn::geometry
