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

/// An electric dipole of 1 A m along z, above a PEC plane or in the open, in a run that lists steady-state frequencies.
class FarZoneTool : public Tool {
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

    /// All files by their paths, with null for folders.
    std::map<QString, QByteArray> everything() {
        std::map<QString, QByteArray> contents;
        QDirIterator entries(folder.path(), QDir::AllEntries | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            const QString name = QDir(folder.path()).relativeFilePath(entries.next());
            contents[name] = entries.fileInfo().isFile() ? read(name) : QByteArray();
        }
        return contents;
    }

    /// The field at the horizon, j eta k / (4 pi) V along theta, which tells the frequency.
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

// A short dipole radiates eta k^2 / (12 pi) W at 1 A m, which is 394.5 W here, and has a directivity of 1.5. Cells of a
// twentieth of a wavelength tell that to 0.04 dB.
TEST_F(FarZoneTool, writes_the_patterns_that_the_project_asks_for) {
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
TEST_F(FarZoneTool, closes_the_box_with_the_image_in_a_plane) {
    writeRun("299792458 high", QString(), FarZoneBox::ZLower, 0.25);
    EXPECT_EQ(farzone("box --step 30").status, 0);
    const auto table = read("farzone.csv").split('\n');
    EXPECT_EQ(table.size(), 1 + 7 * 12 + 1);
    EXPECT_NEAR(table[1 + 3 * 12].split(',')[3].toDouble(), 2 * 188.4, 2.0);
    EXPECT_THAT(table[1 + 4 * 12].toStdString(), HasSubstr(",0,0,0,0,-inf,"));
}

// By the name of the table, what the horizon field is to be there; 0 where the box has that of another frequency.
// 100000008 is the float that follows 1e8.
struct NamesRow {
    const char* name;
    const char* frequencies;
    const char* arguments;
    std::map<QString, double> fields;
};
void PrintTo(const NamesRow& row, std::ostream* out) { *out << row.name; }
class FarZoneNames : public FarZoneTool, public testing::WithParamInterface<NamesRow> {};

TEST_P(FarZoneNames, tell_the_frequency_unless_the_project_has_no_other) {
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
    {"of_the_only_frequency", "299792458 b", "box", {{"farzone", 188.4}}},
    {"of_the_only_frequency_picked", "299792458 b", "box --frequency 299792458", {{"farzone", 188.4}}},
    {"of_both", "150e6 a,299792458 b", "low box", {{"farzone-150MHz", 94.2}, {"farzone-299.79245MHz", 188.4}}},
    {"of_both_in_folders", "299792458 b,150e6 a", "runs", {{"farzone-150MHz", 94.2}, {"farzone-299.79245MHz", 188.4}}},
    {"of_one_of_two", "150e6 a,299792458 b", "box --frequency 299792450", {{"farzone-299.79245MHz", 188.4}}},
    {"of_one_of_two_in_a_folder", "150e6 a,299792458 b", "runs --frequency 150e6", {{"farzone-150MHz", 94.2}}},
    {"of_the_nearer", "1e8 a,100000008 b", "low --frequency 100000008", {{"farzone-100.00001MHz", 0}}},
    {"of_neighbours", "1e8 a,100000008 b", "low box", {{"farzone-100.00001MHz", 0}, {"farzone-100MHz", 0}}},
    {"of_another_frequency", "299792458 b", "low --frequency 150e6 --force", {{"farzone-150MHz", 94.2}}},
    {"of_a_project_without_any", "", "low --frequency 1.5e8 --force", {{"farzone-150MHz", 94.2}}},
};
INSTANTIATE_TEST_SUITE_P(, FarZoneNames, testing::ValuesIn(names), rowName<NamesRow>);

TEST_F(FarZoneTool, keeps_what_other_frequencies_gave) {
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

TEST_F(FarZoneTool, plots_the_principal_cuts_in_the_format_of_the_name) {
    if (QStandardPaths::findExecutable("gnuplot").isEmpty()) GTEST_SKIP() << "gnuplot is not installed";
    writeRun("150e6 a,299792458 b");
    EXPECT_THAT(farzone("low box --step 45 --plot plots/cuts.svg").out, HasSubstr("plots/cuts-299.79245MHz.svg"));
    EXPECT_THAT(read("plots/cuts-150MHz.svg").toStdString(), HasSubstr("Directivity in dBi at 150 MHz"));
    EXPECT_THAT(read("plots/cuts-299.79245MHz.svg").toStdString(), HasSubstr("phi = 90°"));
    EXPECT_EQ(farzone("box --frequency 299792458 --step 45 --plot cuts.PNG").status, 0);
    EXPECT_TRUE(read("cuts-299.79245MHz.PNG").startsWith("\x89PNG\r\n"));
}

// Behind the header stand 4704 records of 32 bytes, six faces of 28 by 28 cells.
struct RefusalRow {
    const char* name;
    const char* frequencies;
    const char* arguments;
    const char* message;
};
void PrintTo(const RefusalRow& row, std::ostream* out) { *out << row.name; }
class FarZoneRefusal : public FarZoneTool, public testing::WithParamInterface<RefusalRow> {};

const char* const requestsOfRefusals =
    "FarZoneRequests{ SteadyState{ OutputFileName cut.fz; Angle 1 1; }"
    "SteadyState{ OutputFileName cut-200MHz.fz; Angle 1 1; } }";

TEST_P(FarZoneRefusal, says_why_and_writes_nothing) {
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
    const ToolResult result = farzone(arguments.contains("--out") ? arguments : "--out new/results " + arguments);
    EXPECT_THAT(result.err, HasSubstr(GetParam().message));
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.status, 2);
    EXPECT_TRUE(everything() == before);
}

const RefusalRow refusals[] = {
    {"a_record_less",
     "3e8 a",
     "short",
     "short: holds 4703 records and 31 bytes of another, but the far-zone box of "
     "this geometry has 4704 records;"},
    {"two_records_more", "3e8 a", "long", "long: holds 4706 records, but the far-zone box of this geometry has 4704 "},
    {"no_numbers", "3e8 a", "nan", "nan: holds 2 values that are not finite numbers;"},
    {"no_fields", "3e8 a", "zero", "zero: all fields are zero;"},
    {"no_power", "3e8 a", "huge", "huge: the fields give a radiated power of "},
    {"no_power_of_the_last", "3e8 a,2e8 b", "box huge", "huge: the fields give a radiated power of "},
    {"standard_input", "3e8 a", "-", "-: is not a regular file; a box file is needed"},
    {"a_hundred_hertz_more", "1e9 a", "box --frequency 1000000100", "1.0000001 GHz is not one of"},
    {"an_option_twice", "3e8 a", "box --step 5 --step 10", "--step is given more than once."},
    {"a_link_to_nowhere", "3e8 a", "box --plot dangling.svg", "dangling.svg: cannot be written, as "},
    {"linked_outputs", "3e8 a", "box --plot linked.svg --out .", "is the same file as linked.svg, another output;"},
    {"the_last_of_several", "3e8 a,2e8 b", "box zero", "zero: all fields are zero;"},
    {"another_type", "3e8 a", "sar", "sar: is a SAR plane; a far-zone box file of version 0 is needed"},
    {"another_version",
     "3e8 a",
     "later",
     "later: is a result of an unknown type or version, or cut short in its header; a far-zone box file"},
    {"no_file", "3e8 a", "nosuch", "nosuch: No such file"},
    {"a_long_path", "3e8 a", "DEEP/box", "set the environment variable KIVEN_LONGPATHSUPPORT"},
    {"another_frequency",
     "3e8 a,2e8 b",
     "box --frequency 1e8",
     "project: 100 MHz is not one of its steady-state frequencies, which are: 300 MHz, 200 MHz; give one of them, or "
     "add --force "},
    {"a_millionth_more", "3e8 a", "box --frequency 300000310", "300.00032 MHz is not one of"},
    {"none_listed",
     "",
     "box --frequency 3e8",
     "project: 300 MHz is not one of its steady-state frequencies, as it "
     "lists none; add --force"},
    {"none_at_all", "", "box", "project: lists no steady-state frequency; give one with --frequency and --force"},
    {"one_twice", "3e8 a,3e8 b", "box box", "project: lists the steady-state frequency 300 MHz twice;"},
    {"a_frequency_of_zero", "0 a", "box", "project: lists a steady-state frequency of 0 Hz;"},
    {"a_file_too_few",
     "3e8 a,2e8 b",
     "box",
     "box files must be 2, in the order of the frequencies (300 MHz, 200 MHz)"
     ", and not 1."},
    {"a_file_too_many",
     "3e8 a,2e8 b",
     "box box --frequency 3e8",
     "files must be 1, in the order of the frequencies "
     "(300 MHz), and not 2."},
    {"a_folder_among_files", "3e8 a,2e8 b", "box runs", "runs: is not a regular file; a box file is needed"},
    {"a_folder_without_box_file", "3e8 none", "runs", "runs/none: holds no far-zone box file for 300 MHz;"},
    {"a_folder_with_two", "3e8 two", "runs", "runs/two: holds several far-zone box files for 300 MHz: x, y;"},
    {"a_folder_that_is_missing", "3e8 a", "runs", "runs/a: there is no such folder, in which the project has its"},
    {"a_folder_outside", "3e8 x/../../runs", "runs", "runs: the project's folder \"x/../../runs\" for 300 MHz lies "},
    {"a_folder_for_two_frequencies", "3e8 one,2e8 one", "runs", "project: names the same folder for two of "},
    {"a_forced_frequency_in_a_folder", "3e8 two", "runs --frequency 1e8 --force", "names no folder for 100 MHz; give"},
    {"a_name_taken", "3e8 a", "box --frequency 2e8 --force", "new/results/cut-200MHz.uan: is also an output of "},
    {"a_plot_of_another_kind", "3e8 a", "box --plot cuts.pdf", "--plot needs the name of a file that ends in .svg or "},
    {"a_step_of_zero", "3e8 a", "box --step 0", "--step needs a number from 0.1 to 90."},
    {"a_folder_within_a_file", "3e8 a", "box --out box/new", "box/new/cut.uan: cannot be written, as "},
    {"a_folder_in_place_of_an_output", "3e8 a", "box --out runs", "runs/cut.uan: is not a file that can be written; "},
    {"waves_that_the_cells_cannot_carry",
     "3e9 a",
     "box",
     "geometry: has a cell of 50 mm on the far-zone box, more than half the wavelength of 99.9308 mm;"},
};
INSTANTIATE_TEST_SUITE_P(, FarZoneRefusal, testing::ValuesIn(refusals), rowName<RefusalRow>);

TEST_F(FarZoneTool, does_not_write_where_a_project_must_not_choose) {
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
