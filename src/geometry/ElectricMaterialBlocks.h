#pragma once

#include "geometry/GeometryBlock.h"
#include "geometry/PhysicalParametersBlock.h"
#include "geometry/ThermalValues.h"
#include "quarn/ElectricMaterials.h"

namespace quarn::blocktext {

/// The rows of a matrix below the line of the key, each number with a blank behind it.
struct RowsBelow : Form {
    template <class Matrix>
    static void write(QTextStream& out, const Matrix& rows) {
        for (const auto& row : rows) {
            out << '\n';
            for (const auto& value : row) out << value << ' ';
        }
    }
    template <class Matrix>
    static bool read(QTextStream& in, Matrix& rows) {
        return std::all_of(rows.begin(), rows.end(), [&in](auto& row) { return Elements::read(in, row); });
    }
    template <class Matrix>
    static QString kind() {
        using Row = typename Matrix::value_type;
        return QStringLiteral("%1 rows of %2").arg(std::tuple_size_v<Matrix>).arg(Elements::kind<Row>());
    }
};

}  // namespace quarn::blocktext

/// The blocks of the electric materials in the geometry file. Those of the built-in materials are written and never
/// read.
namespace quarn {

template <>
struct blocktext::Description<ElectricFreeSpace> {
    static constexpr auto block() {
        return geometryBlock<ElectricFreeSpace>(
            "electricfreespace", fixed("conductivity", 0), fixed("permittivity", 1), fixed("density", 0));
    }
};

template <>
struct blocktext::Description<ElectricPerfectConductor> {
    static constexpr auto block() { return geometryBlock<ElectricPerfectConductor>("electricperfectconductor"); }
};

template <>
struct blocktext::Description<ElectricNormal> {
    using M = ElectricNormal;
    static constexpr auto block() {
        return geometryBlock<M>(
            "normal_electric",
            value("conductivity", &M::m_conductivity).in("S/m"),
            value("uncorrected_conductivity", &M::m_uncorrectedConductivity).in("S/m").notCompared(),
            value("permittivity", &M::m_relativePermittivity),
            flag("UseLossTangent", &M::m_useLossTangent, " "),
            value("LossTangent", &M::m_lossTangent).onlyWith(&M::m_useLossTangent),
            flag("UseComplex", &M::m_useComplex, " ").where(usesImaginaryPart, "where set without UseLossTangent"),
            value("Imaginary", &M::m_imaginary).where(usesImaginaryPart, "with UseComplex"),
            unwritten(&M::m_useSurfaceConductivity),
            value("nominalTemperature", &M::m_nominalTemperature).in("K"),
            value("conductivityLinearTempCoef", &M::m_conductivityLinearTempCoef).in("1/K"),
            value("conductivityQuadraticTempCoef", &M::m_conductivityQuadraticTempCoef).in("1/K^2"),
            value("density", property(geometry::densityOf, geometry::setDensity)).in("kg/m^3").notCompared(),
            innerBlock(geometry::ThermalValues(), Description<PhysicalParameters>::blockInMaterial())
                .where(geometry::hasThermalValues, "with physical parameters")
                .notCompared());
    }
};

template <>
struct blocktext::Description<ElectricSampled> {
    using M = ElectricSampled;
    static constexpr auto block() {
        return geometryBlock<M>(
            "electric_sampled",
            innerBlocks(&M::m_parameters,
                        geometryBlock<M::Parameters>("SampledParameters",
                                                     value("frequency", &M::Parameters::frequency).in("Hz"),
                                                     value("conductivity", &M::Parameters::conductivity).in("S/m"),
                                                     value("permittivity", &M::Parameters::permittivity)))
                .notCompared());
    }
};

template <>
struct blocktext::Description<ElectricAnisotropic> {
    using M = ElectricAnisotropic;
    static constexpr auto block() {
        return geometryBlock<M>("anisotropic",
                                value("conductivity", &M::m_conductivity, RowsBelow()).in("S/m"),
                                value("permittivity", &M::m_relativePermittivity, RowsBelow()));
    }
};

template <>
struct blocktext::Description<ElectricNonlinear> {
    using M = ElectricNonlinear;
    static constexpr auto block() {
        return geometryBlock<M>("nonlinear_dielectric",
                                elements("epsilonR1", &M::m_relativePermittivity1),
                                elements("epsilonR2", &M::m_relativePermittivity2),
                                elements("a1", &M::m_a1),
                                elements("a2", &M::m_a2),
                                elements("a3", &M::m_a3),
                                elements("Es", &M::m_es).in("V/m"),
                                elements("Eo", &M::m_eo).in("V/m"),
                                elements("sigma", &M::m_conductivity).in("S/m"));
    }
};

template <>
struct blocktext::Description<ElectricThinWire> {
    using M = ElectricThinWire;
    static constexpr auto block() { return geometryBlock<M>("thin_wire", value("radius", &M::m_radius).in("m")); }
};

template <>
struct blocktext::Description<ElectricSurfaceResistance> {
    using M = ElectricSurfaceResistance;
    static constexpr auto block() {
        return geometryBlock<M>("electric_surfaceresistance",
                                value("surfresistance_real", &M::m_resistance).in("ohm"),
                                value("surfresistance_imag", &M::m_reactance).in("ohm"),
                                value("thickness", &M::m_thickness).in("m"),
                                value("nominalTemperature", &M::m_nominalTemperature).in("K"),
                                value("linearTempCoef", &M::m_linearTempCoef).in("1/K"),
                                value("quadraticTempCoef", &M::m_quadraticTempCoef).in("1/K^2"));
    }
};

}  // namespace quarn
