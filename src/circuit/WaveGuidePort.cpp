#include "quarn/WaveGuidePort.h"

#include <QTextStream>
#include <algorithm>
#include <iterator>
#include <map>
#include <stdexcept>

#include "circuit/ComponentNames.h"
#include "circuit/WaveGuideNames.h"

namespace quarn {

WaveGuidePort::WaveGuidePort() = default;
WaveGuidePort::WaveGuidePort(const WaveGuidePort& other) = default;
WaveGuidePort& WaveGuidePort::operator=(const WaveGuidePort& other) = default;
WaveGuidePort::~WaveGuidePort() = default;

void WaveGuidePort::checkValidity(QStringList&, QStringList&, Engine) const {}

QString WaveGuidePort::getWaveGuidePortNameFromFilename() const {
    const int first = m_outputFilename.indexOf(QLatin1Char('_'));
    const int last = m_outputFilename.lastIndexOf(QLatin1Char('_'));
    return last > first ? m_outputFilename.mid(first + 1, last - first - 1) : QString();
}

QString WaveGuidePort::qstr() const {
    QString text;
    QTextStream out(&text);
    out << "name                  : " << m_modeName << '\n';
    out << "waveguide number      : " << m_waveGuideNumber << '\n';
    out << "waveguide mode number : " << m_modeNumber << '\n';
    out << "port type             : " << names::of(m_portType) << '\n';
    if (m_portType == Modal) {
        out << "impedance type        : " << names::of(m_impedanceType) << '\n';
    } else {
        out << "reference resistance  : " << m_refResistance << '\n';
    }
    out << "term type             : " << names::of(m_termType) << '\n';
    out << "source                : amplitude=" << m_amplitude << ", phase=" << m_phase << " rad\n";
    out << "offset                : " << m_offset << '\n';
    out << "head                  : " << m_snappedHead << '\n';
    out << "tail                  : " << m_snappedTail << '\n';
    return text;
}

WaveGuidePortManager::WaveGuidePortManager(const std::vector<WaveGuidePort*>& ports) {
    std::copy_if(ports.begin(), ports.end(), std::back_inserter(m_ports), [](const auto* port) { return port; });
    cacheVariables();
}
WaveGuidePortManager::WaveGuidePortManager(const WaveGuidePortManager& other) : WaveGuidePortManager(other.m_ports) {}
WaveGuidePortManager& WaveGuidePortManager::operator=(const WaveGuidePortManager& other) = default;
WaveGuidePortManager::~WaveGuidePortManager() = default;

void WaveGuidePortManager::insert(WaveGuidePort* port) {
    if (!port) return;
    const auto keyOf = [](const WaveGuidePort& p) {
        return std::make_pair(p.getWaveGuideNumber(), p.getWaveGuideModeNumber());
    };
    std::map<std::pair<int, int>, WaveGuidePort*> ordered;
    for (WaveGuidePort* listed : m_ports) ordered[keyOf(*listed)] = listed;
    const auto key = keyOf(*port);
    if (!ordered.emplace(key, port).second) {
        throw std::runtime_error("quarn::WaveGuidePortManager::insert failed: mode=" + std::to_string(key.second) +
                                 " for port=" + std::to_string(key.first) + "already exists");
    }
    m_ports.clear();
    for (const auto& entry : ordered) m_ports.push_back(entry.second);
}

void WaveGuidePortManager::clearWaveguidePorts() {
    m_ports.clear();
    m_numberOfPorts = 0;
}

void WaveGuidePortManager::checkValidity(QStringList& errors, QStringList& warnings, Engine engine) const {
    if (m_ports.size() < m_numberOfPorts) {
        errors << QStringLiteral("The number of ports is greater than the number of waveguide ports.");
    }
    for (const WaveGuidePort* port : m_ports) port->checkValidity(errors, warnings, engine);
}

}  // namespace quarn
