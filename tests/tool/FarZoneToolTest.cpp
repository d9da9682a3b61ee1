#include <QDir>
#include <QDirIterator>
#include <QStandardPaths>
#include <cstring>
#include <map>

#include "results/FarZoneFields.h"
#include "tool/ToolFixture.h"

namespace quarn::test {
namespace {

using testing::HasSubstr;

constexpr double frequency = constants::speedOfLight;
constexpr double lowFrequency = 150e6;

/// A run with steady-state frequencies and an electric dipole of 1 A m along z, in free space or above a PEC plane.
class FarZoneToolTest : public ToolTest {
protected:
    void writeRun(const QString& frequencies = "299792458 high", const QString& requests = QString(),
                  FarZoneBox::Face plane = FarZoneBox::NoFace, double height = 0.9) {
        const ExactRun exactRun(grid(), boundariesWithPlaneAt(plane));
        reference::Sources sources;
        for (const double z : plane == FarZoneBox::NoFace ? std::vector{height} : std::vector{height, -height}) {
            sources.add(std::make_unique<reference::ElectricDipole>(reference::Vector{0.9, 0.9, z},
                                                                    reference::ComplexVector{0, 0, 1.0}));
        }
        const auto writeBox = [&](const QString& name, double at) {
            ASSERT_TRUE(reference::writeBoxFields(folder.filePath(name), exactRun.grid(), exactRun.box(), sources, at));
        };
        writeBox("box", frequency);
        writeBox("low", lowFrequency);
        QString results = requests;
        for (const QString& line : frequencies.split(',', Qt::SkipEmptyParts)) {
            results += "SteadyStateFrequencies{ FrequencyFolder " + line + "; }";
        }
        const QString lowerZ = plane == FarZoneBox::NoFace ? "CPML" : "PEC";
        write("project",
              cleanWith({{"ORBC_PEC", "ORBC_CPML"},
                         {"LowerZ ORBC_PMC", "LowerZ ORBC_" + lowerZ},
                         {"ORBC_PMC", "ORBC_CPML"},
                         {"begin_<RequestResults> \n", "begin_<RequestResults> \n" + expanded(results)}}));
        write("geometry", geometry);
    }

    ToolResult farzone(const QString& words) {
        return run(QStringList{"farzone", "project", "geometry"} + words.split(' ', Qt::SkipEmptyParts));
    }

    void makeFolder(const QString& path) { ASSERT_TRUE(QDir(folder.path()).mkpath(path)); }

    /// The contents of all files by their paths; null for folders.
    std::map<QString, QByteArray> everything() {
        std::map<QString, QByteArray> contents;
        QDirIterator entries(folder.path(), QDir::AllEntries | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            const QString name = QDir(folder.path()).relativeFilePath(entries.next());
            contents[name] = entries.fileInfo().isFile() ? read(name) : QByteArray();
        }
        return contents;
    }

