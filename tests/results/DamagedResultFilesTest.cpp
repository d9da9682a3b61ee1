// A sample of each kind of result file is truncated at each length, and each byte of its header is changed to every
// other value. Invalid headers must be refused, and complete records must be read.

#include <gtest/gtest.h>

#include <memory>

#include "TestSupport.h"
#include "quarn/quarn.h"
#include "results/ResultFolder.h"

namespace quarn::test {
namespace {

constexpr int refused = -1;

struct Sample {
    const char* name;
    const char* fileName;
    QByteArray header;
    int recordSize;
    int firstFree, lastFree;           // bytes of the header whose values are all accepted
    int (*read)(const QString& path);  // how many records, or refused
};

void PrintTo(const Sample& sample, std::ostream* out) { *out << sample.name; }

template <class Codec>
int numRecords(DataFileReader& reader) {
    int count = 0;
    for (typename Codec::Record record; Codec::readRecord(reader, record);) ++count;
    return count;
}

int readBoxFields(const QString& path) {
    DataFileReader reader;
    FileHeader header;
    EXPECT_TRUE(reader.open(path));
    return header.read(reader) ? numRecords<FieldsOnSteadyStateFarZoneBoxFile>(reader) : refused;
}

int readStatistics(const QString& path) {
    DataFileReader reader;
    EXPECT_TRUE(reader.open(path));
    return numRecords<AveragedSarStatistics>(reader);
}

int readDissipatedPower(const QString& path) {
    DataFileReader reader;
    SystemDissipatedPower file;
    EXPECT_TRUE(reader.open(path));
    if (!file.readHeader(reader)) return refused;
    int count = 0;
    for (SystemDissipatedPower::Record record; file.readRecord(reader, record);) ++count;
    return count;
}

int readNearZonePoint(const QString& path) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> stream(openFile(path, "rb"), std::fclose);
    NearZoneMultiFieldPointResult file;
    NearZoneMultiFieldPointResult::Header header;
    if (!file.readAndGetHeader(stream.get(), header)) return refused;
    int count = 0;
    for (NearZoneMultiFieldPointResult::Record record; file.readRecord(stream.get(), record);) ++count;
    return count;
}

int readSarPlane(const QString& path) {
    SarResultReader reader;
    if (!reader.beginResultReading(path)) return refused;
    int count = 0;
    for (SarResult::Record record; reader.readRecord(record);) ++count;
    return count;
}

const QByteArray pointInfo("Rmpt\0\0\0\0\2\1\0\0\0", 13);

int readInfo(const QString& path) {
    MultiPointResultReader reader;
    return reader.beginResultReading(path.chopped(9)) ? 0 : refused;
}

// Reads a file of a result set whose other files are valid.
template <class Read>
int readFromSet(const QString& path, Read read) {
    const QString base = path.section('/', 0, -2) + "/b";
    QFile info(base + "_info.bin");
    EXPECT_TRUE(info.open(QIODevice::WriteOnly) && info.write(pointInfo) == 13);
    info.close();
    MultiPointResultReader reader;
    EXPECT_TRUE(reader.beginResultReading(base));
    return read(reader);
}

int readPoints(const QString& path) {
    return readFromSet(path, [](MultiPointResultReader& reader) {
        std::vector<ivec3> points;
        return reader.readGeometry(points) ? static_cast<int>(points.size()) : refused;
    });
}

int readTimes(const QString& path) {
    return readFromSet(path, [](MultiPointResultReader& reader) {
        std::vector<float> times;
        return reader.readTimesteps(times) ? static_cast<int>(times.size()) : refused;
    });
}

int readComponent(const QString& path) {
    return readFromSet(path, [](MultiPointResultReader& reader) {
        int count = 0;
        std::vector<float> values;
        EXPECT_TRUE(reader.beginTimestep(0) && reader.beginTransientJy());
        for (float value = 0; reader.readTransientY(value);) ++count;
        EXPECT_TRUE(reader.beginTransientJy() && reader.readTransientBlock(MultiPointResultReader::Y, values));
        EXPECT_EQ(static_cast<int>(values.size()), count);
        return count;
    });
}

const Sample samples[] = {
    {"FarZoneBoxFields", "f", QByteArray("!tavrixfdtdL\x08\0\0\0", 16), 32, 12, 15, readBoxFields},
    {"SarStatistics", "f", "", 48, 0, -1, readStatistics},
    {"DissipatedPower", "f", "\1\2", 24, 0, 1, readDissipatedPower},
    {"NearZonePoint", "f", QByteArray("Rnzp\0xxxxyyyyzzzz\0\2", 19), 16, 5, 16, readNearZonePoint},
    {"SarPlane", "f", QByteArray("!tavrixfdtdL\x0D\0\0\0\2\0\0\0\5\0\0\0\2\0\0\0", 28), 12, 20, 26, readSarPlane},
    {"PointInfo", "b_info.bin", pointInfo, 0, 8, 12, readInfo},
    {"PointGeometry", "b_geom.bin", "", 12, 0, -1, readPoints},
    {"PointTimes", "b_timesteps.bin", "", 4, 0, -1, readTimes},
    {"PointComponent", "b_transient_Jy_ts0.bin", "", 4, 0, -1, readComponent},
};

class DamagedResultFile : public testing::TestWithParam<Sample> {
protected:
    int read(const QByteArray& bytes) const {
        QFile::remove(
            m_folder.path(GetParam().fileName));  // some file systems wait for the disk when it is overwritten
        return GetParam().read(m_folder.put(GetParam().fileName, bytes));
    }

    ResultFolder m_folder;
};

TEST_P(DamagedResultFile, GivesCompleteRecordsAtEachLength) {
    const int headerSize = GetParam().header.size();
    const int recordSize = GetParam().recordSize;
    const QByteArray whole = GetParam().header + QByteArray(2 * recordSize, '\1');
    for (int length = 0; length <= whole.size(); ++length) {
        const int complete = recordSize ? (length - headerSize) / recordSize : 0;
        EXPECT_EQ(read(whole.left(length)), length < headerSize ? refused : complete) << length << " bytes";
    }
}

TEST_P(DamagedResultFile, RefusesOrReadsEachChangedHeader) {
    constexpr int allBits = 0xFF;
    const QByteArray whole = GetParam().header + QByteArray(2 * GetParam().recordSize, '\1');
    for (int i = 0; i < GetParam().header.size(); ++i) {
        const bool isFree = i >= GetParam().firstFree && i <= GetParam().lastFree;
        for (int change = 1; change <= allBits; ++change) {
            QByteArray bytes = whole;
            bytes[i] = static_cast<char>(bytes[i] ^ change);
            const int count = read(bytes);
            ASSERT_TRUE(count == refused || (count >= 0 && count < whole.size())) << "byte " << i << " by " << change;
            if (change == allBits) {
                EXPECT_EQ(count != refused, isFree) << "byte " << i << " flipped";
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, DamagedResultFile, testing::ValuesIn(samples), rowName<Sample>);

}  // namespace
}  // namespace quarn::test
