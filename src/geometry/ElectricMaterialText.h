#pragma once

#include "geometry/NormalMaterialLines.h"
#include "quarn/ElectricMaterials.h"

/// The blocks of the electric materials in the geometry file: the name of each, its lines in the order of the file, and
/// the material that a block without lines stands for. The built-in materials have only fixed lines, which are written
/// and never read.
namespace quarn {

using namespace geometry;

template <>
struct MaterialText<ElectricFreeSpace> {
    static constexpr auto name = "electricfreespace"_key;
    static constexpr auto lines() {
        return std::tuple(
            fixedLine("conductivity"_key, 0), fixedLine("permittivity"_key, 1), fixedLine("density"_key, 0));
    }
};

template <>
struct MaterialText<ElectricPerfectConductor> {
    static constexpr auto name = "electricperfectconductor"_key;
    static constexpr auto lines() { return std::tuple(); }
};

template <>
struct MaterialText<ElectricNormal> {
    using M = ElectricNormal;
    static constexpr auto name = "normal_electric"_key;
    static constexpr auto lines() {
        return std::tuple(valueLine("conductivity"_key, &M::m_conductivity),
                          valueLine("uncorrected_conductivity"_key, &M::m_uncorrectedConductivity),
                          valueLine("permittivity"_key, &M::m_relativePermittivity),
                          lossLines(&M::m_useLossTangent, &M::m_lossTangent, &M::m_useComplex, &M::m_imaginary),
                          valueLine("nominalTemperature"_key, &M::m_nominalTemperature),
                          valueLine("conductivityLinearTempCoef"_key, &M::m_conductivityLinearTempCoef),
                          valueLine("conductivityQuadraticTempCoef"_key, &M::m_conductivityQuadraticTempCoef),
                          ThermalLines{});
    }
    static M blank(const QString& label) { return {label, 0, 0, 0}; }
};

template <>
struct MaterialText<ElectricSampled> {
    using M = ElectricSampled;
    static constexpr auto name = "electric_sampled"_key;
    static constexpr auto lines() {
        return std::tuple(recordBlocks("SampledParameters"_key,
                                       &M::m_parameters,
                                       valueLine("frequency"_key, &M::Parameters::frequency),
                                       valueLine("conductivity"_key, &M::Parameters::conductivity),
                                       valueLine("permittivity"_key, &M::Parameters::permittivity)));
    }
    static M blank(const QString& label) { return {label, {}}; }
};

template <>
struct MaterialText<ElectricAnisotropic> {
    using M = ElectricAnisotropic;
    static constexpr auto name = "anisotropic"_key;
    static constexpr auto lines() {
        return std::tuple(tensorLines("conductivity"_key, &M::m_conductivity),
                          tensorLines("permittivity"_key, &M::m_relativePermittivity));
    }
    static M blank(const QString& label) {
        constexpr float zero[3][3] = {};
        return {label, zero, zero};
    }
};

template <>
struct MaterialText<ElectricNonlinear> {
    using M = ElectricNonlinear;
    static constexpr auto name = "nonlinear_dielectric"_key;
    static constexpr auto lines() {
        return std::tuple(perAxisLine("epsilonR1"_key, &M::m_relativePermittivity1),
                          perAxisLine("epsilonR2"_key, &M::m_relativePermittivity2),
                          perAxisLine("a1"_key, &M::m_a1),
                          perAxisLine("a2"_key, &M::m_a2),
                          perAxisLine("a3"_key, &M::m_a3),
                          perAxisLine("Es"_key, &M::m_es),
                          perAxisLine("Eo"_key, &M::m_eo),
                          perAxisLine("sigma"_key, &M::m_conductivity));
    }
    static M blank(const QString& label) {
        constexpr float zero[3] = {};
        return {label, zero, zero, zero, zero, zero, zero, zero, zero};
    }
};

template <>
struct MaterialText<ElectricThinWire> {
    using M = ElectricThinWire;
    static constexpr auto name = "thin_wire"_key;
    static constexpr auto lines() { return std::tuple(valueLine("radius"_key, &M::m_radius)); }
    static M blank(const QString& label) { return {label, 0}; }
};

template <>
struct MaterialText<ElectricSurfaceResistance> {
    using M = ElectricSurfaceResistance;
    static constexpr auto name = "electric_surfaceresistance"_key;
    static constexpr auto lines() {
        return std::tuple(valueLine("surfresistance_real"_key, &M::m_resistance),
                          valueLine("surfresistance_imag"_key, &M::m_reactance),
                          valueLine("thickness"_key, &M::m_thickness),
                          valueLine("nominalTemperature"_key, &M::m_nominalTemperature),
                          valueLine("linearTempCoef"_key, &M::m_linearTempCoef),
                          valueLine("quadraticTempCoef"_key, &M::m_quadraticTempCoef));
    }
    static M blank(const QString& label) { return {label, 0, 0}; }
};

}  // namespace quarn
