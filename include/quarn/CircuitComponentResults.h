#pragma once

#include <complex>
#include <tuple>

#include "quarn/Export.h"
#include "quarn/RecordCodec.h"

/// Results that the engine records at circuit components. The files do not name their values: the names here follow the
/// usual use, and the library does not interpret the values.
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

/// Voltage and current as functions of time.
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

/// An S-parameter as a function of frequency, from adaptive frequency sampling.
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

/// Voltage, current and a complex value as functions of frequency.
class QUARN_EXPORT CircuitComponentVCBroadband : public RecordCodec<CircuitComponentVCBroadbandRecord> {};

}  // namespace quarn
