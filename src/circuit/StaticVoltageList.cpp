#include "quarn/StaticVoltageList.h"

#include <tuple>

namespace quarn {

StaticVoltageList::StaticVoltageList(double conductorThreshold, double residualThreshold,
                                     std::uint32_t maximumIterations, std::vector<VoltagePoint> points)
    : m_conductorThreshold(conductorThreshold),
      m_residualThreshold(residualThreshold),
      m_maximumIterations(maximumIterations),
      m_points(std::move(points)) {}

void StaticVoltageList::checkValidity(QStringList& errors, QStringList& warnings, Engine engine) const {
    if (engine == Engine::FDTD) return;
    const bool hasPoints = !m_points.empty();
    const auto require = [&](double threshold, const char* which) {
        if (!(threshold <= 0.0)) return;
        (hasPoints ? errors : warnings) << QStringLiteral("The voltage %1 threshhold %2 be greater than zero.")
                                               .arg(QLatin1String(which), QLatin1String(hasPoints ? "must" : "should"));
    };
    require(m_conductorThreshold, "conductor");
    require(m_residualThreshold, "residual");
}

bool operator==(const StaticVoltageList& a, const StaticVoltageList& b) {
    const auto members = [](const StaticVoltageList& list) {
        return std::tie(list.m_conductorThreshold, list.m_residualThreshold, list.m_maximumIterations, list.m_points);
    };
    return members(a) == members(b);
}

}  // namespace quarn
