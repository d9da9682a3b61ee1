#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <type_traits>

/// Numbers in binary streams. A number that lies completely in the stream's buffer, or fits into it, is copied
/// directly, without a lock or a call; only the few others go through the C library.
namespace quarn::scalar {

enum class ByteOrder { Native, Reversed };

/// The byte order of the integers in all binary files.
inline constexpr ByteOrder fileByteOrder = ByteOrder::Native;

#ifdef __GLIBC__
// The bounds of the buffer are those that the C library's own inlined getc_unlocked and putc_unlocked use.
inline bool takeFromBuffer(void* bytes, std::size_t size, std::FILE* file) {
    if (file->_IO_read_end - file->_IO_read_ptr < static_cast<std::ptrdiff_t>(size)) return false;
    std::memcpy(bytes, file->_IO_read_ptr, size);
    file->_IO_read_ptr += size;
    return true;
}

inline bool putIntoBuffer(const void* bytes, std::size_t size, std::FILE* file) {
    if (file->_IO_write_end - file->_IO_write_ptr < static_cast<std::ptrdiff_t>(size)) return false;
    std::memcpy(file->_IO_write_ptr, bytes, size);
    file->_IO_write_ptr += size;
    return true;
}
#else
inline bool takeFromBuffer(void*, std::size_t, std::FILE*) { return false; }
inline bool putIntoBuffer(const void*, std::size_t, std::FILE*) { return false; }
#endif

template <class T>
using Bytes = std::array<unsigned char, sizeof(T)>;

inline bool readByte(unsigned char& byte, std::FILE* file) {
    return takeFromBuffer(&byte, 1, file) || std::fread(&byte, 1, 1, file) == 1;
}

inline bool writeByte(unsigned char byte, std::FILE* file) {
    return putIntoBuffer(&byte, 1, file) || std::fwrite(&byte, 1, 1, file) == 1;
}

/// Reads a number and returns how many of its bytes were present. The value changes only when all were. In reversed
/// order each byte is tried separately, even after a failure.
template <ByteOrder order = ByteOrder::Native, class T>
std::size_t readBytes(T& value, std::FILE* file) {
    static_assert(std::is_trivially_copyable_v<T>);
    if (!file) return 0;
    Bytes<T> bytes{};
    std::size_t count = 0;
    if constexpr (order == ByteOrder::Native) {
        if (takeFromBuffer(&value, sizeof value, file)) return sizeof value;
        count = std::fread(bytes.data(), 1, sizeof value, file);
    } else {
        std::for_each(
            bytes.rbegin(), bytes.rend(), [&](unsigned char& byte) { count += readByte(byte, file) ? 1 : 0; });
    }
    if (count == sizeof value) std::memcpy(&value, bytes.data(), sizeof value);
    return count;
}

template <ByteOrder order = ByteOrder::Native, class T>
bool readScalar(T& value, std::FILE* file) {
    return readBytes<order>(value, file) == sizeof value;
}

template <ByteOrder order = ByteOrder::Native, class T>
bool writeScalar(const T& value, std::FILE* file) {
    static_assert(std::is_trivially_copyable_v<T>);
    if (!file) return false;
    if constexpr (order == ByteOrder::Native) {
        return putIntoBuffer(&value, sizeof value, file) || std::fwrite(&value, sizeof value, 1, file) == 1;
    } else {
        Bytes<T> bytes;
        std::memcpy(bytes.data(), &value, sizeof value);
        bool complete = true;
        std::for_each(bytes.rbegin(), bytes.rend(), [&](unsigned char byte) { complete &= writeByte(byte, file); });
        return complete;
    }
}

}  // namespace quarn::scalar
