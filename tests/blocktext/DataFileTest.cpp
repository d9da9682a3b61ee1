#include <gtest/gtest.h>

#include <tuple>

#include "quarn/DataFileReader.h"
#include "quarn/DataFileWriter.h"
#include "results/ResultFolder.h"

namespace quarn::test {
namespace {

class DataFile : public testing::Test {
protected:
    QByteArray bytes() const { return m_folder.bytes("data"); }

    ResultFolder m_folder;
    QString m_path = m_folder.path("data");
};

TEST_F(DataFile, EachTypeHasItsSize) {
    const std::tuple values(static_cast<signed char>(1), short{2}, 3, 4LL, 1.0F, -2.0);
    DataFileWriter writer;
    ASSERT_TRUE(writer.open(m_path, "wb"));
    EXPECT_TRUE(std::apply([&](const auto&... value) { return (writer.write(value) && ...); }, values));
    EXPECT_TRUE(writer.close());
    EXPECT_EQ(bytes().toHex(), "0102000300000004000000000000000000803f00000000000000c0");

    DataFileReader reader;
    ASSERT_TRUE(reader.open(m_path));
    std::tuple<signed char, short, int, long long, float, double> found;
    EXPECT_TRUE(std::apply([&](auto&... value) { return (reader.read(value) && ...); }, found));
    EXPECT_EQ(found, values);
    EXPECT_EQ(reader.tell(), 27);
    EXPECT_FALSE(reader.read(std::get<0>(found)));
}

TEST_F(DataFile, ClosedFilesRefuseAllOperations) {
    DataFileReader reader;
    int value = 7;
    EXPECT_FALSE(reader.open(m_path));
    EXPECT_FALSE(reader.seek(0) || reader.skip(0) || reader.close() || reader.read(value));
    EXPECT_EQ(reader.tell(), -1);
    EXPECT_EQ(value, 7);
    DataFileWriter writer;
    EXPECT_FALSE(writer.write(1) || writer.seek(0) || writer.skip(0) || writer.flush() || writer.close());
    ASSERT_TRUE(writer.open(m_path, "wb"));
    EXPECT_TRUE(writer.close());
    EXPECT_FALSE(writer.write(1) || writer.close());
    EXPECT_EQ(bytes(), "");
}

TEST_F(DataFile, ReaderMovesToPositions) {
    m_folder.put("data", "0123456789");
    DataFileReader reader;
    ASSERT_TRUE(reader.open(m_path));
    signed char digit = 0;
    EXPECT_TRUE(reader.seek(4) && reader.read(digit));
    EXPECT_EQ(digit, '4');
    EXPECT_TRUE(reader.skip(2) && reader.read(digit));
    EXPECT_EQ(digit, '7');
    EXPECT_TRUE(reader.skip(-8) && reader.read(digit));
    EXPECT_EQ(digit, '0');
    EXPECT_FALSE(reader.seek(-1) || reader.skip(-2));
    EXPECT_EQ(reader.tell(), 1);
    EXPECT_TRUE(reader.seek(20));
    EXPECT_FALSE(reader.read(digit));
    EXPECT_TRUE(reader.seek(9) && reader.read(digit)) << "seeking back clears the end-of-file state";
}

TEST_F(DataFile, WriterMovesToPositions) {
    DataFileWriter writer;
    ASSERT_TRUE(writer.open(m_path, "wb"));
    const auto put = [&](char c) { return writer.write(static_cast<signed char>(c)); };
    EXPECT_TRUE(put('a') && put('b') && put('c') && writer.seek(1) && put('B') && writer.skip(2) && put('e'));
    EXPECT_FALSE(writer.seek(-1));
    EXPECT_TRUE(writer.flush());
    EXPECT_EQ(bytes(), QByteArray("aBc\0e", 5)) << "flushed while the file is open";
}

TEST_F(DataFile, OpeningAgainClosesFirst) {
    DataFileWriter writer;
    ASSERT_TRUE(writer.open(m_path, "wb") && writer.write(1));
    int waited = -1;
    ASSERT_TRUE(writer.openWithRetries(m_path, "ab", 10, &waited) && writer.write(2) && writer.close());
    EXPECT_EQ(waited, 0);
    EXPECT_EQ(bytes().toHex(), "0100000002000000");

    DataFileReader reader;
    ASSERT_TRUE(reader.open(m_path) && reader.skip(4));
    ASSERT_TRUE(reader.open(m_path));
    EXPECT_EQ(reader.tell(), 0);
    EXPECT_FALSE(reader.open(m_path + "none"));
    EXPECT_EQ(reader.tell(), -1) << "the previous file must be closed";
}

TEST_F(DataFile, DestructorWritesTheDataToTheFile) {
    {
        DataFileWriter writer;
        ASSERT_TRUE(writer.open(m_path, "wb") && writer.write(1));
    }
    EXPECT_EQ(bytes().size(), 4);
}

#ifdef Q_OS_LINUX
TEST_F(DataFile, FullDiskIsReportedOnClosingAtTheLatest) {
    DataFileWriter writer;
    ASSERT_TRUE(writer.open("/dev/full", "wb") && writer.write(1));
    EXPECT_FALSE(writer.flush());
    EXPECT_FALSE(writer.close());
    ASSERT_TRUE(writer.open("/dev/full", "wb") && writer.write(1));
    EXPECT_FALSE(writer.close());
}
#endif

}  // namespace
}  // namespace quarn::test
