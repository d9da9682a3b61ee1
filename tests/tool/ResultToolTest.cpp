#include <QDir>
#include <cmath>
#include <cstdio>

#include "quarn/quarn.h"
#include "tool/ToolFixture.h"

namespace quarn::test {
namespace {

using testing::HasSubstr;

class ResultToolTest : public ToolTest {
protected:
    QString path(const QString& name) const { return folder.filePath(name); }

    // Writes two points, one time step and one frequency.
    void writeSet(const QString& base) {
        MultiPointResultWriter writer(false, true, false, false, false, false, false, false, false, false, true);
        const GridIndexBoxes boxes(std::vector<ivec3>{{1, 2, 3}, {4, 5, 6}});
        ASSERT_TRUE(writer.beginResultWriting(path(base), boxes));
        writer.beginTimestep(0.5F);
        writer.beginTransientTotalE();
        writer.writeTransient(1, -2, 3);
        writer.writeTransient(0.1F, NAN, 6);
        writer.endTimestep();
        writer.beginFrequency(1e9F);
        writer.beginSteadyJ();
        writer.writeSteady({1, 2}, {3, 4}, {5, 6});
        writer.writeSteady({-1, -2}, {-3, -4}, {-5, -6});
        writer.endFrequency();
        writer.endResultWriting();
    }

    void writeNearZonePoint(const QString& name) {
        std::FILE* file = std::fopen(path(name).toLocal8Bit().constData(), "wb");
        NearZoneMultiFieldPointResult result;
        result.setAndWriteHeader({0.5F, 0, -1, false, true, false, false, false, false, false}, file);
        NearZoneMultiFieldPointResult::Record record;
        record.time = 1e-9F;
        record.totalE = {1, -2, NAN};
        result.writeRecord(record, file);
        std::fclose(file);
    }

    void writePlane(const QString& name, int index, const std::vector<SarResult::Record>& records) {
        SarResultWriter writer;
        ASSERT_TRUE(writer.beginResultWriting(path(name), SARPlane::YZ, index, static_cast<int>(records.size())));
        for (const auto& record : records) writer.writeRecord(record);
        ASSERT_TRUE(writer.endResultWriting());
    }

