#include "quarn/FieldsOnSSFarZoneBox.h"

#include <gmock/gmock.h>

#include "TestSupport.h"
#include "results/FarZoneFields.h"

namespace quarn::test {
namespace {

using testing::ElementsAre;
using Complex = std::complex<float>;

constexpr int numCells[] = {10, 8, 6};
constexpr int cellsOnFaces[] = {48, 48, 60, 60, 80, 80};
constexpr int numRecords = 376;
constexpr int headerSize = 16;
constexpr int recordSize = 32;

/// Ten by eight by six cells in the box, with nodes of the grid at 0.5, 1 and 2 m.
Grid smallGrid() {
    Grid grid;
    EXPECT_TRUE(grid.initialize(19, 17, 15, 0, 0, 0, {{0, 0.5F}, {8, 1}}, {{0, 1}}, {{0, 2}}, true));
    return grid;
}

/// Each number of the file is its own index.
QByteArray boxFile(int records) {
    QByteArray bytes("!tavrixfdtdL\x08\0\0\0", headerSize);
    for (int i = 0; i < 8 * records; ++i) {
        const auto number = static_cast<float>(i);
        bytes.append(reinterpret_cast<const char*>(&number), sizeof number);
    }
    return bytes;
}

struct Loaded {
    ResultFolder folder;
    QString path;
    Grid grid = smallGrid();
    FarZoneBox box{openBoundaries(), grid};
    QString problem;
    FieldsOnSSFarZoneBox fields;

