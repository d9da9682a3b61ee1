#pragma once

#include "geometry/GeometryBlock.h"
#include "quarn/ElectricDispersiveMaterials.h"

/// The blocks of the electric materials with poles in the geometry file.
namespace quarn {

template <>
struct blocktext::Description<ElectricDebye> {
    using M = ElectricDebye;
    static constexpr auto block() {
        return geometryBlock<M>("debye",
                                value("conductivity", &M::m_conductivity).in("S/m"),
                                value("permittivity", &M::m_relativePermittivity),
                                value("relaxation_time", &M::m_relaxationTime).in("s"),
                                value("static_permittivity", &M::m_staticRelativePermittivity),
                                entries("effective_conductivity", &M::m_effectiveConductivities).in("S/m"));
    }
};

template <>
struct blocktext::Description<ElectricLorentz> {
    using M = ElectricLorentz;
    static constexpr auto block() {
        return geometryBlock<M>("lorentz",
                                value("conductivity", &M::m_conductivity).in("S/m"),
                                value("permittivity", &M::m_relativePermittivity),
                                value("static_permittivity", &M::m_staticRelativePermittivity),
                                value("resonant_frequency", &M::m_resonantFrequency).in("Hz"),
                                value("damping_coefficient", &M::m_dampingCoefficient),
                                entries("effective_conductivity", &M::m_effectiveConductivities).in("S/m"));
    }
};

template <>
struct blocktext::Description<Electric3PoleDebye> {
    using M = Electric3PoleDebye;
    static constexpr auto block() {
        return geometryBlock<M>("electric3poledebye",
                                value("relativePermittivity", &M::m_relativePermittivity),
                                numbered("staticRelativePermittivity", &M::m_staticRelativePermittivities),
                                numbered("relaxationTime", &M::m_relaxationTimes).in("s"),
                                value("conductivity", &M::m_conductivity).in("S/m"),
                                entries("effectiveConductivity", &M::m_effectiveConductivities).in("S/m"));
    }
};

template <>
struct blocktext::Description<Electric7PoleDebye> {
    using M = Electric7PoleDebye;
    static constexpr auto block() {
        return geometryBlock<M>("electric7poledebye",
                                value("relativePermittivity", &M::m_relativePermittivity),
                                numbered("staticRelativePermittivity", &M::m_staticRelativePermittivities),
                                numbered("relaxationTime", &M::m_relaxationTimes).in("s"),
                                value("conductivity", &M::m_conductivity).in("S/m"),
                                entries("effectiveConductivity", &M::m_effectiveConductivities).in("S/m"));
    }
};

template <>
struct blocktext::Description<ElectricDjordjevic> {
    using M = ElectricDjordjevic;
    static constexpr auto block() {
        return geometryBlock<M>("electric_djordjevic",
                                value("permittivity", &M::m_relativePermittivity),
                                flag("UseLossTangent", &M::m_useLossTangent, " "),
                                value("imaginaryPart", &M::m_imaginaryPart),
                                value("evalFrequency", &M::m_evalFrequency).in("Hz"),
                                value("lowFrequency", &M::m_lowFrequency).in("Hz"),
                                value("highFrequency", &M::m_highFrequency).in("Hz"));
    }
};

template <>
struct blocktext::Description<ElectricDebyeLorentzColeCole> {
    using M = ElectricDebyeLorentzColeCole;
    static constexpr auto debye() {
        using Term = M::DebyeSample;
        return geometryBlock<Term>("DebyeParameters",
                                   value("static_permittivity", &Term::staticRelativePermittivity),
                                   value("relaxation_time", &Term::relaxationTime).in("s"));
    }
    static constexpr auto lorentz() {
        using Term = M::LorentzSample;
        return geometryBlock<Term>("LorentzParameters",
                                   value("static_permittivity", &Term::staticRelativePermittivity),
                                   value("resonant_frequency", &Term::resonantFrequency).in("Hz"),
                                   value("damping_coefficient", &Term::dampingCoefficient));
    }
    static constexpr auto coleCole() {
        using Term = M::ColeColeSample;
        return geometryBlock<Term>("ColeColeParameters",
                                   value("static_permittivity", &Term::staticRelativePermittivity),
                                   value("relaxation_time", &Term::relaxationTime).in("s"),
                                   value("pole_broadness", &Term::poleBroadness));
    }
    static constexpr auto block() {
        return geometryBlock<M>("electric_debyelorentzcolecole",
                                value("conductivity", &M::m_conductivity).in("S/m"),
                                value("permittivity", &M::m_relativePermittivity),
                                innerBlocks(&M::m_debyeTerms, debye()),
                                innerBlocks(&M::m_lorentzTerms, lorentz()),
                                innerBlocks(&M::m_coleColeTerms, coleCole()));
    }
};

}  // namespace quarn
