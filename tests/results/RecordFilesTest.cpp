// Records and headers: their bytes, read one by one and in blocks.

#include <gtest/gtest.h>

#include "quarn/quarn.h"
#include "results/ResultFolder.h"

namespace quarn::test {
namespace {

// The numbers 1, 2, 3 ... as floats in a file, each after two bytes of zero.
const QList<QByteArray> floats = QByteArray("803f 0040 4040 8040 a040 c040 e040 0041 1041 2041 3041 4041").split(' ');

// The bytes of a record whose numbers, "f" or "i" each, count up from 1.
QByteArray countingUp(const QByteArray& types) {
    QByteArray hex;
    for (int i = 0; i < types.size(); ++i) {
        hex += types[i] == 'f' ? "0000" + floats[i] : QByteArray::number(i + 1, 16).rightJustified(2, '0') + "000000";
    }
    return QByteArray::fromHex(hex);
}

// Writes and reads a file with this record, an empty one and an incomplete third one.
template <class Codec>
void checkCodec(const QByteArray& types, const typename Codec::Record& record) {
    SCOPED_TRACE(types.toStdString() + ", " + typeid(Codec).name());
    using Record = typename Codec::Record;
    const ResultFolder folder;
    DataFileWriter writer;
    ASSERT_TRUE(writer.open(folder.path("file"), "wb"));
    EXPECT_TRUE(Codec::writeRecord(writer, record) && Codec::writeRecord(writer, {}) && writer.write(short{1}));
    EXPECT_TRUE(writer.close());
    EXPECT_FALSE(Codec::writeRecord(writer, record));
    const int size = static_cast<int>(Codec::recordSize);
    EXPECT_EQ(folder.bytes("file").toHex(), (countingUp(types) + QByteArray(size, '\0') + "\1" + '\0').toHex());

    DataFileReader reader;
    ASSERT_TRUE(reader.open(folder.path("file")));
    Record read;
    EXPECT_TRUE(Codec::readRecord(reader, read) && read == record);
    EXPECT_TRUE(Codec::readRecord(reader, read) && read == Record());
    EXPECT_FALSE(Codec::readRecord(reader, read));

    std::vector<Record> all(7);
    EXPECT_TRUE(reader.seek(0) && Codec::readRecords(reader, 2, all));
    EXPECT_EQ(all, (std::vector<Record>{record, {}}));
    EXPECT_TRUE(reader.seek(size));
    EXPECT_FALSE(Codec::readRecords(reader, SIZE_MAX, all));
    EXPECT_EQ(all, std::vector<Record>{{}});
}

TEST(RecordCodec, EachKindHasItsBytes) {
    checkCodec<SystemRadiatedPower>("f", {1});
    checkCodec<SystemEigenMode>("ff", {{1, 2}});
    checkCodec<CircuitComponentVCTransient>("fff", CircuitComponentVCTransientRecord{1, 2, 3});
    checkCodec<CircuitComponentTdafsSParameter>("fff", {1, 2, 3});
    checkCodec<CircuitComponentVCSteadyState>("ffff", {{1, 2}, {3, 4}});
    checkCodec<CircuitComponentVCBroadband>("fffff", {1, 2, 3, {4, 5}});
    checkCodec<IncidentPlaneWaveFieldsInstantaneous>("ffff", {1, 2, 3, 4});
    checkCodec<IncidentPlaneWaveFieldsSteadyState>("ffffffffffff", {{1, 2}, {3, 4}, {5, 6}, {7, 8}, {9, 10}, {11, 12}});
    checkCodec<FarZoneSSFieldFile>("ffffff", {1, 2, {3, 4}, {5, 6}});
    checkCodec<FieldsOnSteadyStateFarZoneBoxFile>("ffffffff", {{1, 2}, {3, 4}, {5, 6}, {7, 8}});
    checkCodec<RawSarStatistics>("fiiifif", {1, 2, 3, 4, 5, 6, 7});
    checkCodec<AveragedSarStatistics>("fiiiffiiiiii", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12});
}

TEST(RecordCodec, TruncatedRecordIsReadOnceItIsComplete) {
    const ResultFolder folder;
    DataFileReader reader;
    ASSERT_TRUE(reader.open(folder.put("file", countingUp("ffff").left(15))));
    IncidentPlaneWaveFieldsInstantaneous::Record record{9, 9, 9, 9};
    EXPECT_FALSE(IncidentPlaneWaveFieldsInstantaneous::readRecord(reader, record));
    EXPECT_EQ(record, (IncidentPlaneWaveFieldsInstantaneous::Record{1, 2, 3, 9}));
    folder.put("file", countingUp("ffff"));
    EXPECT_TRUE(IncidentPlaneWaveFieldsInstantaneous::readRecord(reader, record));
    EXPECT_EQ(record, (IncidentPlaneWaveFieldsInstantaneous::Record{1, 2, 3, 4}));
}

TEST(FileHeader, HasItsBytes) {
    const ResultFolder folder;
    DataFileWriter writer;
    ASSERT_TRUE(writer.open(folder.path("file"), "wb"));
    EXPECT_TRUE(FileHeader(8, 0xFFFF).write(writer) && FileHeader(0x1000D, 0x20001).write(writer) && writer.close());
    EXPECT_EQ(folder.bytes("file"), QByteArray("!tavrixfdtdL\x08\0\xFF\xFF!tavrixfdtdL\x0D\0\x01\0", 32));
    DataFileReader reader;
    ASSERT_TRUE(reader.open(folder.path("file")));
    FileHeader header;
    EXPECT_EQ(header, FileHeader(0, 0));
    EXPECT_TRUE(header.read(reader) && header == FileHeader(8, 65535)) << "the numbers are unsigned";
    EXPECT_TRUE(header.read(reader) && header == FileHeader(13, 1)) << "only 16 bits are written";
    EXPECT_FALSE(header.read(reader));
    EXPECT_EQ(header, FileHeader(13, 1));
}

TEST(SystemDissipatedPower, HeaderDeterminesTheNumberOfValues) {
    const ResultFolder folder;
    SystemDissipatedPower file;
    DataFileWriter writer;
    ASSERT_TRUE(writer.open(folder.path("file"), "wb"));
    EXPECT_TRUE(file.writeHeader(writer, {1, 2}));
    EXPECT_TRUE(file.writeRecord(writer, {1, 2, 3, {4}, {5, 6, 7, 8}}));
    EXPECT_FALSE(file.writeRecord(writer, {1, 2, 3, {4}, {5}})) << "too few values";
    EXPECT_FALSE(file.writeRecord(writer, {1, 2, 3, {}, {5, 6}}));
    EXPECT_TRUE(writer.close());
    EXPECT_EQ(folder.bytes("file").toHex(), "0102" + countingUp("ffffff").toHex());

    DataFileReader reader;
    ASSERT_TRUE(reader.open(folder.path("file")));
    SystemDissipatedPower again;
    SystemDissipatedPower::Record record;
    EXPECT_TRUE(again.readHeader(reader) && again.readRecord(reader, record));
    EXPECT_EQ(record, (SystemDissipatedPower::Record{1, 2, 3, {4}, {5, 6}}));
    EXPECT_FALSE(again.readHeader(reader));
    EXPECT_EQ(again.getHeader().numMagnetic, 2) << "a missing header changes nothing";

    SystemDissipatedPower largest;
    ASSERT_TRUE(reader.open(folder.put("file", QByteArray("\xFF\xFF") + QByteArray(12 + 4 * 510, '\0'))));
    EXPECT_TRUE(largest.readHeader(reader) && largest.readRecord(reader, record));
    EXPECT_EQ(record.electricByMaterial.size() + record.magneticByMaterial.size(), 510U);
    EXPECT_FALSE(largest.readRecord(reader, record));
}

}  // namespace
}  // namespace quarn::test
