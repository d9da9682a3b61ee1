#pragma once

#include <algorithm>
#include <cstddef>
#include <new>
#include <type_traits>
#include <vector>

#include "foundation/ScalarCodec.h"
#include "quarn/DataFileReader.h"

namespace quarn::records {

/// Replaces `items`, whose layout in memory is that of the file, by the next `count` of the file or by as many as there
/// are. Memory is taken for no more than the file holds. False, with no items, when it cannot be had.
template <class Item>
bool readBlock(DataFileReader& reader, std::size_t count, std::vector<Item>& items) {
    static_assert(std::is_trivially_copyable_v<Item> && scalar::fileByteOrder == scalar::ByteOrder::Native);
    try {
        items.resize(std::min(count, static_cast<std::size_t>(reader.bytesLeft()) / sizeof(Item)));
    } catch (const std::bad_alloc&) {
        items.clear();
        return false;
    }
    items.resize(reader.readBlock(items.data(), sizeof(Item), items.size()));
    return true;
}

}  // namespace quarn::records
