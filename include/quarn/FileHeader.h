#pragma once

#include <cstdint>

#include "quarn/Export.h"

namespace quarn {

class DataFileReader;
class DataFileWriter;

/// What some of the engine's result files begin with. In a file it takes 16 bytes:
///
///     offset  type     meaning
///          0  char     "!tavrixfdtd", 11 bytes
///         11  char     "L" for little-endian
///         12  uint16   file type
///         14  uint16   version
class QUARN_EXPORT FileHeader {
public:
    /// @name Known types of files, all of version 0
    /// @{
    static constexpr std::uint32_t farZoneBoxFields = 8;
    static constexpr std::uint32_t sarPlane = 13;
    /// @}

    FileHeader() = default;
    FileHeader(std::uint32_t type, std::uint32_t fileVersion) : fileType(type), version(fileVersion) {}

    /// False, with the fields as they were, when the file does not go on with a complete header. Any type and version
    /// will do: they are for the reader of the file to judge.
    bool read(DataFileReader& reader);

    /// Only the lower 16 bits of the fields are written.
    bool write(DataFileWriter& writer) const;

    friend bool operator==(const FileHeader& a, const FileHeader& b) {
        return a.fileType == b.fileType && a.version == b.version;
    }
    friend bool operator!=(const FileHeader& a, const FileHeader& b) { return !(a == b); }

    std::uint32_t fileType = 0;
    std::uint32_t version = 0;
};

}  // namespace quarn
