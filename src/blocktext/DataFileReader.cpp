#include "quarn/DataFileReader.h"

#include <algorithm>
#include <limits>

#include "blocktext/OwnedStream.h"
#include "quarn/BinaryFile.h"

namespace quarn {

DataFileReader::~DataFileReader() { close(); }

bool DataFileReader::open(const QString& path) {
    close();
    m_file = openFile(path, QStringLiteral("rb"));
    return m_file != nullptr;
}

bool DataFileReader::read(signed char& value) { return fread_int8(value, m_file); }
bool DataFileReader::read(short& value) { return fread_int16(value, m_file); }
bool DataFileReader::read(int& value) { return fread_int32(value, m_file); }
bool DataFileReader::read(long long& value) { return fread_int64(value, m_file); }
bool DataFileReader::read(float& value) { return fread_float(value, m_file); }
bool DataFileReader::read(double& value) { return fread_double(value, m_file); }

std::size_t DataFileReader::readBlock(void* items, std::size_t size, std::size_t count) {
    return m_file ? std::fread(items, size, count, m_file) : 0;
}

long DataFileReader::bytesLeft() {
    const long position = tell();
    if (position < 0 || !stream::seek(m_file, 0, SEEK_END)) return 0;
    const long end = tell();
    constexpr long endless = std::numeric_limits<long>::max();  // what a directory says, which opens like a file
    return seek(position) && end != endless ? std::max(end - position, 0L) : 0;
}

bool DataFileReader::seek(long offset) { return stream::seek(m_file, offset, SEEK_SET); }

bool DataFileReader::skip(int count) { return stream::seek(m_file, count, SEEK_CUR); }

long DataFileReader::tell() const { return m_file ? std::ftell(m_file) : -1; }

bool DataFileReader::close() { return stream::close(m_file); }

}  // namespace quarn
