// Compares the two methods of summing over the faces of a box with the sum over single cells.

#include "results/FarZoneTransform.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <random>

#include "TestSupport.h"
#include "quarn/PhysicalConstants.h"
#include "reference/FarZoneSums.h"
#include "results/FarZoneDirectSum.h"
#include "results/FarZoneSpectrum.h"

namespace quarn::test {
namespace {

using farzone::Direction;
using farzone::FaceSums;
using farzone::FarField;
using farzone::Method;
using farzone::Surface;
using farzone::Vector;
using reference::SampledBox;

constexpr double twoPi = 2.0 * constants::pi;

using Sizes = std::vector<double>;

Sizes even(std::size_t cells, double size) { return Sizes(cells, size); }

/// From one size to another and back, by a constant ratio.
Sizes graded(std::size_t cells, double smallest, double largest) {
    Sizes sizes;
    for (std::size_t i = 0; i < cells; ++i) {
        const double x = static_cast<double>(i) / static_cast<double>(cells);
        sizes.push_back(smallest * std::pow(largest / smallest, 0.5 - 0.5 * std::cos(twoPi * x)));
    }
    return sizes;
}

// Lengths are in wavelengths.
struct Shape {
    const char* name;
    std::array<Sizes, 3> sizes;
    Vector corner;
};

void PrintTo(const Shape& shape, std::ostream* out) { *out << shape.name; }

const Shape shapes[] = {
    {"EvenCells", {even(30, 0.05), even(24, 0.05), even(20, 0.05)}, {-0.75, -0.6, -0.5}},
    {"GradedCellsOffCentre", {graded(40, 0.01, 0.1), graded(31, 0.1, 0.02), even(20, 0.07)}, {-0.3, -2, 0.1}},
    {"AVerySmallBox", {even(9, 1e-6), graded(8, 1e-6, 3e-6), even(10, 1e-6)}, {-4e-6, -6e-6, -5e-6}},
    {"ALargeBox", {even(100, 0.1), graded(90, 0.02, 0.2), even(80, 0.1)}, {-5, -4.5, -4}},
    {"CellsLargerThanAWavelength", {even(8, 1.7), graded(7, 0.4, 2.3), even(9, 1.2)}, {-7, -5, -5}},
    {"OneCell", {even(1, 0.8), even(1, 1.3), even(1, 0.2)}, {-0.4, -0.6, -0.1}},
    {"APlate", {even(40, 0.1), even(50, 0.1), even(1, 0.01)}, {-2, -2.5, 0}},
    {"CellsOfNoSize", {even(12, 0.0), even(12, 0.1), even(12, 0.1)}, {0, -0.6, -0.6}},
    {"NoCellsAlongOneAxis", {even(14, 0.1), Sizes(), even(16, 0.1)}, {-0.7, 0, -0.8}},
};

std::vector<Direction> randomDirections(std::size_t count) {
    std::mt19937 random(2);
    std::uniform_real_distribution<double> uniform(0.0, 1.0);
    std::vector<Direction> directions;
    for (std::size_t i = 0; i < count; ++i) {
        directions.emplace_back(std::acos(2.0 * uniform(random) - 1.0), twoPi * uniform(random));
    }
    for (const double theta : {0.0, 0.25 * twoPi, 0.5 * twoPi}) directions.emplace_back(theta, 0.0);
    directions.emplace_back(0.25 * twoPi, 0.25 * twoPi);
    return directions;
}

class FarZoneSums : public testing::TestWithParam<Shape> {
protected:
    SampledBox box{GetParam().sizes, GetParam().corner, twoPi};
    Surface surface = box.as<Surface>();

