#include "tool/ToolFixture.h"

namespace quarn::test {
namespace {

using testing::HasSubstr;

// A geometry as it is saved. The line "mesh_defined" is line 3, the line "begin_<materials> " is line 9.
const QString geometry =
    "Geometry file version 3.20\n\nmesh_defined\n0 0 0\n0 0 0\n0 0 0\n0 0 0\n0 0 0\n0\n" +
    expanded(
        "materials{ normal_electric{ material_number 2; conductivity 0.001; uncorrected_conductivity 0.001;"
        "permittivity 4.5; nominalTemperature 298.15; conductivityLinearTempCoef 0; conductivityQuadraticTempCoef 0;"
        "density 0; } }"
        "materialMaps{ materialMap{ materialNumber 0; xElectricMaterial 2; yElectricMaterial 0; zElectricMaterial 0;"
        "xMagneticMaterial 0; yMagneticMaterial 0; zMagneticMaterial 0; } }"
        "GridDefinition{ GridOriginInMeters -0.5 0 0; NumberOfCellsInX 3; NumberOfCellsInY 2; NumberOfCellsInZ 1; }"
        "Deltas{ DelX{ 0 0.5; 2 0.25; } DelY{ 0 1; } DelZ{ 0 1; } }"
        "AveragedMaterialBins{ }");

class GeometryToolTest : public ToolTest {
protected:
    void writeGeometryWith(const QString& name, const Replacements& replacements) {
        write(name, changed(geometry, replacements));
    }
};

TEST_F(GeometryToolTest, ShowDescribesTheGridAndTheMaterials) {
    writeGeometryWith("geometry", {{"normal_electric> ", "normal_electric> FR4"}});
    expect("show geometry",
           0,
           "geometry: geometry, file version 3.20\n"
           "  Grid      3 x 2 x 1 cells\n"
           "    x       -500 mm to 750 mm, cells of 250 mm to 500 mm\n"
           "    y       0 m to 2 m, cells of 1 m\n"
           "    z       0 m to 1 m, cells of 1 m\n"
           "  Electric  3 materials\n"
           "    0       ElectricFreeSpace: free space\n"
           "    1       ElectricPerfectConductor: perfect conductor\n"
           "    2       FR4: normal, relative permittivity 4.5, 1 mS/m\n"
           "  Magnetic  2 materials\n"
           "    0       MagneticFreeSpace: free space\n"
           "    1       MagneticPerfectConductor: perfect conductor\n"
           "  Maps      1 material map\n");
}

TEST_F(GeometryToolTest, RewriteSavesAGeometryInItsCanonicalForm) {
    writeGeometryWith("in", {{"2 0.25\n", "1 5e-1\n2 0.25\n"}});
    expect("rewrite in out", 0, "");
    const QByteArray saved = read("out");
    EXPECT_THAT(saved.toStdString(), HasSubstr("begin_<DelX> \n0 0.5\n2 0.25\nend_<DelX>\n"));
    expect("rewrite out again", 0, "");
    EXPECT_EQ(read("again"), saved);
}

TEST_F(GeometryToolTest, CheckPrintsTheFindings) {
    const QVector<QPair<Replacements, std::string>> rows = {
        {{}, "g: no findings\n"},
        {{{"2 0.25\n", "1 0.50\n2 0.25\n"}}, "g: no findings\n"},
        {{{"permittivity 4.5", "permitivity 4.5"}}, "g:15: not kept: permitivity 4.5\ng: 1 line not kept\n"},
        {{{"material_number 2", "material_number 7"}},
         "g:12: not kept: material_number 7, becomes \"material_number 2\"\ng: 1 line not kept\n"},
        {{{"yMagneticMaterial 0", "yMagneticMaterial 2"}},
         "g: error: The material map '' names magnetic material 2, but there are 2, numbered from 0.\ng: 1 error\n"},
        {{{"2 0.25", "2 -1"}}, "g: error: Cell 2 along x has the unusable size -1 m.\ng: 1 error\n"},
    };
    for (const auto& [replacements, out] : rows) {
        writeGeometryWith("g", replacements);
        expect("check g", out == "g: no findings\n" ? 0 : 1, out);
    }
}

TEST_F(GeometryToolTest, CheckNamesComponentsOutsideTheGrid) {
    writeGeometryWith("geometry", {});
    const QString behindBoundaries = "end_<OuterBoundaries>\n";
    const QString feed = expanded(
        "ComponentsPorts{ FeedData{ ComponentName feed; XLocation 4; YLocation 3; ZLocation 2; CellEdgeDirection 2;"
        "FileName None; Source 1; Polarity 1; Resistance 50; Inductance 0; Capacitance 0; Amplitude 1; Phase 0;"
        "Delay 0; Type 1; IsActive ; WaveformIndex 0; TermType InputOutput; Calibration KeepSelfKeepMutual; } }");
    write("run", cleanWith({{behindBoundaries, behindBoundaries + feed}}));
    expect("check run --geometry geometry",
           1,
           testing::AllOf(HasSubstr("run: error: A component is outside the grid, at cell (3, 2, 1): feed"),
                          HasSubstr("geometry: no findings\n")));
}

TEST_F(GeometryToolTest, CheckRefusesGeometriesOfOtherVersionsAndProjectsAsGeometries) {
    writeGeometryWith("old", {{"3.20", "2.20"}});
    write("run", clean.toUtf8());
    expect("check run --geometry old", 2, testing::_, "quarn: old: Unrecognized *.id file format.\n");
    expect("check run --geometry ./run",
           2,
           testing::_,
           HasSubstr("run: not a geometry file: its first line does not name a geometry file"));
}

}  // namespace
}  // namespace quarn::test
