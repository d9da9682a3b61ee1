#include <cmath>
#include <cstdio>

#include "quarn/quarn.h"
#include "tool/ToolFixture.h"

namespace quarn::test {
namespace {

using testing::HasSubstr;

class ResultTool : public Tool {
protected:
    QString path(const QString& name) const { return folder.filePath(name); }

    // Two points, one time step, one frequency.
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

TEST_F(ResultTool, shows_a_multi_point_result_and_what_of_it_is_missing) {
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

TEST_F(ResultTool, exports_the_groups_of_a_multi_point_result) {
    writeSet("set");
    EXPECT_EQ(run({"export", "set_info.bin", "--group", "transient-total-E"}).out,
              "time,x,y,z,Ex,Ey,Ez\n0.5,1,2,3,1,-2,3\n0.5,4,5,6,0.1,nan,6\n");
    EXPECT_EQ(run({"export", "set_info.bin", "--group", "steady-J", "--index", "0"}).out,
              "frequency,x,y,z,Jxr,Jxi,Jyr,Jyi,Jzr,Jzi\n"
              "1e+09,1,2,3,1,2,3,4,5,6\n1e+09,4,5,6,-1,-2,-3,-4,-5,-6\n");
    EXPECT_THAT(run({"export", "set_info.bin"}).err, HasSubstr("--group: transient-total-E, steady-J"));
    EXPECT_EQ(run({"export", "set_info.bin", "--group", "steady-J", "--index", "1"}).status, 2);
    cut("set_steady_Jxi_freq0.bin", 4);
    const ToolResult partial = run({"export", "set_info.bin", "--group", "steady-J"});
    EXPECT_EQ(partial.err, "quarn: set_info.bin: cut short: 1 of 2 points at index 0\n");
    EXPECT_EQ(partial.status, 1);
}

TEST_F(ResultTool, refuses_a_multi_point_result_without_what_its_groups_need) {
    for (const QString ending : {"timesteps", "frequencies", "geom"}) {
        writeSet("set");
        QFile::remove(path("set_" + ending + ".bin"));
        const ToolResult result = run({"export", "set_info.bin", "--group", "steady-J"});
        EXPECT_EQ(result.err, "quarn: set_" + ending.toStdString() + ".bin: cannot be read\n");
        EXPECT_EQ(result.status, 2);
    }
    write("set_info.bin", read("set_info.bin").chopped(4) + QByteArray::fromHex("ffffffff"));
    EXPECT_EQ(run({"show", "set_info.bin"}).err, "quarn: set_info.bin: says that it has -1 points\n");
}

TEST_F(ResultTool, says_that_files_of_a_result_without_points_are_missing) {
    writeSet("set");
    write("set_info.bin", read("set_info.bin").chopped(4) + QByteArray(4, '\0'));
    QFile::remove(path("set_steady_Jxi_freq0.bin"));
    EXPECT_EQ(run({"export", "set_info.bin", "--group", "steady-J"}).status, 1);
    EXPECT_THAT(run({"show", "set_info.bin"}).out, HasSubstr("1 of 9 component files are missing"));
}

TEST_F(ResultTool, shows_and_exports_a_near_zone_point) {
    writeNearZonePoint("point");
    write("cut", read("point") + "abc");
    EXPECT_EQ(run({"show", "cut"}).out,
              "cut: near-zone point, version 0\n"
              "  Point      (0.5, 0, -1) m\n"
              "  Records    1\n"
              "  Time       1 ns to 1 ns\n"
              "    total E  -2 V/m to 1 V/m, 1 NaN\n"
              "  Cut short  3 bytes at the end belong to no whole record\n");
    EXPECT_EQ(run({"export", "point"}).out, "time,total_Ex,total_Ey,total_Ez\n1e-09,1,-2,nan\n");
    EXPECT_EQ(run({"export", "cut"}).status, 1);
}

TEST_F(ResultTool, combines_shows_and_exports_SAR_planes) {
    writePlane("a", 7, {{7, 1, 2, 0.25F}});
    writePlane("b", 7, {{7, 3, 4, 0.5F}});
    EXPECT_EQ(run({"sar", "combine", "all", "a", "b"}).status, 0);
    EXPECT_EQ(run({"export", "all"}).out, "i,j,k,sar\n7,1,2,0.25\n7,3,4,0.5\n");
    cut("all", 1);
    EXPECT_EQ(run({"show", "all"}).out,
              "all: SAR plane, version 0\n"
              "  Plane      yz, index 7\n"
              "  Records    1\n"
              "    SAR      250 mW/kg to 250 mW/kg\n"
              "  Cut short  the file says 2 records\n");
}

TEST_F(ResultTool, exports_records_as_what_it_is_told) {
    write("records", QByteArray("\x00\x00\x80\x3f\x00\x00\x00\xc0\x00\x00\x40\x40\x00\x00\x80\x3f!", 17));
    EXPECT_EQ(run({"export", "--as", "component-transient", "records"}).out, "time,voltage,current\n1,-2,3\n");
    EXPECT_EQ(run({"export", "--as", "eigenmode", "records"}).out, "value_re,value_im\n1,-2\n3,1\n");
    EXPECT_EQ(run({"export", "--as", "eigenmode", "records"}).err,
              "quarn: records: cut short: 1 byte at the end belong to no whole record\n");
    write("power", QByteArray("\x01\x00\x00\x00\x80\x3f\x00\x00\x00\xc0\x00\x00\x40\x40\x00\x00\x80\x3f", 18));
    EXPECT_EQ(run({"export", "--as", "dissipated-power", "power"}).out,
              "total,electric,magnetic,electric_0\n1,-2,3,1\n");
    EXPECT_EQ(run({"export", "--as", "guess", "records"}).status, 2);
    EXPECT_THAT(run({"export", "records"}).err, HasSubstr("say it with --as KIND"));
}

TEST_F(ResultTool, shows_the_fields_on_a_far_zone_box) {
    QByteArray box("!tavrixfdtdL\x08\x00\x00\x00", 16);
    for (int i = 0; i < 8; ++i) box += QByteArray(i < 4 ? "\x00\x00\x80\x3f" : "\x00\x00\x00\xc0", 4);
    write("box", box);
    EXPECT_EQ(run({"show", "box"}).out,
              "box: fields on the far-zone box, version 0\n"
              "  Records  1\n"
              "    E      1 V/m to 1 V/m\n"
              "    H      -2 A/m to -2 A/m\n");
    EXPECT_THAT(run({"export", "box"}).out, HasSubstr("\n1,1,1,1,-2,-2,-2,-2\n"));
}

}  // namespace
}  // namespace quarn::test
