#pragma once

#include "geometry/GeometryBlock.h"
#include "quarn/MagneticMaterials.h"

/// The blocks of the magnetic materials in the geometry file. Those of the built-in materials are written and never
/// read.
namespace quarn {

template <>
struct blocktext::Description<MagneticFreeSpace> {
    static constexpr auto block() {
        return geometryBlock<MagneticFreeSpace>("magneticfreespace", fixed("permeability", 1));
    }
};

template <>
struct blocktext::Description<MagneticPerfectConductor> {
    static constexpr auto block() { return geometryBlock<MagneticPerfectConductor>("magneticperfectconductor"); }
};

template <>
struct blocktext::Description<MagneticNormal> {
    using M = MagneticNormal;
    static constexpr auto block() {
        return geometryBlock<M>(
            "normal_magnetic",
            value("conductivity", &M::m_conductivity).in("ohm/m"),
            value("permeability", &M::m_relativePermeability),
            flag("UseLossTangent", &M::m_useLossTangent, " "),
            value("LossTangent", &M::m_lossTangent).onlyWith(&M::m_useLossTangent),
            flag("UseComplex", &M::m_useComplex, " ").where(usesImaginaryPart, "where set without UseLossTangent"),
            value("Imaginary", &M::m_imaginary).where(usesImaginaryPart, "with UseComplex"));
    }
};

template <>
struct blocktext::Description<MagneticFerrite> {
    using M = MagneticFerrite;
    static constexpr auto block() {
        return geometryBlock<M>("magnetized_ferrite",
                                value("precession_frequency", &M::m_precessionalFrequency).in("Hz"),
                                value("saturation_magnetization", &M::m_saturationMagnetization),
                                value("damping_coefficient", &M::m_dampingCoefficient),
                                value("theta", &M::m_theta).in("deg"),
                                value("phi", &M::m_phi).in("deg"));
    }
};

template <>
struct blocktext::Description<MagneticDebye> {
    using M = MagneticDebye;
    static constexpr auto block() {
        return geometryBlock<M>("magnetic_debye/drude",
                                value("conductivity", &M::m_conductivity).in("ohm/m"),
                                value("permeability", &M::m_relativePermeability),
                                value("static_permeability", &M::m_staticRelativePermeability),
                                value("relaxation_time", &M::m_relaxationTime).in("s"));
    }
};

template <>
struct blocktext::Description<Magnetic7PoleDebye> {
    using M = Magnetic7PoleDebye;
    static constexpr auto block() {
        return geometryBlock<M>("magnetic7poledebye",
                                value("relativePermeability", &M::m_relativePermeability),
                                numbered("staticRelativePermeability", &M::m_staticRelativePermeabilities),
                                numbered("relaxationTime", &M::m_relaxationTimes).in("s"),
                                value("conductivity", &M::m_conductivity).in("ohm/m"));
    }
};

template <>
struct blocktext::Description<MagneticNonlinear> {
    using M = MagneticNonlinear;
    static constexpr auto block() {
        return geometryBlock<M>("nonlinear_magnetic",
                                value("nlm_Bclosure", &M::m_bClosure),
                                value("nlm_Bbreakpoint", &M::m_bBreakPoint),
                                value("nlm_Hclosure", &M::m_hClosure),
                                value("nlm_mus", &M::m_saturatedRelativePermeability),
                                value("nlm_A1", &M::m_a1),
                                value("nlm_A2", &M::m_a2),
                                value("nlm_A3", &M::m_a3),
                                value("nlm_A4", &M::m_a4),
                                value("nlm_alpha", &M::m_alpha),
                                value("nlm_c1", &M::m_c1),
                                value("nlm_c2", &M::m_c2),
                                value("nlm_c3", &M::m_c3),
                                value("nlm_b1dot", &M::m_b1Dot),
                                value("nlm_b2dot", &M::m_b2Dot));
    }
};

template <>
struct blocktext::Description<MagneticSampled> {
    using M = MagneticSampled;
    static constexpr auto block() {
        using Sample = M::Parameters;
        return geometryBlock<M>(
            "magnetic_sampled",
            innerBlocks(&M::m_parameters,
                        geometryBlock<Sample>("SampledParameters",
                                              value("frequency", &Sample::frequency).in("Hz"),
                                              value("conductivity", &Sample::conductivity).in("ohm/m"),
                                              value("permeability", &Sample::permeability)))
                .notCompared());
    }
};

}  // namespace quarn
