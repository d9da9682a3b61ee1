// Each kind of material as a block of the geometry file: written, read and compared.

#include <QRegularExpression>
#include <functional>
#include <memory>

#include "geometry/GeometrySupport.h"
#include "quarn/ElectricDispersiveMaterials.h"
#include "quarn/ElectricMaterials.h"
#include "quarn/MagneticMaterials.h"

namespace quarn::test {
namespace {

// The block with its keys in reverse order and unknown lines and blocks between them. Rows of numbers stay behind their
// key, and lines with the same key keep their order, since they make up a list.
QString reversed(const QString& block) {
    QStringList lines = block.split('\n', Qt::SkipEmptyParts);
    const QString open = lines.takeFirst();
    const QString close = lines.takeLast();
    QStringList groups;
    QString lastKey;
    int depth = 0;
    for (const QString& line : lines) {
        const bool belongsToGroup = depth > 0 || line.section(' ', 0, 0) == lastKey || line[0].isDigit();
        if (depth == 0 && !line[0].isDigit()) lastKey = line.section(' ', 0, 0);
        depth += int(line.startsWith("begin_")) - int(line.startsWith("end_"));
        if (!belongsToGroup) groups.prepend(QString());
        groups.first() += line + '\n';
    }
    return open + "\n color 255 0 0\n\t" +
           groups.join("unheard 1 2\nbegin_<Unheard> \nconductivity 77\nend_<Unheard>\n") + close + '\n';
}

struct Block {
    const char* name;
    int type;
    const char* text;
    std::function<Material*()> make;
};

void PrintTo(const Block& row, std::ostream* out) { *out << row.name; }

class MaterialBlock : public testing::TestWithParam<Block> {
protected:
    bool isMagnetic() const {
        const auto type = m_material->getMaterialType();
        return type >= Material::MagneticFreeSpace && type <= Material::MagneticSampled;
    }
    QString whole(const QString& block) const { return isMagnetic() ? withMaterials({}, block) : withMaterials(block); }

    // Loads a file with the block and compares its material with the one of the row.
    bool isEqual(const QString& block, v6GeometryFile& file) const {
        if (!loadText(file, whole(block))) ADD_FAILURE() << block.toStdString();
        const auto& materials = isMagnetic() ? file.getMagneticMaterials() : file.getElectricMaterials();
        EXPECT_EQ(materials.size(), 3U);
        return *materials.at(2) == *m_material;
    }

