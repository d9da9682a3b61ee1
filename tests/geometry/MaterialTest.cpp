#include "quarn/Material.h"

#include <functional>
#include <memory>

#include "TestSupport.h"
#include "quarn/DelimManager.h"
#include "quarn/ElectricDispersiveMaterials.h"
#include "quarn/ElectricMaterials.h"
#include "quarn/MagneticMaterials.h"

namespace quarn::test {
namespace {

using Values = std::vector<float>;
using Made = std::unique_ptr<Material>;

template <class Kind, class... Arguments>
Made make(const Arguments&... arguments) {
    return std::make_unique<Kind>(QStringLiteral("m"), arguments...);
}

Made makeAnisotropic(const Values& v) {
    const float conductivity[3][3] = {{v[0], v[1], v[2]}, {v[3], v[4], v[5]}, {v[6], v[7], v[8]}};
    const float permittivity[3][3] = {{v[9], v[10], v[11]}, {v[12], v[13], v[14]}, {v[15], v[16], v[17]}};
    return make<ElectricAnisotropic>(conductivity, permittivity);
}

Made makeNonlinear(const Values& v) {
    return make<ElectricNonlinear>(
        v.data(), v.data() + 3, v.data() + 6, v.data() + 9, v.data() + 12, v.data() + 15, v.data() + 18, v.data() + 21);
}

template <class Kind, std::size_t... i, class... Last>
Made fromValues(const Values& v, std::index_sequence<i...>, const Last&... last) {
    return make<Kind>(v[i]..., last...);
}

// From as many floats, and in the second from a list of one more.
template <class Kind, std::size_t count>
Made fromFloats(const Values& v) {
    return fromValues<Kind>(v, std::make_index_sequence<count>());
}
template <class Kind, std::size_t count>
Made fromFloatsAndList(const Values& v) {
    return fromValues<Kind>(v, std::make_index_sequence<count>(), Values{v[count], 1});
}

Made makeNormal(const Values& v) {
    auto material = std::make_unique<ElectricNormal>("m", v[0], 0.0F, v[1]);
    material->useLossTangent(v[2] > 0);
    material->setLossTangent(v[3]);
    material->useComplex(v[4] > 0);
    material->setImaginary(v[5]);
    material->useSurfaceConductivity(v[6] > 0);
    material->setNominalTemperature(v[7]);
    material->setConductivityLinearTempCoef(v[8]);
    material->setConductivityQuadraticTempCoef(v[9]);
    return material;
}

Made makeMagneticNormal(const Values& v) {
    auto material = std::make_unique<MagneticNormal>("m", v[0], v[1]);
    material->useLossTangent(v[2] > 0);
    material->setLossTangent(v[3]);
    material->useComplex(v[4] > 0);
    material->setImaginary(v[5]);
    return material;
}

Made makeDjordjevic(const Values& v) {
    auto material = std::make_unique<ElectricDjordjevic>("m", v[0], v[1], v[2], v[3], v[4]);
    material->useLossTangent(v[5] > 0);
    return material;
}

Made makeDebyeLorentzColeCole(const Values& v) {
    using M = ElectricDebyeLorentzColeCole;
    return make<M>(v[0],
                   v[1],
                   std::vector<M::DebyeSample>{{v[2], v[3]}},
                   std::vector<M::LorentzSample>{{v[4], v[5], v[6]}},
                   std::vector<M::ColeColeSample>{{v[7], v[8], v[9]}});
}

Made makeSurfaceResistance(const Values& v) {
    auto material = std::make_unique<ElectricSurfaceResistance>("m", std::complex<double>(v[0], v[1]), v[2]);
    material->setNominalTemperature(v[3]);
    material->setLinearTempCoef(v[4]);
    material->setQuadraticTempCoef(v[5]);
    return material;
}

struct Kind {
    const char* name;
    Material::MaterialType type;
    int number;
    std::size_t comparedFields;
    std::function<Made(const Values&)> make;
};

void PrintTo(const Kind& row, std::ostream* out) { *out << row.name; }

class EachKind : public testing::TestWithParam<Kind> {};

TEST_P(EachKind, has_its_number) {
    const Values values(GetParam().comparedFields, 1.0F);
    EXPECT_EQ(GetParam().make(values)->getMaterialType(), GetParam().type);
    EXPECT_EQ(GetParam().type, GetParam().number);
}

TEST_P(EachKind, is_unequal_where_any_one_compared_field_differs) {
    const Values values(GetParam().comparedFields, 1.0F);
    const Made material = GetParam().make(values);
    EXPECT_TRUE(*material == *GetParam().make(values));
    for (std::size_t i = 0; i < values.size(); ++i) {
        Values other = values;
        other[i] = 0.0F;
        EXPECT_TRUE(*material != *GetParam().make(other)) << "field " << i;
    }
}

template <class Kind>
Made withoutSamples(const Values&) {
    return make<Kind>(std::vector<typename Kind::Parameters>());
}

// clang-format off
using M = Material;
const Kind kinds[] = {
    {"electric_free_space", M::ElectricFreeSpace, 0, 0, fromFloats<ElectricFreeSpace, 0>},
    {"electric_perfect_conductor", M::ElectricPerfectConductor, 1, 0, fromFloats<ElectricPerfectConductor, 0>},
    {"electric_normal", M::ElectricNormal, 2, 10, makeNormal},
    {"electric_sampled", M::ElectricSampled, 3, 0, withoutSamples<ElectricSampled>},
    {"electric_debye", M::ElectricDebye, 4, 5, fromFloatsAndList<ElectricDebye, 4>},
    {"electric_lorentz", M::ElectricLorentz, 5, 6, fromFloatsAndList<ElectricLorentz, 5>},
    {"electric_anisotropic", M::ElectricAnisotropic, 6, 18, makeAnisotropic},
    {"electric_nonlinear", M::ElectricNonlinear, 7, 24, makeNonlinear},
    {"electric_thin_wire", M::ElectricThinWire, 8, 1, fromFloats<ElectricThinWire, 1>},
    {"electric_3_pole_debye", M::Electric3PoleDebye, 9, 9, fromFloatsAndList<Electric3PoleDebye, 8>},
    {"electric_7_pole_debye", M::Electric7PoleDebye, 10, 17, fromFloatsAndList<Electric7PoleDebye, 16>},
    {"electric_djordjevic", M::ElectricDjordjevic, 11, 6, makeDjordjevic},
    {"electric_debye_lorentz_cole_cole", M::ElectricDebyeLorentzColeCole, 12, 10, makeDebyeLorentzColeCole},
    {"magnetic_free_space", M::MagneticFreeSpace, 13, 0, fromFloats<MagneticFreeSpace, 0>},
    {"magnetic_perfect_conductor", M::MagneticPerfectConductor, 14, 0, fromFloats<MagneticPerfectConductor, 0>},
    {"magnetic_normal", M::MagneticNormal, 15, 6, makeMagneticNormal},
    {"magnetic_ferrite", M::MagneticFerrite, 16, 5, fromFloats<MagneticFerrite, 5>},
    {"magnetic_debye", M::MagneticDebye, 17, 4, fromFloats<MagneticDebye, 4>},
    {"magnetic_7_pole_debye", M::Magnetic7PoleDebye, 18, 16, fromFloats<Magnetic7PoleDebye, 16>},
    {"magnetic_nonlinear", M::MagneticNonlinear, 19, 14, fromFloats<MagneticNonlinear, 14>},
    {"magnetic_sampled", M::MagneticSampled, 20, 0, withoutSamples<MagneticSampled>},
    {"electric_surface_resistance", M::ElectricSurfaceResistance, 22, 6, makeSurfaceResistance},
};
// clang-format on
INSTANTIATE_TEST_SUITE_P(Material, EachKind, testing::ValuesIn(kinds), rowName<Kind>);

struct Pair {
    const char* name;
    bool areEqual;
    std::function<bool()> compare;
};

void PrintTo(const Pair& row, std::ostream* out) { *out << row.name; }

class PairOfMaterials : public testing::TestWithParam<Pair> {};

TEST_P(PairOfMaterials, compares) { EXPECT_EQ(GetParam().compare(), GetParam().areEqual); }

const PhysicalParameters tissue(1, 2, 3, 4, 5);
const PhysicalParameters otherTissue(1, 2, 3, 4, 6);

bool compareWith(const PhysicalParameters* first, const PhysicalParameters* second) {
    ElectricThinWire a("m", 1);
    ElectricThinWire b("m", 1);
    a.addPhysicalParameters(first);
    b.addPhysicalParameters(second);
    const bool result = a == b;
    delete a.getPhysicalParameters();
    delete b.getPhysicalParameters();
    return result;
}

// clang-format off
const Pair pairs[] = {
    {"the_uncorrected_conductivity_does_not_count", true, [] { return ElectricNormal("m", 1, 2, 3) == ElectricNormal("m", 1, 9, 3); }},
    {"electric_samples_do_not_count", true, [] { return ElectricSampled("m", {{1, 2, 3}}) == ElectricSampled("m", {}); }},
    {"magnetic_samples_do_not_count", true, [] { return MagneticSampled("m", {{1, 2, 3}}) == MagneticSampled("m", {}); }},
    {"lists_of_different_length_differ", false, [] { return ElectricDebye("m", 1, 1, 1, 1, {1}) == ElectricDebye("m", 1, 1, 1, 1, {1, 2}); }},
    {"classes_differ", false, [] { return ElectricNormal("m", 1, 1, 1) == ElectricSurfaceResistance("m", 1, 1); }},
    {"names_differ_by_case", false, [] { return ElectricFreeSpace("m") == ElectricFreeSpace("M"); }},
    {"a_nan_equals_nothing", false, [] { const ElectricThinWire wire("m", std::nanf("")); return wire == wire; }},
    {"equal_parameters", true, [] { return compareWith(&tissue, &tissue); }},
    {"different_parameters", false, [] { return compareWith(&tissue, &otherTissue); }},
    {"parameters_on_one_side", false, [] { return compareWith(&tissue, nullptr); }},
};
// clang-format on
INSTANTIATE_TEST_SUITE_P(Material, PairOfMaterials, testing::ValuesIn(pairs), rowName<Pair>);

TEST(Material, starts_with_the_defaults) {
    const ElectricNormal normal("m", 1, 2, 3);
    EXPECT_EQ(normal.getEffectiveConductivity(7), 1.0F);
    EXPECT_EQ(normal.getLossTangent(), 1.0F);
    EXPECT_EQ(normal.getNominalTemperature(), 298.15F);
    EXPECT_FALSE(normal.useLossTangent() || normal.useComplex() || normal.useSurfaceConductivity());
    EXPECT_TRUE(ElectricDjordjevic("m", 1, 2, 3, 4, 5).useLossTangent());
    EXPECT_EQ(ElectricSurfaceResistance("m", {1, 2}, 3).getNominalTemperature(), 298.15);
    EXPECT_EQ(ElectricFreeSpace("m").getRelativePermittivity(), 1.0F);
    EXPECT_EQ(ElectricFreeSpace("m").getConductivity(), 0.0F);
}

TEST(Material, copies_share_the_physical_parameters) {
    ElectricThinWire wire("wire", 1);
    wire.addPhysicalParameters(1, 2, 3, 4, 5);
    const std::unique_ptr<PhysicalParameters> parameters(wire.getPhysicalParameters());
    ElectricThinWire assigned("other", 2);
    assigned = wire;
    EXPECT_EQ(ElectricThinWire(wire).getPhysicalParameters(), parameters.get());
    EXPECT_EQ(assigned.getPhysicalParameters(), parameters.get());
    wire.addPhysicalParameters(nullptr);
    EXPECT_EQ(wire.getPhysicalParameters(), nullptr);
    EXPECT_EQ(*assigned.getPhysicalParameters(), tissue);
}

TEST(Material, keeps_its_type_when_the_base_is_assigned) {
    ElectricThinWire wire("wire", 1);
    const ElectricFreeSpace space("space");
    static_cast<Material&>(wire) = space;
    EXPECT_EQ(wire.getName(), "space");
    EXPECT_EQ(wire.getMaterialType(), Material::ElectricThinWire);
}

TEST(PhysicalParameters, are_written_in_their_order) {
    QString text;
    QTextStream stream(&text, QIODevice::WriteOnly);
    DelimManager delim(stream, QString());
    EXPECT_TRUE(PhysicalParameters(1000, 0.5F, 3, 4, 5).streamOut(delim, "muscle"));
    EXPECT_EQ(text,
              "begin_<PhysicalParameters> muscle\ndensity 1000\nheatCapacity 0.5\nthermalConductivity 3\n"
              "perfussionByBlood 4\nmetabolicHeat 5\nend_<PhysicalParameters>\n");
}

TEST(PhysicalParameters, are_read_in_any_order_among_other_words) {
    QString text =
        expanded("PhysicalParameters{ metabolicHeat 50; unheard density 9; density 10; heatCapacity 20; }") + "next\n";
    QTextStream stream(&text, QIODevice::ReadOnly);
    DelimManager delim(stream, QString());
    QString name, value, description;
    ASSERT_TRUE(delim.IsDelim(name, value, description));
    PhysicalParameters parameters(1, 2, 3, 4, 5);
    EXPECT_TRUE(parameters.streamIn(delim));
    EXPECT_EQ(parameters, PhysicalParameters(10, 20, 3, 4, 50)) << "what is missing keeps its value";
    EXPECT_EQ(stream.readLine(), "next");
}

}  // namespace
}  // namespace quarn::test
