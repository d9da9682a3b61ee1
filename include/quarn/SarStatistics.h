#pragma once

#include <cstdint>
#include <tuple>

#include "quarn/Export.h"
#include "quarn/RecordCodec.h"

/// Statistics of the specific absorption rate. The files do not name all their values: the names here follow the usual
/// use, and the library does not interpret the values.
namespace quarn {

struct QUARN_EXPORT RawSarStatisticsRecord {
    float maximum = 0.0F;
    std::int32_t i = 0;  ///< the cell of the maximum
    std::int32_t j = 0;
    std::int32_t k = 0;
    float average = 0.0F;
    std::int32_t numCells = 0;
    float power = 0.0F;

    /// offset  type
    ///      0  float    maximum
    ///      4  int32    i, j, k
    ///     16  float    average
    ///     20  int32    numCells
    ///     24  float    power
    template <class Self>
    static auto fields(Self& r) {
        return std::tie(r.maximum, r.i, r.j, r.k, r.average, r.numCells, r.power);
    }
};
extern template class QUARN_EXPORT RecordCodec<RawSarStatisticsRecord>;

/// Statistics of the rates in single cells.
class QUARN_EXPORT RawSarStatistics : public RecordCodec<RawSarStatisticsRecord> {};

struct QUARN_EXPORT AveragedSarStatisticsRecord {
    float maximum = 0.0F;
    std::int32_t i = 0;  ///< the cell of the maximum
    std::int32_t j = 0;
    std::int32_t k = 0;
    float average = 0.0F;
    float mass = 0.0F;
    std::int32_t lowerI = 0;  ///< the region of the maximum
    std::int32_t lowerJ = 0;
    std::int32_t lowerK = 0;
    std::int32_t upperI = 0;
    std::int32_t upperJ = 0;
    std::int32_t upperK = 0;

    /// offset  type
    ///      0  float    maximum
    ///      4  int32    i, j, k
    ///     16  float    average
    ///     20  float    mass
    ///     24  int32    lowerI, lowerJ, lowerK
    ///     36  int32    upperI, upperJ, upperK
    template <class Self>
    static auto fields(Self& r) {
        return std::tie(
            r.maximum, r.i, r.j, r.k, r.average, r.mass, r.lowerI, r.lowerJ, r.lowerK, r.upperI, r.upperJ, r.upperK);
    }
};
extern template class QUARN_EXPORT RecordCodec<AveragedSarStatisticsRecord>;

/// Statistics of the rates averaged over a mass around each cell.
class QUARN_EXPORT AveragedSarStatistics : public RecordCodec<AveragedSarStatisticsRecord> {};

}  // namespace quarn
