#pragma once

#include <QByteArray>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

/// Functions that all harnesses share.
namespace fuzz {

/// The input as bytes, without a copy.
inline QByteArray bytesOf(const std::uint8_t* data, std::size_t size) {
    return QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<int>(size));
}

/// Reports a finding unless the condition holds.
inline void require(bool holds) {
    if (!holds) std::abort();
}

}  // namespace fuzz
