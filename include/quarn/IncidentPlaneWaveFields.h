#pragma once

#include <complex>
#include <tuple>

#include "quarn/Export.h"
#include "quarn/RecordCodec.h"

/// The incident field of a plane wave, as the engine records it. The files do not name their values: the names here
/// follow the usual use, and the library does not interpret the values.
namespace quarn {

struct QUARN_EXPORT IncidentPlaneWaveFieldsInstantaneousRecord {
    float time = 0.0F;
    float ex = 0.0F;
    float ey = 0.0F;
    float ez = 0.0F;

    /// offset  type
    ///      0  float    time
    ///      4  float    ex
    ///      8  float    ey
    ///     12  float    ez
    template <class Self>
    static auto fields(Self& r) {
        return std::tie(r.time, r.ex, r.ey, r.ez);
    }
};
extern template class QUARN_EXPORT RecordCodec<IncidentPlaneWaveFieldsInstantaneousRecord>;

/// The incident field as a function of time.
class QUARN_EXPORT IncidentPlaneWaveFieldsInstantaneous
    : public RecordCodec<IncidentPlaneWaveFieldsInstantaneousRecord> {};

struct QUARN_EXPORT IncidentPlaneWaveFieldsSteadyStateRecord {
    std::complex<float> ex;
    std::complex<float> ey;
    std::complex<float> ez;
    std::complex<float> hx;
    std::complex<float> hy;
    std::complex<float> hz;

    /// offset  type
    ///      0  complex  ex
    ///      8  complex  ey
    ///     16  complex  ez
    ///     24  complex  hx
    ///     32  complex  hy
    ///     40  complex  hz
    template <class Self>
    static auto fields(Self& r) {
        return std::tie(r.ex, r.ey, r.ez, r.hx, r.hy, r.hz);
    }
};
extern template class QUARN_EXPORT RecordCodec<IncidentPlaneWaveFieldsSteadyStateRecord>;

/// The incident field of a steady state.
class QUARN_EXPORT IncidentPlaneWaveFieldsSteadyState : public RecordCodec<IncidentPlaneWaveFieldsSteadyStateRecord> {};

}  // namespace quarn
