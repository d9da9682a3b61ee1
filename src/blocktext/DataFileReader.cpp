#include "quarn/DataFileReader.h"

#include <algorithm>
#include <limits>

#include "blocktext/OwnedStream.h"
#include "foundation/ScalarCodec.h"
#include "quarn/BinaryFile.h"

namespace quarn {

using scalar::fileByteOrder;

namespace {

// Goes back over the bytes of an incomplete number. Seeking also clears the end-of-file mark, so that reading continues
// once the file has grown.
void goBack(std::FILE* file, std::size_t count) { stream::seek(file, -static_cast<long>(count), SEEK_CUR); }

template <scalar::ByteOrder order = scalar::ByteOrder::Native, class T>
bool readOrRestore(T& value, std::FILE* file) {
    const std::size_t count = scalar::readBytes<order>(value, file);
    if (count == sizeof value) return true;
    goBack(file, count);
    return false;
}

}  // namespace

DataFileReader::~DataFileReader() { close(); }

bool DataFileReader::open(const QString& path) {
    close();
    m_file = openFile(path, QStringLiteral("rb"));
    return m_file != nullptr;
}

bool DataFileReader::read(signed char& value) { return readOrRestore(value, m_file); }
bool DataFileReader::read(short& value) { return readOrRestore<fileByteOrder>(value, m_file); }
bool DataFileReader::read(int& value) { return readOrRestore<fileByteOrder>(value, m_file); }
bool DataFileReader::read(long long& value) { return readOrRestore<fileByteOrder>(value, m_file); }
bool DataFileReader::read(float& value) { return readOrRestore(value, m_file); }
bool DataFileReader::read(double& value) { return readOrRestore(value, m_file); }

std::size_t DataFileReader::readBlock(void* items, std::size_t size, std::size_t count) {
    if (!m_file || size == 0) return 0;
    const std::size_t bytes = std::fread(items, 1, size * count, m_file);
    if (bytes < size * count) goBack(m_file, bytes % size);
    return bytes / size;
}

long DataFileReader::bytesLeft() {
    const long position = tell();
    if (position < 0 || !stream::seek(m_file, 0, SEEK_END)) return 0;
    const long end = tell();
    constexpr long endless = std::numeric_limits<long>::max();  // the end of a directory, which opens like a file
    return seek(position) && end != endless ? std::max(end - position, 0L) : 0;
}

bool DataFileReader::seek(long offset) { return stream::seek(m_file, offset, SEEK_SET); }

bool DataFileReader::skip(int count) { return stream::seek(m_file, count, SEEK_CUR); }

long DataFileReader::tell() const { return m_file ? std::ftell(m_file) : -1; }

bool DataFileReader::close() { return stream::close(m_file); }

}  // namespace quarn
