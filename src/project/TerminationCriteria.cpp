#include "quarn/TerminationCriteria.h"

#include <tuple>

#include "quarn/TdAfsTerminationCriteria.h"

namespace quarn {

TerminationCriteria::TerminationCriteria(std::uint32_t minimumTimesteps, std::uint32_t maximumTimesteps,
                                         std::uint32_t maximumWallClockSeconds)
    : m_minimumTimesteps(minimumTimesteps),
      m_maximumTimesteps(maximumTimesteps),
      m_maximumWallClockSeconds(maximumWallClockSeconds),
      m_wallClockEnabled(maximumWallClockSeconds != 0) {}

void TerminationCriteria::addConvergence(float threshold, int timestepSamplingInterval, int windowSize,
                                         bool flatLineDetection, ConvergenceSpacingDensity spacingDensity) {
    m_threshold = threshold;
    m_timestepSamplingInterval = timestepSamplingInterval;
    m_windowSize = windowSize;
    m_flatLineDetectionEnabled = flatLineDetection;
    m_spacingDensity = spacingDensity;
    m_convergenceEnabled = true;
}

void TerminationCriteria::checkValidity(QStringList& warnings, Engine engine) const {
    if (engine != Engine::FDTD && m_maximumTimesteps == 0) {
        warnings << QStringLiteral("The maximum number of timesteps should be greater than zero.");
    }
}

bool operator==(const TerminationCriteria& a, const TerminationCriteria& b) {
    const auto members = [](const TerminationCriteria& c) {
        return std::tie(c.m_minimumTimesteps,
                        c.m_maximumTimesteps,
                        c.m_maximumWallClockSeconds,
                        c.m_convergenceEnabled,
                        c.m_flatLineDetectionEnabled,
                        c.m_wallClockEnabled,
                        c.m_threshold,
                        c.m_timestepSamplingInterval,
                        c.m_windowSize,
                        c.m_spacingDensity);
    };
    return members(a) == members(b);
}

void TdAfsTerminationCriteria::addTdAfsConvergence(float startFrequency, float stopFrequency,
                                                   int numberOfFrequencyPoints, ConvergenceType convergenceType,
                                                   InterpolationType interpolationType, int numberOfConsecutivePasses) {
    m_startFrequency = startFrequency;
    m_stopFrequency = stopFrequency;
    m_numberOfFrequencyPoints = numberOfFrequencyPoints;
    m_convergenceType = convergenceType;
    m_interpolationType = interpolationType;
    m_numberOfConsecutivePasses = numberOfConsecutivePasses;
}

void TdAfsTerminationCriteria::checkValidity(std::vector<std::string>& messages, Engine engine) const {
    if (engine != Engine::FDTD || m_convergenceType != SParameters) return;
    if (m_startFrequency <= 0.0F || m_stopFrequency <= 0.0F) {
        messages.emplace_back(
            "Start and stop frequencies for S-parameter based convergence algorithm need to be positive.");
    }
    if (!(m_startFrequency < m_stopFrequency)) {
        messages.emplace_back(
            "Start frequency for S-parameter based convergence algorithm needs to be larger than the stop frequency.");
    }
    if (m_numberOfFrequencyPoints < 3) {
        messages.emplace_back("Number of frequency points has to be at least 3.");
    }
    if (m_numberOfConsecutivePasses < 1) {
        messages.emplace_back("Number of consecutive passes has to be at least 1.");
    }
}

bool operator==(const TdAfsTerminationCriteria& a, const TdAfsTerminationCriteria& b) {
    const auto members = [](const TdAfsTerminationCriteria& c) {
        return std::tie(c.m_convergenceType,
                        c.m_interpolationType,
                        c.m_startFrequency,
                        c.m_stopFrequency,
                        c.m_numberOfFrequencyPoints,
                        c.m_numberOfConsecutivePasses);
    };
    return members(a) == members(b);
}

}  // namespace quarn
