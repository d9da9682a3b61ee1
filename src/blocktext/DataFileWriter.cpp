#include "quarn/DataFileWriter.h"

#include "blocktext/OwnedStream.h"
#include "quarn/BinaryFile.h"

namespace quarn {

DataFileWriter::~DataFileWriter() { close(); }

bool DataFileWriter::open(const QString& path, const QString& mode) { return openWithRetries(path, mode, 0); }

bool DataFileWriter::openWithRetries(const QString& path, const QString& mode, int maximumWait, int* waited) {
    close();
    m_file = openFileWithRetries(path, mode, maximumWait, waited);
    return m_file != nullptr;
}

bool DataFileWriter::write(const signed char& value) { return fwrite_int8(value, m_file); }
bool DataFileWriter::write(const short& value) { return fwrite_int16(value, m_file); }
bool DataFileWriter::write(const int& value) { return fwrite_int32(value, m_file); }
bool DataFileWriter::write(const long long& value) { return fwrite_int64(value, m_file); }
bool DataFileWriter::write(const float& value) { return fwrite_float(value, m_file); }
bool DataFileWriter::write(const double& value) { return fwrite_double(value, m_file); }

bool DataFileWriter::seek(long offset) { return stream::seek(m_file, offset, SEEK_SET); }

bool DataFileWriter::skip(int count) { return stream::seek(m_file, count, SEEK_CUR); }

bool DataFileWriter::flush() { return m_file && std::fflush(m_file) == 0; }

// A stream remembers a failed write even where the caller did not check for it.
bool DataFileWriter::close() {
    flush();
    const bool complete = m_file && !std::ferror(m_file);
    return stream::close(m_file) && complete;
}

}  // namespace quarn
