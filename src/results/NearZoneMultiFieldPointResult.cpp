#include "quarn/NearZoneMultiFieldPointResult.h"

#include <algorithm>

#include "quarn/BinaryFile.h"
#include "results/RecordFields.h"

namespace quarn {

namespace {

constexpr std::string_view magic = "Rnzp";
constexpr unsigned int unusedBits = 0x01FF;

// Adapts a C stream to the sources and sinks of RecordFields.h.
class StdioNumbers {
public:
    explicit StdioNumbers(std::FILE* file) : m_file(file) {}

    bool read(signed char& value) { return fread_int8(value, m_file); }
    bool read(short& value) { return fread_int16(value, m_file); }
    bool read(float& value) { return fread_float(value, m_file); }
    bool write(const signed char& value) { return fwrite_int8(value, m_file); }
    bool write(const short& value) { return fwrite_int16(value, m_file); }
    bool write(const float& value) { return fwrite_float(value, m_file); }

private:
    std::FILE* m_file;
};

// Calls `move(field)` for the time and for each group of the header, up to the first failure.
template <class Record, class Move>
bool moveRecord(Record& record, const NearZoneMultiFieldPointResult::Header& header, Move move) {
    return move(record.time) && std::all_of(fieldGroups.begin(), fieldGroups.end(), [&](const FieldGroupInfo& info) {
               return !header.collects(info.group) || move(record[info.group]);
           });
}

}  // namespace

NearZoneMultiFieldPointResult::Header::Header(float x, float y, float z, bool scatteredE, bool totalE, bool scatteredH,
                                              bool totalH, bool scatteredB, bool totalB, bool j)
    : m_x(x), m_y(y), m_z(z) {
    const bool collected[] = {scatteredE, totalE, scatteredH, totalH, scatteredB, totalB, j};
    unsigned int groups = 0;
    for (const FieldGroupInfo& info : fieldGroups) {
        groups |= unsigned{collected[static_cast<std::size_t>(info.group)]} << info.nearZoneBit;
    }
    m_groups = static_cast<std::uint16_t>(groups);
}

bool NearZoneMultiFieldPointResult::setAndWriteHeader(const Header& header, std::FILE* stream) {
    StdioNumbers numbers(stream);
    if (!records::writeMagic(numbers, magic) || !numbers.write(header.m_version) ||
        !records::writeFields(numbers, Header::fields(header))) {
        return false;
    }
    m_header = header;
    return true;
}

bool NearZoneMultiFieldPointResult::readAndGetHeader(std::FILE* stream, Header& header) {
    StdioNumbers numbers(stream);
    if (!records::readMagic(numbers, magic) || !numbers.read(header.m_version) || header.m_version != 0) return false;
    if (!records::readFields(numbers, Header::fields(header))) return false;
    const bool known = (header.m_groups & unusedBits) == 0;
    header.m_groups = static_cast<std::uint16_t>(header.m_groups & ~unusedBits);
    if (known) m_header = header;
    return known;
}

bool NearZoneMultiFieldPointResult::writeRecord(const Record& record, std::FILE* stream) const {
    StdioNumbers numbers(stream);
    return moveRecord(record, m_header, [&](const auto& field) { return records::writeField(numbers, field); });
}

bool NearZoneMultiFieldPointResult::readRecord(std::FILE* stream, Record& record) const {
    if (m_header.m_version != 0) return false;
    StdioNumbers numbers(stream);
    return moveRecord(record, m_header, [&](auto& field) { return records::readField(numbers, field); });
}

}  // namespace quarn
