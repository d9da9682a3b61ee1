// Compiles the public headers in C++20, where a comparison also considers operators with exchanged operands, and with
// warnings that users of the headers may enable.

namespace quarn {
class FarZoneRotation;
class FileHeader;
class HACRequest;
class MultiPointFieldRequest;
}  // namespace quarn

#include <algorithm>
#include <list>

#include "TestSupport.h"
#include "quarn/quarn.h"

namespace quarn::test {
namespace {

template <class Left, class... Right>
constexpr bool comparesWith =
    ((std::is_same_v<decltype(std::declval<Left&>() == std::declval<const Right&>()), bool> &&
      std::is_same_v<decltype(std::declval<const Left&>() != std::declval<Right&>()), bool>)&&...);

template <class... Kinds>
constexpr bool allCompare = (comparesWith<Kinds, Kinds...> && ...);

static_assert(__cplusplus > 201703L);
static_assert(allCompare<Material, ElectricFreeSpace, ElectricPerfectConductor, ElectricNormal, ElectricSampled,
                         ElectricDebye, ElectricLorentz, ElectricAnisotropic, ElectricNonlinear, ElectricThinWire,
                         Electric3PoleDebye, Electric7PoleDebye, ElectricDjordjevic, ElectricDebyeLorentzColeCole,
                         ElectricSurfaceResistance, MagneticFreeSpace, MagneticPerfectConductor, MagneticNormal,
                         MagneticFerrite, MagneticDebye, Magnetic7PoleDebye, MagneticNonlinear, MagneticSampled>);

static_assert(std::is_same_v<decltype(std::declval<FarZoneBox>().getNumberOnXFace()), std::uint32_t> &&
              std::is_same_v<decltype(std::declval<FarZoneBox>().getNumberOnYFace()), std::uint32_t> &&
              std::is_same_v<decltype(std::declval<FarZoneBox>().getNumberOnZFace()), std::uint32_t>);
static_assert(std::is_same_v<decltype(CircuitComponent::ImpedanceLine::nodes), std::array<int, 2>>);
static_assert(std::has_virtual_destructor_v<GeometryFile> && !std::has_virtual_destructor_v<ProjectFile>);

TEST(MaterialComparison, FindsMaterialsInLists) {
    const std::list<ElectricThinWire> wires{ElectricThinWire("thin", 1), ElectricThinWire("thick", 2)};
    const Material& thick = wires.back();
    EXPECT_EQ(std::find(wires.begin(), wires.end(), ElectricThinWire("thick", 2)), std::prev(wires.end()));
    EXPECT_EQ(std::find(wires.begin(), wires.end(), thick), std::prev(wires.end()));
    EXPECT_EQ(std::find(wires.begin(), wires.end(), ElectricFreeSpace("thick")), wires.end());
    EXPECT_TRUE(thick == wires.back() && thick != wires.front() && thick != ElectricFreeSpace("thick"));
}

}  // namespace
}  // namespace quarn::test
