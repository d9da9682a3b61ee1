// Each kind of material as a block of the geometry file, written and read.

#include <functional>
#include <memory>

#include "geometry/GeometrySupport.h"
#include "quarn/ElectricDispersiveMaterials.h"
#include "quarn/ElectricMaterials.h"
#include "quarn/MagneticMaterials.h"

namespace quarn::test {
namespace {

// The parts of a block, a part being a line with the rows below it or a nested block, with the keys in reverse order.
// Parts of one key stay in theirs, since they make up a list.
QString reversed(const QString& block) {
    QStringList lines = block.split('\n', Qt::SkipEmptyParts);
    const QString open = lines.takeFirst();
    const QString close = lines.takeLast();
    QStringList groups;
    QString lastKey;
    int depth = 0;
    for (const QString& line : lines) {
        const bool isSamePart = depth > 0 || line.section(' ', 0, 0) == lastKey || line[0].isDigit();
        if (depth == 0 && !line[0].isDigit()) lastKey = line.section(' ', 0, 0);
        depth += int(line.startsWith("begin_")) - int(line.startsWith("end_"));
        if (isSamePart) {
            groups.first() += line + '\n';
        } else {
            groups.prepend(line + '\n');
        }
    }
    return open + "\n color 255 0 0\n\t" +
           groups.join("unheard 1 2\nbegin_<Unheard> \nconductivity 77\nend_<Unheard>\n") + close + '\n';
}

struct Block {
    const char* name;
    Material::MaterialType type;
    const char* text;
    std::function<Material*()> make;
};

void PrintTo(const Block& row, std::ostream* out) { *out << row.name; }

class EachBlock : public testing::TestWithParam<Block> {
protected:
    bool isMagnetic() const {
        const auto type = m_material->getMaterialType();
        return type >= Material::MagneticFreeSpace && type <= Material::MagneticSampled;
    }
    QString whole(const QString& block) const { return isMagnetic() ? withMaterials({}, block) : withMaterials(block); }

    const Material& loaded(const QString& block) {
        EXPECT_TRUE(loadText(m_file, whole(block)));
        const auto& materials = isMagnetic() ? m_file.getMagneticMaterials() : m_file.getElectricMaterials();
        EXPECT_EQ(materials.size(), 3U);
        return *materials.at(2);
    }

