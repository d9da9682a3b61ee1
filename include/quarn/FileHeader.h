#pragma once

#include <cstdint>

#include "quarn/Export.h"

namespace quarn {

class DataFileReader;
class DataFileWriter;

/// The header of some of the engine's result files, 16 bytes long:
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

    /// False, with the fields unchanged, when no complete header follows in the file. Any type and version are
    /// accepted; the reader of the file checks them.
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
