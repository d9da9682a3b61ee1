#pragma once

#include <algorithm>
#include <cstddef>
#include <new>
#include <tuple>
#include <type_traits>
#include <vector>

#include "foundation/ScalarCodec.h"
#include "quarn/DataFileReader.h"
#include "results/RecordFields.h"

namespace quarn::records {

/// Hands numbers on and counts their bytes.
struct CountingSource {
    DataFileReader& reader;
    int bytes = 0;

    template <class T>
    bool read(T& value) {
        if (!reader.read(value)) return false;
        bytes += static_cast<int>(sizeof value);
        return true;
    }
};

/// Like readFields, but goes back to the beginning of a record that is not there as a whole, so that it can be read
/// once the file has grown.
template <class... Fields>
bool readRecord(DataFileReader& reader, const std::tuple<Fields&...>& fields) {
    CountingSource source{reader};
    if (readFields(source, fields)) return true;
    reader.skip(-source.bytes);
    return false;
}

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
