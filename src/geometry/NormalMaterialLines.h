#pragma once

#include "geometry/MaterialLines.h"

/// The lines that normal materials have beside their values.
namespace quarn::geometry {

/// How normal materials say their losses: by the loss tangent or else by an imaginary part, if by either.
template <class Owner>
struct LossLines {
    bool Owner::*useLossTangent;
    float Owner::*lossTangent;
    bool Owner::*useComplex;
    float Owner::*imaginary;

    static constexpr auto UseLossTangent = "UseLossTangent"_key;
    static constexpr auto LossTangent = "LossTangent"_key;
    static constexpr auto UseComplex = "UseComplex"_key;
    static constexpr auto Imaginary = "Imaginary"_key;

    void write(DelimManager& delim, const Owner& owner) const {
        if (owner.*useLossTangent) {
            putLine(delim, UseLossTangent, QLatin1String());
            putLine(delim, LossTangent, owner.*lossTangent);
        } else if (owner.*useComplex) {
            putLine(delim, UseComplex, QLatin1String());
            putLine(delim, Imaginary, owner.*imaginary);
        }
    }
    auto handlers(DelimManager&, Owner& owner) const {
        return std::tuple(onFlag(UseLossTangent, owner.*useLossTangent),
                          onNumber(LossTangent, owner.*lossTangent),
                          onFlag(UseComplex, owner.*useComplex),
                          onNumber(Imaginary, owner.*imaginary));
    }
};
template <class Owner>
constexpr LossLines<Owner> lossLines(bool Owner::*useLossTangent, float Owner::*lossTangent, bool Owner::*useComplex,
                                     float Owner::*imaginary) {
    return {useLossTangent, lossTangent, useComplex, imaginary};
}

/// The physical parameters: the density, and a block with the others. A material has some when the block was read or
/// the density is not 0.
struct ThermalLines {
    static constexpr auto density = "density"_key;
    static constexpr auto block = "TemperatureRiseMaterialParameters"_key;
    static constexpr auto heatCapacity = "heat_capacity"_key;
    static constexpr auto thermalConductivity = "thermal_conductivity"_key;
    static constexpr auto perfusionRate = "perfusion_rate"_key;
    static constexpr auto metabolicHeat = "metabolic_heat"_key;

    void write(DelimManager& delim, const Material& material) const {
        const PhysicalParameters* parameters = material.getPhysicalParameters();
        putLine(delim, density, parameters ? parameters->getDensity() : 0.0F);
        if (!parameters) return;
        const WrittenBlock written(delim, block);
        putLine(delim, heatCapacity, parameters->getHeatCapacity());
        putLine(delim, thermalConductivity, parameters->getThermalConductivity());
        putLine(delim, perfusionRate, parameters->getPerfussionByBlood());
        putLine(delim, metabolicHeat, parameters->getMetabolicHeat());
    }
    auto handlers(DelimManager& delim, Material& material) const {
        return std::tuple(onWord(density, [&material](QTextStream& in) { return readDensity(in, material); }),
                          onBlock(block, [&delim, &material] { return readBlock(delim, material); }));
    }

private:
    static bool readDensity(QTextStream& in, Material& material) {
        float value = 0.0F;
        const bool isRead = readValue(in, value);
        const PhysicalParameters p = valuesOf(material);
        if (value != 0.0F || material.getPhysicalParameters()) {
            store({value,
                   p.getHeatCapacity(),
                   p.getThermalConductivity(),
                   p.getPerfussionByBlood(),
                   p.getMetabolicHeat()},
                  material);
        }
        return isRead;
    }
    static bool readBlock(DelimManager& delim, Material& material) {
        float heat = 0.0F;
        float conductivity = 0.0F;
        float perfusion = 0.0F;
        float metabolic = 0.0F;
        const bool isRead = walkBlock(delim,
                                      Unknown::DropLine,
                                      onNumber(heatCapacity, heat),
                                      onNumber(thermalConductivity, conductivity),
                                      onNumber(perfusionRate, perfusion),
                                      onNumber(metabolicHeat, metabolic));
        store({valuesOf(material).getDensity(), heat, conductivity, perfusion, metabolic}, material);
        return isRead;
    }
    static PhysicalParameters valuesOf(const Material& material) {
        const PhysicalParameters* parameters = material.getPhysicalParameters();
        return parameters ? *parameters : PhysicalParameters(0.0F, 0.0F, 0.0F, 0.0F, 0.0F);
    }
    // The material is being read and shares its parameters with nobody yet.
    static void store(const PhysicalParameters& values, Material& material) {
        if (PhysicalParameters* parameters = material.getPhysicalParameters()) {
            *parameters = values;
        } else {
            material.sharePhysicalParameters(std::make_shared<PhysicalParameters>(values));
        }
    }
};

}  // namespace quarn::geometry
