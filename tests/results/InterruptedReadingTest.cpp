// Files that are truncated while they are read, and readers without enough memory for their results.

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <functional>
#include <memory>
#include <new>

#include "TestSupport.h"
#include "quarn/quarn.h"
#include "results/ResultFolder.h"

namespace {

std::size_t largestAllocation = SIZE_MAX;

/// Makes large allocations fail as long as it lives.
class LowMemory {
public:
    LowMemory() { largestAllocation = 1 << 16; }
    ~LowMemory() { largestAllocation = SIZE_MAX; }
    LowMemory(const LowMemory&) = delete;
    LowMemory& operator=(const LowMemory&) = delete;
};

}  // namespace

void* operator new(std::size_t size) {
    void* memory = size <= largestAllocation ? std::malloc(size) : nullptr;
    if (!memory) throw std::bad_alloc();
    return memory;
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace quarn::test {
namespace {

constexpr int numRecords = 100000;  // more than any buffer holds
constexpr int numLeft = 40000;

struct Reading {
    const char* name;
    QByteArray header;
    int recordSize;
    int (*read)(const QString& path,
                const std::function<void()>& cut);  // returns the number of records read
};

void PrintTo(const Reading& row, std::ostream* out) { *out << row.name; }

int readBlock(const QString& path, const std::function<void()>& cut) {
    DataFileReader reader;
    FarZoneSSFieldFile::Record record;
    std::vector<FarZoneSSFieldFile::Record> records;
    EXPECT_TRUE(reader.open(path) && FarZoneSSFieldFile::readRecord(reader, record));
    cut();
    EXPECT_FALSE(FarZoneSSFieldFile::readRecords(reader, numRecords - 1, records));
    return 1 + static_cast<int>(records.size());
}

int readNearZonePoint(const QString& path, const std::function<void()>& cut) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> stream(openFile(path, "rb"), std::fclose);
    NearZoneMultiFieldPointResult file;
    NearZoneMultiFieldPointResult::Header header;
    NearZoneMultiFieldPointResult::Record record;
    EXPECT_TRUE(file.readAndGetHeader(stream.get(), header) && file.readRecord(stream.get(), record));
    cut();
    int count = 1;
    while (file.readRecord(stream.get(), record)) ++count;
    return count;
}

const Reading readings[] = {
    {"BlockOfRecords", "", 24, readBlock},
    {"NearZonePoint", QByteArray("Rnzp\0xxxxyyyyzzzz\0\2", 19), 16, readNearZonePoint},
};

class FileTruncatedWhileRead : public testing::TestWithParam<Reading> {};

TEST_P(FileTruncatedWhileRead, GivesTheCompleteRecordsThatAreLeft) {
    const auto& [name, header, recordSize, read] = GetParam();
    const ResultFolder folder;
    const QString path = folder.put("file", header + QByteArray(numRecords * recordSize, '\1'));
    const qint64 left = header.size() + numLeft * recordSize + recordSize / 2;
    EXPECT_EQ(read(path, [&] { EXPECT_TRUE(QFile::resize(path, left)); }), numLeft);
}

INSTANTIATE_TEST_SUITE_P(, FileTruncatedWhileRead, testing::ValuesIn(readings), rowName<Reading>);

TEST(LowMemory, MakesBlockReadersFailWithEmptyLists) {
    const ResultFolder folder;
    folder.put("b_info.bin", QByteArray("Rmpt\0\0\0\0\2\x10\x27\0\0", 13));  // 10 000 points
    folder.put("b_geom.bin", QByteArray(120000, '\1'));
    folder.put("b_timesteps.bin", QByteArray(120000, '\1'));
    folder.put("b_transient_Jy_ts0.bin", QByteArray(120000, '\1'));
    MultiPointResultReader set;
    DataFileReader records;
    ASSERT_TRUE(set.beginResultReading(folder.path("b")) && records.open(folder.path("b_geom.bin")));
    ASSERT_TRUE(set.beginTimestep(0) && set.beginTransientJy());
    std::vector<ivec3> points(1);
    std::vector<float> times(1), values(1);
    std::vector<FarZoneSSFieldFile::Record> block(1);
    bool anySucceeded = false;
    {
        const LowMemory lowMemory;
        anySucceeded = set.readGeometry(points) || set.readTimesteps(times) ||
                       set.readTransientBlock(MultiPointResultReader::Y, values) ||
                       FarZoneSSFieldFile::readRecords(records, 5000, block);
    }
    EXPECT_FALSE(anySucceeded);
    EXPECT_EQ(points.size() + times.size() + values.size() + block.size(), 0u);
    EXPECT_TRUE(set.readGeometry(points)) << "with enough memory again";
}

TEST(LowMemory, MakesTheFieldsOfABoxIncomplete) {
    constexpr auto open = BoundaryConditions::CPML;
    const ResultFolder folder;
    const Grid::Runs runs{{0, 0.01F}};
    Grid grid;
    ASSERT_TRUE(grid.initialize(200, 200, 200, 0, 0, 0, runs, runs, runs, true));
    const FarZoneBox box(BoundaryConditions(open, open, open, open, open, open, 8), grid);
    QString problem;
    bool isComplete = true;
    {
        const LowMemory lowMemory;
        isComplete = FieldsOnSSFarZoneBox(grid, folder.path("none"), box, problem).isComplete();
    }
    EXPECT_FALSE(isComplete);
    EXPECT_EQ(problem, "Unable to allocate arrays for loading far zone fields.");
}

}  // namespace
}  // namespace quarn::test
