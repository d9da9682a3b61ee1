#include "quarn/FileHeader.h"

#include <cstdint>
#include <tuple>

#include "quarn/DataFileReader.h"
#include "quarn/DataFileWriter.h"
#include "results/RecordFields.h"

namespace quarn {

namespace {

constexpr std::string_view magicAndByteOrder = "!tavrixfdtdL";

}  // namespace

bool FileHeader::read(DataFileReader& reader) {
    std::uint16_t type = 0;
    std::uint16_t number = 0;
    if (!records::readMagic(reader, magicAndByteOrder) || !records::readFields(reader, std::tie(type, number))) {
        return false;
    }
    *this = FileHeader(type, number);
    return true;
}

bool FileHeader::write(DataFileWriter& writer) const {
    const auto type = static_cast<std::uint16_t>(fileType);
    const auto number = static_cast<std::uint16_t>(version);
    return records::writeMagic(writer, magicAndByteOrder) && records::writeFields(writer, std::tie(type, number));
}

}  // namespace quarn
