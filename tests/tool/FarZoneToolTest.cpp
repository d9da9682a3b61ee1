#include <QDir>
#include <QStandardPaths>

#include "results/FarZoneFields.h"
#include "tool/ToolFixture.h"

namespace quarn::test {
namespace {

using testing::HasSubstr;

constexpr double frequency = 299792458.0;

/// An electric dipole of 1 A m along z, above a PEC plane or in the open, in a run with requests.
class FarZoneTool : public Tool {
protected:
    void writeRun(FarZoneBox::Face plane, const QString& requests, double height) {
        const ExactRun exactRun(grid(), boundariesWithPlaneAt(plane));
        exact::Sources sources;
        for (const double z : plane == FarZoneBox::NoFace ? std::vector{height} : std::vector{height, -height}) {
            sources.add(
                std::make_unique<exact::ElectricDipole>(exact::Vector{0.9, 0.9, z}, exact::ComplexVector{0, 0, 1.0}));
        }
        ASSERT_TRUE(exact::writeBoxFields(folder.filePath("box"), exactRun.grid(), exactRun.box(), sources, frequency));
        const QString lowerZ = plane == FarZoneBox::NoFace ? "CPML" : "PEC";
        write("project",
              cleanWith({{"ORBC_PEC", "ORBC_CPML"},
                         {"LowerZ ORBC_PMC", "LowerZ ORBC_" + lowerZ},
                         {"ORBC_PMC", "ORBC_CPML"},
                         {"begin_<RequestResults> \n", "begin_<RequestResults> \n" + expanded(requests)}}));
        write("geometry", geometry);
    }

    ToolResult farzone(const QStringList& options) {
        return run(QStringList{"farzone", "project", "geometry", "box", "--frequency", "299792458"} + options);
    }

    static Grid grid() {
        Grid result;
        const Grid::Runs runs{{0, 0.05F}};
        EXPECT_TRUE(result.initialize(37, 37, 37, 0, 0, 0, runs, runs, runs, true));
        return result;
    }

