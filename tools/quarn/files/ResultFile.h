#pragma once

#include <QString>
#include <cstdint>

#include "Console.h"
#include "files/InputFile.h"

namespace quarn {
class DataFileReader;
class SarResultReader;
}  // namespace quarn

/// Opening the engine's results. The functions throw a FileProblem.
namespace quarn::tool {

/// Throws when the path is longer than the library's readers open, with what to do about it.
void checkPathLength(const QString& path);

/// What to throw for a file that belongs to a result and cannot be read.
FileProblem unreadable(const QString& path);

void open(DataFileReader& reader, const InputFile& file);

/// Goes past the header. Throws when there is none, or that of another kind of file.
void openFarZoneBox(DataFileReader& reader, const InputFile& file);

void open(SarResultReader& reader, const InputFile& file);

std::int64_t sizeOf(const InputFile& file);

/// "3 bytes at the end belong to no whole record".
QString incompleteRecordText(std::size_t bytes);

}  // namespace quarn::tool
