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

struct CheckRow {
    const char* name;
    Replacements replacements;
    QStringList output;
    friend void PrintTo(const CheckRow& row, std::ostream* out) { *out << row.name; }
};

class CheckTool : public Tool, public testing::WithParamInterface<CheckRow> {};

TEST_P(CheckTool, prints) {
    write("run", cleanWith(GetParam().replacements));
    const ToolResult result = run({"check", "run"});
    EXPECT_EQ(result.out, GetParam().output.join("\n").toStdString() + "\n");
    EXPECT_EQ(result.status, GetParam().output == QStringList("run: no findings") ? 0 : 1);
    EXPECT_EQ(result.err, "");
}

const CheckRow checkRows[] = {
    {"nothing_of_what_is_saved", {}, {"run: no findings"}},
    {"nothing_for_lines_moved_within_their_block",
     {{"LowerX ORBC_CPML\n", ""}, {"NumberOfPMLLayers 8\n", "NumberOfPMLLayers 8\nLowerX ORBC_CPML\n"}},
     {"run: no findings"}},
    {"nothing_for_other_spellings_of_numbers",
     {{"Steps 1000\n", "Steps 0x3e8\n"},
      {"Seconds 0\n", "Seconds 000\n"},
      {"Conversion 1\n", "Conversion 1.0\n"},
      {"Conversion 0.001", "Conversion 1E-3"},
      {"Amplitude 1\n", "Amplitude +1.\n"},
      {"Theta 0\n", "Theta 1e-14\n"},
      {"Phi 45\n", "Phi 045\n"},
      {"frequency 1000000000", "frequency 16777217"}},
     {"run: no findings"}},
    {"nothing_for_the_older_name_of_a_boundary", {{"LowerX ORBC_CPML", "LowerX ORBC_PML"}}, {"run: no findings"}},
    {"nothing_for_blank_lines_indentation_and_line_ends", {{"\n", "  \r\n \t\r\n\t"}}, {"run: no findings"}},
    {"nothing_for_two_entries_on_one_line", {{"ORBC_CPML\nUpperX", "ORBC_CPML UpperX"}}, {"run: no findings"}},
    {"nothing_for_an_older_version", {{"Version 8", "FDTD file version 3.28"}}, {"run: no findings"}},
    {"a_first_line_without_a_version",
     {{"Version 8", "begin_<Units> "}},
     {"run:1: not kept: begin_<Units>", "run: 1 line not kept"}},
    {"a_misspelt_key_with_its_line",
     {{"frequency 1000000000", "Frequnecy 1e9"}},
     {"run: warning: The frequency must be greater than 0 (currently 0)",
      "run:38: not kept: Frequnecy 1e9",
      "run: 1 warning, 1 line not kept"}},
    {"what_a_value_becomes",
     {{"LowerX ORBC_CPML", "LowerX ORBC_OPEN"}, {"Name m\n", "Name km\n"}},
     {R"(run:9: not kept: Name km, becomes "Name m")",
      R"(run:15: not kept: LowerX ORBC_OPEN, becomes "LowerX ORBC_CPML")",
      "run: 2 lines not kept"}},
    {"an_integer_that_does_not_fit",
     {{"Steps 1000\n", "Steps 4294967297\n"}},
     {R"(run:24: not kept: MaximumTimeSteps 4294967297, becomes "MaximumTimeSteps 1")", "run: 1 line not kept"}},
    {"a_real_that_is_no_float",
     {{"Amplitude 1\n", "Amplitude 1e39\n"}},
     {R"(run:29: not kept: Amplitude 1e39, becomes "Amplitude inf")", "run: 1 line not kept"}},
    {"an_unknown_block_whole",
     {{"begin_<RequestResults> \n", "begin_<RequestResults> \nbegin_<Sensors> \n kind 3\nend_<Sensors>\n"}},
     {"run:43: not kept: begin_<Sensors>",
      "run:44: not kept: kind 3",
      "run:45: not kept: end_<Sensors>",
      "run: 3 lines not kept"}},
    {"the_later_of_two_timestep_settings",
     {{"end_<RunParameters>", "UseTimestep 1e-12\nUseUsersCFL 0.5\nend_<RunParameters>"}},
     {"run:42: not kept: UseUsersCFL 0.5", "run: 1 line not kept"}},
    {"equal_samples_by_their_number",
     {{"Steps 1000", "Steps 1"},
      {"begin_<Sinusoid> \nfrequency 1000000000\nend_<Sinusoid>\n",
       expanded("UserDefined{ Source{ 0; 0.5; 0; 0; } Derivative{ 0 1; } }")}},
     {"run: error: The user defined waveform is incorrectly specified.",
      "run:41: not kept: 0",
      "run:42: not kept: 0",
      "run: 1 error, 2 lines not kept"}},
    {"a_lack_of_boundaries",
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
    {"the_blocks_that_a_truncated_file_leaves_open",
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
INSTANTIATE_TEST_SUITE_P(, CheckTool, testing::ValuesIn(checkRows), rowName<CheckRow>);

TEST_F(Tool, checks_each_file_and_reports_the_worst_status) {
    write("good", clean.toUtf8());
    const ToolResult result = run({"check", "missing", "good"});
    EXPECT_EQ(result.out, "good: no findings\n");
    EXPECT_EQ(result.err, "quarn: missing: No such file or directory\n");
    EXPECT_EQ(result.status, 2);
}

TEST_F(Tool, check_prints_json) {
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

TEST_F(Tool, refuses_what_is_no_project_and_an_earlier_output_stays) {
    const std::string noProject = "not a project file: it has no FDTDProject or FEMProject block";
    const QVector<QPair<QByteArray, std::string>> rows = {
        {"", noProject},
        {"Version 8\nbegin_<Something> \nend_<Something>\n", noProject},
        {QByteArray::fromHex("00ff8090feff000a1b5b"), noProject},
        {"Version 9\nbegin_<FDTDProject> \nend_<FDTDProject>\n", "This project file version is unsupported."},
    };
    write("out", "earlier");
    for (const auto& [content, message] : rows) {
        write("in", content);
        for (const QStringList& command : QVector<QStringList>{{"check", "in"}, {"rewrite", "in", "out"}}) {
            const ToolResult result = run(command);
            EXPECT_EQ(result.err, "quarn: in: " + message + "\n");
            EXPECT_EQ(result.status, 2);
        }
    }
    EXPECT_EQ(read("out"), "earlier");
}

TEST_F(Tool, rewrite_on_a_full_disk_fails_and_an_earlier_output_stays) {
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

TEST_F(Tool, rewrite_writes_into_a_pipe) {
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

TEST_F(Tool, a_name_that_no_file_has_is_refused_in_its_own_words) {
    write("in", clean.toUtf8());
    const QVector<QStringList> commands = {
        {"show", ""}, {"check", "in", "--geometry", ""}, {"rewrite", "in", ""}, {"export", ""}};
    for (const QStringList& command : commands) {
        const ToolResult result = run(command);
        EXPECT_EQ(result.err, "quarn: : the file name is empty\n") << command[0].toStdString();
        EXPECT_EQ(result.status, 2);
    }
}

TEST_F(Tool, rewrite_that_cannot_save_says_why_and_leaves_no_output) {
    write("in", "Version 8\nbegin_<FDTDProject> \nend_<FDTDProject>\n");
    const ToolResult result = run({"rewrite", "in", "out"});
    EXPECT_THAT(result.err, HasSubstr("quarn: in: quarn::v6ProjectFile::StreamOutBoundaryConditions: "));
    EXPECT_EQ(result.status, 2);
    EXPECT_FALSE(QFile::exists(folder.filePath("out")));
    EXPECT_EQ(run({"rewrite", "in", "no/such/folder/out"}).status, 2);
}

TEST_F(Tool, rewrite_loses_lines_of_its_input_only_when_it_is_told_to) {
    const QByteArray lossy = cleanWith({{"NumberOfPMLLayers 8\n", "Unknown 3\nNumberOfPMLLayers 0x8\n"}});
    const std::string loss = "quarn: run:21: not kept: Unknown 3\nquarn: run: 1 line not kept\n";
    const auto at = [this](const char* name) { return folder.filePath(name).toStdString(); };
    std::filesystem::create_directory(at("sub"));
    std::filesystem::create_symlink("run", at("link"));
    for (const QString out : {"run", "./sub/../run", "link", "second"}) {
        SCOPED_TRACE(out.toStdString());
        write("run", lossy);
        std::filesystem::remove(at("second"));
        std::filesystem::create_hard_link(at("run"), at("second"));
        const ToolResult refused = run({"rewrite", "run", out});
        EXPECT_THAT(refused.err, AllOf(testing::StartsWith(loss), HasSubstr("--force")));
        EXPECT_EQ(refused.status, 2);
        EXPECT_EQ(read("run"), lossy);
        const ToolResult forced = run({"rewrite", "--force", "run", out});
        EXPECT_EQ(forced.out + forced.err, loss);
        EXPECT_EQ(forced.status, 1);
        EXPECT_EQ(read(out), clean.toUtf8());
    }
}

TEST_F(Tool, rewrite_tells_what_it_loses) {
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
        const ToolResult result = run({"rewrite", "run", "out"});
        EXPECT_EQ(result.err, loss);
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(run({"rewrite", "out", "out"}).status, 0);
    }
    EXPECT_EQ(run({"rewrite", "-", "out"}, cleanWith({{layers, "NumberOfPMLLayers 0x8\n"}})).status, 0);
    EXPECT_EQ(read("out"), clean.toUtf8());
}

TEST_F(Tool, refuses_a_link_that_only_leads_to_itself) {
    write("in", clean.toUtf8());
    std::filesystem::create_symlink("loop", folder.filePath("loop").toStdString());
    const QVector<QStringList> commands = {{"rewrite", "in", "loop"}, {"rewrite", "loop", "out"}, {"show", "loop"}};
    for (const QStringList& command : commands) {
        const ToolResult result = run(command);
        EXPECT_THAT(result.err, testing::StartsWith("quarn: loop: is a link that leads nowhere but to itself; "));
        EXPECT_EQ(result.status, 2);
    }
    EXPECT_TRUE(QFileInfo(folder.filePath("loop")).isSymLink());
}

TEST_F(Tool, show_says_what_a_project_holds) {
    write("run", clean.toUtf8());
    write("other", "something else\n");
    const ToolResult result = run({"show", "other", "run"});
    EXPECT_EQ(result.out,
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
              "    Convergence   not watched\n");
    EXPECT_EQ(result.err,
              "quarn: other: is of an unknown kind; if it holds records, 'quarn export --as KIND' reads it\n");
    EXPECT_EQ(result.status, 2);
}

TEST_F(Tool, demo_takes_runs_as_far_as_their_far_field) {
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

TEST_F(Tool, help_and_version_are_results) {
    EXPECT_EQ(run({"--version"}).out, "quarn " QUARN_VERSION "\n");
    const ToolResult help = run({"--help"});
    EXPECT_EQ(help.status, 0);
    for (const QString name : {"check", "show", "rewrite", "export", "sar", "farzone", "demo"}) {
        EXPECT_THAT(help.out, HasSubstr("\n  " + name.toStdString() + " "));
        const ToolResult ofSubcommand = run({name, "--help"});
        EXPECT_EQ(ofSubcommand.status, 0);
        EXPECT_THAT(ofSubcommand.out, testing::StartsWith("Usage: quarn " + name.toStdString() + " "));
    }
}

TEST_F(Tool, wrong_usage_ends_with_status_2_and_a_hint) {
    const QVector<QStringList> wrong = {
        {}, {"chek"}, {"check"}, {"check", "--jsno", "x"}, {"rewrite", "a"}, {"rewrite", "a", "b", "c"}, {"demo"}};
    for (const QStringList& arguments : wrong) {
        const ToolResult result = run(arguments);
        EXPECT_EQ(result.status, 2) << arguments.join(' ').toStdString();
        EXPECT_EQ(result.out, "");
        EXPECT_THAT(result.err, AllOf(testing::StartsWith("quarn: "), HasSubstr("--help'")));
    }
}

}  // namespace
}  // namespace quarn::test
