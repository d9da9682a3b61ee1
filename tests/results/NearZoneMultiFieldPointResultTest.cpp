#include "quarn/NearZoneMultiFieldPointResult.h"

#include <gtest/gtest.h>

#include <QByteArray>
#include <memory>

namespace quarn::test {
namespace {

using Result = NearZoneMultiFieldPointResult;
using Stream = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

Stream streamOf(const QByteArray& bytes = {}) {
    Stream stream(std::tmpfile(), std::fclose);
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream.get());
    std::rewind(stream.get());
    return stream;
}

QByteArray hexOf(const Stream& stream) {
    std::rewind(stream.get());
    QByteArray bytes(1000, '\0');
    bytes.truncate(static_cast<int>(std::fread(bytes.data(), 1, 1000, stream.get())));
    return bytes.toHex();
}

// With each number different from all others.
const Result::Record record{
    1, {2, 3, 4}, {5, 6, 7}, {8, 9, 10}, {11, 12, 13}, {14, 15, 16}, {17, 18, 19}, {20, 21, 22}};

struct Group {
    const char* name;
    Result::Header header;
    const char* flagWord;  // the lower byte comes first
    bool (Result::Header::*collected)() const;
    Result::Record::Components Result::Record::*components;
    const char* bytes;
};
const Group groups[] = {
    {"scattered E",
     {1, 2, 4, true, false, false, false, false, false, false},
     "0080",
     &Result::Header::collectScatteredE,
     &Result::Record::scatteredE,
     "000000400000404000008040"},
    {"total E",
     {1, 2, 4, false, true, false, false, false, false, false},
     "0040",
     &Result::Header::collectTotalE,
     &Result::Record::totalE,
     "0000a0400000c0400000e040"},
    {"scattered H",
     {1, 2, 4, false, false, true, false, false, false, false},
     "0020",
     &Result::Header::collectScatteredH,
     &Result::Record::scatteredH,
     "000000410000104100002041"},
    {"total H",
     {1, 2, 4, false, false, false, true, false, false, false},
     "0010",
     &Result::Header::collectTotalH,
     &Result::Record::totalH,
     "000030410000404100005041"},
    {"scattered B",
     {1, 2, 4, false, false, false, false, true, false, false},
     "0008",
     &Result::Header::collectScatteredB,
     &Result::Record::scatteredB,
     "000060410000704100008041"},
    {"total B",
     {1, 2, 4, false, false, false, false, false, true, false},
     "0004",
     &Result::Header::collectTotalB,
     &Result::Record::totalB,
     "000088410000904100009841"},
    {"J",
     {1, 2, 4, false, false, false, false, false, false, true},
     "0002",
     &Result::Header::collectJ,
     &Result::Record::j,
     "0000a0410000a8410000b041"},
};

TEST(NearZoneMultiFieldPointResult, eachGroupHasItsBitAndItsPlace) {
    for (const Group& group : groups) {
        SCOPED_TRACE(group.name);
        const Stream stream = streamOf();
        Result writer;
        EXPECT_TRUE(writer.setAndWriteHeader(group.header, stream.get()) && writer.writeRecord(record, stream.get()));
        EXPECT_EQ(hexOf(stream),
                  QByteArray("526e7a7000") + "0000803f0000004000008040" + group.flagWord + "0000803f" + group.bytes);
        std::rewind(stream.get());
        Result reader;
        Result::Header header;
        ASSERT_TRUE(reader.readAndGetHeader(stream.get(), header));
        for (const Group& other : groups) {
            EXPECT_EQ((header.*other.collected)(), &other == &group) << other.name;
            EXPECT_EQ((reader.getHeader().*other.collected)(), &other == &group) << other.name;
        }
        Result::Record read;
        EXPECT_TRUE(reader.readRecord(stream.get(), read));
        Result::Record expected;
        expected.time = 1;
        expected.*group.components = record.*group.components;
        EXPECT_EQ(read, expected) << "groups that are not there stay as they were";
        EXPECT_FALSE(reader.readRecord(stream.get(), read));
    }
}

TEST(NearZoneMultiFieldPointResult, allGroupsAndNone) {
    for (const bool all : {false, true}) {
        const Stream stream = streamOf();
        Result result;
        EXPECT_TRUE(result.setAndWriteHeader({0, 0, 0, all, all, all, all, all, all, all}, stream.get()));
        EXPECT_TRUE(result.writeRecord(record, stream.get()));
        EXPECT_EQ(std::ftell(stream.get()), 19 + (all ? 88 : 4));
        std::fseek(stream.get(), 19, SEEK_SET);
        Result::Record read;
        EXPECT_TRUE(result.readRecord(stream.get(), read));
        EXPECT_EQ(read == record, all);
    }
}

TEST(NearZoneMultiFieldPointResult, refusedHeaders) {
    const QByteArray position(12, '\0');
    Result result;
    Result::Header header;
    Stream stream = streamOf("Rnzq" + QByteArray(40, '\0'));
    EXPECT_FALSE(result.readAndGetHeader(stream.get(), header));
    EXPECT_EQ(std::ftell(stream.get()), 4) << "refused right after the letter";
    stream = streamOf(QByteArray("Rnzp\0", 5) + position + QByteArray("\x01\x42", 2));
    EXPECT_FALSE(result.readAndGetHeader(stream.get(), header)) << "bit 0 is no group";
    EXPECT_TRUE(header.collectTotalE() && header.collectJ() && !header.collectScatteredE());
    EXPECT_FALSE(result.getHeader().collectTotalE());
    EXPECT_FALSE(result.readAndGetHeader(nullptr, header) || result.setAndWriteHeader(header, nullptr));

    stream = streamOf("Rnzp\x05" + position + QByteArray(40, '\0'));
    EXPECT_FALSE(result.readAndGetHeader(stream.get(), header));
    EXPECT_EQ(header.getVersion(), 5);
    Result::Record read;
    EXPECT_TRUE(result.readRecord(stream.get(), read)) << "by the header of before";
    EXPECT_TRUE(result.setAndWriteHeader(header, streamOf().get()));
    EXPECT_FALSE(result.readRecord(stream.get(), read)) << "nothing is known of version 5";
}

}  // namespace
}  // namespace quarn::test
