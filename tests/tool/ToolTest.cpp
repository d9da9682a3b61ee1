#include <fcntl.h>

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <filesystem>

#include "Faults.h"
#include "quarn/Version.h"
#include "tool/ToolFixture.h"

namespace quarn::test {
namespace {

using testing::AllOf;
using testing::HasSubstr;

struct CheckRow : NamedRow {
    Replacements replacements;
    QStringList output = {"run: no findings"};
};

class CheckToolTest : public ToolTest, public testing::WithParamInterface<CheckRow> {};

TEST_P(CheckToolTest, PrintsTheFindings) {
    write("run", cleanWith(GetParam().replacements));
    const int status = GetParam().output == QStringList("run: no findings") ? 0 : 1;
    expect("check run", status, GetParam().output.join("\n").toStdString() + "\n");
}

const CheckRow checkRows[] = {
    {"SavedProjectHasNoFindings", {}},
    {"LinesMayMoveWithinTheirBlock",
     {{"LowerX ORBC_CPML\n", ""}, {"NumberOfPMLLayers 8\n", "NumberOfPMLLayers 8\nLowerX ORBC_CPML\n"}}},
    {"NumbersMayBeSpelledDifferently",
     {{"Steps 1000\n", "Steps 0x3e8\n"},
      {"Seconds 0\n", "Seconds 000\n"},
      {"Conversion 1\n", "Conversion 1.0\n"},
      {"Conversion 0.001", "Conversion 1E-3"},
      {"Amplitude 1\n", "Amplitude +1.\n"},
      {"Theta 0\n", "Theta 1e-14\n"},
      {"Phi 45\n", "Phi 045\n"},
      {"frequency 1000000000", "frequency 16777217"}}},
    {"BoundaryMayHaveItsOldName", {{"LowerX ORBC_CPML", "LowerX ORBC_PML"}}},
    {"BlankLinesIndentationAndLineEndsDoNotMatter", {{"\n", "  \r\n \t\r\n\t"}}},
    {"LineMayHoldTwoEntries", {{"ORBC_CPML\nUpperX", "ORBC_CPML UpperX"}}},
    {"VersionMayBeOlder", {{"Version 8", "FDTD file version 3.28"}}},
    {"FirstLineWithoutVersionIsNotKept",
     {{"Version 8", "begin_<Units> "}},
     {"run:1: not kept: begin_<Units>", "run: 1 line not kept"}},
    {"MisspeltKeyIsNotKept",
     {{"frequency 1000000000", "Frequnecy 1e9"}},
     {"run: warning: The frequency must be greater than 0 (currently 0)",
      "run:38: not kept: Frequnecy 1e9",
      "run: 1 warning, 1 line not kept"}},
    {"ChangedValueIsPrinted",
     {{"LowerX ORBC_CPML", "LowerX ORBC_OPEN"}, {"Name m\n", "Name km\n"}},
     {R"(run:9: not kept: Name km, becomes "Name m")",
      R"(run:15: not kept: LowerX ORBC_OPEN, becomes "LowerX ORBC_CPML")",
      "run: 2 lines not kept"}},
    {"IntegerOutOfRangeIsNotKept",
     {{"Steps 1000\n", "Steps 4294967297\n"}},
     {R"(run:24: not kept: MaximumTimeSteps 4294967297, becomes "MaximumTimeSteps 1")", "run: 1 line not kept"}},
    {"RealOutOfRangeIsNotKept",
     {{"Amplitude 1\n", "Amplitude 1e39\n"}},
     {R"(run:29: not kept: Amplitude 1e39, becomes "Amplitude inf")", "run: 1 line not kept"}},
    {"UnknownBlockIsNotKept",
     {{"begin_<RequestResults> \n", "begin_<RequestResults> \nbegin_<Sensors> \n kind 3\nend_<Sensors>\n"}},
     {"run:43: not kept: begin_<Sensors>",
      "run:44: not kept: kind 3",
      "run:45: not kept: end_<Sensors>",
      "run: 3 lines not kept"}},
    {"SecondTimestepSettingIsNotKept",
     {{"end_<RunParameters>", "UseTimestep 1e-12\nUseUsersCFL 0.5\nend_<RunParameters>"}},
     {"run:42: not kept: UseUsersCFL 0.5", "run: 1 line not kept"}},
    {"EqualSamplesAreCounted",
     {{"Steps 1000", "Steps 1"},
      {"begin_<Sinusoid> \nfrequency 1000000000\nend_<Sinusoid>\n",
       expanded("UserDefined{ Source{ 0; 0.5; 0; 0; } Derivative{ 0 1; } }")}},
     {"run: error: The user defined waveform is incorrectly specified.",
      "run:41: not kept: 0",
      "run:42: not kept: 0",
      "run: 1 error, 2 lines not kept"}},
    {"MissingBoundariesAreAnError",
     {{"OuterBoundaries", "Boundaries"}},
     {"run: error: Boundary conditions have not been specified.",
      "run:14: not kept: begin_<Boundaries>",
      "run:15: not kept: LowerX ORBC_CPML",
      "run:16: not kept: UpperX ORBC_CPML",
      "run:17: not kept: LowerY ORBC_PEC",
      "run:18: not kept: UpperY ORBC_PEC",
      "run:19: not kept: LowerZ ORBC_PMC",
      "run:20: not kept: UpperZ ORBC_PMC",
      "run:21: not kept: NumberOfPMLLayers 8",
      "run:22: not kept: end_<Boundaries>",
      "run: 1 error, 9 lines not kept"}},
    {"TruncatedFileLeavesBlocksOpen",
     {{clean.mid(clean.indexOf("IncidentTheta")), ""}},
     {"run: error: No excitation has been specified.",
      "run:27: not kept: begin_<SourceType>",
      "run:28: not kept: begin_<ScatteredFieldPlaneWave>",
      "run:29: not kept: Amplitude 1",
      "run:2: block <FDTDProject> is not closed",
      "run:13: block <RunParameters> is not closed",
      "run:27: block <SourceType> is not closed",
      "run:28: block <ScatteredFieldPlaneWave> is not closed",
      "run: 1 error, 3 lines not kept, 4 blocks not closed"}},
};
INSTANTIATE_TEST_SUITE_P(, CheckToolTest, testing::ValuesIn(checkRows), rowName<CheckRow>);

TEST_F(ToolTest, CheckReturnsTheWorstStatusOfAllFiles) {
    write("good", clean.toUtf8());
    expect("check missing good", 2, "good: no findings\n", "quarn: missing: No such file or directory\n");
}

TEST_F(ToolTest, CheckPrintsJson) {
    write("run", cleanWith({{"Name m\n", "Name km\nSize 3\n"}}));
    const ToolResult result = run({"check", "--json", "run", "missing"});
    const QJsonArray files = QJsonDocument::fromJson(QByteArray::fromStdString(result.out)).array();
    const QJsonObject renamed{{"line", 9}, {"text", "Name km"}, {"becomes", "Name m"}};
    const QJsonObject unknown{{"line", 10}, {"text", "Size 3"}};
    const QJsonObject first{{"file", "run"},
                            {"circuit", QJsonArray()},
                            {"errors", QJsonArray()},
                            {"warnings", QJsonArray()},
                            {"notKept", QJsonArray{renamed, unknown}},
                            {"unclosed", QJsonArray()}};
    const QJsonObject second{{"file", "missing"}, {"unusable", "No such file or directory"}};
    EXPECT_EQ(files, (QJsonArray{first, second})) << result.out;
    EXPECT_EQ(result.status, 2);
}

TEST_F(ToolTest, FilesThatAreNotProjectsAreRefusedAndAnEarlierOutputStays) {
    const std::string notAProject = "not a project file: it has no FDTDProject or FEMProject block";
    const QVector<QPair<QByteArray, std::string>> rows = {
        {"", notAProject},
        {"Version 8\nbegin_<Something> \nend_<Something>\n", notAProject},
        {QByteArray::fromHex("00ff8090feff000a1b5b"), notAProject},
        {"Version 9\nbegin_<FDTDProject> \nend_<FDTDProject>\n", "This project file version is unsupported."},
    };
    write("out", "earlier");
    for (const auto& [content, message] : rows) {
        write("in", content);
        for (const QString command : {"check in", "rewrite in out"}) {
            expect(command, 2, "", "quarn: in: " + message + "\n");
        }
    }
    EXPECT_EQ(read("out"), "earlier");
}

TEST_F(ToolTest, RewriteFailsOnAFullDiskAndAnEarlierOutputStays) {
    write("in", clean.toUtf8());
    write("out", "earlier");
    const ToolResult result = [this] {
        const FullDisk disk;
        return run({"rewrite", "in", "out"});
    }();
    EXPECT_EQ(result.err, "quarn: out: cannot be written\n");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(read("out"), "earlier");
}

TEST_F(ToolTest, RewriteWritesIntoAPipe) {
    write("in", clean.toUtf8());
    const QByteArray path = folder.filePath("pipe").toUtf8();
    ASSERT_EQ(mkfifo(path.constData(), S_IRUSR | S_IWUSR), 0);
    const int pipe = open(path.constData(), O_RDWR | O_NONBLOCK);
    EXPECT_EQ(run({"rewrite", "in", "pipe"}).status, 0);
    QByteArray written(2 * clean.size(), '\0');
    written.resize(static_cast<int>(std::max<ssize_t>(::read(pipe, written.data(), written.size()), 0)));
    close(pipe);
    EXPECT_EQ(written, clean.toUtf8());
}

TEST_F(ToolTest, EmptyFileNamesAreRefused) {
    write("in", clean.toUtf8());
    for (const QString command : {"show ", "check in --geometry ", "rewrite in ", "export "}) {
        expect(command, 2, testing::_, "quarn: : the file name is empty\n");
    }
}

TEST_F(ToolTest, RewriteReportsProjectsThatCannotBeSavedAndWritesNothing) {
    write("in", "Version 8\nbegin_<FDTDProject> \nend_<FDTDProject>\n");
    expect("rewrite in out", 2, "", HasSubstr("quarn: in: quarn::v6ProjectFile::StreamOutBoundaryConditions: "));
    EXPECT_FALSE(QFile::exists(folder.filePath("out")));
    EXPECT_EQ(run({"rewrite", "in", "no/such/folder/out"}).status, 2);
}

TEST_F(ToolTest, RewriteRemovesLinesFromItsInputOnlyWithForce) {
    const QByteArray lossy = cleanWith({{"NumberOfPMLLayers 8\n", "Unknown 3\nNumberOfPMLLayers 0x8\n"}});
    const std::string loss = "quarn: run:21: not kept: Unknown 3\nquarn: run: 1 line not kept\n";
    const auto at = [this](const char* name) { return folder.filePath(name).toStdString(); };
    std::filesystem::create_directory(at("sub"));
    std::filesystem::create_symlink("run", at("link"));
    for (const QString out : {"run", "./sub/../run", "link", "second"}) {
        write("run", lossy);
        std::filesystem::remove(at("second"));
        std::filesystem::create_hard_link(at("run"), at("second"));
        expect("rewrite run " + out, 2, "", AllOf(testing::StartsWith(loss), HasSubstr("--force")));
        EXPECT_EQ(read("run"), lossy);
        expect("rewrite --force run " + out, 1, "", loss);
        EXPECT_EQ(read(out), clean.toUtf8());
    }
}

TEST_F(ToolTest, RewritePrintsTheLinesThatItDoesNotKeep) {
    const QString layers = "NumberOfPMLLayers 8\n";
    const QVector<QPair<QByteArray, std::string>> rows = {
        {cleanWith({{layers, "a 1\nb 2\nc 3\nd 4\ne 5\nf 6\n" + layers}}),
         "quarn: run:21: not kept: a 1\nquarn: run:22: not kept: b 2\nquarn: run:23: not kept: c 3\n"
         "quarn: run:24: not kept: d 4\nquarn: run:25: not kept: e 5\n"
         "quarn: run: 6 lines not kept; 'quarn check' names all of them\n"},
        {clean.toUtf8().chopped(static_cast<int>(qstrlen("end_<FDTDProject>\n"))),
         "quarn: run:2: block <FDTDProject> is not closed\nquarn: run: 1 block not closed\n"},
        {cleanWith({{"wave.inc", "wave?.inc"}}).replace('?', '\xff'),
         "quarn: run: warning: Characters that are not valid UTF-8 are replaced in 1 place.\nquarn: run: 1 warning\n"},
    };
    for (const auto& [content, loss] : rows) {
        write("run", content);
        expect("rewrite run out", 1, "", loss);
        expect("rewrite out out", 0, "");
    }
    expect("rewrite - out", 0, "", "", cleanWith({{layers, "NumberOfPMLLayers 0x8\n"}}));
    EXPECT_EQ(read("out"), clean.toUtf8());
}

TEST_F(ToolTest, LinksThatLeadOnlyToThemselvesAreRefused) {
    write("in", clean.toUtf8());
    std::filesystem::create_symlink("loop", folder.filePath("loop").toStdString());
    for (const QString command : {"rewrite in loop", "rewrite loop out", "show loop"}) {
        expect(command, 2, "", testing::StartsWith("quarn: loop: is a link that leads nowhere but to itself; "));
    }
    EXPECT_TRUE(QFileInfo(folder.filePath("loop")).isSymLink());
}

TEST_F(ToolTest, ShowDescribesAProject) {
    write("run", clean.toUtf8());
    write("other", "something else\n");
    expect("show other run",
           2,
           "run: project for the FDTD engine, file version 8\n"
           "  Display units   mm (1 mm = 0.001 m)\n"
           "  Timestep        chosen by the engine\n"
           "  Boundaries      lower              upper\n"
           "    x             CPML               CPML\n"
           "    y             PEC                PEC\n"
           "    z             PMC                PMC\n"
           "    PML layers    8\n"
           "  Source          plane wave, scattered field\n"
           "    Amplitude     1 V/m\n"
           "    Incidence     theta 0°, phi 45°\n"
           "    Polarization  phi\n"
           "    Output file   wave.inc\n"
           "  Waveform 0      sinusoid, 1 GHz\n"
           "  Termination     after 1000 timesteps\n"
           "    Convergence   not watched\n",
           "quarn: other: is of an unknown kind; if it holds records, 'quarn export --as KIND' reads it\n");
}

TEST_F(ToolTest, DemoTakesRunsThroughTheWholePath) {
    const ToolResult result = run({"demo", "new/folder"});
    EXPECT_EQ(result.status, 0) << result.out << result.err;
    EXPECT_THAT(result.out, AllOf(HasSubstr("plane wave"), HasSubstr("unit cell"), HasSubstr("identical")));
    EXPECT_THAT(result.out, AllOf(HasSubstr("  Peak directivity  2.14 dBi"), HasSubstr("  Deviation ")));
    const QDir made(folder.filePath("new/folder"));
    const QStringList projects({"dipole.project", "periodic-cell.project", "plane-wave.project"});
    EXPECT_EQ(made.entryList({"*.project"}, QDir::Files), projects);
    for (const QString& name : projects) EXPECT_EQ(run({"check", made.filePath(name)}).status, 0);
    EXPECT_EQ(run({"export", "--as", "far-zone", made.filePath("dipole.uan")}).status, 0);
}

TEST_F(ToolTest, HelpAndVersionGoToStandardOutput) {
    EXPECT_EQ(run({"--version"}).out, "quarn " QUARN_VERSION "\n");
    const ToolResult help = run({"--help"});
    EXPECT_EQ(help.status, 0);
    for (const QString name : {"check", "show", "rewrite", "export", "sar", "farzone", "demo"}) {
        EXPECT_THAT(help.out, HasSubstr("\n  " + name.toStdString() + " "));
        expect(name + " --help", 0, testing::StartsWith("Usage: quarn " + name.toStdString() + " "));
    }
}

TEST_F(ToolTest, WrongUsageHasStatus2AndAHint) {
    const QVector<QPair<QStringList, std::string>> rows = {
        {{}, "A subcommand is required. See 'quarn --help'."},
        {{"chek"}, "There is no subcommand 'chek'. See 'quarn --help'."},
        {{"check"}, "check: PROJECT is required. See 'quarn check --help'."},
        {{"check", "--jsno"}, "check: Unknown option '--jsno'. See 'quarn check --help'."},
        {{"check", "--json=", "x"}, "check: --json takes no value. See 'quarn check --help'."},
        {{"check", "x", "--geometry"}, "check: --geometry needs a value. See 'quarn check --help'."},
        {{"farzone", "a", "b", "c", "--step", "-1"}, "farzone: --step needs a number from 0.1 to 90. See "},
        {{"rewrite", "a"}, "rewrite: OUT is required. See 'quarn rewrite --help'."},
        {{"rewrite", "a", "b", "[c]"}, "rewrite: Unexpected argument '[c]'. See 'quarn rewrite --help'."},
        {{"demo"}, "demo: DIR is required. See 'quarn demo --help'."},
    };
    for (const auto& [arguments, message] : rows) {
        const ToolResult result = run(arguments);
        EXPECT_EQ(result.status, 2) << message;
        EXPECT_EQ(result.out, "");
        EXPECT_THAT(result.err, testing::StartsWith("quarn: " + message));
    }
}

TEST_F(ToolTest, EveryArgumentMayNameAFile) {
    for (const QString name : {"[a,b]", "{}", "++", "check", "grün", "-x"}) {
        write(name, clean.toUtf8());
        expect("check -- " + name, 0, name.toStdString() + ": no findings\n");
        if (name != "-x") expect("check " + name, 0, name.toStdString() + ": no findings\n");
    }
}

}  // namespace
}  // namespace quarn::test
