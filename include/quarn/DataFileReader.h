#pragma once

#include <QString>
#include <cstddef>
#include <cstdio>

#include "quarn/Export.h"

namespace quarn {

/// Reads numbers from a binary file, in the byte order of the machine (quarn/BinaryFile.h). Owns its stream and closes
/// it when it is destroyed. Record classes may derive from it.
class QUARN_EXPORT DataFileReader {
public:
    DataFileReader() = default;
    DataFileReader(const DataFileReader&) = delete;
    DataFileReader& operator=(const DataFileReader&) = delete;
    virtual ~DataFileReader();

    /// Closes the open file, if any, then opens the file at `path`.
    bool open(const QString& path);

    bool isOpen() const { return m_file != nullptr; }

    /// False when the file ends before or within the number, and when no file is open. The number and the position then
    /// stay as they were: once the file has grown, the next call reads the number.
    bool read(signed char& value);
    bool read(short& value);
    bool read(int& value);
    bool read(long long& value);
    bool read(float& value);
    bool read(double& value);

    /// Reads up to `count` items of `size` bytes, as they are, at the cost of one copy. Returns the number of complete
    /// items and moves the position behind the last of them; 0 when no file is open.
    std::size_t readBlock(void* items, std::size_t size, std::size_t count);

    /// Bytes from the current position to the end of the file; 0 behind the end, for files without an end, and when no
    /// file is open. Makes system calls: call it before a block, not before each number.
    long bytesLeft();

    /// Moves to `offset` bytes from the start of the file. False when that is below 0 or no file is open; a position
    /// behind the end of the file is accepted, but nothing can be read there.
    bool seek(long offset);

    /// Moves `count` bytes forward from the current position, or back when negative; otherwise like seek.
    bool skip(int count);

    /// Bytes from the start of the file; -1 when no file is open.
    long tell() const;

    /// False when no file is open.
    bool close();

private:
    std::FILE* m_file = nullptr;
};

}  // namespace quarn
