#pragma once

#include <cstdint>

namespace quarn {

/// How fields are sampled for the discrete Fourier transform of steady-state results.
class DFTParameters {
public:
    /// The sampling interval is in timesteps.
    DFTParameters(bool normalizeFields, std::uint32_t samplingInterval)
        : m_normalizeFields(normalizeFields), m_samplingInterval(samplingInterval) {}

    bool normalizeFields() const { return m_normalizeFields; }
    std::uint32_t getSamplingInterval() const { return m_samplingInterval; }

    friend bool operator==(const DFTParameters& a, const DFTParameters& b) {
        return a.m_normalizeFields == b.m_normalizeFields && a.m_samplingInterval == b.m_samplingInterval;
    }
    friend bool operator!=(const DFTParameters& a, const DFTParameters& b) { return !(a == b); }

private:
    bool m_normalizeFields;
    std::uint32_t m_samplingInterval;
};

}  // namespace quarn
