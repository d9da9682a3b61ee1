#include "results/FarZoneProgress.h"

#include <gmock/gmock.h>

#include "reference/FarZoneSums.h"
#include "results/FarZoneFields.h"
#include "results/FarZoneRecords.h"
#include "results/FarZoneTransform.h"

namespace quarn::test {
namespace {

using Clock = Progress::Clock;
using testing::ElementsAre;

constexpr double millisecond = 1e6;

Clock::time_point theTime;
Clock::time_point theSameTime() { return theTime; }
/// A clock that makes every check produce a report.
Clock::time_point aMinuteLater() { return theTime += std::chrono::minutes(1); }

TEST(FarZoneProgress, ReportsAShareOfTheKnownWorkOnceFiftyMillisecondsHavePassed) {
    std::vector<std::size_t> reports;
    const auto listen = [&](std::size_t done, std::size_t total) {
        EXPECT_EQ(total, 100U);
        reports.push_back(done);
        return done < 50;
    };
    Progress progress(listen, 100, theSameTime);
    const auto workFor = [&](int milliseconds, double work) {
        theTime += std::chrono::milliseconds(milliseconds);
        return progress.advance(work);
    };
    EXPECT_TRUE(progress.begin());
    EXPECT_TRUE(workFor(50, 20 * millisecond));
    progress.expect(80 * millisecond);
    EXPECT_TRUE(workFor(49, 5 * millisecond));
    EXPECT_TRUE(workFor(1, 5 * millisecond));
    EXPECT_FALSE(workFor(50, 20 * millisecond));
    EXPECT_FALSE(workFor(50, 900 * millisecond));
    EXPECT_THAT(reports, ElementsAre(0, 0, 30, 50, 100));
}

// The fast method prepares tables of 170 ms and 120 MB for this box.
const std::array<std::vector<double>, 3> longBox = {std::vector(6000, 0.1), {0.1}, {0.1}};

TEST(FarZoneProgress, ReceivesAllWorkInPiecesBelowAHundredMilliseconds) {
    const reference::SampledBox box(longBox, {-300, 0, 0}, 2.0 * pi);
    const auto surface = box.as<farzone::Surface>();
    const std::vector<farzone::Direction> directions(500, {1.0, 0.5});
    for (const auto method : {farzone::Method::Direct, farzone::Method::Sampled}) {
        const double work = farzone::costOf(method, surface, 2.0 * pi, directions.size());
        std::size_t last = 0, longest = 0;
        const auto listen = [&](std::size_t done, std::size_t) {
            longest = std::max(longest, done - last);
            last = done;
            return true;
        };
        Progress progress(listen, static_cast<std::size_t>(work), aMinuteLater);
        progress.expect(work);
        std::vector<farzone::FarField> fields;
        farzone::Transform transform(surface, 2.0 * pi, method);
        EXPECT_TRUE(transform.prepare(progress) && transform.apply(directions, fields, progress));
        EXPECT_GT(work, 200 * millisecond);
        EXPECT_GT(static_cast<double>(last), 0.9 * work);
        EXPECT_LT(static_cast<double>(longest), 100 * millisecond);
    }
}

TEST(FarZoneProgress, StopsPreparationsAndDirectionsAtAnyReportAndKeepsTheRecords) {
    Grid grid;
    const Grid::Runs runs{{0, 0.1F}};
    ASSERT_TRUE(grid.initialize(6009, 10, 10, 0, 0, 0, runs, runs, runs, true));
    const double frequency = constants::speedOfLight;
    const ExactRun run(grid, openBoundaries());
    const auto fields = run.fieldsOf(reference::ElectricDipole({300.05, 0.45, 0.45}, {0, 0, 1.0}), frequency);
    const auto angles = sphere(5);
    int numReports = 0;
    for (int last = 1; last == 1 || numReports == last / 2; last *= 2) {
        numReports = 0;
        std::vector<FarZoneSSFieldFile::Record> records(3);
        Progress progress([&](std::size_t, std::size_t) { return ++numReports < last; }, angles.size(), aMinuteLater);
        const bool isDone = farzone::appendFarFields(fields, frequency, angles, records, progress);
        EXPECT_EQ(isDone, numReports < last);
        EXPECT_EQ(records.size(), isDone ? 3 + angles.size() : 3U);
        EXPECT_LE(numReports, last);
    }
    EXPECT_GT(numReports, 128);
}

}  // namespace
}  // namespace quarn::test
