#include "quarn/NearZoneMultiFieldPointResult.h"

#include <gtest/gtest.h>

#include <QByteArray>
#include <memory>

namespace quarn::test {
namespace {

using Result = NearZoneMultiFieldPointResult;
using Header = Result::Header;
using Record = Result::Record;
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

// Each number differs from all others.
const Record record{1, {2, 3, 4}, {5, 6, 7}, {8, 9, 10}, {11, 12, 13}, {14, 15, 16}, {17, 18, 19}, {20, 21, 22}};

struct Group {
    const char* flagWord;  // the lower byte comes first
    bool (Header::*collected)() const;
    Record::Components Record::*components;
    const char* bytes;
};
const Group groups[] = {
    {"0080", &Header::collectScatteredE, &Record::scatteredE, "000000400000404000008040"},
    {"0040", &Header::collectTotalE, &Record::totalE, "0000a0400000c0400000e040"},
    {"0020", &Header::collectScatteredH, &Record::scatteredH, "000000410000104100002041"},
    {"0010", &Header::collectTotalH, &Record::totalH, "000030410000404100005041"},
    {"0008", &Header::collectScatteredB, &Record::scatteredB, "000060410000704100008041"},
    {"0004", &Header::collectTotalB, &Record::totalB, "000088410000904100009841"},
    {"0002", &Header::collectJ, &Record::j, "0000a0410000a8410000b041"},
};

Header headerOf(const Group& group) {
    const auto is = [&](int index) { return &groups[index] == &group; };
    return {1, 2, 4, is(0), is(1), is(2), is(3), is(4), is(5), is(6)};
}

TEST(NearZoneMultiFieldPointResult, EachGroupHasItsBitAndItsPlace) {
    for (const Group& group : groups) {
        SCOPED_TRACE(group.flagWord);
        const Stream stream = streamOf();
        Result writer;
        EXPECT_TRUE(writer.setAndWriteHeader(headerOf(group), stream.get()) &&
                    writer.writeRecord(record, stream.get()));
        EXPECT_EQ(hexOf(stream),
                  QByteArray("526e7a7000") + "0000803f0000004000008040" + group.flagWord + "0000803f" + group.bytes);
        std::rewind(stream.get());
        Result reader;
        Header header;
        ASSERT_TRUE(reader.readAndGetHeader(stream.get(), header));
        for (const Group& other : groups) {
            EXPECT_EQ((header.*other.collected)(), &other == &group);
            EXPECT_EQ((reader.getHeader().*other.collected)(), &other == &group);
        }
        Record read;
        EXPECT_TRUE(reader.readRecord(stream.get(), read));
        Record expected;
        expected.time = 1;
        expected.*group.components = record.*group.components;
        EXPECT_EQ(read, expected) << "groups that are not in the file are unchanged";
        EXPECT_FALSE(reader.readRecord(stream.get(), read));
    }
}

TEST(NearZoneMultiFieldPointResult, RecordsMayHaveAllGroupsOrNone) {
    for (const bool all : {false, true}) {
        const Stream stream = streamOf();
        Result result;
        EXPECT_TRUE(result.setAndWriteHeader({0, 0, 0, all, all, all, all, all, all, all}, stream.get()));
        EXPECT_TRUE(result.writeRecord(record, stream.get()));
        EXPECT_EQ(std::ftell(stream.get()), 19 + (all ? 88 : 4));
        std::fseek(stream.get(), 19, SEEK_SET);
        Record read;
        EXPECT_TRUE(result.readRecord(stream.get(), read));
        EXPECT_EQ(read == record, all);
    }
}

TEST(NearZoneMultiFieldPointResult, RefusesInvalidHeaders) {
    const QByteArray position(12, '\0');
    Result result;
    Header header;
    Stream stream = streamOf("Rnzq" + QByteArray(40, '\0'));
    EXPECT_FALSE(result.readAndGetHeader(stream.get(), header));
    EXPECT_EQ(std::ftell(stream.get()), 4) << "refused at the first wrong character";
    stream = streamOf(QByteArray("Rnzp\0", 5) + position + QByteArray("\x01\x42", 2));
    EXPECT_FALSE(result.readAndGetHeader(stream.get(), header)) << "bit 0 is no group";
    EXPECT_TRUE(header.collectTotalE() && header.collectJ() && !header.collectScatteredE());
    EXPECT_FALSE(result.getHeader().collectTotalE());
    EXPECT_FALSE(result.readAndGetHeader(nullptr, header) || result.setAndWriteHeader(header, nullptr));

    stream = streamOf("Rnzp\x05" + position + QByteArray(40, '\0'));
    EXPECT_FALSE(result.readAndGetHeader(stream.get(), header));
    EXPECT_EQ(header.getVersion(), 5);
    Record read;
    EXPECT_TRUE(result.readRecord(stream.get(), read)) << "with the previous header";
    EXPECT_TRUE(result.setAndWriteHeader(header, streamOf().get()));
    EXPECT_FALSE(result.readRecord(stream.get(), read)) << "version 5 is not supported";
}

}  // namespace
}  // namespace quarn::test
