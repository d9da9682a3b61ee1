#pragma once

#include <complex>
#include <tuple>

#include "quarn/Export.h"
#include "quarn/RecordCodec.h"

/// What the engine records at circuit components. The files do not say what their numbers mean; the names here are
/// those of their usual use, and the library only moves the numbers.
namespace quarn {

struct QUARN_EXPORT CircuitComponentVCTransientRecord {
    float time = 0.0F;
    float voltage = 0.0F;
    float current = 0.0F;

    /// offset  type
    ///      0  float    time
    ///      4  float    voltage
    ///      8  float    current
    template <class Self>
    static auto fields(Self& r) {
        return std::tie(r.time, r.voltage, r.current);
    }
};
extern template class QUARN_EXPORT RecordCodec<CircuitComponentVCTransientRecord>;

/// Voltage and current by time.
class QUARN_EXPORT CircuitComponentVCTransient : public RecordCodec<CircuitComponentVCTransientRecord> {};

struct QUARN_EXPORT CircuitComponentTdafsSParameterRecord {
    float frequency = 0.0F;
    float real = 0.0F;
    float imaginary = 0.0F;

    /// offset  type
    ///      0  float    frequency
    ///      4  float    real
    ///      8  float    imaginary
    template <class Self>
    static auto fields(Self& r) {
        return std::tie(r.frequency, r.real, r.imaginary);
    }
};
extern template class QUARN_EXPORT RecordCodec<CircuitComponentTdafsSParameterRecord>;

/// An S-parameter by frequency, from adaptive frequency sampling.
class QUARN_EXPORT CircuitComponentTdafsSParameter : public RecordCodec<CircuitComponentTdafsSParameterRecord> {};

struct QUARN_EXPORT CircuitComponentVCSteadyStateRecord {
    std::complex<float> voltage;
    std::complex<float> current;

    /// offset  type
    ///      0  complex  voltage
    ///      8  complex  current
    template <class Self>
    static auto fields(Self& r) {
        return std::tie(r.voltage, r.current);
    }
};
extern template class QUARN_EXPORT RecordCodec<CircuitComponentVCSteadyStateRecord>;

/// Voltage and current of a steady state.
class QUARN_EXPORT CircuitComponentVCSteadyState : public RecordCodec<CircuitComponentVCSteadyStateRecord> {};

struct QUARN_EXPORT CircuitComponentVCBroadbandRecord {
    float frequency = 0.0F;
    float voltage = 0.0F;
    float current = 0.0F;
    std::complex<float> value;

    /// offset  type
    ///      0  float    frequency
    ///      4  float    voltage
    ///      8  float    current
    ///     12  complex  value
    template <class Self>
    static auto fields(Self& r) {
        return std::tie(r.frequency, r.voltage, r.current, r.value);
    }
};
extern template class QUARN_EXPORT RecordCodec<CircuitComponentVCBroadbandRecord>;

/// Voltage, current and a complex value by frequency.
class QUARN_EXPORT CircuitComponentVCBroadband : public RecordCodec<CircuitComponentVCBroadbandRecord> {};

}  // namespace quarn
