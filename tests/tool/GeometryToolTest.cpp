#include "tool/ToolFixture.h"

namespace quarn::test {
namespace {

using testing::HasSubstr;

// As it is saved. The line of "mesh_defined" is 3, that of "begin_<materials> " 9.
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

class GeometryTool : public Tool {
protected:
    void writeGeometryWith(const QString& name, const Replacements& replacements) {
        QString text = geometry;
        for (const auto& [from, to] : replacements) {
            ASSERT_TRUE(text.contains(from)) << from.toStdString();
            text.replace(from, to);
        }
        write(name, text.toUtf8());
    }
};

TEST_F(GeometryTool, show_tells_the_extent_of_the_grid_and_the_materials) {
    writeGeometryWith("geometry", {{"normal_electric> ", "normal_electric> FR4"}});
    EXPECT_EQ(run({"show", "geometry"}).out,
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

TEST_F(GeometryTool, rewrite_gives_a_geometry_its_canonical_form) {
    writeGeometryWith("in", {{"2 0.25\n", "1 5e-1\n2 0.25\n"}});
    EXPECT_EQ(run({"rewrite", "in", "out"}).status, 0);
    const QByteArray saved = read("out");
    EXPECT_THAT(saved.toStdString(), HasSubstr("begin_<DelX> \n0 0.5\n2 0.25\nend_<DelX>\n"));
    EXPECT_EQ(run({"rewrite", "out", "again"}).status, 0);
    EXPECT_EQ(read("again"), saved);
}

struct GeometryCheck {
    const char* name;
    Replacements replacements;
    std::string out;
    friend void PrintTo(const GeometryCheck& row, std::ostream* out) { *out << row.name; }
};

class GeometryChecks : public GeometryTool, public testing::WithParamInterface<GeometryCheck> {};

TEST_P(GeometryChecks, says) {
    writeGeometryWith("g", GetParam().replacements);
    const ToolResult result = run({"check", "g"});
    EXPECT_EQ(result.out, GetParam().out);
    EXPECT_EQ(result.status, GetParam().out == "g: no findings\n" ? 0 : 1);
}

const GeometryCheck geometryChecks[] = {
    {"nothing_of_a_saved_file", {}, "g: no findings\n"},
    {"nothing_of_sizes_that_repeat", {{"2 0.25\n", "1 0.50\n2 0.25\n"}}, "g: no findings\n"},
    {"that_a_key_is_misspelt",
     {{"permittivity 4.5", "permitivity 4.5"}},
     "g:15: not kept: permitivity 4.5\ng: 1 line not kept\n"},
    {"that_a_material_is_numbered_out_of_order",
     {{"material_number 2", "material_number 7"}},
     "g:12: not kept: material_number 7, becomes \"material_number 2\"\ng: 1 line not kept\n"},
    {"that_a_map_names_a_missing_material",
     {{"yMagneticMaterial 0", "yMagneticMaterial 2"}},
     "g: error: The material map '' names magnetic material 2, but there are 2, numbered from 0.\ng: 1 error\n"},
    {"that_a_cell_has_no_size",
     {{"2 0.25", "2 -1"}},
     "g: error: Cell 2 along x has the unusable size -1 m.\ng: 1 error\n"},
};
INSTANTIATE_TEST_SUITE_P(, GeometryChecks, testing::ValuesIn(geometryChecks), rowName<GeometryCheck>);

TEST_F(GeometryTool, check_looks_for_components_outside_the_grid) {
    writeGeometryWith("geometry", {});
    const QString behindBoundaries = "end_<OuterBoundaries>\n";
    const QString feed = expanded(
        "ComponentsPorts{ FeedData{ ComponentName feed; XLocation 4; YLocation 3; ZLocation 2; CellEdgeDirection 2;"
        "FileName None; Source 1; Polarity 1; Resistance 50; Inductance 0; Capacitance 0; Amplitude 1; Phase 0;"
        "Delay 0; Type 1; IsActive ; WaveformIndex 0; TermType InputOutput; Calibration KeepSelfKeepMutual; } }");
    write("run", cleanWith({{behindBoundaries, behindBoundaries + feed}}));
    const ToolResult result = run({"check", "run", "--geometry", "geometry"});
    EXPECT_THAT(result.out, HasSubstr("run: error: A component is outside the grid, at cell (3, 2, 1): feed"));
    EXPECT_THAT(result.out, HasSubstr("geometry: no findings\n"));
    EXPECT_EQ(result.status, 1);
}

TEST_F(GeometryTool, check_refuses_a_geometry_of_another_version_and_a_project_as_one) {
    writeGeometryWith("old", {{"3.20", "2.20"}});
    write("run", clean.toUtf8());
    EXPECT_EQ(run({"check", "run", "--geometry", "old"}).err, "quarn: old: Unrecognized *.id file format.\n");
    const ToolResult result = run({"check", "run", "--geometry", folder.filePath("run")});
    EXPECT_THAT(result.err, HasSubstr("run: not a geometry file: its first line does not name a geometry file"));
    EXPECT_EQ(result.status, 2);
}

}  // namespace
}  // namespace quarn::test
