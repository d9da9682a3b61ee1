#include "quarn/Grid.h"

#include <gmock/gmock.h>

#include <limits>

#include "TestSupport.h"

namespace quarn::test {
namespace {

using testing::ElementsAreArray;

// One axis as the getters give it.
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

struct Layout {
    const char* name;
    std::uint32_t cells;
    float origin;
    Grid::Runs runs;
    std::vector<float> deltas;
    std::vector<double> nodes;
};

void PrintTo(const Layout& row, std::ostream* out) { *out << row.name; }

class LaidOut : public testing::TestWithParam<Layout> {};

TEST_P(LaidOut, has_these_cells_and_nodes) {
    Grid grid;
    ASSERT_TRUE(initializeX(grid, GetParam().cells, GetParam().origin, GetParam().runs));
    const Axis axis(grid);
    EXPECT_THAT(axis.electricDeltas, ElementsAreArray(GetParam().deltas));
    EXPECT_THAT(axis.electricNodes, ElementsAreArray(GetParam().nodes));
    EXPECT_EQ(grid.getUserXOrigin(), static_cast<double>(GetParam().origin));
}

const Layout layouts[] = {
    {"one_run", 4, 0, {{0, 0.5F}}, {0.5F, 0.5F, 0.5F, 0.5F}, {0, 0.5, 1, 1.5}},
    // 3 times the float 0.1 is 0.3000000044703484 before it is rounded to single precision.
    {"distances_are_single_precision",
     4,
     0,
     {{0, 0.1F}},
     {0.1F, 0.1F, 0.1F, 0.1F},
     {0, 0.10000000149011612, 0.20000000298023224, 0.30000001192092896}},
    // Measured from node 2, not from the origin: 0.2 and 1 in double precision.
    {"a_run_is_measured_from_its_beginning",
     5,
     -1,
     {{0, 0.1F}, {2, 1}},
     {0.1F, 0.1F, 1, 1, 1},
     {-1, -0.89999999850988388, -0.79999999701976776, 0.20000000298023224, 1.2000000029802322}},
    {"no_runs_give_cells_of_no_size", 3, 2, {}, {0, 0, 0}, {2, 2, 2}},
    {"cells_before_the_first_run_have_no_size", 4, 1, {{2, 1}}, {0, 0, 1, 1}, {1, 1, 1, 2}},
    {"a_run_below_zero_begins_at_zero", 3, 0, {{-5, 2}}, {2, 2, 2}, {0, 2, 4}},
    {"a_run_beyond_the_last_cell_is_left_out", 2, 0, {{0, 1}, {2, 5}, {INT32_MAX, 7}}, {1, 1}, {0, 1}},
    {"the_last_of_equal_beginnings_counts", 2, 0, {{0, 1}, {0, 3}}, {3, 3}, {0, 3}},
    {"a_run_that_descends_replaces_earlier_ones",
     6,
     0,
     {{0, 1}, {4, 9}, {2, 2}, {5, 3}},
     {1, 1, 2, 2, 2, 3},
     {0, 1, 2, 4, 6, 8}},
    {"no_cells_leave_the_origin", 0, 3, {{0, 1}}, {}, {}},
};
INSTANTIATE_TEST_SUITE_P(Grid, LaidOut, testing::ValuesIn(layouts), rowName<Layout>);

TEST(Grid, places_magnetic_nodes_half_way) {
    Grid grid;
    ASSERT_TRUE(initializeX(grid, 4, 0, {{0, 0.5F}, {2, 2}}));
    const Axis axis(grid);
    EXPECT_THAT(axis.magneticNodes, ElementsAreArray({0.25, 0.75, 2.0, 4.0}));
    EXPECT_THAT(axis.magneticDeltas, ElementsAreArray({0.5F, 0.5F, 1.25F, 2.0F}));
}

TEST(Grid, is_bounded_by_its_first_and_last_electric_nodes) {
    Grid grid;
    ASSERT_TRUE(grid.initialize(2, 3, 4, 1, 2, 3, {{0, 1}}, {{0, 10}}, {{0, 100}}, true));
    double bounds[6];
    grid.getUserBoundingBox(bounds[0], bounds[1], bounds[2], bounds[3], bounds[4], bounds[5]);
    EXPECT_THAT(bounds, ElementsAreArray({1.0, 2.0, 2.0, 22.0, 3.0, 303.0}));
}

TEST(Grid, has_functions_for_each_axis) {
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

TEST(Grid, has_bounds_without_nodes) {
    Grid grid;
    EXPECT_EQ(grid.getUserYUpperBound(), 0.0);
    ASSERT_TRUE(initializeX(grid, 3, 7, {{0, 1}}, false));
    EXPECT_EQ(grid.getUserXOrigin(), 7.0);
    EXPECT_EQ(grid.getUserXUpperBound(), 7.0);
    EXPECT_EQ(grid.getUserXElectricDelta(2), 1.0F);
}

TEST(Grid, refuses_too_many_cells_and_stays_as_it_was) {
    Grid grid;
    ASSERT_TRUE(initializeX(grid, 2, 5, {{0, 1}}));
    for (const std::uint32_t cells : {Grid::maximumCells + 1, 0x7fffffffU, std::numeric_limits<std::uint32_t>::max()}) {
        EXPECT_FALSE(initializeX(grid, cells, 0, {{0, 2}}));
    }
    EXPECT_THAT(Axis(grid).electricNodes, ElementsAreArray({5.0, 6.0}));
}

TEST(Grid, copies_are_independent) {
    Grid grid;
    ASSERT_TRUE(initializeX(grid, 2, 5, {{0, 1}}));
    Grid copy(grid);
    Grid assigned;
    assigned = grid;
    ASSERT_TRUE(initializeX(grid, 1, 0, {}));
    EXPECT_THAT(Axis(copy).electricNodes, ElementsAreArray({5.0, 6.0}));
    EXPECT_THAT(Axis(assigned).electricNodes, ElementsAreArray({5.0, 6.0}));
}

// Each pair of runs would fill the whole axis again if runs were filled as they come.
TEST(Grid, takes_runs_that_go_up_and_down_without_filling_cells_again_and_again) {
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
