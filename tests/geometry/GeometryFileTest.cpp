#include "quarn/GeometryFile.h"

#include <gmock/gmock.h>

#include <memory>
#include <tuple>

#include "geometry/GeometrySupport.h"
#include "quarn/ConformalDielectricManager.h"
#include "quarn/ElectricDispersiveMaterials.h"
#include "quarn/ElectricMaterials.h"
#include "quarn/MagneticMaterials.h"

namespace quarn::test {
namespace {

// The x cells of sizes 1, 1, 2, 2, 1 are three runs.
const QString grid5x2x1 =
    "begin_<GridDefinition> \nGridOriginInMeters 0.10000000149011612 -2 3\nNumberOfCellsInX 5\nNumberOfCellsInY 2\n"
    "NumberOfCellsInZ 1\nend_<GridDefinition>\n"
    "begin_<Deltas> \nbegin_<DelX> \n0 1\n2 2\n4 1\nend_<DelX>\nbegin_<DelY> \n0 0.10000000149011612\nend_<DelY>\n"
    "begin_<DelZ> \n0 0.5\nend_<DelZ>\nend_<Deltas>\n";
const QString maps =
    "begin_<materialMaps> \nbegin_<materialMap> body  \nmaterialNumber 0\nxElectricMaterial 1\nyElectricMaterial 2\n"
    "zElectricMaterial 3\nxMagneticMaterial 4\nyMagneticMaterial 5\nzMagneticMaterial -6\nend_<materialMap>\n"
    "end_<materialMaps>\n";
const QString wire = "begin_<thin_wire> Größe \"7\" > 6\nmaterial_number 2\nradius 5\nend_<thin_wire>\n";
const QString wholeFile =
    withMaterials(wire) + maps + grid5x2x1 + "begin_<AveragedMaterialBins> \nend_<AveragedMaterialBins>\n";

TEST(GeometryFile, LoadAndSaveReproduceTheFile) {
    onBothStreams(wholeFile, [](QTextStream& stream) {
        v6GeometryFile file;
        Grid grid;
        QStringList errors;
        ASSERT_TRUE(loadText(file, wholeFile)) << "the second load replaces the first";
        ASSERT_TRUE(file.loadFromStream(stream, &grid, errors));
        EXPECT_EQ(errors, QStringList());
        EXPECT_EQ(file.GetMajorFileVersionNumber(), 3);
        EXPECT_EQ(file.GetMinorFileVersionNumber(), 20);
        EXPECT_EQ(file.getElectricMaterials().at(2)->getName(), "Größe \"7\" > 6");
        EXPECT_EQ(*file.getMaterialMappings().at(0), MaterialMap("body  ", 1, 2, 3, 4, 5, -6));
        EXPECT_EQ(grid.getUserXElectricDelta(3), 2.0F);
        EXPECT_EQ(grid.getUserXUpperBound(), 0.10000000149011612 + 6);
        EXPECT_EQ(savedText(file, grid), wholeFile);
    });
}

struct Reading {
    const char* name;
    QString text;
    QString equivalent;
};

void PrintTo(const Reading& row, std::ostream* out) { *out << row.name; }

class GeometryReading : public testing::TestWithParam<Reading> {};

// Both texts are blocks of a geometry file.
TEST_P(GeometryReading, GivesTheSameFileAsTheEquivalentText) {
    const auto canonical = [](const QString& blocks) {
        v6GeometryFile file;
        Grid grid;
        EXPECT_TRUE(loadText(file, fileStart + blocks, &grid));
        return savedText(file, grid);
    };
    EXPECT_EQ(canonical(GetParam().text), canonical(GetParam().equivalent));
}

const QString cells3x1x1 = "GridDefinition{ NumberOfCellsInX 3; NumberOfCellsInY 1; NumberOfCellsInZ 1; }";

// clang-format off
const Reading readings[] = {
    {"BlocksInAnyOrder", grid5x2x1 + maps, maps + grid5x2x1},
    {"UnknownBlocks", expanded("Unheard{ x 1; Deltas{ y; } }") + maps + expanded("Unheard{}"), maps},
    {"LinesBetweenBlocks", "stray words\n\nend_<materials>\n" + maps + "stray", maps},
    {"OtherGridKeys", expanded("GridDefinition{ OffsetX a; TargetSizeOfGridInMeters a b c; BaseCellSize 1 2 3; NumberOfCellsInY +2;"
              "GridOriginInMeters 1 2 3; NumberOfCellsInX 1; Unheard NumberOfCellsInX 9; }"),
     expanded("GridDefinition{ GridOriginInMeters 1 2 3; NumberOfCellsInX 1; NumberOfCellsInY 2; }")},
    {"IgnoredValuesMayBeAnything", expanded("GridDefinition{ BaseCellSize a b c; OffsetX ; NumberOfCellsInX 1; TargetSizeOfGridInMeters 1;"
              "BaseCellSize 1 x 3 NumberOfCellsInY 2; }"),
     expanded("GridDefinition{ NumberOfCellsInX 1; NumberOfCellsInY 2; }")},
    {"OriginIsSinglePrecision", expanded("GridDefinition{ GridOriginInMeters 0.1 0 0; }"),
     expanded("GridDefinition{ GridOriginInMeters 0.10000000149011612 0 0; }")},
    {"AdaptiveGridUsesItsFirstBlock", expanded("AdaptiveGridDefinition{ word; Any{ NumberOfCellsInX 2; } GridDefinition{ NumberOfCellsInX 7; } }") +
         maps,
     expanded("GridDefinition{ NumberOfCellsInX 2; }") + maps},
    {"OtherBlocksAmongTheDeltas", expanded(cells3x1x1 + "Deltas{ DelZ{ 0 3; } Unheard{ 0 9; } DelX{ 0 1; +1 2; } }"),
     expanded(cells3x1x1 + "Deltas{ DelX{ 0 1; 1 2; } DelY{} DelZ{ 0 3; } }")},
    {"NumberOfAMapIsItsPosition", expanded("materialMaps{ materialMap{ zMagneticMaterial 1; unheard 3; materialNumber 5; } }"),
     expanded("materialMaps{ materialMap{ materialNumber 0; zMagneticMaterial 1; } }")},
    {"BuiltInMaterialsHaveFixedNames", expanded("materials{ electricfreespace{ conductivity 5; } }"),
     "begin_<materials> \nend_<materials>\n"},
    {"ObsoleteKindsAreIgnored", expanded("materials{ frequency_dependent{ debye{ } } thin_wire{ radius 1; } }"),
     expanded("materials{ thin_wire{ radius 1; } }")},
    {"SecondBlockOfMaterials", expanded("materials{ thin_wire{ radius 1; } } materials{ thin_wire{ radius 2; } }"),
     expanded("materials{ thin_wire{ radius 1; } thin_wire{ radius 2; } }")},
    {"BothLossTangentAndImaginaryPart", expanded("materials{ normal_magnetic{ UseComplex ; Imaginary 3; UseLossTangent ; LossTangent 2; } }"),
     expanded("materials{ normal_magnetic{ UseLossTangent ; LossTangent 2; } }")},
    {"DensityAloneCreatesPhysicalParameters", expanded("materials{ normal_electric{ density 2; } }"),
     expanded("materials{ normal_electric{ density 2; TemperatureRiseMaterialParameters{} } }")},
    {"LastBlockOfPhysicalParametersCounts",
     expanded("materials{ normal_electric{ TemperatureRiseMaterialParameters{ heat_capacity 1; } density 2;"
              "TemperatureRiseMaterialParameters{ metabolic_heat 3; } } }"),
     expanded("materials{ normal_electric{ density 2; TemperatureRiseMaterialParameters{ metabolic_heat 3; } } }")},
    {"OnlyPolesThatTheMaterialHas",
     expanded("materials{ electric3poledebye{ relaxationTime 9; relaxationTime0 9; relaxationTime4 9;"
              "relaxationTime11 9; relaxationTime2 1; } }"),
     expanded("materials{ electric3poledebye{ relaxationTime2 1; } }")},
    {"TruncatedFile", maps + "begin_<Deltas> \nbegin_<DelX> \n0 1\n", maps},
};
// clang-format on
INSTANTIATE_TEST_SUITE_P(, GeometryReading, testing::ValuesIn(readings), rowName<Reading>);

TEST(GeometryFile, WritesARunOfNaNsOnce) {
    Grid grid;
    ASSERT_TRUE(grid.initialize(3, 0, 0, 0, 0, 0, {{0, std::nanf("")}}, {}, {}, false));
    EXPECT_EQ(savedText(v6GeometryFile(), grid).count("nan"), 1);
}

TEST(GeometryFile, SkipsTheExtraHeaderIntegerOnlyAfterAOne) {
    const QString header = versionLine + "mesh 1 -2 3 1.5 2e3 nan -1 0 .5 a b c d e f ";
    v6GeometryFile file;
    ASSERT_TRUE(loadText(file, header + "1 begin_<Unheard>\n" + maps));
    EXPECT_EQ(file.getMaterialMappings().size(), 1U);
    ASSERT_TRUE(loadText(file, header + "2 " + maps));
    EXPECT_EQ(file.getMaterialMappings().size(), 1U);
}

TEST(GeometryFile, VersionDecidesWhetherTheFileIsRead) {
    const std::tuple<const char*, int, int, bool> rows[] = {{"Geometry file version 3.20", 3, 20, true},
                                                            {" geometryFILE  ver sion3 . 7", 3, 7, true},
                                                            {"Geometry file version 4.19", 4, 19, true},
                                                            {"Geometry file version 2.20", 2, 20, false},
                                                            {"Geometry file version 3", 3, 0, true},
                                                            {"Geometry file version", -1, 0, false},
                                                            {"Geometry file version 1e30", 0, 0, false},
                                                            {"mesh_defined", 0, 0, false}};
    for (const auto& [line, major, minor, isAccepted] : rows) {
        SCOPED_TRACE(line);
        v6GeometryFile file;
        QStringList errors;
        EXPECT_EQ(loadText(file, QString(line) + "\nmesh_defined\n", nullptr, &errors), isAccepted);
        EXPECT_EQ(errors, isAccepted ? QStringList() : QStringList("Unrecognized *.id file format."));
        EXPECT_EQ(file.GetMajorFileVersionNumber(), major);
        EXPECT_EQ(file.GetMinorFileVersionNumber(), minor);
    }
}

struct Refusal {
    const char* name;
    QString text;
    const char* error;
};

void PrintTo(const Refusal& row, std::ostream* out) { *out << row.name; }

class RefusedGeometry : public testing::TestWithParam<Refusal> {};

TEST_P(RefusedGeometry, LeavesFileAndGridUnchanged) {
    v6GeometryFile file;
    Grid grid;
    ASSERT_TRUE(loadText(file, wholeFile, &grid));
    const Material* material = file.getElectricMaterials()[2];
    for (Grid* wanted : {&grid, static_cast<Grid*>(nullptr)}) {
        QStringList errors;
        EXPECT_FALSE(loadText(file, GetParam().text, wanted, &errors));
        EXPECT_EQ(errors, QStringList(GetParam().error));
    }
    EXPECT_EQ(file.getElectricMaterials()[2], material);
    EXPECT_EQ(savedText(file, grid), wholeFile);
}

Refusal block(const char* name, const char* shortForm, const char* error) {
    return {name,
            withMaterials("begin_<normal_electric> x\ndensity 1\nend_<normal_electric>\n") + expanded(shortForm),
            error};
}

const Refusal refusals[] = {
    {"UndefinedMesh", versionLine + "mesh_undefined\n" + maps, "The mesh is undefined."},
    {"UnreadableMaterial",
     withMaterials("begin_<normal_electric> x\ndensity 1\nconductivity abc\nend_<normal_electric>\n"),
     "Error loading materials."},
    block("UnreadableSample", "materials{ magnetic_sampled{ SampledParameters{ frequency x; } } }",
          "Error loading materials."),
    block("UnreadableThermalValue",
          "materials{ normal_electric{ TemperatureRiseMaterialParameters{ heat_capacity x; } } }",
          "Error loading materials."),
    block("TensorTooShort", "materials{ anisotropic{ conductivity ; 1 2 3 ; permittivity ; } }",
          "Error loading materials."),
    block("UnreadableMap", "materialMaps{ materialMap{ xElectricMaterial x; } }", "Error loading material mappings."),
    block("UnreadableDeltas", "Deltas{ DelY{ 0 1; x 2; } }", "Error loading deltas."),
    block("UnreadableOrigin", "GridDefinition{ GridOriginInMeters 1 x 3; }", "Error loading grid definition."),
    block("UnreadableAdaptiveGrid", "AdaptiveGridDefinition{ Inner{ NumberOfCellsInX x; } }",
          "Error loading grid definition."),
    block("HugeCount", "GridDefinition{ NumberOfCellsInX 4000000000; }", "Error initializing the grid."),
    block("CountThatWouldOverflow", "GridDefinition{ NumberOfCellsInY 4294967297; }", "Error initializing the grid."),
    block("NegativeCount", "GridDefinition{ NumberOfCellsInZ -1; }", "Error initializing the grid."),
};
INSTANTIATE_TEST_SUITE_P(, RefusedGeometry, testing::ValuesIn(refusals), rowName<Refusal>);

TEST(GeometryFile, IsNotSavedWithNullPointers) {
    v6GeometryFile nullMaterial, nullMap;
    nullMaterial.setMagneticMaterials({nullptr});
    nullMap.setMaterialMappings({nullptr});
    for (const v6GeometryFile* file : {&nullMaterial, &nullMap}) {
        QString text;
        QTextStream stream(&text, QIODevice::WriteOnly);
        EXPECT_FALSE(file->saveToStream(Grid(), stream));
        EXPECT_EQ(text, "");
    }
}

TEST(GeometryFile, CopiesAreDeep) {
    v6GeometryFile file;
    const QString text = withMaterials(expanded("normal_electric{ density 3; } electric_sampled{ SampledParameters{ "
                                                "frequency 1; conductivity 2; permittivity 3; } }")) +
                         maps;
    ASSERT_TRUE(loadText(file, text));
    ConformalDielectricManager manager;
    file.setConformDielectricManager(&manager);
    const QString before = savedText(file);
    v6GeometryFile assigned;
    ASSERT_TRUE(loadText(assigned, text));
    {
        const v6GeometryFile copy(file);
        assigned = copy;
        EXPECT_NE(copy.getElectricMaterials()[2], file.getElectricMaterials()[2]);
        EXPECT_NE(copy.getElectricMaterials()[2]->getPhysicalParameters(),
                  file.getElectricMaterials()[2]->getPhysicalParameters());
        EXPECT_NE(copy.getMaterialMappings()[0], file.getMaterialMappings()[0]);
        EXPECT_EQ(copy.getConformalDielectricManager(), &manager);
    }
    file.setElectricMaterials({});
    file.setMaterialMappings({});
    EXPECT_EQ(savedText(assigned), before);
}

TEST(GeometryFile, PhysicalParametersOutliveTheirFile) {
    const QString text = withMaterials(expanded("normal_electric{ density 3; }"));
    auto file = std::make_unique<v6GeometryFile>();
    ASSERT_TRUE(loadText(*file, text));
    const auto normalIn = [](const GeometryFile& f) {
        return dynamic_cast<ElectricNormal*>(f.getElectricMaterials()[2]);
    };
    const ElectricNormal fromLoad = *normalIn(*file);
    const ElectricNormal fromCopy = *normalIn(v6GeometryFile(*file));
    ElectricNormal replaced = fromLoad;
    const PhysicalParameters* const loaded = replaced.getPhysicalParameters();
    const PhysicalParameters own(1, 2, 3, 4, 5);
    replaced.addPhysicalParameters(&own);
    const std::unique_ptr<PhysicalParameters> added(replaced.getPhysicalParameters());
    v6GeometryFile second;
    second.setElectricMaterials({new ElectricNormal(fromLoad), new ElectricNormal(replaced)});
    std::unique_ptr<GeometryFile>(std::move(file)).reset();
    EXPECT_EQ(fromLoad.getPhysicalParameters()->getDensity(), 3.0F);
    EXPECT_EQ(fromCopy.getPhysicalParameters()->getDensity(), 3.0F);
    EXPECT_EQ(*second.getElectricMaterials()[1]->getPhysicalParameters(), own);
    second.setElectricMaterials({});
    EXPECT_EQ(*loaded, *fromLoad.getPhysicalParameters()) << "the parameters stored before are not deleted";
}

class CountedWire : public ElectricThinWire {
public:
    explicit CountedWire(int& living) : ElectricThinWire("counted", 1), m_living(living) { ++m_living; }
    ~CountedWire() override { --m_living; }

private:
    int& m_living;
};

TEST(GeometryFile, DeletesObjectsThatAreNoLongerListed) {
    int living = 0;
    {
        GeometryFile file;
        auto* kept = new CountedWire(living);
        auto* shared = new CountedWire(living);
        file.setElectricMaterials({kept, kept, new CountedWire(living), shared});
        file.setMagneticMaterials({shared});
        file.setElectricMaterials(file.getElectricMaterials());
        EXPECT_EQ(living, 3) << "setting the same list deletes nothing";
        file.setElectricMaterials({kept});
        EXPECT_EQ(living, 2);
        EXPECT_EQ(file.getMagneticMaterials()[0]->getName(), "counted") << "still listed here";
    }
    EXPECT_EQ(living, 0);
}

}  // namespace
}  // namespace quarn::test
