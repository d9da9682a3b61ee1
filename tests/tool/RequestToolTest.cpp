#include "tool/ToolFixture.h"

namespace quarn::test {
namespace {

using testing::HasSubstr;

class RequestToolTest : public ToolTest {
protected:
    void writeProjectWith(const QString& requests) {
        const QString frame = "begin_<RequestResults> \n";
        write("run", cleanWith({{frame, frame + expanded(requests)}}));
    }
};

TEST_F(RequestToolTest, ShowDescribesTheRequestsAndCheckHasNoFindings) {
    writeProjectWith(
        "MultiFieldIndexedPoint{ Definition{ File a; MinTimestep 0; MaxTimestep 9; DeltaTimestep 3; TotalE; J; }"
        "XIndex 1; YIndex 2; ZIndex 3; }"
        "MultiFieldInterpolatedPoint{ Definition{ File ; MinTimestep -1; MaxTimestep -1; DeltaTimestep -1; }"
        "XPosition 0.5; YPosition -2; ZPosition 0; }"
        "MultiPointFieldRequest{ MinTimestep 0; MaxTimestep 9; DeltaTimestep 3; File b c; TransientTotalE; SteadyJ;"
        "Snapped; GridBoxes 1 0 0 0 1 1 1; PointsToRemoveFromBoxes 1 0 0 0; AdditionalPoints 1 5 5 5; }"
        "RawSARPlanes{ Plane YZ 4; }"
        "SARAveraging{ average_one_gram; lower_bound  1 2 3; upper_bound  4 5 6; save_one_gram_z_slices;"
        "materials_to_use 2 7 8; outputAveragedFileName sar; }"
        "FarZoneRequests{ SteadyState{ OutputFileName d.fz; Angle 0 0; Angle 1 0; } }"
        "SteadyStateStorageMethodIsMemory; SteadyStateFrequencies{ FrequencyFolder 1000000000 F; }"
        "HACRequest{ Origin 1 2 3; U 1 0 0; V 0 1 0; W 0 0 1; }");
    EXPECT_THAT(run({"show", "run"}).out,
                HasSubstr("  Near zone         2 points\n"
                          "    cell (1, 2, 3)  file a; total E, J; timesteps 0 to 9 by 3\n"
                          "    (0.5, -2, 0) m  no file; any timesteps\n"
                          "  Multi-point       1 request\n"
                          "    request 0       file b c; 8 points, snapped; transient total E; timesteps 0 to 9 by 3; "
                          "steady state J\n"
                          "  Far zone          1 request\n"
                          "    steady state    file d.fz; 2 directions\n"
                          "  SAR planes        1 plane\n"
                          "    YZ              index 4\n"
                          "  SAR averages      1 g; file sar\n"
                          "    Region          cells (1, 2, 3) to (4, 5, 6)\n"
                          "    1 g planes      XY\n"
                          "    Materials       2 of them used\n"
                          "  HAC               1 measurement\n"
                          "    measurement 0   origin (1, 2, 3) m\n"));
    expect("check run", 0, "run: no findings\n");
}

TEST_F(RequestToolTest, ShowNamesTheGroupsOfFieldsInTheOrderOfTheFile) {
    QString requests =
        "MultiFieldIndexedPoint{ Definition{ J; ScatteredB; TotalB; ScatteredH; TotalH; ScatteredE; TotalE; } }";
    for (const char* key : {"ScatteredE", "TotalH", "ScatteredH", "TotalB", "ScatteredB", "J"}) {
        requests += QString("MultiPointFieldRequest{ Transient%1; Steady%1; }").arg(key);
    }
    requests +=
        "MultiPointFieldRequest{ TransientScatteredB; TransientScatteredH; TransientScatteredE; TransientJ;"
        "TransientTotalB; TransientTotalH; TransientTotalE; SteadyJ; SteadyTotalB; SteadyTotalH; SteadyTotalE; }";
    writeProjectWith(requests);
    const QString shown = QString::fromStdString(run({"show", "run"}).out).remove("; any timesteps");
    EXPECT_THAT(shown.toStdString(),
                HasSubstr("no file; total E, scattered E, total H, scattered H, total B, scattered B, J\n"));
    EXPECT_THAT(shown.toStdString(),
                HasSubstr("request 0       no file; 0 points; transient scattered E\n"
                          "    request 1       no file; 0 points; transient total H; steady state total H\n"
                          "    request 2       no file; 0 points; transient scattered H\n"
                          "    request 3       no file; 0 points; transient total B; steady state total B\n"
                          "    request 4       no file; 0 points; transient scattered B\n"
                          "    request 5       no file; 0 points; transient J; steady state J\n"
                          "    request 6       no file; 0 points; transient total E, total H, total B, J, scattered E, "
                          "scattered H, scattered B; steady state total E, total H, total B, J\n"));
}

TEST_F(RequestToolTest, ShowDescribesTemperatureRisesAndCheckNamesMeasurementsThatAreNotKept) {
    writeProjectWith(
        "TemperatureRiseRequest{ plane_type YZ; requested_input_power 0.25; } HACRequest{ Origin 1 2 3; }");
    EXPECT_THAT(run({"show", "run"}).out,
                HasSubstr("  Temperature rise  plane YZ; cells (0, 0, 0) to (0, 0, 0)\n"
                          "    Input power     250 mW\n"));
    expect("check run",
           1,
           testing::AllOf(HasSubstr("not kept: begin_<HACRequest>"),
                          HasSubstr("not kept: Origin 1 2 3"),
                          HasSubstr("3 lines not kept")));
}

}  // namespace
}  // namespace quarn::test