    double deviation(farzone::FaceSummation&& summation) const {
        Progress progress(nullptr);
        EXPECT_TRUE(summation.prepare(progress));
        reference::Deviation deviation;
        for (const Direction& direction : randomDirections(300)) {
            FaceSums found;
            EXPECT_TRUE(summation.evaluate(&direction.r, 1, &found, progress));
            deviation.add(found, box.sumsIn(direction.r, twoPi));
        }
        return deviation.largest();
    }
};

TEST_P(FarZoneSums, AreExactWhenSummedDirectly) { EXPECT_LT(deviation(farzone::DirectSum(surface, twoPi)), 1e-12); }

TEST_P(FarZoneSums, AreWithinTheErrorBoundWhenSampled) {
    EXPECT_LT(deviation(farzone::Spectrum(surface, twoPi)), 2e-9);
}

INSTANTIATE_TEST_SUITE_P(, FarZoneSums, testing::ValuesIn(shapes), rowName<Shape>);

std::vector<FarField> fieldsBy(Method method, const Surface& surface, const std::vector<Direction>& directions) {
    std::vector<FarField> fields;
    Progress progress(nullptr);
    farzone::Transform transform(surface, twoPi, method);
    EXPECT_TRUE(transform.prepare(progress) && transform.apply(directions, fields, progress));
    return fields;
}

// The plane lies off the centre, so that the path of the image matters; fields are of the order of 1000 V.
TEST(FarZoneTransform, GivesTheSameImageByBothMethods) {
    const SampledBox box(shapes[1].sizes, shapes[1].corner, twoPi);
    const std::vector<Direction> directions = randomDirections(100);
    for (std::size_t axis = 0; axis < farzone::numAxes; ++axis) {
        Surface surface = box.as<Surface>();
        surface.mirrorAxis = axis;
        surface.mirrorPosition = surface.axes[axis].faces[farzone::Lower];
        surface.pairs[axis].faces[farzone::Lower].isSummed = false;
        const auto direct = fieldsBy(Method::Direct, surface, directions);
        const auto sampled = fieldsBy(Method::Sampled, surface, directions);
        for (std::size_t i = 0; i < directions.size(); ++i) {
            EXPECT_LT(std::abs(direct[i].theta - sampled[i].theta), 1e-5) << axis << ' ' << i;
            EXPECT_LT(std::abs(direct[i].phi - sampled[i].phi), 1e-5) << axis << ' ' << i;
        }
    }
}

TEST(FarZoneTransform, NaNDirectionsDoNotAffectOthers) {
    const SampledBox box(shapes[0].sizes, shapes[0].corner, twoPi);
    const Surface surface = box.as<Surface>();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    const std::vector<Direction> directions{{1, 1}, {nan, 1}, {1, 1}, {1, infinity}, {1 + twoPi, 1 - twoPi}};
    for (const Method method : {Method::Direct, Method::Sampled}) {
        const auto fields = fieldsBy(method, surface, directions);
        EXPECT_TRUE(std::isnan(std::abs(fields[1].theta)) && std::isnan(std::abs(fields[1].phi)));
        EXPECT_TRUE(std::isnan(std::abs(fields[3].theta)) && std::isnan(std::abs(fields[3].phi)));
        EXPECT_EQ(fields[2].theta, fields[0].theta);
        EXPECT_LT(std::abs(fields[4].phi - fields[0].phi), 1e-9 * std::abs(fields[0].phi));
    }
}

struct Choice {
    const char* name;
    double waveNumber;
    std::size_t directions;
    Method expected;
};

void PrintTo(const Choice& choice, std::ostream* out) { *out << choice.name; }

class FarZoneMethod : public testing::TestWithParam<Choice> {};

TEST_P(FarZoneMethod, IsTheFasterOne) {
    const SampledBox box({even(60, 0.05), even(60, 0.05), even(60, 0.05)}, {-1.5, -1.5, -1.5}, twoPi);
    EXPECT_EQ(farzone::fasterMethod(box.as<Surface>(), GetParam().waveNumber, GetParam().directions),
              GetParam().expected);
}

const Choice choices[] = {
    {"NoDirections", twoPi, 0, Method::Direct},
    {"OneDirection", twoPi, 1, Method::Direct},
    {"AFewDirections", twoPi, 10, Method::Direct},
    {"ACut", twoPi, 360, Method::Sampled},
    {"ASphere", twoPi, 65160, Method::Sampled},
    {"ASphereAtFrequencyZero", 0, 65160, Method::Direct},
    {"ASphereAtANegativeFrequency", -twoPi, 65160, Method::Direct},
    {"ASphereAtANaNFrequency", std::numeric_limits<double>::quiet_NaN(), 65160, Method::Direct},
    {"ASphereAtAnInfiniteFrequency", std::numeric_limits<double>::infinity(), 65160, Method::Direct},
    {"AFineSphereAtAFrequencyThatNeedsTooManySamples", 1000 * twoPi, 1U << 30, Method::Direct},
};
INSTANTIATE_TEST_SUITE_P(, FarZoneMethod, testing::ValuesIn(choices), rowName<Choice>);

// A NaN position or size gives NaN fields with either method.
TEST(FarZoneTransform, DoesNotSampleCellsWithoutAFinitePlace) {
    const SampledBox box(shapes[0].sizes, shapes[0].corner, twoPi);
    Surface surface = box.as<Surface>();
    surface.axes[1].middles[3] = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(farzone::fasterMethod(surface, twoPi, 65160), Method::Direct);
}

}  // namespace
}  // namespace quarn::test
