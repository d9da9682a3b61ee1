#include "sheets/Sheets.h"

#include "Console.h"
#include "Quantity.h"
#include "quarn/quarn.h"

namespace quarn::tool {

namespace {

QString waveGuidePortText(const WaveGuidePort& port) {
    return text("%1, waveguide %2 mode %3, amplitude %4, phase %5")
        .arg(port.getWaveGuideModeName())
        .arg(port.getWaveGuideNumber())
        .arg(port.getWaveGuideModeNumber())
        .arg(numberText(port.getWaveGuideAmplitude()),
             degrees(degreesFromRadians(static_cast<float>(port.getWaveGuidePhase()))));
}

QString label(const CircuitComponent& component, std::size_t index) {
    return text("%1 %2").arg(QLatin1String(component.isPort() ? "port" : "component")).arg(index);
}

void addComponents(Sheet& sheet, const ComponentManager& manager) {
    QString summary = counted(manager.getNumberOfComponents(), "component") + text(", %1 of them ports");
    summary = summary.arg(manager.getNumberOfPorts());
    if (manager.computeSParameters()) {
        summary += text("; S-parameters with port %1 active").arg(manager.getActivePort());
    }
    sheet.add("Circuit", summary);
    sheet.addFirst(manager.getComponents(), [&](std::size_t i, const CircuitComponent& component) {
        sheet.addDetail(label(component, i),
                        component.qstr_short() + text(" at cell ") +
                            tripleText(component.getXIndex(), component.getYIndex(), component.getZIndex()) +
                            QLatin1String(component.isActive() ? ", active" : ""));
    });
}

void addStaticVoltages(Sheet& sheet, const StaticVoltageList& voltages) {
    if (voltages.getPoints().empty()) return;
    sheet.add("Static voltages",
              text("%1, thresholds %2 (conductor) and %3 (residual), at most %4 iterations")
                  .arg(counted(voltages.getPoints().size(), "point"),
                       numberText(voltages.getVoltageConductorThreshhold()),
                       numberText(voltages.getVoltageResidualThreshhold()))
                  .arg(voltages.getMaximumIterations()));
}

void addWaveGuidePorts(Sheet& sheet, const WaveGuidePortManager& manager) {
    sheet.add("Waveguides", counted(manager.getNumberOfWaveguidePorts(), "waveguide port"));
    sheet.addFirst(manager.getWaveguidePorts(), [&](std::size_t i, const WaveGuidePort& port) {
        sheet.addDetail(text("port %1").arg(i), waveGuidePortText(port));
    });
}

}  // namespace

void addCircuit(Sheet& sheet, const ProjectFile& project) {
    if (project.getComponentManager()) addComponents(sheet, *project.getComponentManager());
    if (project.getStaticVoltageList()) addStaticVoltages(sheet, *project.getStaticVoltageList());
    if (project.getWaveGuidePortManager()) addWaveGuidePorts(sheet, *project.getWaveGuidePortManager());
}

QStringList circuitLines(const ProjectFile& project) {
    QStringList lines;
    if (const ComponentManager* manager = project.getComponentManager()) {
        const auto& components = manager->getComponents();
        for (std::size_t i = 0; i < components.size(); ++i) {
            lines << label(*components[i], i) + text(": ") + components[i]->qstr_short();
        }
    }
    if (const WaveGuidePortManager* manager = project.getWaveGuidePortManager()) {
        for (const WaveGuidePort* port : manager->getWaveguidePorts()) {
            lines << text("waveguide port: ") + waveGuidePortText(*port);
        }
    }
    return lines;
}

}  // namespace quarn::tool
