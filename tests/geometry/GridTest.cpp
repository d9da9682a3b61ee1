#include "quarn/Grid.h"

#include <gmock/gmock.h>

#include <limits>

#include "TestSupport.h"

namespace quarn::test {
namespace {

using testing::ElementsAreArray;

// The x axis as returned by the getters.
struct Axis {
    std::vector<double> electricNodes, magneticNodes;
    std::vector<float> electricDeltas, magneticDeltas;

    explicit Axis(const Grid& grid) {
        for (std::uint32_t i = 0; i < grid.getNumberOfUserCellsInX(); ++i) {
            electricNodes.push_back(grid.getUserXElectricNodeLocation(i));
            magneticNodes.push_back(grid.getUserXMagneticNodeLocation(i));
            electricDeltas.push_back(grid.getUserXElectricDelta(i));
            magneticDeltas.push_back(grid.getUserXMagneticDelta(i));
        }
    }
};

bool initializeX(Grid& grid, std::uint32_t cells, float origin, const Grid::Runs& runs, bool withNodes = true) {
    return grid.initialize(cells, 1, 1, origin, 0, 0, runs, {}, {}, withNodes);
}

// clang-format off
const struct {
    const char* name;
    std::uint32_t cells;
    float origin;
    Grid::Runs runs;
    std::vector<float> deltas;
    std::vector<double> nodes;
} layouts[] = {
    {"OneRun", 4, 0, {{0, 0.5F}}, {0.5F, 0.5F, 0.5F, 0.5F}, {0, 0.5, 1, 1.5}},
    // 3 times the float 0.1 is 0.3000000044703484 before it is rounded to single precision.
    {"DistancesAreSinglePrecision", 4, 0, {{0, 0.1F}}, {0.1F, 0.1F, 0.1F, 0.1F},
     {0, 0.10000000149011612, 0.20000000298023224, 0.30000001192092896}},
    // Distances are measured from node 2, not from the origin: 0.2 and 1 in double precision.
    {"RunIsMeasuredFromItsBeginning", 5, -1, {{0, 0.1F}, {2, 1}}, {0.1F, 0.1F, 1, 1, 1},
     {-1, -0.89999999850988388, -0.79999999701976776, 0.20000000298023224, 1.2000000029802322}},
    {"NoRunsGiveCellsOfZeroSize", 3, 2, {}, {0, 0, 0}, {2, 2, 2}},
    {"CellsBeforeTheFirstRunHaveZeroSize", 4, 1, {{2, 1}}, {0, 0, 1, 1}, {1, 1, 1, 2}},
    {"RunBelowZeroBeginsAtZero", 3, 0, {{-5, 2}}, {2, 2, 2}, {0, 2, 4}},
    {"RunBeyondTheLastCellIsIgnored", 2, 0, {{0, 1}, {2, 5}, {INT32_MAX, 7}}, {1, 1}, {0, 1}},
    {"LastOfEqualBeginningsCounts", 2, 0, {{0, 1}, {0, 3}}, {3, 3}, {0, 3}},
    {"DescendingRunReplacesEarlierOnes", 6, 0, {{0, 1}, {4, 9}, {2, 2}, {5, 3}}, {1, 1, 2, 2, 2, 3}, {0, 1, 2, 4, 6, 8}},
    {"AxisWithoutCellsHasAnOrigin", 0, 3, {{0, 1}}, {}, {}},
};
// clang-format on

TEST(Grid, LaysOutCellsAndNodes) {
    for (const auto& row : layouts) {
        SCOPED_TRACE(row.name);
        Grid grid;
        ASSERT_TRUE(initializeX(grid, row.cells, row.origin, row.runs));
        const Axis axis(grid);
        EXPECT_THAT(axis.electricDeltas, ElementsAreArray(row.deltas));
        EXPECT_THAT(axis.electricNodes, ElementsAreArray(row.nodes));
        EXPECT_EQ(grid.getUserXOrigin(), static_cast<double>(row.origin));
    }
}

TEST(Grid, PlacesMagneticNodesHalfway) {
    Grid grid;
    ASSERT_TRUE(initializeX(grid, 4, 0, {{0, 0.5F}, {2, 2}}));
    const Axis axis(grid);
    EXPECT_THAT(axis.magneticNodes, ElementsAreArray({0.25, 0.75, 2.0, 4.0}));
    EXPECT_THAT(axis.magneticDeltas, ElementsAreArray({0.5F, 0.5F, 1.25F, 2.0F}));
}

TEST(Grid, IsBoundedByItsFirstAndLastElectricNodes) {
    Grid grid;
    ASSERT_TRUE(grid.initialize(2, 3, 4, 1, 2, 3, {{0, 1}}, {{0, 10}}, {{0, 100}}, true));
    double bounds[6];
    grid.getUserBoundingBox(bounds[0], bounds[1], bounds[2], bounds[3], bounds[4], bounds[5]);
    EXPECT_THAT(bounds, ElementsAreArray({1.0, 2.0, 2.0, 22.0, 3.0, 303.0}));
}

TEST(Grid, HasFunctionsForEachAxis) {
    using G = Grid;
    Grid grid;
    ASSERT_TRUE(grid.initialize(2, 3, 4, 1, 2, 3, {{0, 1}}, {{0, 10}}, {{0, 100}}, true));
    std::vector<double> found;
    const auto at1 = [&](auto... get) { (found.push_back(static_cast<double>((grid.*get)(1))), ...); };
    at1(&G::getUserXElectricNodeLocation, &G::getUserYElectricNodeLocation, &G::getUserZElectricNodeLocation);
    at1(&G::getUserXMagneticNodeLocation, &G::getUserYMagneticNodeLocation, &G::getUserZMagneticNodeLocation);
    at1(&G::getUserXElectricDelta, &G::getUserYElectricDelta, &G::getUserZElectricDelta);
    at1(&G::getUserXMagneticDelta, &G::getUserYMagneticDelta, &G::getUserZMagneticDelta);
    EXPECT_THAT(found, ElementsAreArray({2.0, 12.0, 103.0, 2.5, 17.0, 153.0, 1.0, 10.0, 100.0, 1.0, 10.0, 100.0}));
}

TEST(Grid, HasBoundsWithoutNodes) {
    Grid grid;
    EXPECT_EQ(grid.getUserYUpperBound(), 0.0);
    ASSERT_TRUE(initializeX(grid, 3, 7, {{0, 1}}, false));
    EXPECT_EQ(grid.getUserXOrigin(), 7.0);
    EXPECT_EQ(grid.getUserXUpperBound(), 7.0);
    EXPECT_EQ(grid.getUserXElectricDelta(2), 1.0F);
}

TEST(Grid, RefusesTooManyCellsAndStaysUnchanged) {
    Grid grid;
    ASSERT_TRUE(initializeX(grid, 2, 5, {{0, 1}}));
    for (const std::uint32_t cells : {Grid::maximumCells + 1, 0x7fffffffU, std::numeric_limits<std::uint32_t>::max()}) {
        EXPECT_FALSE(initializeX(grid, cells, 0, {{0, 2}}));
    }
    EXPECT_THAT(Axis(grid).electricNodes, ElementsAreArray({5.0, 6.0}));
}

TEST(Grid, CopiesAreIndependent) {
    Grid grid;
    ASSERT_TRUE(initializeX(grid, 2, 5, {{0, 1}}));
    Grid copy(grid);
    Grid assigned;
    assigned = grid;
    ASSERT_TRUE(initializeX(grid, 1, 0, {}));
    EXPECT_THAT(Axis(copy).electricNodes, ElementsAreArray({5.0, 6.0}));
    EXPECT_THAT(Axis(assigned).electricNodes, ElementsAreArray({5.0, 6.0}));
}

// Filling the runs in the given order would fill the whole axis again for each pair of runs.
TEST(Grid, FillsEachCellOnceForAlternatingRuns) {
    constexpr std::int32_t cells = 1000000;
    Grid::Runs runs;
    for (int i = 0; i < 100000; ++i) {
        runs.emplace_back(0, 1.0F);
        runs.emplace_back(cells - 1, 2.0F);
    }
    Grid grid;
    ASSERT_TRUE(initializeX(grid, cells, 0, runs));
    EXPECT_EQ(grid.getUserXElectricDelta(cells - 2), 1.0F);
    EXPECT_EQ(grid.getUserXElectricDelta(cells - 1), 2.0F);
}

}  // namespace
}  // namespace quarn::test
