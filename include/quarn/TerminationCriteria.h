#pragma once

#include <QStringList>
#include <cstdint>

#include "quarn/Description.h"
#include "quarn/Engine.h"
#include "quarn/Export.h"

namespace quarn {

/// When a transient run ends: by timesteps, by wall-clock time and, optionally, by convergence of the fields.
class QUARN_EXPORT TerminationCriteria {
public:
    /// How densely the points lie at which convergence is watched.
    enum ConvergenceSpacingDensity : std::int32_t { High = 0, Medium = 1, Low = 2 };

    /// The wall clock counts when its limit in seconds is not zero.
    TerminationCriteria(std::uint32_t minimumTimesteps, std::uint32_t maximumTimesteps,
                        std::uint32_t maximumWallClockSeconds);

    /// Enables convergence detection. The threshold is in decibels; the sampling interval is in timesteps and the
    /// window size in samples.
    void addConvergence(float threshold, int timestepSamplingInterval, int windowSize, bool flatLineDetection,
                        ConvergenceSpacingDensity spacingDensity);

    std::uint32_t getMinimumTimesteps() const { return m_minimumTimesteps; }
    std::uint32_t getMaximumTimesteps() const { return m_maximumTimesteps; }
    std::uint32_t getMaximumWallClockSeconds() const { return m_maximumWallClockSeconds; }
    bool convergenceEnabled() const { return m_convergenceEnabled; }
    bool flatLineDetectionEnabled() const { return m_flatLineDetectionEnabled; }
    bool wallClockEnabled() const { return m_maximumWallClockSeconds != 0; }
    float getThreshhold() const { return m_threshold; }
    int getTimestepSamplingInterval() const { return m_timestepSamplingInterval; }
    int getWindowSize() const { return m_windowSize; }
    ConvergenceSpacingDensity getSpacingDensity() const { return m_spacingDensity; }

    /// Appends findings; there are none for the FDTD engine.
    void checkValidity(QStringList& warnings, Engine engine) const;

    QUARN_EXPORT friend bool operator==(const TerminationCriteria& a, const TerminationCriteria& b);
    friend bool operator!=(const TerminationCriteria& a, const TerminationCriteria& b) { return !(a == b); }

private:
    friend struct blocktext::Description<TerminationCriteria>;

    std::uint32_t m_minimumTimesteps;
    std::uint32_t m_maximumTimesteps;
    std::uint32_t m_maximumWallClockSeconds;
    bool m_convergenceEnabled = false;
    bool m_flatLineDetectionEnabled = true;
    float m_threshold = -40.0F;
    std::int32_t m_timestepSamplingInterval = 5;
    std::int32_t m_windowSize = 5;
    ConvergenceSpacingDensity m_spacingDensity = Medium;
};

}  // namespace quarn
