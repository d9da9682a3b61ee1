#include "quarn/PostProcessSSFarZoneFields.h"

#include <gmock/gmock.h>

#include "TestSupport.h"
#include "results/FarZoneFields.h"

namespace quarn::test {
namespace {

using Records = std::vector<FarZoneSSFieldFile::Record>;

constexpr float frequency = 3e8F;

Grid gridOf(std::uint32_t cells) {
    Grid grid;
    EXPECT_TRUE(grid.initialize(cells, cells, cells, 0, 0, 0, {{0, 0.05F}}, {{0, 0.05F}}, {{0, 0.05F}}, true));
    return grid;
}

class FarZone : public testing::Test {
protected:
    ExactRun run{gridOf(40), openBoundaries()};
    FieldsOnSSFarZoneBox fields =
        run.fieldsOf(reference::ElectricDipole({1, 1, 0.9}, {0.2, std::complex<double>(0, 0.5), 1.0}), frequency);

    Records compute(const std::vector<FarZoneRequest::Angle>& angles, float at = frequency) {
        return patternOf(fields, at, angles);
    }
};

TEST_F(FarZone, KeepsItsSettings) {
    const PostProcessSSFarZoneFields processor(&fields, 1.5F, 7, 0xffffffffU);
    EXPECT_EQ(processor.getFrequency(), 1.5F);
    EXPECT_EQ(processor.getFirstSetting(), 7U);
    EXPECT_EQ(processor.getSecondSetting(), 0xffffffffU);
}

TEST_F(FarZone, AppendsRecordsWithUnchangedAngles) {
    Records records(1);
    const PostProcessSSFarZoneFields processor(&fields, frequency, 0, 0);
    ASSERT_TRUE(processor.computeFields({{0.5F, -7.0F}, {0.5F, -7.0F}, {-0.1F, 100.0F}}, records));
    ASSERT_EQ(records.size(), 4U);
    EXPECT_EQ(records[0], Records::value_type());
    EXPECT_EQ(records[1].theta, 0.5F);
    EXPECT_EQ(records[1].phi, -7.0F);
    EXPECT_EQ(records[2], records[1]);
    EXPECT_EQ(records[3].theta, -0.1F);
    EXPECT_EQ(records[3].phi, 100.0F);
}

// At the pole the components rotate with the azimuth; a negative polar angle is the opposite azimuth with reversed
// components.
TEST_F(FarZone, AcceptsPolesAndAnglesBeyondTheirRange) {
    const auto quarter = static_cast<float>(pi / 2);
    const Records r = compute({{0, 0}, {0, quarter}, {-0.5F, 0.25F}, {0.5F, static_cast<float>(0.25 + pi)}});
    EXPECT_LT(std::abs(r[0].eTheta + r[1].ePhi), 1e-5F * std::abs(r[0].eTheta));
    EXPECT_LT(std::abs(r[0].ePhi - r[1].eTheta), 1e-5F * std::abs(r[0].ePhi));
    EXPECT_LT(std::abs(r[2].eTheta + r[3].eTheta), 1e-5F * std::abs(r[2].eTheta));
    EXPECT_LT(std::abs(r[2].ePhi + r[3].ePhi), 1e-5F * std::abs(r[2].ePhi));
}

TEST_F(FarZone, IsZeroAtFrequencyZero) {
    for (const auto& record : compute(sphere(60), 0.0F)) {
        EXPECT_EQ(record.eTheta, std::complex<float>());
        EXPECT_EQ(record.ePhi, std::complex<float>());
    }
}

TEST_F(FarZone, DoesNothingWithoutDirections) {
    Records records(2);
    const PostProcessSSFarZoneFields processor(&fields, frequency, 0, 0);
    EXPECT_TRUE(processor.computeFields({}, records, [](std::size_t, std::size_t) { return false; }));
    EXPECT_EQ(records.size(), 2U);
}

TEST_F(FarZone, NeedsFields) {
    Records records;
    EXPECT_FALSE(PostProcessSSFarZoneFields(nullptr, frequency, 0, 0).computeFields({{0, 0}}, records));
}

TEST(FarZoneWithoutCells, IsZero) {
    const Grid grid = gridOf(8);
    const FarZoneBox box(openBoundaries(), grid);
    ASSERT_FALSE(box.isValid());
    const ResultFolder folder;
    QString problem;
    const FieldsOnSSFarZoneBox fields(grid, folder.put("box", QByteArray("!tavrixfdtdL\x08\0\0\0", 16)), box, problem);
    EXPECT_EQ(problem, QString());
    for (const auto& record : patternOf(fields, frequency, sphere(30))) {
        EXPECT_EQ(record.eTheta, std::complex<float>());
        EXPECT_EQ(record.ePhi, std::complex<float>());
    }
}

struct Report {
    std::size_t done;
    std::size_t total;
};

TEST_F(FarZone, ReportsProgressFromNoneToAllDirections) {
    std::vector<Report> reports;
    Records records;
    const auto angles = sphere(1);
    const PostProcessSSFarZoneFields processor(&fields, frequency, 0, 0);
    ASSERT_TRUE(processor.computeFields(angles, records, [&](std::size_t done, std::size_t total) {
        reports.push_back({done, total});
        return true;
    }));
    ASSERT_GE(reports.size(), 2U);
    EXPECT_LE(reports.size(), 1000U);
    EXPECT_EQ(reports.front().done, 0U);
    EXPECT_EQ(reports.back().done, angles.size());
    for (const Report& report : reports) EXPECT_EQ(report.total, angles.size());
}

}  // namespace
}  // namespace quarn::test
