#include "quarn/GridIndexBoxes.h"

#include <gmock/gmock.h>

#include <limits>
#include <random>
#include <stdexcept>

#include "reference/IndexBoxes.h"

namespace quarn {

inline void PrintTo(const ivec3& cell, std::ostream* out) {
    *out << '(' << cell.x << ", " << cell.y << ", " << cell.z << ')';
}

namespace test {
namespace {

using reference::cellsOf;
using testing::ElementsAre;
using testing::IsEmpty;
using ReferenceBoxes = reference::IndexBoxes;
using Box = GridIndexBoxes::Box;
using Cells = std::vector<ivec3>;
using Exclusions = std::set<ivec3>;

constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();
const ivec3 none(-1, -1, -1);

Cells pointsOf(const GridIndexBoxes& boxes) {
    Cells points;
    for (int i = 0; i < boxes.getNumPoints(); ++i) points.push_back(boxes.getPoint(i));
    return points;
}

void expectLike(const GridIndexBoxes& boxes, const ReferenceBoxes& reference) {
    EXPECT_EQ(boxes.getBoxes(), reference.boxes);
    EXPECT_EQ(boxes.getSparePointIndices(), reference.spare);
    EXPECT_EQ(pointsOf(boxes), reference.points());
    EXPECT_EQ(boxes.getPointsToRemoveFromBoxes(), reference.excluded);
    EXPECT_EQ(boxes.getMaximumNumExceptionsInABox(), reference.mostExceptions);
    const std::size_t records = reference.spare.size() + 2 * reference.boxes.size() + reference.exceptions;
    const std::size_t points = reference.points().size();
    EXPECT_EQ(boxes.getCompressionRatio(), points ? static_cast<float>(records) / static_cast<float>(points) : 0.0F);
    EXPECT_EQ(boxes.getPoint(-1), none);
    EXPECT_EQ(boxes.getPoint(boxes.getNumPoints()), none);
}

// A block without its first cells.
Cells block(int ex, int ey, int ez, int missing) {
    Cells cells = cellsOf({{0, 0, 0}, {ex - 1, ey - 1, ez - 1}});
    cells.erase(cells.begin(), cells.begin() + missing);
    return cells;
}

struct DensityRow {
    const char* name;
    Cells cells;
    bool isOneBox;
};

void PrintTo(const DensityRow& row, std::ostream* out) { *out << row.cells.size() << " cells"; }

class GridIndexBoxesDensity : public testing::TestWithParam<DensityRow> {};

TEST_P(GridIndexBoxesDensity, BecomesOneBoxWhenDense) {
    const GridIndexBoxes boxes(GetParam().cells);
    EXPECT_EQ(boxes.getBoxes().size() == 1 && boxes.getSparePointIndices().empty(), GetParam().isOneBox);
    const std::set<ivec3> expected(GetParam().cells.begin(), GetParam().cells.end());
    expectLike(boxes, ReferenceBoxes(expected));
}

const DensityRow densityRows[] = {
    {"NoPoints", {}, false},
    {"TwoCellsAreSpare", block(1, 1, 2, 0), false},
    {"ThreeCellsInLine", block(1, 1, 3, 0), true},
    {"ThreeCellsAroundACorner", {{0, 0, 0}, {0, 0, 1}, {0, 1, 0}}, true},
    {"HalfOfASmallBlockIsSpare", {{0, 0, 0}, {0, 1, 1}, {1, 0, 1}, {1, 1, 0}}, false},
    {"FullBlock", block(2, 2, 2, 0), true},
    {"SevenEighths", block(4, 4, 4, 8), true},
    {"BelowSevenEighths", block(4, 4, 4, 9), false},
    {"SixteenMissing", block(10, 10, 10, 16), true},
    {"SeventeenMissing", block(10, 10, 10, 17), false},
    {"RepeatedPointsCountOnce", {{0, 0, 0}, {0, 0, 9}, {0, 0, 0}, {0, 0, 9}, {0, 0, 0}}, false},
    {"NegativeIndicesAreSplitBelowTheMiddle", {{-4, 0, 0}, {-3, 0, 0}, {-1, 0, 0}, {0, 9, 0}, {1, 9, 1}}, false},
};
INSTANTIATE_TEST_SUITE_P(, GridIndexBoxesDensity, testing::ValuesIn(densityRows),
                         [](const auto& row) { return row.param.name; });

TEST(GridIndexBoxes, NumbersSkipExcludedCells) {
    const GridIndexBoxes boxes({{0, 0, 3}, {0, 0, 0}, {0, 0, 1}});
    EXPECT_THAT(boxes.getBoxes(), ElementsAre(Box({0, 0, 0}, {0, 0, 3})));
    EXPECT_THAT(pointsOf(boxes), ElementsAre(ivec3(0, 0, 0), ivec3(0, 0, 1), ivec3(0, 0, 3)));
    EXPECT_FLOAT_EQ(boxes.getCompressionRatio(), 1.0F);

    const GridIndexBoxes pair({{{0, 0, 0}, {0, 0, 3}}}, {{0, 0, 2}, {0, 0, 3}}, {{7, 8, 9}});
    EXPECT_THAT(pointsOf(pair), ElementsAre(ivec3(0, 0, 0), ivec3(0, 0, 1), ivec3(7, 8, 9)));
    EXPECT_THAT(pair.getPointsToRemoveFromBoxes(), ElementsAre(ivec3(0, 0, 2), ivec3(0, 0, 3)));
    EXPECT_FLOAT_EQ(pair.getCompressionRatio(), 5.0F / 3.0F);
}

// z runs fastest, x slowest.
TEST(GridIndexBoxes, NumbersFollowTheOrderOfTheBox) {
    const GridIndexBoxes boxes({{{5, 6, 7}, {6, 8, 10}}}, {{5, 6, 8}}, {});
    EXPECT_EQ(boxes.getNumPoints(), 23);
    EXPECT_EQ(boxes.getPoint(0), ivec3(5, 6, 7));
    EXPECT_EQ(boxes.getPoint(1), ivec3(5, 6, 9));
    EXPECT_EQ(boxes.getPoint(3), ivec3(5, 7, 7));
    EXPECT_EQ(boxes.getPoint(11), ivec3(6, 6, 7));
    EXPECT_EQ(boxes.getPoint(22), ivec3(6, 8, 10));
}

// Point clouds of all densities, in cubic, flat and long regions, with clusters.
TEST(GridIndexBoxes, BisectsLikeTheReference) {
    std::mt19937 random(1);
    const ivec3 sizes[] = {{8, 8, 8}, {30, 30, 1}, {1, 3, 200}, {2, 2, 2}, {40, 40, 40}};
    for (int round = 0; round < 400; ++round) {
        SCOPED_TRACE(round);
        const ivec3& size = sizes[round % 5];
        const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
        Cells cells;
        for (int clump = below(8); clump >= 0; --clump) {
            const ivec3 low(below(size.x) - 9, below(size.y), below(size.z) - size.z);
            const int density = 1 + below(100);
            for (const ivec3& cell : cellsOf({low, {low.x + below(6), low.y + below(6), low.z + below(6)}})) {
                if (below(100) < density) cells.push_back(cell);
            }
        }
        for (int i = below(60); i > 0; --i) cells.emplace_back(below(size.x), below(size.y), below(size.z));
        std::shuffle(cells.begin(), cells.end(), random);
        expectLike(GridIndexBoxes(cells), ReferenceBoxes({cells.begin(), cells.end()}));
    }
}

// Overlapping, empty and completely excluded boxes; exclusions in several boxes and outside all boxes.
TEST(GridIndexBoxes, ExcludesAndIntersectsLikeTheReference) {
    std::mt19937 random(2);
    for (int round = 0; round < 300; ++round) {
        SCOPED_TRACE(round);
        const int side = 2 + round % 14;
        const auto index = [&] { return static_cast<int>(random() % static_cast<unsigned>(side)) - side / 2; };
        const auto cell = [&] { return ivec3(index(), index(), index()); };
        std::vector<Box> boxes;
        for (int i = round % 23; i > 0; --i) {
            const ivec3 low = cell();
            boxes.emplace_back(low, ivec3(low.x + index() / 2, low.y + index() / 2, low.z + index() / 2));
        }
        Exclusions exclusions;
        for (int i = round % 97 * 3; i > 0; --i) exclusions.insert(cell());
        Cells spare = {cell(), cell(), cell()};
        GridIndexBoxes found(boxes, exclusions, spare);
        expectLike(found, ReferenceBoxes(boxes, exclusions, spare));

        const Box limits(cell(), {side / 3, side / 3, side / 4});
        const Cells inside = cellsOf(limits);
        const auto isOutside = [&](const ivec3& c) { return !std::count(inside.begin(), inside.end(), c); };
        Cells expected = pointsOf(found);
        expected.erase(std::remove_if(expected.begin(), expected.end(), isOutside), expected.end());
        found.intersectBoundingBox(limits.first, limits.second);
        EXPECT_EQ(pointsOf(found), expected);
        expectLike(found,
                   ReferenceBoxes(found.getBoxes(), found.getPointsToRemoveFromBoxes(), found.getSparePointIndices()));
    }
}

TEST(GridIndexBoxes, IntersectionWithNothingLeavesNothing) {
    GridIndexBoxes boxes({{{0, 0, 0}, {3, 3, 3}}}, {{1, 1, 1}}, {{9, 9, 9}});
    boxes.intersectBoundingBox({4, 0, 0}, {8, 8, 8});
    EXPECT_THAT(boxes.getBoxes(), IsEmpty());
    EXPECT_THAT(boxes.getSparePointIndices(), IsEmpty());
    EXPECT_THAT(boxes.getPointsToRemoveFromBoxes(), IsEmpty());
    EXPECT_EQ(boxes.getNumPoints(), 0);
}

// Bounding boxes of 2^33, 2^32, 2^32 and 2^96 cells: a volume of 32 bits would overflow to 0, one of 64 bits in the
// last.
TEST(GridIndexBoxes, FarApartPointsMakeNoBox) {
    const Cells clouds[] = {{{0, 0, 0}, {1, 1, 1}, {2047, 2047, 2047}},
                            {{0, 0, 0}, {0, 1, 1}, {0, 65535, 65535}},
                            {{0, 0, lowest}, {0, 0, 0}, {0, 0, highest}},
                            {{lowest, lowest, lowest}, {0, 0, 0}, {highest, highest, highest}}};
    for (const Cells& cloud : clouds) {
        const GridIndexBoxes boxes(cloud);
        EXPECT_THAT(boxes.getBoxes(), IsEmpty());
        EXPECT_THAT(boxes.getSparePointIndices(), testing::UnorderedElementsAreArray(cloud));
    }
    const GridIndexBoxes dense({{highest, 0, lowest}, {highest, 0, lowest + 1}, {highest, 0, lowest + 2}});
    EXPECT_THAT(dense.getBoxes(), ElementsAre(Box({highest, 0, lowest}, {highest, 0, lowest + 2})));
    EXPECT_EQ(dense.getPoint(2), ivec3(highest, 0, lowest + 2));
}

// Cells beyond the largest int have no number, but remain in the set.
TEST(GridIndexBoxes, HandlesBoxesWithMoreCellsThanIntegers) {
    const Box all({lowest, lowest, lowest}, {highest, highest, highest});
    const Exclusions exclusions = {{lowest, lowest, lowest + 1}, {0, 0, 0}, {5, 5, 5}, {highest, highest, highest}};
    GridIndexBoxes boxes({all, {{0, 0, 0}, {2999, 2999, 2999}}}, exclusions, {{1, 1, 1}});
    EXPECT_EQ(boxes.getNumPoints(), highest);
    EXPECT_EQ(boxes.getMaximumNumExceptionsInABox(), 4);
    EXPECT_EQ(boxes.getPoint(1), ivec3(lowest, lowest, lowest + 2));
    EXPECT_EQ(boxes.getPoint(highest - 1), ivec3(lowest, lowest, -1));
    EXPECT_EQ(boxes.getPoint(highest), none);
    EXPECT_EQ(boxes.getPointsToRemoveFromBoxes(), exclusions);

    boxes.intersectBoundingBox({0, 0, 0}, {9, 9, 9});
    const Box ten({0, 0, 0}, {9, 9, 9});
    expectLike(boxes, ReferenceBoxes({ten, ten}, {{0, 0, 0}, {5, 5, 5}}, {{1, 1, 1}}));
}

TEST(GridIndexBoxes, BoxesThatRepeatTooManyExclusionsAreRefused) {
    const std::vector<Box> boxes(1100, {{0, 0, 0}, {0, 0, 9999}});
    Exclusions exclusions;
    for (int z = 0; z < 1100; ++z) exclusions.emplace(0, 0, z);
    EXPECT_THROW(GridIndexBoxes(boxes, exclusions, {}), std::runtime_error);

    for (int z = 0; z < 3000; ++z) exclusions.emplace(5, 0, z);
    EXPECT_THROW(GridIndexBoxes(boxes, exclusions, {}), std::runtime_error)
        << "exclusions outside all boxes do not raise the limit";
    std::vector<Box> more = boxes;
    more.push_back({{5, 0, 0}, {5, 0, 9999}});
    GridIndexBoxes withinLimit(more, exclusions, {});
    withinLimit.intersectBoundingBox({0, 0, 0}, {0, 0, 9999});
    EXPECT_EQ(withinLimit.getNumPoints(), 1100 * 8900) << "intersecting stores no more exclusions than before";
}

TEST(GridIndexBoxes, MovedFromObjectIsEmptyAndUsable) {
    GridIndexBoxes boxes(block(3, 3, 3, 0));
    const GridIndexBoxes other = std::move(boxes);
    EXPECT_EQ(other.getNumPoints(), 27);
    EXPECT_EQ(boxes.getNumPoints(), 0);  // NOLINT(bugprone-use-after-move)
    EXPECT_EQ(boxes.getPoint(0), none);
}

}  // namespace
}  // namespace test
}  // namespace quarn
