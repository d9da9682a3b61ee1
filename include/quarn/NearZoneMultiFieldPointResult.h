#pragma once

#include <array>
#include <cstdint>
#include <cstdio>
#include <tuple>

#include "quarn/Export.h"
#include "quarn/FieldGroup.h"

namespace quarn {

/// The fields recorded at one point: a header that says which, and one record for each sample. The header is kept by
/// the object, for the records after it to be read or written by. Streams are the caller's: open, in binary mode, and
/// in their place; null is refused.
class QUARN_EXPORT NearZoneMultiFieldPointResult {
public:
    /// Where the point is, in metres, and which groups of fields its records hold. In a file it takes 19 bytes:
    ///
    ///     offset  type     meaning
    ///          0  char     "Rnzp"
    ///          4  int8     version, 0
    ///          5  float    x, y, z
    ///         17  uint16   groups: bit 15 the first, scattered E, to bit 9 the last, J; the others are 0
    class QUARN_EXPORT Header {
    public:
        Header() = default;
        Header(float x, float y, float z, bool scatteredE, bool totalE, bool scatteredH, bool totalH, bool scatteredB,
               bool totalB, bool j);

        /// Other than 0 only after a file of another version was refused.
        std::int8_t getVersion() const { return m_version; }

        float getX() const { return m_x; }
        float getY() const { return m_y; }
        float getZ() const { return m_z; }

        bool collects(FieldGroup group) const { return (m_groups >> infoOf(group).nearZoneBit & 1) != 0; }

        bool collectScatteredE() const { return collects(FieldGroup::ScatteredE); }
        bool collectTotalE() const { return collects(FieldGroup::TotalE); }
        bool collectScatteredH() const { return collects(FieldGroup::ScatteredH); }
        bool collectTotalH() const { return collects(FieldGroup::TotalH); }
        bool collectScatteredB() const { return collects(FieldGroup::ScatteredB); }
        bool collectTotalB() const { return collects(FieldGroup::TotalB); }
        bool collectJ() const { return collects(FieldGroup::J); }

        friend bool operator==(const Header& a, const Header& b) {
            return std::tie(a.m_version, a.m_x, a.m_y, a.m_z, a.m_groups) ==
                   std::tie(b.m_version, b.m_x, b.m_y, b.m_z, b.m_groups);
        }
        friend bool operator!=(const Header& a, const Header& b) { return !(a == b); }

    private:
        friend class NearZoneMultiFieldPointResult;

        // What follows the version in a file.
        template <class Self>
        static auto fields(Self& r) {
            return std::tie(r.m_x, r.m_y, r.m_z, r.m_groups);
        }

        std::int8_t m_version = 0;
        float m_x = 0.0F;
        float m_y = 0.0F;
        float m_z = 0.0F;
        std::uint16_t m_groups = 0;
    };

    /// One sample. Groups that the header leaves out are not in the file.
    struct Record {
        /// x, y and z
        using Components = std::array<float, 3>;

        float time = 0.0F;        ///< s, or the number of the sample
        Components scatteredE{};  ///< V/m
        Components totalE{};
        Components scatteredH{};  ///< A/m
        Components totalH{};
        Components scatteredB{};  ///< T
        Components totalB{};
        Components j{};  ///< A/m^2

        Components& operator[](FieldGroup group) { return this->*member(group); }
        const Components& operator[](FieldGroup group) const { return this->*member(group); }

        /// The order of the file, all floats.
        template <class Self>
        static auto fields(Self& r) {
            return std::tie(r.time, r.scatteredE, r.totalE, r.scatteredH, r.totalH, r.scatteredB, r.totalB, r.j);
        }

        friend bool operator==(const Record& a, const Record& b) { return fields(a) == fields(b); }
        friend bool operator!=(const Record& a, const Record& b) { return !(a == b); }

    private:
        static constexpr Components Record::*member(FieldGroup group) {
            constexpr Components Record::*members[] = {&Record::scatteredE,
                                                       &Record::totalE,
                                                       &Record::scatteredH,
                                                       &Record::totalH,
                                                       &Record::scatteredB,
                                                       &Record::totalB,
                                                       &Record::j};
            return members[static_cast<std::size_t>(group)];
        }
    };

    /// As written or read last.
    const Header& getHeader() const { return m_header; }

    /// Keeps the header once it is written.
    bool setAndWriteHeader(const Header& header, std::FILE* stream);

    /// Keeps the header if it was read. False when no header follows in the stream, when its version is not 0 and when
    /// it has unknown groups; `header` then holds what was read up to there, the known groups included.
    bool readAndGetHeader(std::FILE* stream, Header& header);

    bool writeRecord(const Record& record, std::FILE* stream) const;

    /// Numbers of groups that the header leaves out stay as they are. False when the stream ends before or within the
    /// record, which then holds the numbers that were there, and for a header whose version is not 0.
    bool readRecord(std::FILE* stream, Record& record) const;

private:
    Header m_header;
};

}  // namespace quarn