    v6GeometryFile m_file;
    const QString m_block = expanded(QString(GetParam().text).replace(QRegExp("^(\\S+\\{)"), "\\1 material_number 2;"));
    const std::unique_ptr<Material> m_material{GetParam().make()};
    const std::unique_ptr<PhysicalParameters> m_parameters{m_material->getPhysicalParameters()};
};

TEST_P(EachBlock, is_what_the_material_is_written_as) {
    v6GeometryFile file;
    file.setElectricMaterials(
        {new ElectricFreeSpace("ElectricFreeSpace"), new ElectricPerfectConductor("ElectricPerfectConductor")});
    file.setMagneticMaterials(
        {new MagneticFreeSpace("MagneticFreeSpace"), new MagneticPerfectConductor("MagneticPerfectConductor")});
    std::vector<Material*> materials = isMagnetic() ? file.getMagneticMaterials() : file.getElectricMaterials();
    materials.push_back(GetParam().make());
    const std::unique_ptr<PhysicalParameters> parameters(materials.back()->getPhysicalParameters());
    isMagnetic() ? file.setMagneticMaterials(materials) : file.setElectricMaterials(materials);
    EXPECT_EQ(savedText(file), whole(m_block) + emptyGrid);
}

TEST_P(EachBlock, is_read_in_any_order_among_other_things) {
    EXPECT_TRUE(loaded(reversed(m_block)) == *m_material);
    EXPECT_EQ(savedText(m_file), whole(m_block) + emptyGrid);
}

TEST_P(EachBlock, gives_unequal_materials_where_any_one_compared_line_differs) {
    EXPECT_EQ(m_material->getMaterialType(), GetParam().type);
    int changes = 0;
    const bool isSampled = m_block.contains("_sampled>");
    QRegExp numberOrFlag("( -?[0-9.]+|\nUse\\w+ )(?=[ \n])|\n-?[0-9.]+(?= )");
    for (int at = m_block.indexOf("material_number 2") + 17; (at = numberOrFlag.indexIn(m_block, at)) >= 0; ++at) {
        QString other = m_block;
        const QString found = numberOrFlag.cap(0);
        other.replace(at, found.size(), found.contains("Use") ? QString("\nunheard") : found.left(1) + "77");
        const QString key = m_block.left(at).section('\n', -1);
        EXPECT_EQ(loaded(other) == *m_material, isSampled || key == "uncorrected_conductivity") << other.toStdString();
        ++changes;
    }
    EXPECT_GT(changes, 0);
}

Material* makeNormal(bool useLossTangent, bool useComplex) {
    auto* material = new ElectricNormal("", 1, 2, 3);
    material->useLossTangent(useLossTangent);
    material->useComplex(useComplex);
    if (useLossTangent) material->setLossTangent(0.25F);
    if (useComplex) material->setImaginary(0.5F);
    material->setNominalTemperature(4);
    material->setConductivityLinearTempCoef(5);
    material->setConductivityQuadraticTempCoef(6);
    return material;
}

Material* makeTissue(float density) {
    Material* material = makeNormal(false, false);
    material->addPhysicalParameters(density, 8, 9, 10, 11);
    return material;
}

Material* makeMagneticNormal(bool useLossTangent) {
    auto* material = new MagneticNormal("", 1, 2);
    material->useLossTangent(useLossTangent);
    material->useComplex(!useLossTangent);
    useLossTangent ? material->setLossTangent(0.25F) : material->setImaginary(0.5F);
    return material;
}

Material* makeDjordjevic(bool useLossTangent) {
    auto* material = new ElectricDjordjevic("", 1, 2, 3, 4, 5);
    material->useLossTangent(useLossTangent);
    return material;
}

Material* makeAnisotropic() {
    const float conductivity[3][3] = {{1, 2, 3}, {4, 5, 6}, {7, 8, 9}};
    const float permittivity[3][3] = {{11, 12, 13}, {14, 15, 16}, {17, 18, 19}};
    return new ElectricAnisotropic("", conductivity, permittivity);
}

Material* makeNonlinear() {
    float v[8][3];
    for (int i = 0; i < 24; ++i) v[i / 3][i % 3] = static_cast<float>(i + 1);
    return new ElectricNonlinear("", v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7]);
}

// clang-format off
using M = Material;
const Block blocks[] = {
    {"normal", M::ElectricNormal,
     "normal_electric{ conductivity 1; uncorrected_conductivity 2; permittivity 3; nominalTemperature 4; "
     "conductivityLinearTempCoef 5; conductivityQuadraticTempCoef 6; density 0; }",
     [] { return makeNormal(false, false); }},
    {"normal_with_loss_tangent", M::ElectricNormal,
     "normal_electric{ conductivity 1; uncorrected_conductivity 2; permittivity 3; "
     "UseLossTangent ; LossTangent 0.25; nominalTemperature 4; conductivityLinearTempCoef 5; "
     "conductivityQuadraticTempCoef 6; density 0; }", [] { return makeNormal(true, false); }},
    {"normal_with_imaginary_part", M::ElectricNormal,
     "normal_electric{ conductivity 1; uncorrected_conductivity 2; permittivity 3; "
     "UseComplex ; Imaginary 0.5; nominalTemperature 4; conductivityLinearTempCoef 5; "
     "conductivityQuadraticTempCoef 6; density 0; }", [] { return makeNormal(false, true); }},
    {"tissue", M::ElectricNormal,
     "normal_electric{ conductivity 1; uncorrected_conductivity 2; permittivity 3; nominalTemperature 4; "
     "conductivityLinearTempCoef 5; conductivityQuadraticTempCoef 6; density 7; TemperatureRiseMaterialParameters{ "
     "heat_capacity 8; thermal_conductivity 9; perfusion_rate 10; metabolic_heat 11; } }",
     [] { return makeTissue(7); }},
    {"tissue_without_density", M::ElectricNormal,
     "normal_electric{ conductivity 1; uncorrected_conductivity 2; permittivity 3; "
     "nominalTemperature 4; conductivityLinearTempCoef 5; conductivityQuadraticTempCoef 6; density 0; "
     "TemperatureRiseMaterialParameters{ heat_capacity 8; thermal_conductivity 9; perfusion_rate 10; "
     "metabolic_heat 11; } }", [] { return makeTissue(0); }},
    {"debye", M::ElectricDebye,
     "debye{ conductivity 1; permittivity 2; relaxation_time 4; static_permittivity 3; "
     "effective_conductivity 5; effective_conductivity 6; }",
     [] { return new ElectricDebye("", 1, 2, 3, 4, {5, 6}); }},
    {"lorentz", M::ElectricLorentz,
     "lorentz{ conductivity 1; permittivity 2; static_permittivity 3; resonant_frequency 4; "
     "damping_coefficient 5; effective_conductivity 6; effective_conductivity 7; }",
     [] { return new ElectricLorentz("", 1, 2, 3, 4, 5, {6, 7}); }},
    {"anisotropic", M::ElectricAnisotropic,
     "anisotropic{ conductivity ; 1 2 3 ; 4 5 6 ; 7 8 9 ; permittivity ; 11 12 13 ; 14 15 16 ; "
     "17 18 19 ; }", makeAnisotropic},
    {"nonlinear", M::ElectricNonlinear,
     "nonlinear_dielectric{ epsilonR1 4 5 6; epsilonR2 7 8 9; a1 10 11 12; a2 13 14 15; a3 16 17 18; "
     "Es 19 20 21; Eo 22 23 24; sigma 1 2 3; }", makeNonlinear},
    {"thin_wire", M::ElectricThinWire,
     "thin_wire{ radius 0.5; }", [] { return new ElectricThinWire("", 0.5F); }},
    {"sampled", M::ElectricSampled,
     "electric_sampled{ SampledParameters{ frequency 1; conductivity 2; permittivity 3; } "
     "SampledParameters{ frequency 4; conductivity 5; permittivity 6; } }",
     [] { return new ElectricSampled("", {{1, 2, 3}, {4, 5, 6}}); }},
    {"three_poles", M::Electric3PoleDebye,
     "electric3poledebye{ relativePermittivity 1; staticRelativePermittivity1 2; "
     "staticRelativePermittivity2 3; staticRelativePermittivity3 4; relaxationTime1 5; relaxationTime2 6; "
     "relaxationTime3 7; conductivity 8; effectiveConductivity 9; effectiveConductivity 10; }",
     [] { return new Electric3PoleDebye("", 1, 2, 3, 4, 5, 6, 7, 8, {9, 10}); }},
    {"seven_poles", M::Electric7PoleDebye,
     "electric7poledebye{ relativePermittivity 1; staticRelativePermittivity1 2; "
     "staticRelativePermittivity2 3; staticRelativePermittivity3 4; staticRelativePermittivity4 5; "
     "staticRelativePermittivity5 6; staticRelativePermittivity6 7; staticRelativePermittivity7 8; relaxationTime1 9; "
     "relaxationTime2 10; relaxationTime3 11; relaxationTime4 12; relaxationTime5 13; relaxationTime6 14; "
     "relaxationTime7 15; conductivity 16; effectiveConductivity 17; }",
     [] { return new Electric7PoleDebye("", 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, {17}); }},
    {"djordjevic", M::ElectricDjordjevic,
     "electric_djordjevic{ permittivity 1; UseLossTangent ; imaginaryPart 2; evalFrequency 3; "
     "lowFrequency 4; highFrequency 5; }", [] { return makeDjordjevic(true); }},
    {"djordjevic_without_loss_tangent", M::ElectricDjordjevic,
     "electric_djordjevic{ permittivity 1; imaginaryPart 2; evalFrequency 3; "
     "lowFrequency 4; highFrequency 5; }", [] { return makeDjordjevic(false); }},
    {"debye_lorentz_cole_cole", M::ElectricDebyeLorentzColeCole,
     "electric_debyelorentzcolecole{ conductivity 2; permittivity 1; DebyeParameters{ "
     "static_permittivity 3; relaxation_time 4; } DebyeParameters{ static_permittivity 5; "
     "relaxation_time 0.10000000000000001; } LorentzParameters{ static_permittivity 6; resonant_frequency 7; "
     "damping_coefficient 8; } ColeColeParameters{ static_permittivity 9; relaxation_time 10; pole_broadness 11; } }",
     [] { return new ElectricDebyeLorentzColeCole("", 1, 2, {{3, 4}, {5, 0.1}}, {{6, 7, 8}}, {{9, 10, 11}}); }},
    {"surface_resistance", M::ElectricSurfaceResistance,
     "electric_surfaceresistance{ surfresistance_real 0.10000000000000001; "
     "surfresistance_imag -2; thickness 3; nominalTemperature 298.14999999999998; linearTempCoef 0; "
     "quadraticTempCoef 0; }", [] { return new ElectricSurfaceResistance("", {0.1, -2}, 3); }},
    {"magnetic_normal", M::MagneticNormal,
     "normal_magnetic{ conductivity 0.10000000149011612; permeability 2; }",
     [] { return new MagneticNormal("", 0.1F, 2); }},
    {"magnetic_normal_with_loss_tangent", M::MagneticNormal,
     "normal_magnetic{ conductivity 1; permeability 2; UseLossTangent ; "
     "LossTangent 0.25; }", [] { return makeMagneticNormal(true); }},
    {"magnetic_normal_with_imaginary_part", M::MagneticNormal,
     "normal_magnetic{ conductivity 1; permeability 2; UseComplex ; "
     "Imaginary 0.5; }", [] { return makeMagneticNormal(false); }},
    {"ferrite", M::MagneticFerrite,
     "magnetized_ferrite{ precession_frequency 1; saturation_magnetization 2; damping_coefficient 3; "
     "theta 4; phi 5; }", [] { return new MagneticFerrite("", 1, 2, 3, 4, 5); }},
    {"magnetic_debye", M::MagneticDebye,
     "magnetic_debye/drude{ conductivity 1; permeability 2; static_permeability 3; "
     "relaxation_time 4; }", [] { return new MagneticDebye("", 1, 2, 3, 4); }},
    {"magnetic_seven_poles", M::Magnetic7PoleDebye,
     "magnetic7poledebye{ relativePermeability 1; staticRelativePermeability1 2; "
     "staticRelativePermeability2 3; staticRelativePermeability3 4; staticRelativePermeability4 5; "
     "staticRelativePermeability5 6; staticRelativePermeability6 7; staticRelativePermeability7 8; relaxationTime1 9; "
     "relaxationTime2 10; relaxationTime3 11; relaxationTime4 12; relaxationTime5 13; relaxationTime6 14; "
     "relaxationTime7 15; conductivity 16; }",
     [] { return new Magnetic7PoleDebye("", 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16); }},
    {"magnetic_nonlinear", M::MagneticNonlinear,
     "nonlinear_magnetic{ nlm_Bclosure 1; nlm_Bbreakpoint 2; nlm_Hclosure 3; nlm_mus 4; "
     "nlm_A1 5; nlm_A2 6; nlm_A3 7; nlm_A4 8; nlm_alpha 9; nlm_c1 10; nlm_c2 11; nlm_c3 12; nlm_b1dot 13; "
     "nlm_b2dot 14; }", [] { return new MagneticNonlinear("", 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14); }},
    {"magnetic_sampled", M::MagneticSampled,
     "magnetic_sampled{ SampledParameters{ frequency 1; conductivity 2; permeability 3; } "
     "SampledParameters{ frequency 4; conductivity 5; permeability 6; } }",
     [] { return new MagneticSampled("", {{1, 2, 3}, {4, 5, 6}}); }},
};
// clang-format on
INSTANTIATE_TEST_SUITE_P(GeometryFile, EachBlock, testing::ValuesIn(blocks), rowName<Block>);

}  // namespace
}  // namespace quarn::test
