#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "quarn/Description.h"
#include "quarn/Engine.h"
#include "quarn/Export.h"

namespace quarn {

/// The frequency-domain convergence test that goes with TerminationCriteria: the run has converged when a number of
/// consecutive passes agree over a range of frequencies.
class QUARN_EXPORT TdAfsTerminationCriteria {
public:
    enum ConvergenceType : std::int32_t { Energy = 0, SParameters = 1 };
    enum InterpolationType : std::int32_t { Interpolation = 0, FFT = 1 };

    /// Frequencies are in Hz.
    void addTdAfsConvergence(float startFrequency, float stopFrequency, int numberOfFrequencyPoints,
                             ConvergenceType convergenceType, InterpolationType interpolationType,
                             int numberOfConsecutivePasses);

    ConvergenceType convergenceType() const { return m_convergenceType; }
    InterpolationType interpolationType() const { return m_interpolationType; }
    float startFrequency() const { return m_startFrequency; }
    float stopFrequency() const { return m_stopFrequency; }
    int numberOfFrequencyPoints() const { return m_numberOfFrequencyPoints; }
    int numberOfConsecutivePasses() const { return m_numberOfConsecutivePasses; }

    /// Appends findings about S-parameter convergence for the FDTD engine.
    void checkValidity(std::vector<std::string>& messages, Engine engine) const;

    QUARN_EXPORT friend bool operator==(const TdAfsTerminationCriteria& a, const TdAfsTerminationCriteria& b);
    friend bool operator!=(const TdAfsTerminationCriteria& a, const TdAfsTerminationCriteria& b) { return !(a == b); }

private:
    friend struct blocktext::Description<TdAfsTerminationCriteria>;

    ConvergenceType m_convergenceType = Energy;
    InterpolationType m_interpolationType = Interpolation;
    float m_startFrequency = 1e9F;
    float m_stopFrequency = 1e10F;
    std::int32_t m_numberOfFrequencyPoints = 1000;
    std::int32_t m_numberOfConsecutivePasses = 3;
};

}  // namespace quarn
