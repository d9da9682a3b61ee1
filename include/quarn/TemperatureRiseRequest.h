#pragma once

#include <QString>
#include <array>
#include <cstdint>

#include "quarn/Description.h"
#include "quarn/Export.h"
#include "quarn/Material.h"

namespace quarn {

class DelimManager;

/// A request for a thermal calculation after the run: how much the absorbed power raises the temperature in a region of
/// the grid, until a steady state or for a number of timesteps. Numbers are in the engine's units.
class QUARN_EXPORT TemperatureRiseRequest {
public:
    enum Plane : std::int32_t { XY = 0, YZ = 1, ZX = 2 };

    /// Steady state is reached when no temperature changes by more than the limit.
    static constexpr std::int32_t maximumDelta = 0;

    /// The bounds are grid indices.
    TemperatureRiseRequest(bool keepNonSARTemperatureFiles, bool keepSARTemperatureFiles,
                           bool loadNonSARTemperatureFromFile, float requestedInputPower,
                           float temperatureChangeIndicatingSteadyState, int maximumNumberOfTimesteps,
                           int steadyStateTypeIndicator, Plane planeTypeIndicator, unsigned int xLower,
                           unsigned int yLower, unsigned int zLower, unsigned int xUpper, unsigned int yUpper,
                           unsigned int zUpper, bool loadWholeSpace, float immersiveMediumTemperature,
                           const PhysicalParameters& immersiveMediumParameters,
                           const PhysicalParameters& perfusiveMediumParameters, float perfusiveMediumTemperature,
                           const PhysicalParameters& freeSpaceParameters, const PhysicalParameters& pecParameters,
                           const QString& initialTemperaturesFileName, const QString& finalTemperaturesFileName,
                           bool overrideDeltaTime, float defaultDeltaTime, float requestedDeltaTime);

    /// Reads the rest of the "TemperatureRiseRequest" block at the reader's position. What the block leaves out is
    /// false, 0 or empty, and the plane XY. File names are trimmed.
    explicit TemperatureRiseRequest(DelimManager& delim);

    /// Writes the block; its steady-state type and its plane are left out where they have no name. Returns whether the
    /// stream has no error.
    bool streamOut(DelimManager& delim) const;

    /// The files of temperatures before the SAR sets in (initial), and after (final).
    bool keepNonSARTemperatureFiles() const { return m_keepNonSARTemperatureFiles; }
    bool keepSARTemperatureFiles() const { return m_keepSARTemperatureFiles; }
    bool loadNonSARTemperatureFromFileFlag() const { return m_loadNonSARTemperatureFromFile; }
    const QString& getInitialTemperaturesFileName() const { return m_initialTemperaturesFileName; }
    const QString& getFinalTemperaturesFileName() const { return m_finalTemperaturesFileName; }

    float getRequestedInputPower() const { return m_requestedInputPower; }
    float getTemperatureChangeIndicatingSteadyState() const { return m_temperatureChangeIndicatingSteadyState; }
    void setTemperatureChangeIndicatingSteadyState(float change) { m_temperatureChangeIndicatingSteadyState = change; }
    int getMaximumNumberOfTimesteps() const { return m_maximumNumberOfTimesteps; }
    int getSteadyStateTypeIndicator() const { return m_steadyStateTypeIndicator; }
    Plane getPlaneTypeIndicator() const { return m_planeTypeIndicator; }

    std::uint32_t getXLowerBound() const { return m_lowerBound[0]; }
    std::uint32_t getYLowerBound() const { return m_lowerBound[1]; }
    std::uint32_t getZLowerBound() const { return m_lowerBound[2]; }
    std::uint32_t getXUpperBound() const { return m_upperBound[0]; }
    std::uint32_t getYUpperBound() const { return m_upperBound[1]; }
    std::uint32_t getZUpperBound() const { return m_upperBound[2]; }
    bool loadWholeSpace() const { return m_loadWholeSpace; }

    /// The medium around the body, the one that perfuses it, free space, and perfect electric conductors.
    float getImmersiveMediumTemperature() const { return m_immersiveMediumTemperature; }
    const PhysicalParameters& getImmersiveMediumParameters() const { return m_immersiveMediumParameters; }
    float getPerfusiveMediumTemperature() const { return m_perfusiveMediumTemperature; }
    const PhysicalParameters& getPerfusiveMediumParameters() const { return m_perfusiveMediumParameters; }
    const PhysicalParameters& getFreeSpaceParameters() const { return m_freeSpaceParameters; }
    const PhysicalParameters& getPECParameters() const { return m_pecParameters; }

    bool overrideDeltaTime() const { return m_overrideDeltaTime; }
    float getDefaultDeltaTime() const { return m_defaultDeltaTime; }
    float getRequestedDeltaTime() const { return m_requestedDeltaTime; }

    /// The extensions of the result files: ".trise" and ".temperature.statistics". The prefix stands before the first
    /// and names the plane: ".xy", ".yz", or ".zx" for all others.
    QString getTemperatureDifferenceFileNameExtension() const;
    QString getTemperatureStatisticsFileNameExtension() const;
    QString getTemperatureDifferenceFileNameExtensionPrefix() const;

    QUARN_EXPORT friend bool operator==(const TemperatureRiseRequest& a, const TemperatureRiseRequest& b);
    friend bool operator!=(const TemperatureRiseRequest& a, const TemperatureRiseRequest& b) { return !(a == b); }

private:
    friend struct blocktext::Description<TemperatureRiseRequest>;

    bool m_keepNonSARTemperatureFiles = false;
    bool m_keepSARTemperatureFiles = false;
    bool m_loadNonSARTemperatureFromFile = false;
    float m_requestedInputPower = 0.0F;
    float m_temperatureChangeIndicatingSteadyState = 0.0F;
    std::int32_t m_maximumNumberOfTimesteps = 0;
    std::int32_t m_steadyStateTypeIndicator = maximumDelta;
    Plane m_planeTypeIndicator = XY;
    std::array<std::uint32_t, 3> m_lowerBound{};
    std::array<std::uint32_t, 3> m_upperBound{};
    bool m_loadWholeSpace = false;
    float m_immersiveMediumTemperature = 0.0F;
    PhysicalParameters m_immersiveMediumParameters{0, 0, 0, 0, 0};
    PhysicalParameters m_perfusiveMediumParameters{0, 0, 0, 0, 0};
    float m_perfusiveMediumTemperature = 0.0F;
    PhysicalParameters m_freeSpaceParameters{0, 0, 0, 0, 0};
    PhysicalParameters m_pecParameters{0, 0, 0, 0, 0};
    QString m_initialTemperaturesFileName;
    QString m_finalTemperaturesFileName;
    bool m_overrideDeltaTime = false;
    float m_defaultDeltaTime = 0.0F;
    float m_requestedDeltaTime = 0.0F;
};

}  // namespace quarn
