#pragma once

#include <QString>
#include <vector>

#include "Console.h"
#include "files/InputFile.h"
#include "quarn/DataFileReader.h"

namespace quarn {
class SarResultReader;
}  // namespace quarn

/// Functions that open the engine's results. They throw a FileProblem.
namespace quarn::tool {

/// Throws when the path is longer than the library's readers accept; the message says what to do.
void checkPathLength(const QString& path);

/// The exception for a file of a result that cannot be read.
FileProblem unreadable(const QString& path);

void open(DataFileReader& reader, const InputFile& file);

/// Opens the file and reads its header. Throws when it does not have the header of a far-zone box file.
void openFarZoneBox(DataFileReader& reader, const InputFile& file);

void open(SarResultReader& reader, const InputFile& file);

/// Calls `use` for each record and returns the number of bytes behind the last whole one.
template <class Codec, class Use>
std::size_t forEachRecord(DataFileReader& reader, Use use) {
    constexpr std::size_t piece = 1 << 12;
    const auto bytes = static_cast<std::size_t>(reader.bytesLeft());
    std::vector<typename Codec::Record> records;
    for (bool hasMore = true; hasMore;) {
        hasMore = Codec::readRecords(reader, piece, records);
        for (const auto& record : records) use(record);
    }
    return bytes % Codec::recordSize;
}

/// "3 bytes at the end belong to no whole record".
QString incompleteRecordText(std::size_t bytes);

}  // namespace quarn::tool
