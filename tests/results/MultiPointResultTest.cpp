#include <gtest/gtest.h>

#include <memory>

#include "Faults.h"
#include "quarn/GridIndexBoxes.h"
#include "quarn/MultiPointResultDeleter.h"
#include "quarn/MultiPointResultReader.h"
#include "quarn/MultiPointResultWriter.h"
#include "results/ResultFolder.h"

namespace quarn::test {
namespace {

using Writer = MultiPointResultWriter;
using Reader = MultiPointResultReader;
using Floats = std::vector<float>;

// The bytes of the floats 1, 2, 3 ... in files, and of -1.
constexpr const char* floats[] = {"0000803f", "00000040", "00004040", "00008040", "0000a040", "0000c040"};
const QByteArray minusOne = "000080bf";

const GridIndexBoxes twoPoints(std::vector<ivec3>{{4, 5, 6}, {1, -2, 3}});

// A writer for a single group, given by its position among the arguments.
std::unique_ptr<Writer> writerOf(int group) {
    const auto is = [&](int index) { return index == group; };
    return std::make_unique<Writer>(is(0), is(1), is(2), is(3), is(4), is(5), is(6), is(7), is(8), is(9), is(10));
}

struct GroupRow {
    bool (Writer::*beginWriting)();
    bool (Reader::*beginReading)();
    std::vector<bool (Reader::*)()> beginReadingOne;  // in the order of the suffixes below
    bool (MultiPointResult::*collects)() const;
    const char* bits;      // the bytes in the info file
    const char* fileName;  // %1 is for the suffix

