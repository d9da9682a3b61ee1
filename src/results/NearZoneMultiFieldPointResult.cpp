#include "quarn/NearZoneMultiFieldPointResult.h"

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
template <class Fields, class Collects, class Move>
bool moveRecord(const Fields& fields, Collects collects, Move move) {
    return std::apply(
        [&](auto& time, auto&... groups) {
            int group = 0;
            return move(time) && ((!collects(group++) || move(groups)) && ...);
        },
        fields);
}

}  // namespace

NearZoneMultiFieldPointResult::Header::Header(float x, float y, float z, bool collectScatteredE, bool collectTotalE,
                                              bool collectScatteredH, bool collectTotalH, bool collectScatteredB,
                                              bool collectTotalB, bool collectJ)
    : m_x(x), m_y(y), m_z(z) {
    int group = 0;
    for (const bool collect : {collectScatteredE,
                               collectTotalE,
                               collectScatteredH,
                               collectTotalH,
                               collectScatteredB,
                               collectTotalB,
                               collectJ}) {
        if (collect) m_groups = static_cast<std::uint16_t>(m_groups | (0x8000U >> group));
        ++group;
    }
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
    return moveRecord(
        Record::fields(record),
        [&](int group) { return m_header.collects(group); },
        [&](const auto& field) { return records::writeField(numbers, field); });
}

bool NearZoneMultiFieldPointResult::readRecord(std::FILE* stream, Record& record) const {
    if (m_header.m_version != 0) return false;
    StdioNumbers numbers(stream);
    return moveRecord(
        Record::fields(record),
        [&](int group) { return m_header.collects(group); },
        [&](auto& field) { return records::readField(numbers, field); });
}

}  // namespace quarn