    const QByteArray geometry =
        ("Geometry file version 3.20\n\nmesh_defined\n0 0 0\n0 0 0\n0 0 0\n0 0 0\n0 0 0\n0\n" +
         expanded("materials{ } materialMaps{ }"
                  "GridDefinition{ GridOriginInMeters 0 0 0; NumberOfCellsInX 37; NumberOfCellsInY 37;"
                  "NumberOfCellsInZ 37; } Deltas{ DelX{ 0 0.05; } DelY{ 0 0.05; } DelZ{ 0 0.05; } }"
                  "AveragedMaterialBins{ }"))
            .toUtf8();
};

// A short dipole radiates eta k^2 / (12 pi) W at 1 A m, which is 394.5 W here, and has a directivity of 1.5. Cells of a
// twentieth of a wavelength tell that to 0.04 dB.
TEST_F(FarZoneTool, writes_the_patterns_that_the_project_asks_for) {
    writeRun(FarZoneBox::NoFace,
             "FarZoneRequests{ SteadyState{ OutputFileName sub/first.fz; Angle 1.5707964 0; Angle 0 0; }"
             "SteadyState{ OutputFileName second.fz; Angle 0.5 1; } }",
             0.9);
    const ToolResult result = farzone({"--out", "results"});
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.out, testing::ContainsRegex("Radiated power +39[3-6]"));
    EXPECT_THAT(result.out, testing::ContainsRegex("Peak directivity +1\\.7[5-9] dBi at theta (8[5-9]|9[0-5])"));
    EXPECT_THAT(result.out, HasSubstr("2 directions\n    Records         results/first.uan\n"));
    EXPECT_EQ(read("results/first.uan").size(), 48);
    EXPECT_EQ(read("results/second.uan").size(), 24);
    const auto table = read("results/first.csv").split('\n');
    EXPECT_EQ(table[0], "theta_deg,phi_deg,e_theta_re,e_theta_im,e_phi_re,e_phi_im,directivity_dbi,axial_ratio_db");
    EXPECT_THAT(table[1].toStdString(), testing::StartsWith("90,0,"));
    // r E = j eta k / (4 pi) along theta, 188.4 V.
    const auto broadside = table[1].split(',');
    EXPECT_NEAR(broadside[2].toDouble(), 0.0, 1.0);
    EXPECT_NEAR(broadside[3].toDouble(), 188.4, 1.0);
    EXPECT_NEAR(broadside[6].toDouble(), 1.76, 0.04);
}

// Two dipoles in phase half a wavelength apart along their axis: the plane halves the power and adds 3 dB.
TEST_F(FarZoneTool, closes_the_box_with_the_image_in_a_plane) {
    writeRun(FarZoneBox::ZLower, QString(), 0.25);
    const ToolResult result = farzone({"--step", "30"});
    EXPECT_EQ(result.status, 0);
    const auto table = read("farzone.csv").split('\n');
    EXPECT_EQ(table.size(), 1 + 7 * 12 + 1);
    EXPECT_NEAR(table[1 + 3 * 12].split(',')[3].toDouble(), 2 * 188.4, 2.0);
    EXPECT_THAT(table[1 + 4 * 12].toStdString(), HasSubstr(",0,0,0,0,-inf,"));
}

TEST_F(FarZoneTool, plots_the_principal_cuts) {
    if (QStandardPaths::findExecutable("gnuplot").isEmpty()) GTEST_SKIP() << "gnuplot is not installed";
    writeRun(FarZoneBox::NoFace, QString(), 0.9);
    EXPECT_EQ(farzone({"--step", "45", "--plot", "cuts.svg"}).status, 0);
    EXPECT_THAT(read("cuts.svg").toStdString(), HasSubstr("Directivity in dBi at 299.792 MHz"));
    EXPECT_THAT(read("cuts.svg").toStdString(), HasSubstr("phi = 90°"));
}

TEST_F(FarZoneTool, refuses_what_it_cannot_use) {
    writeRun(FarZoneBox::NoFace, QString(), 0.9);
    write("box", read("box").chopped(1));
    const ToolResult cut = farzone({});
    EXPECT_EQ(cut.err, "quarn: Unexpected end of far zone box data in box\n");
    EXPECT_EQ(cut.status, 2);
    EXPECT_THAT(run({"farzone", "project", "geometry", "box"}).err, HasSubstr("--frequency is missing."));
    EXPECT_THAT(farzone({"--step", "0"}).err, HasSubstr("--step needs a number from 0.1 to 90."));
    write("project", cleanWith({}));
    EXPECT_THAT(farzone({}).err, HasSubstr("quarn: project: there is no far-zone box"));
}

TEST_F(FarZoneTool, refuses_a_wave_that_the_cells_cannot_carry) {
    writeRun(FarZoneBox::NoFace, QString(), 0.9);
    const ToolResult result = run({"farzone", "project", "geometry", "box", "--frequency", "3e9", "--out", "results"});
    EXPECT_EQ(
        result.err,
        "quarn: geometry: has a cell of 50 mm on the far-zone box, more than half the wavelength of 99.9308 mm\n");
    EXPECT_EQ(result.status, 2);
    EXPECT_FALSE(QFile::exists(folder.filePath("results")));
}

TEST_F(FarZoneTool, does_not_write_where_a_project_must_not_choose) {
    const QString request = "FarZoneRequests{ SteadyState{ OutputFileName %1; Angle 0 0; } }";
    writeRun(FarZoneBox::NoFace, request.arg("box"), 0.9);
    const QByteArray box = read("box");
    EXPECT_EQ(farzone({"--out", "../" + QDir(folder.path()).dirName()}).status, 2);
    EXPECT_EQ(farzone({"--plot", "./geometry", "--step", "90"}).status, 2);
    EXPECT_EQ(read("box"), box);
    EXPECT_EQ(read("geometry"), geometry);
    writeRun(FarZoneBox::NoFace, request.arg("first\x1b.fz"), 0.9);
    EXPECT_THAT(farzone({}).err, HasSubstr("the file name \"first\uFFFD.uan\" of a far-zone request has control"));
}

}  // namespace
}  // namespace quarn::test
