#pragma once

#include "quarn/ElectricDispersiveMaterials.h"
#include "quarn/ElectricMaterials.h"
#include "quarn/MagneticMaterials.h"

namespace quarn {

template <class... Kinds>
struct KindList {};

using BuiltInMaterials =
    KindList<ElectricFreeSpace, ElectricPerfectConductor, MagneticFreeSpace, MagneticPerfectConductor>;

using ElectricMaterials = KindList<ElectricNormal, ElectricSampled, ElectricDebye, ElectricLorentz, ElectricAnisotropic,
                                   ElectricNonlinear, ElectricThinWire, Electric3PoleDebye, Electric7PoleDebye,
                                   ElectricDjordjevic, ElectricDebyeLorentzColeCole, ElectricSurfaceResistance>;

using MagneticMaterials =
    KindList<MagneticNormal, MagneticFerrite, MagneticDebye, Magnetic7PoleDebye, MagneticNonlinear, MagneticSampled>;

template <class Use, class... Kinds>
bool useAsOneOf(KindList<Kinds...>, const Material& material, Use& use) {
    const auto useAs = [&use](const auto* kind) {
        if (kind) use(*kind);
        return kind != nullptr;
    };
    return (useAs(dynamic_cast<const Kinds*>(&material)) || ...);
}

/// Calls `use` with the material as an object of its class. False when the class is none of the library's.
template <class Use>
bool useAsItsKind(const Material& material, Use use) {
    return useAsOneOf(ElectricMaterials(), material, use) || useAsOneOf(MagneticMaterials(), material, use) ||
           useAsOneOf(BuiltInMaterials(), material, use);
}

}  // namespace quarn