    void cut(const QString& name, int bytes) { write(name, read(name).chopped(bytes)); }
};

TEST_F(ResultToolTest, ShowDescribesAMultiPointResultAndMissingFiles) {
    writeSet("set");
    const std::string whole =
        "set_info.bin: multi-point result, version 0\n"
        "  Points               2\n"
        "  Time steps           1, 500 ms to 500 ms\n"
        "  Frequencies          1, 1 GHz to 1 GHz\n"
        "    transient-total-E  -2 V/m to 6 V/m, 1 NaN\n"
        "    steady-J           -6 A/m² to 6 A/m²\n";
    EXPECT_EQ(run({"show", "set_info.bin"}).out, whole);
    cut("set_transient_Ex_total_ts0.bin", 1);
    QFile::remove(path("set_steady_Jzr_freq0.bin"));
    EXPECT_THAT(run({"show", "set_info.bin"}).out,
                HasSubstr("  Cut short            2 of 9 component files are missing or too short\n"));
}

TEST_F(ResultToolTest, ExportWritesTheGroupsOfAMultiPointResult) {
    writeSet("set");
    EXPECT_EQ(
        run({"export", "set_info.bin", "--group", "transient-total-E"}).out,
        "time_s,i,j,k,total_e_x_v_per_m,total_e_y_v_per_m,total_e_z_v_per_m\n0.5,1,2,3,1,-2,3\n0.5,4,5,6,0.1,nan,6\n");
    EXPECT_EQ(run({"export", "set_info.bin", "--group", "steady-J", "--index", "0"}).out,
              "frequency_hz,i,j,k,j_x_re_a_per_m2,j_x_im_a_per_m2,j_y_re_a_per_m2,j_y_im_a_per_m2,j_z_re_a_per_m2,"
              "j_z_im_a_per_m2\n"
              "1e+09,1,2,3,1,2,3,4,5,6\n1e+09,4,5,6,-1,-2,-3,-4,-5,-6\n");
    cut("set_steady_Jxi_freq0.bin", 4);
    expect("export set_info.bin --group steady-J",
           1,
           testing::_,
           "quarn: set_info.bin: cut short: 1 of 2 points at index 0\n");
}

TEST_F(ResultToolTest, MultiPointResultsWithoutTheListsOfTheirGroupsAreRefused) {
    for (const QString ending : {"timesteps", "frequencies", "geom"}) {
        writeSet("set");
        QFile::remove(path("set_" + ending + ".bin"));
        expect("export set_info.bin --group steady-J",
               2,
               "",
               "quarn: set_" + ending.toStdString() + ".bin: cannot be read\n");
    }
    write("set_info.bin", read("set_info.bin").chopped(4) + QByteArray::fromHex("ffffffff"));
    expect("show set_info.bin", 2, "", "quarn: set_info.bin: is damaged: it says that there are -1 points\n");
}

TEST_F(ResultToolTest, MissingFilesOfAResultWithoutPointsAreReported) {
    writeSet("set");
    write("set_info.bin", read("set_info.bin").chopped(4) + QByteArray(4, '\0'));
    QFile::remove(path("set_steady_Jxi_freq0.bin"));
    EXPECT_EQ(run({"export", "set_info.bin", "--group", "steady-J"}).status, 1);
    EXPECT_THAT(run({"show", "set_info.bin"}).out, HasSubstr("1 of 9 component files are missing"));
}

TEST_F(ResultToolTest, NearZonePointsAreShownAndExported) {
    writeNearZonePoint("point");
    write("cut", read("point") + "abc");
    expect("show cut",
           0,
           "cut: near-zone point, version 0\n"
           "  Point      (0.5, 0, -1) m\n"
           "  Records    1\n"
           "  Time       1 ns to 1 ns\n"
           "    total E  -2 V/m to 1 V/m, 1 NaN\n"
           "  Cut short  3 bytes at the end belong to no whole record\n");
    expect("export point", 0, "time_s,total_e_x_v_per_m,total_e_y_v_per_m,total_e_z_v_per_m\n1e-09,1,-2,nan\n");
    expect("export cut", 1, testing::_, HasSubstr("3 bytes at the end"));
}

TEST_F(ResultToolTest, SarPlanesAreCombinedShownAndExported) {
    writePlane("a", 7, {{7, 1, 2, 0.25F}});
    writePlane("b", 7, {{7, 3, 4, 0.5F}});
    expect("sar combine all a b", 0, testing::_);
    expect("export all", 0, "i,j,k,sar_w_per_kg\n7,1,2,0.25\n7,3,4,0.5\n");
    cut("all", 1);
    expect("show all",
           0,
           "all: SAR plane, version 0\n"
           "  Plane      YZ, index 7\n"
           "  Records    1\n"
           "    SAR      250 mW/kg to 250 mW/kg\n"
           "  Cut short  the file says 2 records\n");
    cut("b", 1);
    expect("show b", 0, HasSubstr("  Cut short  the file says 1 record\n"));
}

// The floats 1, -2, 3 and 1.
const QByteArray fourFloats("\x00\x00\x80\x3f\x00\x00\x00\xc0\x00\x00\x40\x40\x00\x00\x80\x3f", 16);
QByteArray header(char type, char version) {
    return "!tavrixfdtdL" + QByteArray{}.append(type).append('\0').append(version).append('\0');
}
const QByteArray box = header(8, 0) + fourFloats + fourFloats;
const QByteArray emptyPlane = header(13, 0) + QByteArray(12, '\0');

struct ExportRow {
    const char* as;  // empty for files that say what they are
    QByteArray content;
    std::string out;
    std::string err;
};

class ExportToolTest : public ResultToolTest, public testing::WithParamInterface<const char*> {
protected:
    void expectRow(const ExportRow& row) {
        write("file", row.content);
        const QString words = QString("export ") + GetParam() + (*row.as ? QString(" --as ") + row.as : QString());
        const std::string err = row.err.empty() ? "" : "quarn: " + std::string(GetParam()) + ": " + row.err + "\n";
        expect(words, row.err.empty() ? 0 : (row.out.empty() ? 2 : 1), row.out, err, row.content);
    }
};
INSTANTIATE_TEST_SUITE_P(, ExportToolTest, testing::Values("file", "-", "/dev/stdin"));

TEST_P(ExportToolTest, ExportWritesAllRecordsAndReportsAnIncompleteOne) {
    const std::string atTheEnd = " at the end belong to no whole record";
    const std::string boxTable =
        "e_1_re_v_per_m,e_1_im_v_per_m,e_2_re_v_per_m,e_2_im_v_per_m,h_1_re_a_per_m,h_1_im_a_per_m,h_2_re_a_per_m,"
        "h_2_im_a_per_m\n1,-2,3,1,1,-2,3,1\n";
    const std::string powers = "total_w,electric_w,magnetic_w,electric_0_w\n1,-2,3,1\n";
    const std::string far = "theta_deg,phi_deg,e_theta_re,e_theta_im,e_phi_re,e_phi_im\n90,1,1,-2,3,1\n";
    const QByteArray rightAngleAndOneDegree = QByteArray::fromHex("db0fc93f35fa8e3c");
    const ExportRow rows[] = {
        {"eigenmode", fourFloats, "value_re,value_im\n1,-2\n3,1\n", ""},
        {"component-transient", fourFloats, "time_s,voltage_v,current_a\n1,-2,3\n", "cut short: 4 bytes" + atTheEnd},
        {"dissipated-power", QByteArray("\x01\0", 2) + fourFloats + "ab", powers, "cut short: 2 bytes" + atTheEnd},
        {"far-zone", rightAngleAndOneDegree + fourFloats, far, ""},
        {"", box, boxTable, ""},
        {"far-zone-box", box + 'x', boxTable, "cut short: 1 byte at the end belongs to no whole record"},
        {"", emptyPlane, "i,j,k,sar_w_per_kg\n", ""},
    };
    for (const ExportRow& row : rows) expectRow(row);
}

TEST_P(ExportToolTest, ExportReadsFilesAsWhatTheySayTheyAre) {
    const std::string isShown = "; 'quarn show' tells what it holds";
    const std::string unknown =
        "is a result of an unknown type or version, or cut short in its header; it cannot be exported";
    const ExportRow rows[] = {
        {"far-zone-box", fourFloats, "", "is of an unknown kind; a far-zone box file of version 0 is needed"},
        {"far-zone-box", emptyPlane, "", "is a SAR plane; leave --as out"},
        {"eigenmode", box, "", "is a far-zone box file; leave --as out"},
        {"eigenmode", "Rnzp" + QByteArray(15, '\0'), "", "is a near-zone point; leave --as out"},
        {"eigenmode", "Rmpt", "", "is the info file of a multi-point result; leave --as out"},
        {"eigenmode", "NUPOIN:,0\n", "", "is an antenna pattern; leave --as out"},
        {"eigenmode", clean.toUtf8(), "", "is a project" + isShown},
        {"eigenmode", "Geometry file version 3.20\n", "", "is a geometry" + isShown},
        {"eigenmode", QByteArray("\x40\xe2\1").leftJustified(16, '\0'), "", "is a file of meshless vias" + isShown},
        {"eigenmode", header(42, 0), "", unknown},
        {"eigenmode", "!tavrixfdtd", "", unknown},
        {"radiated-power", "!tavrixfdt", "", unknown},
        {"radiated-power", "!tav", "", unknown},
        {"", header(8, 1), "", unknown},
        {"", fourFloats, "", "is of an unknown kind; say with --as KIND what records it holds"},
    };
    for (const ExportRow& row : rows) expectRow(row);
}

TEST_F(ResultToolTest, ExportRefusesOptionsThatDoNotApplyAndFoldersAndDevices) {
    write("plane", emptyPlane);
    writeSet("set");
    const QVector<QPair<QString, const char*>> refused = {
        {"plane --index 0", "--group and --index are for multi-point results, but 'plane' is a SAR plane."},
        {"plane --group=", "--group and --index are for multi-point results, but 'plane' is a SAR plane."},
        {"set_info.bin --as eigenmode --index 0", "--group and --index are for multi-point results, not for records"},
        {"set_info.bin", "Choose a group with --group: transient-total-E, steady-J."},
        {"set_info.bin --group steady-J --index 1", "--index needs a number from 0 to 0, not '1'."},
        {"plane --as guess", "Unknown kind of records 'guess'; the kinds are radiated-power, "},
        {". --as eigenmode", ".: is a folder, not a file"},
        {"/dev/zero --as eigenmode", "more than the 512 MiB that can be read from a pipe; give the name of a file"},
    };
    for (const auto& [arguments, message] : refused) {
        expect("export " + arguments, 2, "", HasSubstr(message));
    }
}

TEST_F(ResultToolTest, RefusedLongPathsNameTheVariableThatAllowsThem) {
    const QString base = QString(200, 'd') + '/' + QString(33, 's');
    ASSERT_TRUE(QDir(folder.path()).mkdir(base.left(200)));
    write(base + QString(25, 'p'), emptyPlane);
    const char* variable = "KIVEN_LONGPATHSUPPORT";
    qputenv(variable, "1");
    writeSet(base);
    for (const QString& name : {base + QString(25, 'p'), base + "_info.bin"}) {
        qunsetenv(variable);
        expect("show " + name, 2, "", HasSubstr("set the environment variable KIVEN_LONGPATHSUPPORT to 1"));
        qputenv(variable, "1");
        expect("show " + name, 0, testing::_);
    }
    qunsetenv(variable);
}

TEST_F(ResultToolTest, ShowDescribesTheFieldsOnAFarZoneBoxFromAPipe) {
    expect("show -",
           0,
           "-: fields on the far-zone box, version 0\n"
           "  Records    1\n"
           "    E        -2 V/m to 3 V/m\n"
           "    H        -2 A/m to 3 A/m\n"
           "  Cut short  1 byte at the end belongs to no whole record\n",
           "",
           box + '!');
}

}  // namespace
}  // namespace quarn::test
