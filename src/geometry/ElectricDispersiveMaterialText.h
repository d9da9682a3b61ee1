#pragma once

#include "geometry/MaterialLines.h"
#include "geometry/PoleKeys.h"
#include "quarn/ElectricDispersiveMaterials.h"

/// The blocks of the electric materials with poles; see ElectricMaterialText.h.
namespace quarn {

using namespace geometry;

template <>
struct MaterialText<ElectricDebye> {
    using M = ElectricDebye;
    static constexpr auto name = "debye"_key;
    static constexpr auto lines() {
        return std::tuple(valueLine("conductivity"_key, &M::m_conductivity),
                          valueLine("permittivity"_key, &M::m_relativePermittivity),
                          valueLine("relaxation_time"_key, &M::m_relaxationTime),
                          valueLine("static_permittivity"_key, &M::m_staticRelativePermittivity),
                          listLines("effective_conductivity"_key, &M::m_effectiveConductivities));
    }
    static M blank(const QString& label) { return {label, 0, 0, 0, 0, {}}; }
};

template <>
struct MaterialText<ElectricLorentz> {
    using M = ElectricLorentz;
    static constexpr auto name = "lorentz"_key;
    static constexpr auto lines() {
        return std::tuple(valueLine("conductivity"_key, &M::m_conductivity),
                          valueLine("permittivity"_key, &M::m_relativePermittivity),
                          valueLine("static_permittivity"_key, &M::m_staticRelativePermittivity),
                          valueLine("resonant_frequency"_key, &M::m_resonantFrequency),
                          valueLine("damping_coefficient"_key, &M::m_dampingCoefficient),
                          listLines("effective_conductivity"_key, &M::m_effectiveConductivities));
    }
    static M blank(const QString& label) { return {label, 0, 0, 0, 0, 0, {}}; }
};

template <>
struct MaterialText<Electric3PoleDebye> {
    using M = Electric3PoleDebye;
    static constexpr auto name = "electric3poledebye"_key;
    static constexpr auto lines() {
        return std::tuple(valueLine("relativePermittivity"_key, &M::m_relativePermittivity),
                          numberedLines(poleKey::staticRelativePermittivities, &M::m_staticRelativePermittivities),
                          numberedLines(poleKey::relaxationTimes, &M::m_relaxationTimes),
                          valueLine("conductivity"_key, &M::m_conductivity),
                          listLines("effectiveConductivity"_key, &M::m_effectiveConductivities));
    }
    static M blank(const QString& label) { return {label, 0, 0, 0, 0, 0, 0, 0, 0, {}}; }
};

template <>
struct MaterialText<Electric7PoleDebye> {
    using M = Electric7PoleDebye;
    static constexpr auto name = "electric7poledebye"_key;
    static constexpr auto lines() {
        return std::tuple(valueLine("relativePermittivity"_key, &M::m_relativePermittivity),
                          numberedLines(poleKey::staticRelativePermittivities, &M::m_staticRelativePermittivities),
                          numberedLines(poleKey::relaxationTimes, &M::m_relaxationTimes),
                          valueLine("conductivity"_key, &M::m_conductivity),
                          listLines("effectiveConductivity"_key, &M::m_effectiveConductivities));
    }
    static M blank(const QString& label) { return {label, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, {}}; }
};

template <>
struct MaterialText<ElectricDjordjevic> {
    using M = ElectricDjordjevic;
    static constexpr auto name = "electric_djordjevic"_key;
    static constexpr auto lines() {
        return std::tuple(valueLine("permittivity"_key, &M::m_relativePermittivity),
                          flagLine("UseLossTangent"_key, &M::m_useLossTangent),
                          valueLine("imaginaryPart"_key, &M::m_imaginaryPart),
                          valueLine("evalFrequency"_key, &M::m_evalFrequency),
                          valueLine("lowFrequency"_key, &M::m_lowFrequency),
                          valueLine("highFrequency"_key, &M::m_highFrequency));
    }
    static M blank(const QString& label) { return {label, 0, 0, 0, 0, 0}; }
};

template <>
struct MaterialText<ElectricDebyeLorentzColeCole> {
    using M = ElectricDebyeLorentzColeCole;
    static constexpr auto name = "electric_debyelorentzcolecole"_key;
    static constexpr auto lines() {
        return std::tuple(
            valueLine("conductivity"_key, &M::m_conductivity),
            valueLine("permittivity"_key, &M::m_relativePermittivity),
            recordBlocks("DebyeParameters"_key,
                         &M::m_debyeTerms,
                         valueLine("static_permittivity"_key, &M::DebyeSample::staticRelativePermittivity),
                         valueLine("relaxation_time"_key, &M::DebyeSample::relaxationTime)),
            recordBlocks("LorentzParameters"_key,
                         &M::m_lorentzTerms,
                         valueLine("static_permittivity"_key, &M::LorentzSample::staticRelativePermittivity),
                         valueLine("resonant_frequency"_key, &M::LorentzSample::resonantFrequency),
                         valueLine("damping_coefficient"_key, &M::LorentzSample::dampingCoefficient)),
            recordBlocks("ColeColeParameters"_key,
                         &M::m_coleColeTerms,
                         valueLine("static_permittivity"_key, &M::ColeColeSample::staticRelativePermittivity),
                         valueLine("relaxation_time"_key, &M::ColeColeSample::relaxationTime),
                         valueLine("pole_broadness"_key, &M::ColeColeSample::poleBroadness)));
    }
    static M blank(const QString& label) { return {label, 0, 0, {}, {}, {}}; }
};

}  // namespace quarn
