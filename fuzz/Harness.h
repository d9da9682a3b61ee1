#pragma once

#include <QByteArray>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

/// What all harnesses share.
namespace fuzz {

/// The input, which is not copied.
inline QByteArray bytesOf(const std::uint8_t* data, std::size_t size) {
    return QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<int>(size));
}

/// What a harness asserts: a finding when it does not hold.
inline void require(bool holds) {
    if (!holds) std::abort();
}

}  // namespace fuzz
