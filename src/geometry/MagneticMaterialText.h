#pragma once

#include "geometry/NormalMaterialLines.h"
#include "geometry/PoleKeys.h"
#include "quarn/MagneticMaterials.h"

/// The blocks of the magnetic materials; see ElectricMaterialText.h.
namespace quarn {

using namespace geometry;

template <>
struct MaterialText<MagneticFreeSpace> {
    static constexpr auto name = "magneticfreespace"_key;
    static constexpr auto lines() { return std::tuple(fixedLine("permeability"_key, 1)); }
};

template <>
struct MaterialText<MagneticPerfectConductor> {
    static constexpr auto name = "magneticperfectconductor"_key;
    static constexpr auto lines() { return std::tuple(); }
};

template <>
struct MaterialText<MagneticNormal> {
    using M = MagneticNormal;
    static constexpr auto name = "normal_magnetic"_key;
    static constexpr auto lines() {
        return std::tuple(valueLine("conductivity"_key, &M::m_conductivity),
                          valueLine("permeability"_key, &M::m_relativePermeability),
                          lossLines(&M::m_useLossTangent, &M::m_lossTangent, &M::m_useComplex, &M::m_imaginary));
    }
    static M blank(const QString& label) { return {label, 0, 0}; }
};

template <>
struct MaterialText<MagneticFerrite> {
    using M = MagneticFerrite;
    static constexpr auto name = "magnetized_ferrite"_key;
    static constexpr auto lines() {
        return std::tuple(valueLine("precession_frequency"_key, &M::m_precessionalFrequency),
                          valueLine("saturation_magnetization"_key, &M::m_saturationMagnetization),
                          valueLine("damping_coefficient"_key, &M::m_dampingCoefficient),
                          valueLine("theta"_key, &M::m_theta),
                          valueLine("phi"_key, &M::m_phi));
    }
    static M blank(const QString& label) { return {label, 0, 0, 0, 0, 0}; }
};

template <>
struct MaterialText<MagneticDebye> {
    using M = MagneticDebye;
    static constexpr auto name = "magnetic_debye/drude"_key;
    static constexpr auto lines() {
        return std::tuple(valueLine("conductivity"_key, &M::m_conductivity),
                          valueLine("permeability"_key, &M::m_relativePermeability),
                          valueLine("static_permeability"_key, &M::m_staticRelativePermeability),
                          valueLine("relaxation_time"_key, &M::m_relaxationTime));
    }
    static M blank(const QString& label) { return {label, 0, 0, 0, 0}; }
};

template <>
struct MaterialText<Magnetic7PoleDebye> {
    using M = Magnetic7PoleDebye;
    static constexpr auto name = "magnetic7poledebye"_key;
    static constexpr auto lines() {
        return std::tuple(valueLine("relativePermeability"_key, &M::m_relativePermeability),
                          numberedLines(poleKey::staticRelativePermeabilities, &M::m_staticRelativePermeabilities),
                          numberedLines(poleKey::relaxationTimes, &M::m_relaxationTimes),
                          valueLine("conductivity"_key, &M::m_conductivity));
    }
    static M blank(const QString& label) { return {label, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}; }
};

template <>
struct MaterialText<MagneticNonlinear> {
    using M = MagneticNonlinear;
    static constexpr auto name = "nonlinear_magnetic"_key;
    static constexpr auto lines() {
        return std::tuple(valueLine("nlm_Bclosure"_key, &M::m_bClosure),
                          valueLine("nlm_Bbreakpoint"_key, &M::m_bBreakPoint),
                          valueLine("nlm_Hclosure"_key, &M::m_hClosure),
                          valueLine("nlm_mus"_key, &M::m_saturatedRelativePermeability),
                          valueLine("nlm_A1"_key, &M::m_a1),
                          valueLine("nlm_A2"_key, &M::m_a2),
                          valueLine("nlm_A3"_key, &M::m_a3),
                          valueLine("nlm_A4"_key, &M::m_a4),
                          valueLine("nlm_alpha"_key, &M::m_alpha),
                          valueLine("nlm_c1"_key, &M::m_c1),
                          valueLine("nlm_c2"_key, &M::m_c2),
                          valueLine("nlm_c3"_key, &M::m_c3),
                          valueLine("nlm_b1dot"_key, &M::m_b1Dot),
                          valueLine("nlm_b2dot"_key, &M::m_b2Dot));
    }
    static M blank(const QString& label) { return {label, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}; }
};

template <>
struct MaterialText<MagneticSampled> {
    using M = MagneticSampled;
    static constexpr auto name = "magnetic_sampled"_key;
    static constexpr auto lines() {
        return std::tuple(recordBlocks("SampledParameters"_key,
                                       &M::m_parameters,
                                       valueLine("frequency"_key, &M::Parameters::frequency),
                                       valueLine("conductivity"_key, &M::Parameters::conductivity),
                                       valueLine("permeability"_key, &M::Parameters::permeability)));
    }
    static M blank(const QString& label) { return {label, {}}; }
};

}  // namespace quarn
