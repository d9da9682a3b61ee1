#include "quarn/BinaryFile.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <cerrno>
#include <chrono>
#include <memory>
#include <thread>

#include "foundation/PathSettings.h"
#include "foundation/ScalarCodec.h"

namespace quarn::test {
namespace {

using Bytes = std::vector<unsigned char>;

struct Close {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using Stream = std::unique_ptr<std::FILE, Close>;

Bytes contents(std::FILE* file) {
    std::rewind(file);
    Bytes bytes(1 << 16);
    bytes.resize(std::fread(bytes.data(), 1, bytes.size(), file));
    return bytes;
}

Stream streamOf(const Bytes& bytes) {
    Stream stream(std::tmpfile());
    for (const unsigned char byte : bytes) std::putc(byte, stream.get());
    std::rewind(stream.get());
    return stream;
}

// The value is written as the bytes and read from them, and from one byte less it is not.
template <class T>
void expectBytes(const T& value, const Bytes& bytes, bool write(const T&, std::FILE*), bool read(T&, std::FILE*)) {
    const Stream written(std::tmpfile());
    EXPECT_TRUE(write(value, written.get()));
    EXPECT_EQ(contents(written.get()), bytes);
    T found{};
    EXPECT_TRUE(read(found, streamOf(bytes).get()));
    EXPECT_EQ(found, value);
    found = {};
    const Stream tooShort = streamOf({bytes.begin(), bytes.end() - 1});
    EXPECT_FALSE(read(found, tooShort.get()));
    EXPECT_TRUE(std::feof(tooShort.get())) << "reading must reach the end of the file";
    EXPECT_FALSE(read(found, nullptr));
    EXPECT_EQ(found, T()) << "an incomplete number must not change the value";
    EXPECT_FALSE(write(value, Stream(std::fopen("/dev/null", "rb")).get()));
    EXPECT_FALSE(write(value, nullptr));
}

TEST(BinaryFile, EachTypeHasItsBytes) {
    expectBytes<signed char>(-2, {0xFE}, fwrite_int8, fread_int8);
    expectBytes<short>(-2, {0xFE, 0xFF}, fwrite_int16, fread_int16);
    expectBytes<int>(0x01020304, {4, 3, 2, 1}, fwrite_int32, fread_int32);
    expectBytes<long long>(0x0102030405060708, {8, 7, 6, 5, 4, 3, 2, 1}, fwrite_int64, fread_int64);
    expectBytes<float>(-1.5F, {0, 0, 0xC0, 0xBF}, fwrite_float, fread_float);
    expectBytes<double>(5e-324, {1, 0, 0, 0, 0, 0, 0, 0}, fwrite_double, fread_double);
    expectBytes<std::complex<float>>(
        {1.0F, -2.0F}, {0, 0, 0x80, 0x3F, 0, 0, 0, 0xC0}, fwrite_complex_float, fread_complex_float);
}

TEST(BinaryFile, SupportsTheReversedByteOrder) {
    using namespace scalar;
    constexpr ByteOrder reversed = ByteOrder::Reversed;
    expectBytes<short>(0x0102, {1, 2}, writeScalar<reversed>, readScalar<reversed>);
    expectBytes<int>(0x01020304, {1, 2, 3, 4}, writeScalar<reversed>, readScalar<reversed>);
    expectBytes<long long>(0x0102030405060708, {1, 2, 3, 4, 5, 6, 7, 8}, writeScalar<reversed>, readScalar<reversed>);
}

// The odd length makes numbers cross the ends of the stream's buffer, which is also tiny, line-buffered or absent.
TEST(BinaryFile, MovesNumbersAcrossAnyBuffer) {
    const std::pair<int, std::size_t> buffers[] = {
        {_IOFBF, 4096}, {_IOFBF, 16}, {_IOFBF, 3}, {_IOLBF, 64}, {_IONBF, 0}};
    for (const auto& [mode, size] : buffers) {
        SCOPED_TRACE(testing::Message() << "mode " << mode << ", " << size << " bytes");
        const Stream stream(std::tmpfile());
        std::vector<char> buffer(size + 1);
        ASSERT_EQ(std::setvbuf(stream.get(), size ? buffer.data() : nullptr, mode, size), 0);
        ASSERT_TRUE(fwrite_int8(10, stream.get()));
        for (long long i = 0; i < 1000; ++i) ASSERT_TRUE(fwrite_int64(0x0A0B0C0D00000000 + i, stream.get()));
        const Bytes bytes = contents(stream.get());
        ASSERT_EQ(bytes.size(), 8001U);
        EXPECT_EQ(Bytes(bytes.end() - 8, bytes.end()), (Bytes{0xE7, 3, 0, 0, 0xD, 0xC, 0xB, 0xA}));
        std::rewind(stream.get());
        signed char first = 0;
        ASSERT_TRUE(fread_int8(first, stream.get()));
        for (long long i = 0; i < 1000; ++i) {
            long long value = 0;
            ASSERT_TRUE(fread_int64(value, stream.get()));
            ASSERT_EQ(value, 0x0A0B0C0D00000000 + i);
        }
        EXPECT_FALSE(fread_int8(first, stream.get()));
    }
}

class OpenFile : public testing::Test {
protected:
    // The path of a file in the test's folder, extended to a length by slashes.
    QString path(int length) const {
        return m_folder.path() + QString(length - m_folder.path().size() - 1, QLatin1Char('/')) + "f";
    }
    static Stream open(const QString& path, const QString& mode) {
        errno = 0;
        return Stream(openFile(path, mode));
    }