    explicit Loaded(const QByteArray& bytes) : path(folder.put("box", bytes)), fields(grid, path, box, problem) {}
};

TEST(FieldsOnSSFarZoneBox, ReadsFacesAndCellsInOrderAndIgnoresTheRest) {
    const Loaded loaded(boxFile(numRecords) + "more");
    const FieldsOnSSFarZoneBox& f = loaded.fields;
    EXPECT_EQ(loaded.problem, QString());
    EXPECT_TRUE(f.isComplete());
    using Samples = FieldsOnSSFarZoneBox::Samples;
    const Samples* inFileOrder[] = {&f.getEy_onXLower(), &f.getEz_onXLower(), &f.getHy_onXLower(), &f.getHz_onXLower(),
                                    &f.getEy_onXUpper(), &f.getEz_onXUpper(), &f.getHy_onXUpper(), &f.getHz_onXUpper(),
                                    &f.getEx_onYLower(), &f.getEz_onYLower(), &f.getHx_onYLower(), &f.getHz_onYLower(),
                                    &f.getEx_onYUpper(), &f.getEz_onYUpper(), &f.getHx_onYUpper(), &f.getHz_onYUpper(),
                                    &f.getEx_onZLower(), &f.getEy_onZLower(), &f.getHx_onZLower(), &f.getHy_onZLower(),
                                    &f.getEx_onZUpper(), &f.getEy_onZUpper(), &f.getHx_onZUpper(), &f.getHy_onZUpper()};
    int record = 0;
    for (int face = 0; face < 6; ++face) {
        for (int cell = 0; cell < cellsOnFaces[face]; ++cell, ++record) {
            for (int component = 0; component < 4; ++component) {
                const Samples& samples = *inFileOrder[4 * face + component];
                ASSERT_EQ(samples.size(), static_cast<std::size_t>(cellsOnFaces[face]));
                const auto number = static_cast<float>(8 * record + 2 * component);
                ASSERT_EQ(samples[cell], Complex(number, number + 1)) << face << ' ' << component << ' ' << cell;
            }
        }
    }
    EXPECT_EQ(record, numRecords);
}

// The nodes along x are at 2, 2.5, 3, 3.5, 4, 5, ... 10 from the lower to the upper face; the centre is half of node
// 18.
TEST(FieldsOnSSFarZoneBox, MeasuresCellsAndFacesFromTheCentreOfTheBox) {
    const Loaded loaded(boxFile(numRecords));
    const FieldsOnSSFarZoneBox& f = loaded.fields;
    EXPECT_EQ(std::make_tuple(f.getNumberInX(), f.getNumberInY(), f.getNumberInZ()), std::make_tuple(10U, 8U, 6U));
    EXPECT_THAT(f.getXDeltas(), ElementsAre(0.5F, 0.5F, 0.5F, 0.5F, 1, 1, 1, 1, 1, 1));
    EXPECT_EQ(f.getXDelta(3), 0.5F);
    EXPECT_EQ(f.getYDelta(7), 1.0F);
    EXPECT_THAT(f.getZDeltas(), ElementsAre(2, 2, 2, 2, 2, 2));
    EXPECT_EQ(f.getXDistanceToX(), 5.0);
    EXPECT_EQ(f.getXDistanceToXUpper(), 3.0);
    EXPECT_EQ(f.getYDistanceToY(), 4.0);
    EXPECT_EQ(f.getZDistanceToZUpper(), 6.0);
    EXPECT_THAT(f.getXDistanceToY(), ElementsAre(-4.75, -4.25, -3.75, -3.25, -2.5, -1.5, -0.5, 0.5, 1.5, 2.5));
    EXPECT_EQ(f.getXDistanceToZ(), f.getXDistanceToY());
    EXPECT_THAT(f.getYDistanceToX(), ElementsAre(-3.5, -2.5, -1.5, -0.5, 0.5, 1.5, 2.5, 3.5));
    EXPECT_EQ(f.getYDistanceToZ(), f.getYDistanceToX());
    EXPECT_THAT(f.getZDistanceToX(), ElementsAre(-5, -3, -1, 1, 3, 5));
    EXPECT_EQ(f.getZDistanceToY(), f.getZDistanceToX());
}

struct BadFile {
    const char* name;
    QByteArray bytes;
    const char* message;  // before the path
    std::size_t firstSamplesLoaded;
};

void PrintTo(const BadFile& row, std::ostream* out) { *out << row.name; }

class InvalidBoxFile : public testing::TestWithParam<BadFile> {};

TEST_P(InvalidBoxFile, IsNamedInTheMessage) {
    const Loaded loaded(GetParam().bytes);
    EXPECT_EQ(loaded.problem, GetParam().message + loaded.path);
    EXPECT_FALSE(loaded.fields.isComplete());
    EXPECT_EQ(loaded.fields.getEy_onXLower().size(), GetParam().firstSamplesLoaded);
    std::vector<FarZoneSSFieldFile::Record> records(2);
    EXPECT_FALSE(PostProcessSSFarZoneFields(&loaded.fields, 1e8F, 0, 0).computeFields({{1, 2}}, records));
    EXPECT_EQ(records.size(), 2U);
}

QByteArray withByte(int offset, char byte) {
    QByteArray bytes = boxFile(numRecords);
    bytes[offset] = byte;
    return bytes;
}

constexpr const char* unsupported = "Unsupported file format for far zone box data in ";
constexpr const char* tooShort = "Unexpected end of far zone box data in ";
const BadFile badFiles[] = {
    {"EmptyFile", "", unsupported, 0},
    {"OtherMagic", withByte(0, '?'), unsupported, 0},
    {"OtherType", withByte(12, 13), unsupported, 0},
    {"Version1", withByte(14, 1), unsupported, 0},
    {"HeaderOnly", boxFile(0), tooShort, 0},
    {"TruncatedInTheFirstFace", boxFile(7), tooShort, 7},
    {"OneRecordShort", boxFile(numRecords - 1), tooShort, 48},
    {"OneByteShort", boxFile(numRecords).chopped(1), tooShort, 48},
};
INSTANTIATE_TEST_SUITE_P(, InvalidBoxFile, testing::ValuesIn(badFiles), rowName<BadFile>);

TEST(FieldsOnSSFarZoneBox, ReportsAMissingFile) {
    const Grid grid = smallGrid();
    QString problem;
    const FieldsOnSSFarZoneBox fields(grid, "no/such/file", {openBoundaries(), grid}, problem);
    EXPECT_EQ(problem, "Unable to open far zone field file:no/such/file");
    EXPECT_EQ(fields.getXDistanceToX(), 5.0);
}

TEST(FieldsOnSSFarZoneBox, ReportsABoxOutsideTheGrid) {
    const ResultFolder folder;
    const QString path = folder.put("box", boxFile(numRecords));
    const FarZoneBox box(openBoundaries(), smallGrid());
    Grid withoutNodes, smaller;
    ASSERT_TRUE(withoutNodes.initialize(19, 17, 15, 0, 0, 0, {{0, 1}}, {{0, 1}}, {{0, 1}}, false));
    ASSERT_TRUE(smaller.initialize(19, 17, 10, 0, 0, 0, {{0, 1}}, {{0, 1}}, {{0, 1}}, true));
    for (const Grid& grid : {withoutNodes, smaller, Grid()}) {
        QString problem;
        EXPECT_FALSE(FieldsOnSSFarZoneBox(grid, path, box, problem).isComplete());
        EXPECT_EQ(problem, "The far zone box does not lie in the grid.");
    }
}

// A face of 2^40 cells.
TEST(FieldsOnSSFarZoneBox, ReportsInsufficientMemory) {
    Grid grid;
    ASSERT_TRUE(grid.initialize(12, 1U << 20, 1U << 20, 0, 0, 0, {{0, 1}}, {{0, 1}}, {{0, 1}}, true));
    const ResultFolder folder;
    QString problem;
    const FieldsOnSSFarZoneBox fields(grid, folder.put("box", boxFile(9)), {openBoundaries(), grid}, problem);
    EXPECT_EQ(problem, "Unable to allocate arrays for loading far zone fields.");
}

void expectWhole(const FieldsOnSSFarZoneBox& fields) {
    EXPECT_TRUE(fields.isComplete());
    EXPECT_EQ(fields.getNumberInX(), 10U);
    EXPECT_EQ(fields.getXDelta(9), 1.0F);
    EXPECT_EQ(fields.getHy_onZUpper().back(), Complex(8 * numRecords - 2, 8 * numRecords - 1));
}

void expectEmpty(const FieldsOnSSFarZoneBox& fields) {
    EXPECT_FALSE(fields.isComplete());
    EXPECT_FALSE(fields.getFarZoneBox().isValid());
    EXPECT_EQ(fields.getNumberInX(), 0U);
    for (const int cell : {-1, 0}) EXPECT_EQ(fields.getXDelta(cell) + fields.getYDelta(cell), 0.0F);
    EXPECT_TRUE(fields.getZDeltas().empty() && fields.getYDistanceToX().empty() && fields.getHy_onZUpper().empty());
    EXPECT_EQ(fields.getXDistanceToX() + fields.getXDistanceToXUpper(), 0.0);
    std::vector<FarZoneSSFieldFile::Record> records;
    EXPECT_FALSE(PostProcessSSFarZoneFields(&fields, 1e8F, 0, 0).computeFields({{1, 2}}, records));
}

TEST(FieldsOnSSFarZoneBox, CopiesCompletelyAndMovesLeavingNothing) {
    auto loaded = std::make_unique<Loaded>(boxFile(numRecords));
    const FieldsOnSSFarZoneBox copy = loaded->fields;
    FieldsOnSSFarZoneBox moved = std::move(loaded->fields);
    expectEmpty(loaded->fields);
    FieldsOnSSFarZoneBox assigned = Loaded("").fields;
    assigned = std::move(moved);
    expectEmpty(moved);
    FieldsOnSSFarZoneBox& itself = assigned;
    assigned = std::move(itself);
    moved = copy;
    loaded.reset();
    for (const auto& fields : {copy, assigned, moved}) expectWhole(fields);
}

TEST(FieldsOnSSFarZoneBox, HasImageFieldsWhenThePlaneMatchesTheGrid) {
    Grid grid, other;
    ASSERT_TRUE(grid.initialize(11, 11, 11, 0, 0, 0, {{0, 1}}, {{0, 1}}, {{0, 1}}, true));
    ASSERT_TRUE(other.initialize(11, 11, 11, 0, 0, 0.25F, {{0, 1}}, {{0, 1}}, {{0, 1}}, true));
    const ResultFolder folder;
    const FarZoneBox onPlane(boundariesWithPlaneAt(FarZoneBox::ZLower), grid);
    QString problem;
    const FieldsOnSSFarZoneBox fields(grid, folder.put("box", boxFile(56)), onPlane, problem);
    EXPECT_EQ(problem, QString());
    EXPECT_TRUE(fields.setupImageFields(grid));
    EXPECT_FALSE(fields.setupImageFields(other));
    EXPECT_FALSE(fields.setupImageFields(Grid()));
    EXPECT_FALSE(FieldsOnSSFarZoneBox(grid, folder.put("box", boxFile(55)), onPlane, problem).setupImageFields(grid));
    EXPECT_TRUE(FieldsOnSSFarZoneBox(grid, "", {openBoundaries(), grid}, problem).setupImageFields(grid));
}

}  // namespace
}  // namespace quarn::test
