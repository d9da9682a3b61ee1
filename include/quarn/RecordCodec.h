#pragma once

#include <cstddef>
#include <utility>
#include <vector>

namespace quarn {

class DataFileReader;
class DataFileWriter;

/// Moves records of one type between memory and a file, where they follow each other without gaps. The caller opens the
/// file, moves to the first record, behind the header if there is one, and reads until a read fails.
///
/// A record is a plain structure of numbers, initially 0. Its `fields` list them in the order of the file.
template <class RecordType>
class RecordCodec {
public:
    using Record = RecordType;

    /// Bytes of a record in a file.
    static constexpr std::size_t recordSize = sizeof(Record);

    /// False when the file ends before or within the record, which then holds the numbers that were there. The position
    /// is that of the record again: once the file has grown, the next call reads it.
    static bool readRecord(DataFileReader& reader, Record& record);

    static bool writeRecord(DataFileWriter& writer, const Record& record);

    /// Replaces `records` by the next `count` records, or by as many as there are, and returns whether there were that
    /// many. They are read as one block; memory is allocated for no more than the file holds, and nothing is read when
    /// there is not enough.
    static bool readRecords(DataFileReader& reader, std::size_t count, std::vector<Record>& records);
};

template <class Record, class = decltype(Record::fields(std::declval<const Record&>()))>
bool operator==(const Record& a, const Record& b) {
    return Record::fields(a) == Record::fields(b);
}

template <class Record, class = decltype(Record::fields(std::declval<const Record&>()))>
bool operator!=(const Record& a, const Record& b) {
    return !(a == b);
}

}  // namespace quarn
