#pragma once

#include <cstdint>

#include "quarn/Description.h"
#include "quarn/Export.h"

namespace quarn {

/// How fields are sampled for the discrete Fourier transform of steady-state results.
class DFTParameters {
public:
    /// The sampling interval is in timesteps.
    DFTParameters(bool normalizeFields, std::uint32_t samplingInterval)
        : m_normalizeFields(normalizeFields), m_samplingInterval(samplingInterval) {}

    bool normalizeFields() const { return m_normalizeFields; }
    std::uint32_t getSamplingInterval() const { return m_samplingInterval; }

    QUARN_EXPORT friend bool operator==(const DFTParameters& a, const DFTParameters& b);
    friend bool operator!=(const DFTParameters& a, const DFTParameters& b) { return !(a == b); }

private:
    friend struct blocktext::Description<DFTParameters>;

    bool m_normalizeFields;
    std::uint32_t m_samplingInterval;
};

}  // namespace quarn
