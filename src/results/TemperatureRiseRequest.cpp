#include "quarn/TemperatureRiseRequest.h"

namespace quarn {

TemperatureRiseRequest::TemperatureRiseRequest(
    bool keepNonSARTemperatureFiles, bool keepSARTemperatureFiles, bool loadNonSARTemperatureFromFile,
    float requestedInputPower, float temperatureChangeIndicatingSteadyState, int maximumNumberOfTimesteps,
    int steadyStateTypeIndicator, Plane planeTypeIndicator, unsigned int xLower, unsigned int yLower,
    unsigned int zLower, unsigned int xUpper, unsigned int yUpper, unsigned int zUpper, bool loadWholeSpace,
    float immersiveMediumTemperature, const PhysicalParameters& immersiveMediumParameters,
    const PhysicalParameters& perfusiveMediumParameters, float perfusiveMediumTemperature,
    const PhysicalParameters& freeSpaceParameters, const PhysicalParameters& pecParameters,
    const QString& initialTemperaturesFileName, const QString& finalTemperaturesFileName, bool overrideDeltaTime,
    float defaultDeltaTime, float requestedDeltaTime)
    : m_keepNonSARTemperatureFiles(keepNonSARTemperatureFiles),
      m_keepSARTemperatureFiles(keepSARTemperatureFiles),
      m_loadNonSARTemperatureFromFile(loadNonSARTemperatureFromFile),
      m_requestedInputPower(requestedInputPower),
      m_temperatureChangeIndicatingSteadyState(temperatureChangeIndicatingSteadyState),
      m_maximumNumberOfTimesteps(maximumNumberOfTimesteps),
      m_steadyStateTypeIndicator(steadyStateTypeIndicator),
      m_planeTypeIndicator(planeTypeIndicator),
      m_lowerBound{xLower, yLower, zLower},
      m_upperBound{xUpper, yUpper, zUpper},
      m_loadWholeSpace(loadWholeSpace),
      m_immersiveMediumTemperature(immersiveMediumTemperature),
      m_immersiveMediumParameters(immersiveMediumParameters),
      m_perfusiveMediumParameters(perfusiveMediumParameters),
      m_perfusiveMediumTemperature(perfusiveMediumTemperature),
      m_freeSpaceParameters(freeSpaceParameters),
      m_pecParameters(pecParameters),
      m_initialTemperaturesFileName(initialTemperaturesFileName),
      m_finalTemperaturesFileName(finalTemperaturesFileName),
      m_overrideDeltaTime(overrideDeltaTime),
      m_defaultDeltaTime(defaultDeltaTime),
      m_requestedDeltaTime(requestedDeltaTime) {}

QString TemperatureRiseRequest::getTemperatureDifferenceFileNameExtension() const { return QStringLiteral(".trise"); }

QString TemperatureRiseRequest::getTemperatureStatisticsFileNameExtension() const {
    return QStringLiteral(".temperature.statistics");
}

QString TemperatureRiseRequest::getTemperatureDifferenceFileNameExtensionPrefix() const {
    if (m_planeTypeIndicator == XY) return QStringLiteral(".xy");
    return m_planeTypeIndicator == YZ ? QStringLiteral(".yz") : QStringLiteral(".zx");
}

}  // namespace quarn
