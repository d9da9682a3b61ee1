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

TEST(Material, types_have_their_numbers) {
    using M = Material;
    int number = 0;
    // clang-format off
    for (const auto type : {
             M::ElectricFreeSpace, M::ElectricPerfectConductor, M::ElectricNormal, M::ElectricSampled, M::ElectricDebye,
             M::ElectricLorentz, M::ElectricAnisotropic, M::ElectricNonlinear, M::ElectricThinWire,
             M::Electric3PoleDebye, M::Electric7PoleDebye, M::ElectricDjordjevic, M::ElectricDebyeLorentzColeCole,
             M::MagneticFreeSpace, M::MagneticPerfectConductor, M::MagneticNormal, M::MagneticFerrite,
             M::MagneticDebye, M::Magnetic7PoleDebye, M::MagneticNonlinear, M::MagneticSampled}) {
        // clang-format on
        EXPECT_EQ(type, number++);
    }
    EXPECT_EQ(M::ElectricSurfaceResistance, 22);
    EXPECT_EQ(ElectricFreeSpace("").getMaterialType(), M::ElectricFreeSpace);
    EXPECT_EQ(ElectricPerfectConductor("").getMaterialType(), M::ElectricPerfectConductor);
    EXPECT_EQ(MagneticFreeSpace("").getMaterialType(), M::MagneticFreeSpace);
    EXPECT_EQ(MagneticPerfectConductor("").getMaterialType(), M::MagneticPerfectConductor);
}

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

bool compareWithSurfaceConductivity() {
    const ElectricNormal plain("m", 1, 2, 3);
    ElectricNormal other = plain;
    other.useSurfaceConductivity(true);
    return plain == other;
}

// clang-format off
const Pair pairs[] = {
    {"the_uncorrected_conductivity_does_not_count", true, [] { return ElectricNormal("m", 1, 2, 3) == ElectricNormal("m", 1, 9, 3); }},
    {"the_use_of_surface_conductivity_counts", false, compareWithSurfaceConductivity},
    {"built_in_materials", true, [] { return MagneticFreeSpace("m") == MagneticFreeSpace("m"); }},
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