    QTemporaryDir m_folder;
    PathSettings m_settings{false, ""};
};

TEST_F(OpenFile, LimitsPathsWithoutLongPathSupport) {
    EXPECT_TRUE(open(path(258), "wb"));
    EXPECT_FALSE(open(path(259), "rb"));
    EXPECT_EQ(errno, 38);
    EXPECT_TRUE(open(path(100), "rb" + QString(20, 'b')));
    EXPECT_FALSE(open(path(100), "rb" + QString(21, 'b')));
    EXPECT_EQ(errno, 38);
    EXPECT_FALSE(Stream(openFileWithRetries(path(259), "rb", 0)));
    EXPECT_EQ(errno, 38);
    EXPECT_FALSE(open(path(100) + "ile", "rb"));
    EXPECT_EQ(errno, ENOENT);
}

TEST_F(OpenFile, LongPathSupportLiftsTheLimitAndResolvesPaths) {
    const PathSettings settings(true, m_folder.path().toStdString());
    EXPECT_TRUE(open(path(300), "wb"));
    EXPECT_TRUE(open("f", "rb"));
    EXPECT_TRUE(open("../" + m_folder.path().section('/', -1) + "/f", "rb"));
}

TEST_F(OpenFile, AcceptsNamesBeyondASCII) {
    const QString name = m_folder.filePath(QString::fromUtf8("\xc3\xa9.bin"));
    EXPECT_TRUE(open(name, "wb"));
    EXPECT_TRUE(QFile::exists(name));
}

TEST_F(OpenFile, RetriesUntilTheMaximumWait) {
    const QString missing = m_folder.filePath("missing");
    for (const auto& [maximum, expected] : {std::pair(100, 100), {1, 1}, {0, 0}, {-5, 0}}) {
        int waited = -1;
        const auto start = std::chrono::steady_clock::now();
        EXPECT_FALSE(Stream(openFileWithRetries(missing, "rb", maximum, &waited)));
        EXPECT_EQ(waited, expected);
        EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(expected));
    }
    int both = 5;
    EXPECT_FALSE(Stream(openFileWithRetries(missing, "rb", both, &both)));
    EXPECT_EQ(both, 5);
}

// Each wait is twice the previous one, so that the sum is one less than a power of two.
TEST_F(OpenFile, RetriesUntilTheFileIsThere) {
    const QString late = m_folder.filePath("late");
    std::thread other([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        Stream(openFile(late, "wb"));
    });
    int waited = -1;
    const Stream stream(openFileWithRetries(late, "rb", 60000, &waited));
    other.join();
    EXPECT_TRUE(stream);
    EXPECT_GT(waited, 0);
    EXPECT_EQ((waited + 1) & waited, 0) << waited;
}

}  // namespace
}  // namespace quarn::test
