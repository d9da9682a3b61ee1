#pragma once

#include <QStringList>
#include <cstdint>
#include <utility>
#include <vector>

#include "quarn/Description.h"
#include "quarn/Engine.h"
#include "quarn/Export.h"

namespace quarn {

/// The settings of a static voltage solution and the grid points whose voltage is given.
class QUARN_EXPORT StaticVoltageList {
public:
    /// A grid cell and its voltage in volts.
    struct VoltagePoint {
        std::int32_t x = 0;
        std::int32_t y = 0;
        std::int32_t z = 0;
        float voltage = 0.0F;

        friend bool operator==(const VoltagePoint& a, const VoltagePoint& b) {
            return a.x == b.x && a.y == b.y && a.z == b.z && a.voltage == b.voltage;
        }
        friend bool operator!=(const VoltagePoint& a, const VoltagePoint& b) { return !(a == b); }
    };

    StaticVoltageList() = default;
    StaticVoltageList(double conductorThreshold, double residualThreshold, std::uint32_t maximumIterations,
                      std::vector<VoltagePoint> points);

    double getVoltageConductorThreshhold() const { return m_conductorThreshold; }
    void setVoltageConductorThreshhold(double threshold) { m_conductorThreshold = threshold; }
    double getVoltageResidualThreshhold() const { return m_residualThreshold; }
    void setVoltageResidualThreshhold(double threshold) { m_residualThreshold = threshold; }
    std::uint32_t getMaximumIterations() const { return m_maximumIterations; }
    void setMaximumIterations(std::uint32_t iterations) { m_maximumIterations = iterations; }
    const std::vector<VoltagePoint>& getPoints() const { return m_points; }
    void addPoint(const VoltagePoint& point) { m_points.push_back(point); }

    /// Appends findings about the thresholds: errors where there are points, warnings where there are none. There are
    /// no findings for the FDTD engine.
    void checkValidity(QStringList& errors, QStringList& warnings, Engine engine) const;

    QUARN_EXPORT friend bool operator==(const StaticVoltageList& a, const StaticVoltageList& b);
    friend bool operator!=(const StaticVoltageList& a, const StaticVoltageList& b) { return !(a == b); }

private:
    friend struct blocktext::Description<StaticVoltageList>;

    double m_conductorThreshold = 0.01;
    double m_residualThreshold = 100.0;
    std::uint32_t m_maximumIterations = 5000;
    std::vector<VoltagePoint> m_points;
};

}  // namespace quarn