    /// The field at the horizon, j eta k / (4 pi) V along theta, which is proportional to the frequency.
    double horizonField(const QString& table) { return read(table).split('\n')[1 + 4].split(',')[3].toDouble(); }

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

// A short dipole of 1 A m radiates eta k^2 / (12 pi) W, which is 394.5 W here, and has a directivity of 1.5. With cells
// of a twentieth of a wavelength the error is below 0.04 dB.
TEST_F(FarZoneToolTest, WritesTheRequestedPatterns) {
    writeRun("299792458 high",
             "FarZoneRequests{ SteadyState{ OutputFileName sub/first.fz; Angle 1.5707964 0; Angle 0 0; }"
             "SteadyState{ OutputFileName second.fz; Angle 0.5 1; } }");
    const ToolResult result = farzone("box --out results");
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
TEST_F(FarZoneToolTest, AddsTheImageInAConductingPlane) {
    writeRun("299792458 high", QString(), FarZoneBox::ZLower, 0.25);
    EXPECT_EQ(farzone("box --step 30").status, 0);
    const auto table = read("farzone.csv").split('\n');
    EXPECT_EQ(table.size(), 1 + 7 * 12 + 1);
    EXPECT_NEAR(table[1 + 3 * 12].split(',')[3].toDouble(), 2 * 188.4, 2.0);
    EXPECT_THAT(table[1 + 4 * 12].toStdString(), HasSubstr(",0,0,0,0,-inf,"));
}

// The fields are those at the horizon by the name of the table; 0 where the box is for another frequency. 100000008 is
// the float that follows 1e8.
struct NamesRow : NamedRow {
    const char* frequencies;
    const char* arguments;
    std::map<QString, double> fields;
};
class FarZoneNamesTest : public FarZoneToolTest, public testing::WithParamInterface<NamesRow> {};

TEST_P(FarZoneNamesTest, HoldTheFrequencyUnlessItIsTheOnlyOne) {
    writeRun(GetParam().frequencies);
    for (const QString path : {"runs/a", "runs/b"}) makeFolder(path);
    write("runs/a/fields", read("low"));
    write("runs/a/notes", "none");
    write("runs/b/other", read("box"));
    const ToolResult result = farzone(QString("%1 --out results --step 90").arg(GetParam().arguments));
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.status, 0);
    QStringList expected;
    for (const auto& [name, field] : GetParam().fields) {
        expected << name + ".csv" << name + ".uan";
        const double found = horizonField("results/" + name + ".csv");
        EXPECT_TRUE(field == 0.0 || std::abs(found - field) < 0.01 * field) << found;
    }
    EXPECT_EQ(QDir(folder.filePath("results")).entryList(QDir::Files, QDir::Name), expected);
}

const NamesRow names[] = {
    {"OnlyFrequency", "299792458 b", "box", {{"farzone", 188.4}}},
    {"OnlyFrequencyChosen", "299792458 b", "box --frequency 299792458", {{"farzone", 188.4}}},
    {"BothFrequencies", "150e6 a,299792458 b", "low box", {{"farzone-150MHz", 94.2}, {"farzone-299.79245MHz", 188.4}}},
    {"BothFrequenciesInFolders",
     "299792458 b,150e6 a",
     "runs",
     {{"farzone-150MHz", 94.2}, {"farzone-299.79245MHz", 188.4}}},
    {"OneOfTwoFrequencies", "150e6 a,299792458 b", "box --frequency 299792450", {{"farzone-299.79245MHz", 188.4}}},
    {"OneOfTwoFrequenciesInAFolder", "150e6 a,299792458 b", "runs --frequency 150e6", {{"farzone-150MHz", 94.2}}},
    {"NearestFrequency", "1e8 a,100000008 b", "low --frequency 100000008", {{"farzone-100.00001MHz", 0}}},
    {"NeighbouringFrequencies", "1e8 a,100000008 b", "low box", {{"farzone-100.00001MHz", 0}, {"farzone-100MHz", 0}}},
    {"ForcedFrequency", "299792458 b", "low --frequency 150e6 --force", {{"farzone-150MHz", 94.2}}},
    {"ForcedFrequencyOfAProjectWithoutAny", "", "low --frequency 1.5e8 --force", {{"farzone-150MHz", 94.2}}},
};
INSTANTIATE_TEST_SUITE_P(, FarZoneNamesTest, testing::ValuesIn(names), rowName<NamesRow>);

TEST_F(FarZoneToolTest, KeepsTheFilesOfOtherFrequencies) {
    writeRun("299792458 high", "FarZoneRequests{ SteadyState{ OutputFileName cut.fz; Angle 1 1; } }");
    const QString plot = QStandardPaths::findExecutable("gnuplot").isEmpty() ? "" : " --plot cuts.svg";
    for (const char* option : {"box", "box --frequency 2e8 --force", "box --frequency 1e8 --force"}) {
        const auto before = everything();
        EXPECT_EQ(farzone(option + plot).status, 0);
        const auto after = everything();
        EXPECT_EQ(after.size(), before.size() + (plot.isEmpty() ? 2 : 3));
        for (const auto& [name, content] : before) EXPECT_EQ(after.at(name), content) << name.toStdString();
    }
}

TEST_F(FarZoneToolTest, PlotsThePrincipalCuts) {
    if (QStandardPaths::findExecutable("gnuplot").isEmpty()) GTEST_SKIP() << "gnuplot is not installed";
    writeRun("150e6 a,299792458 b");
    EXPECT_THAT(farzone("low box --step 45 --plot plots/cuts.svg").out, HasSubstr("plots/cuts-299.79245MHz.svg"));
    EXPECT_THAT(read("plots/cuts-150MHz.svg").toStdString(), HasSubstr("Directivity in dBi at 150 MHz"));
    EXPECT_THAT(read("plots/cuts-299.79245MHz.svg").toStdString(), HasSubstr("phi = 90°"));
    EXPECT_EQ(farzone("box --frequency 299792458 --step 45 --plot cuts.PNG").status, 0);
    EXPECT_TRUE(read("cuts-299.79245MHz.PNG").startsWith("\x89PNG\r\n"));
}

// The header is followed by 4704 records of 32 bytes for six faces of 28 by 28 cells.
struct RefusalRow : NamedRow {
    const char* frequencies;
    const char* arguments;
    const char* message;
};
class FarZoneRefusalTest : public FarZoneToolTest, public testing::WithParamInterface<RefusalRow> {};

const char* const requestsOfRefusals =
    "FarZoneRequests{ SteadyState{ OutputFileName cut.fz; Angle 1 1; }"
    "SteadyState{ OutputFileName cut-200MHz.fz; Angle 1 1; } }";

TEST_P(FarZoneRefusalTest, HasAMessageAndWritesNothing) {
    writeRun(GetParam().frequencies, requestsOfRefusals);
    const QByteArray box = read("box");
    const float bad[] = {std::numeric_limits<float>::infinity(), 0, std::numeric_limits<float>::quiet_NaN()};
    write("short", box.chopped(1));
    write("long", box + QByteArray(64, '\0'));
    write("nan", QByteArray(box).replace(16 + 4700 * 32, 12, reinterpret_cast<const char*>(bad), 12));
    write("zero", box.left(16) + QByteArray(box.size() - 16, '\0'));
    QByteArray huge = box.left(16);
    const float largest = 3e38F;
    while (huge.size() < box.size()) huge.append(reinterpret_cast<const char*>(&largest), sizeof largest);
    write("huge", huge);
    write("sar", QByteArray(box).replace(12, 1, "\x0d"));
    write("later", QByteArray(box).replace(14, 1, "\1"));
    const QString deep = QString(130, 'd') + '/' + QString(130, 'd');
    for (const QString path : {"runs/one", "runs/two", "runs/none", "runs/cut.uan"}) makeFolder(path);
    makeFolder(deep);
    for (const QString path : {"runs/one/x", "runs/two/x", "runs/two/y"}) write(path, box);
    write("runs/none/notes", "none");
    write("cut.csv", "earlier");
    QFile::link("cut.csv", folder.filePath("linked.svg"));
    QFile::link("nowhere/plot", folder.filePath("dangling.svg"));
    write(deep + "/box", box);

    const auto before = everything();
    const QString arguments = QString(GetParam().arguments).replace("DEEP", deep);
    const QString words = arguments.contains("--out") ? arguments : "--out new/results " + arguments;
    expect("farzone project geometry " + words, 2, "", HasSubstr(GetParam().message));
    EXPECT_TRUE(everything() == before);
}

const RefusalRow refusals[] = {
    {"MissingRecord", "3e8 a", "short", "short: holds 4703 records and 31 bytes of another, but the far-zone box "},
    {"TwoExtraRecords", "3e8 a", "long", "long: holds 4706 records, but the far-zone box of this geometry has 4704 "},
    {"FieldsThatAreNotFinite", "3e8 a", "nan", "nan: holds 2 values that are not finite numbers;"},
    {"ZeroFields", "3e8 a", "zero", "zero: all fields are zero;"},
    {"InfinitePower", "3e8 a", "huge", "huge: the fields give a radiated power of "},
    {"StandardInput", "3e8 a", "-", "-: is not a regular file; a box file is needed"},
    {"FrequencyOffByAHundredHertz", "1e9 a", "box --frequency 1000000100", "1.0000001 GHz is not one of"},
    {"RepeatedOption", "3e8 a", "box --step 5 --step 10", "--step is given more than once."},
    {"LinkIntoAMissingFolder", "3e8 a", "box --plot dangling.svg", "dangling.svg: cannot be written, as "},
    {"LinkedOutputs", "3e8 a", "box --plot linked.svg --out .", "is the same file as linked.svg, another output;"},
    {"ZeroFieldsAtTheLastFrequency", "3e8 a,2e8 b", "box zero", "zero: all fields are zero;"},
    {"BoxFileOfAnotherType", "3e8 a", "sar", "sar: is a SAR plane; a far-zone box file of version 0 is needed"},
    {"BoxFileOfAnotherVersion", "3e8 a", "later", "later: is a result of an unknown type or version, or cut short"},
    {"MissingBoxFile", "3e8 a", "nosuch", "nosuch: No such file"},
    {"LongPath", "3e8 a", "DEEP/box", "set the environment variable KIVEN_LONGPATHSUPPORT"},
    {"AnotherFrequency", "3e8 a,2e8 b", "box --frequency 1e8", "frequencies, which are: 300 MHz, 200 MHz; give one "},
    {"FrequencyOfAProjectWithoutAny", "", "box --frequency 3e8", "frequencies, as it lists none; add --force"},
    {"NoFrequency", "", "box", "project: lists no steady-state frequency; give one with --frequency and --force"},
    {"RepeatedFrequency", "3e8 a,3e8 b", "box box", "project: lists the steady-state frequency 300 MHz twice;"},
    {"FrequencyOfZero", "0 a", "box", "project: lists a steady-state frequency of 0 Hz;"},
    {"TooFewBoxFiles", "3e8 a,2e8 b", "box", "2, in the order of the frequencies (300 MHz, 200 MHz), and not 1."},
    {"TooManyBoxFiles", "3e8 a", "box box", "must be 1, in the order of the frequencies (300 MHz), and not 2."},
    {"FolderAmongBoxFiles", "3e8 a,2e8 b", "box runs", "runs: is not a regular file; a box file is needed"},
    {"FolderWithoutBoxFile", "3e8 none", "runs", "runs/none: holds no far-zone box file for 300 MHz;"},
    {"FolderWithTwoBoxFiles", "3e8 two", "runs", "runs/two: holds several far-zone box files for 300 MHz: x, y;"},
    {"MissingFolder", "3e8 a", "runs", "runs/a: the folder does not exist; the project names it for its"},
    {"FolderOutside", "3e8 x/../../runs", "runs", "runs: the project's folder \"x/../../runs\" for 300 MHz lies "},
    {"FolderForTwoFrequencies", "3e8 one,2e8 one", "runs", "project: names the same folder for two of "},
    {"ForcedFrequencyInAFolder", "3e8 two", "runs --frequency 1e8 --force", "names no folder for 100 MHz; give"},
    {"OutputOfTheOnlyFrequency", "3e8 a", "box --frequency 2e8 --force", "cut-200MHz.uan: is also an output of "},
    {"PlotOfAnotherFormat", "3e8 a", "box --plot cuts.pdf", "--plot needs the name of a file that ends in .svg or "},
    {"StepOfZero", "3e8 a", "box --step 0", "--step needs a number from 0.1 to 90."},
    {"FolderWithinAFile", "3e8 a", "box --out box/new", "box/new/cut.uan: cannot be written, as "},
    {"FolderInPlaceOfAnOutput", "3e8 a", "box --out runs", "runs/cut.uan: is not a file that can be written; "},
    {"CellsLargerThanHalfAWavelength", "3e9 a", "box", "geometry: has a cell of 50 mm on the far-zone box, more than "},
};
INSTANTIATE_TEST_SUITE_P(, FarZoneRefusalTest, testing::ValuesIn(refusals), rowName<RefusalRow>);

TEST_F(FarZoneToolTest, ProjectsCannotOverwriteInputsOrNameFilesWithControlCharacters) {
    const QString request = "FarZoneRequests{ SteadyState{ OutputFileName %1; Angle 0 0; } }";
    writeRun("299792458 high", request.arg("box"));
    const QByteArray box = read("box");
    EXPECT_EQ(farzone("box --out ../" + QDir(folder.path()).dirName()).status, 2);
    EXPECT_EQ(read("box"), box);
    writeRun("299792458 high", request.arg("first\x1b.fz"));
    EXPECT_THAT(farzone("box").err, HasSubstr("the file name \"first\uFFFD.uan\" of a far-zone request has control"));
    write("project", cleanWith({}));
    EXPECT_THAT(farzone("box").err, HasSubstr("quarn: project: there is no far-zone box"));
}

}  // namespace
}  // namespace quarn::test
