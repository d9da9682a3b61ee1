#pragma once

#include <array>
#include <complex>
#include <cstdint>
#include <tuple>
#include <vector>

#include "quarn/Export.h"
#include "quarn/RecordCodec.h"

namespace quarn {

struct QUARN_EXPORT SystemRadiatedPowerRecord {
    float radiatedPower = 0.0F;

    /// offset  type
    ///      0  float    radiatedPower
    template <class Self>
    static auto fields(Self& r) {
        return std::tie(r.radiatedPower);
    }
};
extern template class QUARN_EXPORT RecordCodec<SystemRadiatedPowerRecord>;

class QUARN_EXPORT SystemRadiatedPower : public RecordCodec<SystemRadiatedPowerRecord> {};

struct QUARN_EXPORT SystemEigenModeRecord {
    std::complex<float> value;

    /// offset  type
    ///      0  complex  value
    template <class Self>
    static auto fields(Self& r) {
        return std::tie(r.value);
    }
};
extern template class QUARN_EXPORT RecordCodec<SystemEigenModeRecord>;

class QUARN_EXPORT SystemEigenMode : public RecordCodec<SystemEigenModeRecord> {};

/// Dissipated power, in total and by material. The header of the file gives the number of materials in each record; the
/// object keeps it, so read or write the header before the records.
class QUARN_EXPORT SystemDissipatedPower {
public:
    struct Header {
        std::uint8_t numElectric = 0;
        std::uint8_t numMagnetic = 0;

        /// offset  type
        ///      0  uint8    numElectric
        ///      1  uint8    numMagnetic
        template <class Self>
        static auto fields(Self& r) {
            return std::tie(r.numElectric, r.numMagnetic);
        }
    };

    struct Record {
        float total = 0.0F;
        float electric = 0.0F;
        float magnetic = 0.0F;
        std::vector<float> electricByMaterial;
        std::vector<float> magneticByMaterial;

        /// offset  type
        ///      0  float    total
        ///      4  float    electric
        ///      8  float    magnetic
        ///     12  float    electricByMaterial, numElectric values
        ///   then  float    magneticByMaterial, numMagnetic values
        template <class Self>
        static auto fields(Self& r) {
            return std::tie(r.total, r.electric, r.magnetic, r.electricByMaterial, r.magneticByMaterial);
        }
    };

    const Header& getHeader() const { return m_header; }

    /// False when the file ends within the header; the previous header is kept then.
    bool readHeader(DataFileReader& reader);

    /// Keeps the header even when it cannot be written.
    bool writeHeader(DataFileWriter& writer, const Header& header);

    /// Gives both lists the length that the header says. False when the file ends before or within the record, which
    /// then holds the numbers that were there; the position is that of the record again.
    bool readRecord(DataFileReader& reader, Record& record) const;

    /// Writes as many values of each list as the header says. False, with nothing written, when a list is shorter.
    bool writeRecord(DataFileWriter& writer, const Record& record) const;

private:
    Header m_header;
};

}  // namespace quarn
