#include "quarn/Material.h"

#include <memory>

#include "TestSupport.h"
#include "quarn/DelimManager.h"
#include "quarn/ElectricDispersiveMaterials.h"
#include "quarn/ElectricMaterials.h"
#include "quarn/MagneticMaterials.h"

namespace quarn::test {
namespace {

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

TEST(Material, EqualityIgnoresSamplesAndComparesClassesNamesListsFlagsAndParameters) {
    ElectricNormal flagged("m", 1, 2, 3);
    flagged.useSurfaceConductivity(true);
    EXPECT_FALSE(flagged == ElectricNormal("m", 1, 2, 3));
    EXPECT_TRUE(ElectricSampled("m", {{1, 2, 3}}) == ElectricSampled("m", {}));
    EXPECT_TRUE(MagneticSampled("m", {{1, 2, 3}}) == MagneticSampled("m", {}));
    EXPECT_FALSE(ElectricDebye("m", 1, 1, 1, 1, {1}) == ElectricDebye("m", 1, 1, 1, 1, {1, 2}));
    EXPECT_FALSE(ElectricNormal("m", 1, 1, 1) == ElectricSurfaceResistance("m", 1, 1));
    EXPECT_FALSE(ElectricFreeSpace("m") == ElectricFreeSpace("M"));
    const ElectricThinWire unordered("m", std::nanf(""));
    EXPECT_FALSE(unordered == unordered);
    EXPECT_TRUE(compareWith(&tissue, &tissue));
    EXPECT_FALSE(compareWith(&tissue, &otherTissue));
    EXPECT_FALSE(compareWith(&tissue, nullptr));
}

TEST(Material, BuiltInMaterialsHaveTheirNumbers) {
    EXPECT_EQ(ElectricFreeSpace("m").getMaterialType(), 0);
    EXPECT_EQ(ElectricPerfectConductor("m").getMaterialType(), 1);
    EXPECT_EQ(MagneticFreeSpace("m").getMaterialType(), 13);
    EXPECT_EQ(MagneticPerfectConductor("m").getMaterialType(), 14);
}

TEST(Material, StartsWithTheDefaults) {
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

TEST(Material, CopiesShareThePhysicalParameters) {
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

TEST(Material, KeepsItsTypeWhenTheBaseIsAssigned) {
    ElectricThinWire wire("wire", 1);
    const ElectricFreeSpace space("space");
    static_cast<Material&>(wire) = space;
    EXPECT_EQ(wire.getName(), "space");
    EXPECT_EQ(wire.getMaterialType(), Material::ElectricThinWire);
}

TEST(PhysicalParameters, AreWrittenInFileOrder) {
    QString text;
    QTextStream stream(&text, QIODevice::WriteOnly);
    DelimManager delim(stream, QString());
    EXPECT_TRUE(PhysicalParameters(1000, 0.5F, 3, 4, 5).streamOut(delim, "muscle"));
    EXPECT_EQ(text,
              "begin_<PhysicalParameters> muscle\ndensity 1000\nheatCapacity 0.5\nthermalConductivity 3\n"
              "perfussionByBlood 4\nmetabolicHeat 5\nend_<PhysicalParameters>\n");
}

TEST(PhysicalParameters, AreReadInAnyOrderBetweenUnknownWords) {
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