    bool isSteady() const { return beginReadingOne.size() == 6; }
    QStringList files() const {
        QStringList names(isSteady() ? QStringList{"xr", "xi", "yr", "yi", "zr", "zi"} : QStringList{"x", "y", "z"});
        for (QString& name : names) name = QString(fileName).arg(name);
        return names;
    }
};

#define QUARN_TRANSIENT(Group, bits, fileName)                                                                         \
    GroupRow {                                                                                                         \
        &Writer::beginTransient##Group, &Reader::beginTransient##Group,                                                \
            {&Reader::beginTransient##Group##x, &Reader::beginTransient##Group##y, &Reader::beginTransient##Group##z}, \
            &MultiPointResult::collectTransient##Group, bits, fileName                                                 \
    }
#define QUARN_STEADY(Group, bits, fileName)                         \
    GroupRow {                                                      \
        &Writer::beginSteady##Group, &Reader::beginSteady##Group,   \
            {&Reader::beginSteady##Group##xr,                       \
             &Reader::beginSteady##Group##xi,                       \
             &Reader::beginSteady##Group##yr,                       \
             &Reader::beginSteady##Group##yi,                       \
             &Reader::beginSteady##Group##zr,                       \
             &Reader::beginSteady##Group##zi},                      \
            &MultiPointResult::collectSteady##Group, bits, fileName \
    }
const std::vector<GroupRow> groupRows{
    QUARN_TRANSIENT(ScatteredE, "00000080", "b_transient_E%1_scattered_ts0.bin"),
    QUARN_TRANSIENT(TotalE, "00000040", "b_transient_E%1_total_ts0.bin"),
    QUARN_TRANSIENT(ScatteredH, "00000020", "b_transient_H%1_scattered_ts0.bin"),
    QUARN_TRANSIENT(TotalH, "00000010", "b_transient_H%1_total_ts0.bin"),
    QUARN_TRANSIENT(ScatteredB, "00000008", "b_transient_B%1_scattered_ts0.bin"),
    QUARN_TRANSIENT(TotalB, "00000004", "b_transient_B%1_total_ts0.bin"),
    QUARN_TRANSIENT(J, "00000002", "b_transient_J%1_ts0.bin"),
    QUARN_STEADY(TotalE, "00000001", "b_steady_E%1_total_freq0.bin"),
    QUARN_STEADY(TotalH, "00008000", "b_steady_H%1_total_freq0.bin"),
    QUARN_STEADY(TotalB, "00002000", "b_steady_B%1_total_freq0.bin"),
    QUARN_STEADY(J, "00004000", "b_steady_J%1_freq0.bin"),
};
#undef QUARN_TRANSIENT
#undef QUARN_STEADY

struct MultiPoint : testing::Test {
    // The components of the next point; empty when there is none.
    Floats next(const GroupRow& group) {
        float x = 0, y = 0, z = 0;
        std::complex<float> cx, cy, cz;
        if (!group.isSteady()) return reader.readTransient(x, y, z) ? Floats{x, y, z} : Floats();
        if (!reader.readSteady(cx, cy, cz)) return {};
        return {cx.real(), cx.imag(), cy.real(), cy.imag(), cz.real(), cz.imag()};
    }

    ResultFolder folder;
    const QString base = folder.path("b");
    Reader reader;
    Floats list;
};

TEST_F(MultiPoint, EachGroupHasItsBitAndItsFiles) {
    for (std::size_t row = 0; row < groupRows.size(); ++row) {
        const GroupRow& group = groupRows[row];
        SCOPED_TRACE(group.fileName);
        const bool steady = group.isSteady();
        const auto writer = writerOf(static_cast<int>(row));
        ASSERT_TRUE(writer->beginResultWriting(base, twoPoints));
        EXPECT_TRUE(steady ? writer->beginFrequency(1e9F) : writer->beginTimestep(0));
        for (const GroupRow& other : groupRows) EXPECT_EQ(((*writer).*other.beginWriting)(), &other == &group);
        for (const float value : {1.0F, -1.0F}) {
            EXPECT_TRUE(steady ? writer->writeSteady({value, 2}, {3, 4}, {5, 6}) : writer->writeTransient(value, 2, 3));
        }
        EXPECT_TRUE(steady ? writer->endSteady() : writer->endTransient());
        EXPECT_TRUE(writer->endTimestep() && writer->endFrequency() && writer->endResultWriting());
        EXPECT_EQ(folder.bytes("b_info.bin").toHex(), QByteArray("526d707400") + group.bits + "02000000");

        ASSERT_TRUE(reader.beginResultReading(base) && reader.beginTimestep(0) && reader.beginFrequency(0));
        for (const GroupRow& other : groupRows) {
            EXPECT_EQ((reader.*other.collects)(), &other == &group);
            EXPECT_EQ((reader.*other.beginReading)(), &other == &group);
        }
        EXPECT_EQ(next(group), steady ? (Floats{1, 2, 3, 4, 5, 6}) : (Floats{1, 2, 3}));
        EXPECT_TRUE(reader.endTimestep());

        bool (Reader::*const readParts[])(float&) = {&Reader::readSteadyXr,
                                                     &Reader::readSteadyXi,
                                                     &Reader::readSteadyYr,
                                                     &Reader::readSteadyYi,
                                                     &Reader::readSteadyZr,
                                                     &Reader::readSteadyZi};
        bool (Reader::*const readComponents[])(float&) = {
            &Reader::readTransientX, &Reader::readTransientY, &Reader::readTransientZ};
        const QStringList files = group.files();
        float x = 0;
        for (int i = 0; i < files.size(); ++i) {
            EXPECT_EQ(folder.bytes(files[i]).toHex(), floats[i] + (i == 0 ? minusOne : QByteArray(floats[i]))) << i;
            const auto readOne = steady ? readParts[i] : readComponents[i];
            EXPECT_FALSE((reader.*readOne)(x));
            EXPECT_TRUE((reader.*group.beginReadingOne[static_cast<std::size_t>(i)])() && (reader.*readOne)(x));
            EXPECT_EQ(x, i + 1);
        }
        EXPECT_TRUE(reader.endSteady() && reader.endResultReading());
        EXPECT_EQ(folder.names().size(), 4 + files.size());
        EXPECT_TRUE(MultiPointResultDeleter().deleteResult(base));
        EXPECT_EQ(folder.names(), QStringList());
    }
}

TEST_F(MultiPoint, GeometryIsInTheOrderOfTheIndexBoxes) {
    const auto writer = writerOf(0);
    ASSERT_TRUE(writer->beginResultWriting(base, twoPoints));
    EXPECT_EQ(folder.bytes("b_geom.bin").toHex(' '),
              "01 00 00 00 fe ff ff ff 03 00 00 00 04 00 00 00 05 00 00 00 06 00 00 00");
    EXPECT_FALSE(writer->writeGeometry(GridIndexBoxes(std::vector<ivec3>{{1, 1, 1}})))
        << "the number of points differs";
    std::vector<ivec3> points{{9, 9, 9}};
    EXPECT_TRUE(reader.beginResultReading(base) && reader.readGeometry(points));
    EXPECT_EQ(points, (std::vector<ivec3>{{1, -2, 3}, {4, 5, 6}}));
    EXPECT_EQ(reader.getNumberOfPoints(), 2);
    folder.put("b_geom.bin", folder.bytes("b_geom.bin").left(23));
    EXPECT_TRUE(reader.readGeometry(points));
    EXPECT_EQ(points.size(), 1U);
}

TEST_F(MultiPoint, TimestepsAreListedImmediatelyAndReplacedByARestart) {
    const auto writer = writerOf(1);
    ASSERT_TRUE(writer->beginResultWriting(base, twoPoints) && reader.beginResultReading(base));
    list = {7};
    EXPECT_TRUE(reader.readTimesteps(list) && list.empty()) << "no time steps yet";
    EXPECT_TRUE(writer->restartTimestep(1) && reader.readTimesteps(list));
    EXPECT_EQ(list, Floats{1}) << "a restart before the first time step begins it";
    EXPECT_TRUE(writer->beginTimestep(2) && writer->beginTransientTotalE() && writer->writeTransient(1, 1, 1));
    EXPECT_TRUE(writer->restartTimestep(3) && writer->beginTransientTotalE() && writer->writeTransient(4, 5, 6));
    EXPECT_TRUE(writer->endTransient());
    EXPECT_FALSE(writer->endTransient()) << "no files are open";
    EXPECT_TRUE(writer->endTimestep() && reader.readTimesteps(list));
    EXPECT_EQ(list, (Floats{1, 3}));
    EXPECT_EQ(folder.bytes("b_timesteps.bin").toHex(), QByteArray(floats[0]) + floats[2]);
    EXPECT_EQ(folder.names().filter("transient_Ex"), QStringList{"b_transient_Ex_total_ts1.bin"});
    EXPECT_EQ(folder.bytes("b_transient_Ex_total_ts1.bin").toHex(), floats[3]);
    EXPECT_TRUE(writer->endResultWriting());
    EXPECT_FALSE(writer->beginTimestep(4) || writer->beginFrequency(1)) << "all files are closed";
}

TEST_F(MultiPoint, FrequenciesAtAnIndexAreDoubles) {
    const auto writer = writerOf(10);
    ASSERT_TRUE(writer->beginResultWriting(base, twoPoints));
    EXPECT_TRUE(writer->beginFrequencyAtIndex({1, -2}, 3) && writer->beginSteadyJ() && writer->endFrequency());
    EXPECT_EQ(folder.bytes("b_frequencies.bin").toHex(),
              "000000000000f03f"
              "00000000000000c0");
    EXPECT_TRUE(folder.has("b_steady_Jzi_freq3.bin"));
    EXPECT_TRUE(reader.beginResultReading(base) && reader.readFrequencies(list));
    EXPECT_EQ(list, (Floats{0, 1.875F, 0, -2})) << "the format reads them as floats";
}

TEST_F(MultiPoint, NothingIsReadOrWrittenUnlessAllFilesOfAGroupAreOpen) {
    Writer writer(false, true, false, false, false, false, false, true, false, false, false);
    EXPECT_FALSE(writer.writeTransient(1, 2, 3) || writer.writeSteady({1, 2}, {3, 4}, {5, 6}) || writer.endSteady());
    ASSERT_TRUE(writer.beginResultWriting(base, twoPoints) && writer.beginTimestep(0) && writer.beginFrequency(1));
    ASSERT_TRUE(writer.beginTransientTotalE() && writer.writeTransient(1, 2, 3));
    EXPECT_FALSE(writer.writeSteady({9, 9}, {9, 9}, {9, 9})) << "only three of the six files are open";
    ASSERT_TRUE(writer.endTransient() && writer.beginSteadyTotalE() && writer.endSteady());
    EXPECT_FALSE(writer.beginSteadyJ());

    float x = 7, y = 7, z = 7;
    std::complex<float> cx, cy, cz;
    ASSERT_TRUE(reader.beginResultReading(base) && reader.beginTimestep(0));
    EXPECT_FALSE(reader.skipTransient(0) || reader.readTransientBlock(Reader::X, list));
    ASSERT_TRUE(reader.beginTransientTotalEx() && reader.beginTransientTotalEz());
    EXPECT_FALSE(reader.readTransient(x, y, z) || reader.readSteady(cx, cy, cz));
    EXPECT_TRUE(reader.readTransientX(x)) << "the failed reads must not have consumed x";
    EXPECT_EQ(std::tie(x, y, z), std::make_tuple(1.0F, 7.0F, 7.0F));
    EXPECT_TRUE(reader.beginTransientTotalEy());
    EXPECT_FALSE(reader.readTransient(x, y, z));
    EXPECT_EQ(std::tie(x, y, z), std::make_tuple(1.0F, 7.0F, 7.0F)) << "x has no more values";
    EXPECT_FALSE((reader.beginTimestep(1) && reader.beginTransientTotalE()) || reader.beginSteadyTotalH());
}

TEST_F(MultiPoint, BlocksHoldTheValuesPresent) {
    const auto writer = writerOf(7);
    ASSERT_TRUE(writer->beginResultWriting(base, twoPoints) && writer->beginFrequency(1) &&
                writer->beginSteadyTotalE());
    for (const float i : {1.0F, 2.0F, 3.0F, 4.0F}) EXPECT_TRUE(writer->writeSteady({i, -i}, {}, {}));
    EXPECT_TRUE(writer->endSteady());
    folder.put("b_steady_Exi_total_freq0.bin", folder.bytes("b_steady_Exi_total_freq0.bin").left(15));
    ASSERT_TRUE(reader.beginResultReading(base) && reader.beginFrequency(0) && reader.beginSteadyTotalE());
    EXPECT_TRUE(reader.readSteadyBlock(Reader::Xr, list, 3));
    EXPECT_EQ(list, (Floats{1, 2, 3}));
    EXPECT_TRUE(reader.readSteadyBlock(Reader::Xr, list, 1000000000000));
    EXPECT_EQ(list, Floats{4});
    EXPECT_TRUE(reader.readSteadyBlock(Reader::Xi, list));
    EXPECT_EQ(list, (Floats{-1, -2, -3})) << "the fourth is incomplete";
    EXPECT_TRUE(reader.readSteadyBlock(Reader::Xi, list) && list.empty());
    folder.put("b_steady_Exi_total_freq0.bin", folder.bytes("b_steady_Exi_total_freq0.bin") + '\xC0');
    EXPECT_TRUE(reader.readSteadyBlock(Reader::Xi, list) && list == Floats{-4}) << "the fourth is complete now";
    EXPECT_TRUE(reader.beginSteadyTotalE() && reader.skipSteady(3) && reader.skipSteady(-1));
    float value = 0;
    EXPECT_TRUE(reader.readSteadyXi(value) && value == -3);
    EXPECT_FALSE(reader.skipSteady(-4)) << "before the beginning";
    EXPECT_TRUE(reader.skipSteady(INT_MAX));
    EXPECT_FALSE(reader.readSteadyXr(value));
}

// The engine has written all components except for one, each in turn, which ends within its second value.
TEST_F(MultiPoint, FailedReadSucceedsOnceTheEngineHasWrittenMore) {
    folder.put("b_info.bin", QByteArray::fromHex("526d707400 00000041 03000000"));
    ASSERT_TRUE(reader.beginResultReading(base) && reader.beginTimestep(0) && reader.beginFrequency(0));
    const QByteArray values = QByteArray::fromHex(QByteArray(floats[0]) + floats[1] + floats[2]);
    for (const GroupRow& group : {groupRows[1], groupRows[7]}) {
        const QStringList files = group.files();
        const auto point = [&](float value) { return Floats(group.beginReadingOne.size(), value); };
        for (const QString& shortFile : files) {
            for (const QString& file : files) folder.put(file, values.left(file == shortFile ? 6 : 12));
            ASSERT_TRUE((reader.*group.beginReading)());
            std::vector<Floats> found{next(group), next(group)};
            for (const int size : {11, 12}) {
                folder.put(shortFile, values.left(size));
                found.insert(found.end(), {next(group), next(group)});
            }
            EXPECT_EQ(found, (std::vector<Floats>{point(1), {}, point(2), {}, point(3), {}}))
                << shortFile.toStdString();
        }
    }
}

TEST_F(MultiPoint, RefusesInvalidInfoFiles) {
    const auto begins = [&](const char* hex) {
        folder.put("b_info.bin", QByteArray::fromHex(hex));
        return reader.beginResultReading(base);
    };
    EXPECT_FALSE(reader.beginResultReading(base)) << "the file is missing";
    EXPECT_TRUE(begins("526d707400 0000e0ff 02000000"));
    EXPECT_FALSE(begins("526d707400 01000040 03000000")) << "bit 0 is no group";
    EXPECT_TRUE(reader.collectTransientTotalE() && !reader.collectTransientScatteredE())
        << "the known groups are decoded";
    EXPECT_FALSE(begins("526d707400 00001000 03000000")) << "bit 20 is no group";
    EXPECT_EQ(reader.getNumberOfPoints(), 2);
    EXPECT_FALSE(begins("526d707401 00000040 02000000"));
    EXPECT_FALSE(reader.readTimesteps(list)) << "version 1 is not supported";
    EXPECT_TRUE(MultiPointResult::supportsSerializationVersion(0) &&
                !MultiPointResult::supportsSerializationVersion(1));
    Writer writer;
    writer.setSerializationVersion(1);
    EXPECT_FALSE(writer.beginResultWriting(folder.path("new"), twoPoints));
    EXPECT_EQ(folder.names(), QStringList{"b_info.bin"});
}

TEST_F(MultiPoint, DeletingRemovesOneIndexMoreThanListed) {
    Writer writer(false, true, false, false, false, false, false, false, false, false, true);
    ASSERT_TRUE(writer.beginResultWriting(base, twoPoints) && writer.beginFrequency(1) && writer.beginTimestep(1) &&
                writer.beginTimestep(2) && writer.endResultWriting());
    const QStringList kept{
        "b2_info.bin", "b_steady_Jxr_freq2.bin", "b_transient_Ex_scattered_ts0.bin", "b_transient_Ex_total_ts3.bin"};
    for (const QString& name : kept + QStringList{"b_steady_Jxr_freq1.bin", "b_transient_Ez_total_ts2.bin"}) {
        folder.put(name, "");
    }
    folder.put("broken_info.bin", "Rmpt");
    EXPECT_FALSE(MultiPointResultDeleter().deleteResult(folder.path("broken")));
    EXPECT_TRUE(MultiPointResultDeleter().deleteResult(base));
    EXPECT_EQ(folder.names(), kept + QStringList{"broken_info.bin"});
    EXPECT_FALSE(MultiPointResultDeleter().deleteResult(base)) << "the result no longer exists";

    ASSERT_TRUE(writer.beginResultWriting(base, twoPoints) && writer.endResultWriting());
    for (const char* name : {"b_transient_Ex_total_ts000.bin", "b_transient_Ex_total_ts-1.bin"}) folder.put(name, "");
    folder.put("b_transient_Ex_total_ts250000000.bin", "");
    ASSERT_TRUE(QFile::resize(folder.path("b_timesteps.bin"), 1LL << 30)) << "a file with a hole";
    EXPECT_TRUE(MultiPointResultDeleter().deleteResult(base)) << "without trying all 2^28 entries of the list";
    EXPECT_FALSE(folder.has("b_transient_Ex_total_ts250000000.bin"));
    EXPECT_TRUE(folder.has("b_transient_Ex_total_ts000.bin") && folder.has("b_transient_Ex_total_ts-1.bin"));
}

TEST_F(MultiPoint, DeletingFromAFolderThatCannotBeListedTriesNames) {
    const QByteArray path = folder.path("").toLocal8Bit();
    for (const int numTimes : {2, 1 << 28}) {
        const auto writer = writerOf(1);
        ASSERT_TRUE(writer->beginResultWriting(base, twoPoints) && writer->endResultWriting());
        ASSERT_TRUE(QFile::resize(folder.path("b_timesteps.bin"), 4LL * numTimes));
        for (const int i : {0, std::min(numTimes, MultiPointResultDeleter::mostIndicesTried), 100001}) {
            folder.put(QString("b_transient_Ez_total_ts%1.bin").arg(i), "");
        }
        ASSERT_EQ(chmod(path, 0333), 0);
        EXPECT_TRUE((WithoutPrivileges(), MultiPointResultDeleter().deleteResult(base)));
        ASSERT_EQ(chmod(path, 0700), 0);
        EXPECT_EQ(folder.names(), QStringList("b_transient_Ez_total_ts100001.bin"));
    }
}

}  // namespace
}  // namespace quarn::test
