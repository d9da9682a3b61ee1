#include "quarn/FarZoneBox.h"

#include <gmock/gmock.h>

#include "TestSupport.h"
#include "quarn/Grid.h"
#include "quarn/PhysicalConstants.h"

namespace quarn::test {
namespace {

using testing::ElementsAre;
using Types = std::array<BoundaryConditions::BoundaryType, 6>;  // by BoundaryConditions' constructor

constexpr auto Open = BoundaryConditions::CPML;
constexpr auto PEC = BoundaryConditions::PEC;

FarZoneBox boxWith(const Types& t, std::uint32_t x, std::uint32_t y, std::uint32_t z) {
    Grid grid;
    EXPECT_TRUE(grid.initialize(x, y, z, -1, 0, 3, {{0, 0.5F}}, {{0, 1.0F}}, {{0, 0.25F}, {8, 2.0F}}, true));
    return {BoundaryConditions(t[0], t[1], t[2], t[3], t[4], t[5], 8), grid};
}

// A face on a PEC side: the types of the sides, the node indices of the faces and the coordinate of the centre.
struct ImageRow {
    FarZoneBox::Face face;
    std::size_t side;
    std::vector<std::uint32_t> indices;  // x lower and upper, y, z
    std::vector<double> center;
};

void PrintTo(const ImageRow& row, std::ostream* out) { *out << "face " << row.face; }

class FarZoneBoxAtImage : public testing::TestWithParam<ImageRow> {};

TEST_P(FarZoneBoxAtImage, LiesOnThePlaneAndRefersToIt) {
    Types types{Open, Open, Open, Open, Open, Open};
    if (GetParam().face != FarZoneBox::NoFace) types[GetParam().side] = PEC;
    const FarZoneBox box = boxWith(types, 11, 12, 13);
    EXPECT_TRUE(box.isValid());
    EXPECT_EQ(box.useImage(), GetParam().face != FarZoneBox::NoFace);
    EXPECT_EQ(box.getImageFace(), GetParam().face);
    const std::vector<std::uint32_t> indices{
        box.getXLower(), box.getXUpper(), box.getYLower(), box.getYUpper(), box.getZLower(), box.getZUpper()};
    EXPECT_EQ(indices, GetParam().indices);
    const auto nx = indices[1] - indices[0], ny = indices[3] - indices[2], nz = indices[5] - indices[4];
    EXPECT_THAT((std::vector{box.getNumberInX(), box.getNumberInY(), box.getNumberInZ()}), ElementsAre(nx, ny, nz));
    EXPECT_THAT((std::vector{box.getNumberOnXFace(), box.getNumberOnYFace(), box.getNumberOnZFace()}),
                ElementsAre(nz * ny, nz * nx, ny * nx));
    EXPECT_EQ((std::vector{box.getXCenter(), box.getYCenter(), box.getZCenter()}), GetParam().center);
    const FarZoneBox copy = box;
    EXPECT_EQ(copy, box);
}

// The last nodes lie at x = -1 + 10 * 0.5, y = 11 and z = 3 + 8 * 0.25 + 4 * 2.
const ImageRow images[] = {
    {FarZoneBox::NoFace, 0, {4, 6, 4, 7, 4, 8}, {1.5, 5.5, 8}},
    {FarZoneBox::XLower, 0, {0, 6, 4, 7, 4, 8}, {-1, 5.5, 8}},
    {FarZoneBox::XUpper, 1, {4, 10, 4, 7, 4, 8}, {4, 5.5, 8}},
    {FarZoneBox::YLower, 2, {4, 6, 0, 7, 4, 8}, {1.5, 0, 8}},
    {FarZoneBox::YUpper, 3, {4, 6, 4, 11, 4, 8}, {1.5, 11, 8}},
    {FarZoneBox::ZLower, 4, {4, 6, 4, 7, 0, 8}, {1.5, 5.5, 3}},
    {FarZoneBox::ZUpper, 5, {4, 6, 4, 7, 4, 12}, {1.5, 5.5, 13}},
};
INSTANTIATE_TEST_SUITE_P(, FarZoneBoxAtImage, testing::ValuesIn(images));

struct Refusal {
    const char* name;
    Types types;
    std::uint32_t cellsInX;
    bool valid = false;
};

void PrintTo(const Refusal& row, std::ostream* out) { *out << row.name; }

class FarZoneBoxValidity : public testing::TestWithParam<Refusal> {};

TEST_P(FarZoneBoxValidity, DependsOnGridAndBoundaries) {
    const FarZoneBox box = boxWith(GetParam().types, GetParam().cellsInX, 20, 20);
    EXPECT_EQ(box.isValid(), GetParam().valid);
    if (GetParam().valid) return;
    EXPECT_EQ(box.getNumberOnYFace(), 0U);
    EXPECT_EQ(box.getZCenter(), 0.0);
}

const Refusal refusals[] = {
    {"TwoPEC", {PEC, Open, PEC, Open, Open, Open}, 20},
    {"MagneticConductor", {Open, Open, Open, Open, Open, BoundaryConditions::PMC}, 20},
    {"PeriodicSide", {Open, BoundaryConditions::Periodic, Open, Open, Open, Open}, 20},
    {"NoCellsBeforePEC", {Open, PEC, Open, Open, Open, Open}, 0},
    {"FourCellsBeforePEC", {Open, PEC, Open, Open, Open, Open}, 4},
    {"FiveCellsBeforePEC", {Open, PEC, Open, Open, Open, Open}, 5, true},
    {"FourCellsBehindPEC", {PEC, Open, Open, Open, Open, Open}, 4},
    {"FiveCellsBehindPEC", {PEC, Open, Open, Open, Open, Open}, 5, true},
    {"EightCellsOfAbsorbers", {Open, Open, Open, Open, Open, Open}, 8},
    {"NineCellsOfAbsorbers", {Open, Open, Open, Open, Open, Open}, 9, true},
};
INSTANTIATE_TEST_SUITE_P(, FarZoneBoxValidity, testing::ValuesIn(refusals), rowName<Refusal>);

TEST(FarZoneBox, HidesDirectionsMoreThanAThousandthOfADegreeBehindThePlane) {
    constexpr auto degree = static_cast<float>(constants::radiansPerDegree);
    const auto hides = [](std::size_t side, float theta, float phi) {
        Types types{Open, Open, Open, Open, Open, Open};
        types[side] = PEC;
        return boxWith(types, 20, 20, 20).isAngleUnderGround(phi * degree, theta * degree);
    };
    // The direction that leaves through the PEC plane of each side, in the order of the sides.
    const std::pair<float, float> outward[] = {{90, 180}, {90, 0}, {90, 270}, {90, 90}, {180, 0}, {0, 0}};
    for (std::size_t side = 0; side < 6; ++side) {
        for (std::size_t direction = 0; direction < 6; ++direction) {
            EXPECT_EQ(hides(side, outward[direction].first, outward[direction].second), direction == side)
                << side << ' ' << direction;
        }
    }
    EXPECT_FALSE(hides(4, 90.0005F, 30));
    EXPECT_TRUE(hides(4, 90.002F, 30));
    EXPECT_FALSE(hides(5, 89.9995F, 30));
    EXPECT_TRUE(hides(5, 89.998F, 30));
}

}  // namespace
}  // namespace quarn::test