    const QString m_block = expanded(QString(GetParam().text).replace(QRegExp("^(\\S+\\{)"), "\\1 material_number 2;"));
    const std::unique_ptr<Material> m_material{GetParam().make()};
    const std::unique_ptr<PhysicalParameters> m_parameters{m_material->getPhysicalParameters()};
};

TEST_P(MaterialBlock, IsTheWrittenFormOfTheMaterial) {
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

TEST_P(MaterialBlock, IsReadInAnyOrderBetweenUnknownContent) {
    v6GeometryFile file;
    EXPECT_TRUE(isEqual(reversed(m_block), file));
    EXPECT_EQ(savedText(file), whole(m_block) + emptyGrid);
    EXPECT_EQ(m_material->getMaterialType(), GetParam().type);
}

// Samples and the uncorrected conductivity are the only lines that equality ignores.
TEST_P(MaterialBlock, IsUnequalWhenAnyNumberOrFlagDiffers) {
    const QRegularExpression value("(?<=^| )[-.0-9]+(?= |$)|^Use\\w+", QRegularExpression::MultilineOption);
    for (auto values = value.globalMatch(m_block); values.hasNext();) {
        const auto match = values.next();
        const QString key = m_block.left(match.capturedStart()).section('\n', -1);
        if (key == "material_number ") continue;
        const bool isIgnored = key == "uncorrected_conductivity " || m_block.contains("SampledParameters");
        v6GeometryFile file;
        const QString changed = QString(m_block).replace(match.capturedStart(), match.capturedLength(), "77");
        EXPECT_EQ(isEqual(changed, file), isIgnored) << changed.toStdString();
    }
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
const Block blocks[] = {
    {"Normal", 2, "normal_electric{ conductivity 1; uncorrected_conductivity 2; permittivity 3; nominalTemperature 4; "
     "conductivityLinearTempCoef 5; conductivityQuadraticTempCoef 6; density 0; }",
     [] { return makeNormal(false, false); }},
    {"NormalWithLossTangent", 2, "normal_electric{ conductivity 1; uncorrected_conductivity 2; permittivity 3; "
     "UseLossTangent ; LossTangent 0.25; nominalTemperature 4; conductivityLinearTempCoef 5; "
     "conductivityQuadraticTempCoef 6; density 0; }", [] { return makeNormal(true, false); }},
    {"NormalWithImaginaryPart", 2, "normal_electric{ conductivity 1; uncorrected_conductivity 2; permittivity 3; "
     "UseComplex ; Imaginary 0.5; nominalTemperature 4; conductivityLinearTempCoef 5; "
     "conductivityQuadraticTempCoef 6; density 0; }", [] { return makeNormal(false, true); }},
    {"Tissue", 2, "normal_electric{ conductivity 1; uncorrected_conductivity 2; permittivity 3; nominalTemperature 4; "
     "conductivityLinearTempCoef 5; conductivityQuadraticTempCoef 6; density 7; TemperatureRiseMaterialParameters{ "
     "heat_capacity 8; thermal_conductivity 9; perfusion_rate 10; metabolic_heat 11; } }",
     [] { return makeTissue(7); }},
    {"TissueWithoutDensity", 2, "normal_electric{ conductivity 1; uncorrected_conductivity 2; permittivity 3; "
     "nominalTemperature 4; conductivityLinearTempCoef 5; conductivityQuadraticTempCoef 6; density 0; "
     "TemperatureRiseMaterialParameters{ heat_capacity 8; thermal_conductivity 9; perfusion_rate 10; "
     "metabolic_heat 11; } }", [] { return makeTissue(0); }},
    {"Debye", 4, "debye{ conductivity 1; permittivity 2; relaxation_time 4; static_permittivity 3; "
     "effective_conductivity 5; effective_conductivity 6; }",
     [] { return new ElectricDebye("", 1, 2, 3, 4, {5, 6}); }},
    {"Lorentz", 5, "lorentz{ conductivity 1; permittivity 2; static_permittivity 3; resonant_frequency 4; "
     "damping_coefficient 5; effective_conductivity 6; effective_conductivity 7; }",
     [] { return new ElectricLorentz("", 1, 2, 3, 4, 5, {6, 7}); }},
    {"Anisotropic", 6, "anisotropic{ conductivity ; 1 2 3 ; 4 5 6 ; 7 8 9 ; permittivity ; 11 12 13 ; 14 15 16 ; "
     "17 18 19 ; }", makeAnisotropic},
    {"Nonlinear", 7, "nonlinear_dielectric{ epsilonR1 4 5 6; epsilonR2 7 8 9; a1 10 11 12; a2 13 14 15; a3 16 17 18; "
     "Es 19 20 21; Eo 22 23 24; sigma 1 2 3; }", makeNonlinear},
    {"ThinWire", 8, "thin_wire{ radius 0.5; }", [] { return new ElectricThinWire("", 0.5F); }},
    {"Sampled", 3, "electric_sampled{ SampledParameters{ frequency 1; conductivity 2; permittivity 3; } "
     "SampledParameters{ frequency 4; conductivity 5; permittivity 6; } }",
     [] { return new ElectricSampled("", {{1, 2, 3}, {4, 5, 6}}); }},
    {"ThreePoles", 9, "electric3poledebye{ relativePermittivity 1; staticRelativePermittivity1 2; "
     "staticRelativePermittivity2 3; staticRelativePermittivity3 4; relaxationTime1 5; relaxationTime2 6; "
     "relaxationTime3 7; conductivity 8; effectiveConductivity 9; effectiveConductivity 10; }",
     [] { return new Electric3PoleDebye("", 1, 2, 3, 4, 5, 6, 7, 8, {9, 10}); }},
    {"SevenPoles", 10, "electric7poledebye{ relativePermittivity 1; staticRelativePermittivity1 2; "
     "staticRelativePermittivity2 3; staticRelativePermittivity3 4; staticRelativePermittivity4 5; "
     "staticRelativePermittivity5 6; staticRelativePermittivity6 7; staticRelativePermittivity7 8; relaxationTime1 9; "
     "relaxationTime2 10; relaxationTime3 11; relaxationTime4 12; relaxationTime5 13; relaxationTime6 14; "
     "relaxationTime7 15; conductivity 16; effectiveConductivity 17; }",
     [] { return new Electric7PoleDebye("", 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, {17}); }},
    {"Djordjevic", 11, "electric_djordjevic{ permittivity 1; UseLossTangent ; imaginaryPart 2; evalFrequency 3; "
     "lowFrequency 4; highFrequency 5; }", [] { return makeDjordjevic(true); }},
    {"DjordjevicWithoutLossTangent", 11, "electric_djordjevic{ permittivity 1; imaginaryPart 2; evalFrequency 3; "
     "lowFrequency 4; highFrequency 5; }", [] { return makeDjordjevic(false); }},
    {"DebyeLorentzColeCole", 12, "electric_debyelorentzcolecole{ conductivity 2; permittivity 1; DebyeParameters{ "
     "static_permittivity 3; relaxation_time 4; } DebyeParameters{ static_permittivity 5; "
     "relaxation_time 0.10000000000000001; } LorentzParameters{ static_permittivity 6; resonant_frequency 7; "
     "damping_coefficient 8; } ColeColeParameters{ static_permittivity 9; relaxation_time 10; pole_broadness 11; } }",
     [] { return new ElectricDebyeLorentzColeCole("", 1, 2, {{3, 4}, {5, 0.1}}, {{6, 7, 8}}, {{9, 10, 11}}); }},
    {"SurfaceResistance", 22, "electric_surfaceresistance{ surfresistance_real 0.10000000000000001; "
     "surfresistance_imag -2; thickness 3; nominalTemperature 298.14999999999998; linearTempCoef 0; "
     "quadraticTempCoef 0; }", [] { return new ElectricSurfaceResistance("", {0.1, -2}, 3); }},
    {"MagneticNormal", 15, "normal_magnetic{ conductivity 0.10000000149011612; permeability 2; }",
     [] { return new MagneticNormal("", 0.1F, 2); }},
    {"MagneticNormalWithLossTangent", 15, "normal_magnetic{ conductivity 1; permeability 2; UseLossTangent ; "
     "LossTangent 0.25; }", [] { return makeMagneticNormal(true); }},
    {"MagneticNormalWithImaginaryPart", 15, "normal_magnetic{ conductivity 1; permeability 2; UseComplex ; "
     "Imaginary 0.5; }", [] { return makeMagneticNormal(false); }},
    {"Ferrite", 16, "magnetized_ferrite{ precession_frequency 1; saturation_magnetization 2; damping_coefficient 3; "
     "theta 4; phi 5; }", [] { return new MagneticFerrite("", 1, 2, 3, 4, 5); }},
    {"MagneticDebye", 17, "magnetic_debye/drude{ conductivity 1; permeability 2; static_permeability 3; "
     "relaxation_time 4; }", [] { return new MagneticDebye("", 1, 2, 3, 4); }},
    {"MagneticSevenPoles", 18, "magnetic7poledebye{ relativePermeability 1; staticRelativePermeability1 2; "
     "staticRelativePermeability2 3; staticRelativePermeability3 4; staticRelativePermeability4 5; "
     "staticRelativePermeability5 6; staticRelativePermeability6 7; staticRelativePermeability7 8; relaxationTime1 9; "
     "relaxationTime2 10; relaxationTime3 11; relaxationTime4 12; relaxationTime5 13; relaxationTime6 14; "
     "relaxationTime7 15; conductivity 16; }",
     [] { return new Magnetic7PoleDebye("", 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16); }},
    {"MagneticNonlinear", 19, "nonlinear_magnetic{ nlm_Bclosure 1; nlm_Bbreakpoint 2; nlm_Hclosure 3; nlm_mus 4; "
     "nlm_A1 5; nlm_A2 6; nlm_A3 7; nlm_A4 8; nlm_alpha 9; nlm_c1 10; nlm_c2 11; nlm_c3 12; nlm_b1dot 13; "
     "nlm_b2dot 14; }", [] { return new MagneticNonlinear("", 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14); }},
    {"MagneticSampled", 20, "magnetic_sampled{ SampledParameters{ frequency 1; conductivity 2; permeability 3; } "
     "SampledParameters{ frequency 4; conductivity 5; permeability 6; } }",
     [] { return new MagneticSampled("", {{1, 2, 3}, {4, 5, 6}}); }},
};
// clang-format on
INSTANTIATE_TEST_SUITE_P(, MaterialBlock, testing::ValuesIn(blocks), rowName<Block>);

}  // namespace
}  // namespace quarn::test
