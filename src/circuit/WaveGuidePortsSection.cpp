#include "blocktext/BlockWalker.h"
#include "blocktext/BlockWriter.h"
#include "circuit/CircuitSections.h"
#include "circuit/ComponentNames.h"
#include "circuit/ImpedanceLineBlock.h"
#include "circuit/WaveGuideNames.h"

namespace quarn {

using namespace blocktext;

namespace {

namespace key {
constexpr auto WaveGuidePorts = "WaveGuidePorts"_key;
constexpr auto PortData = "PortData"_key;
constexpr auto IsModal = "IsModal"_key;
constexpr auto IsVoltage = "IsVoltage"_key;
constexpr auto IsCurrent = "IsCurrent"_key;
constexpr auto PortNumber = "PortNumber"_key;
constexpr auto ModeNumber = "ModeNumber"_key;
constexpr auto Offset = "Offset"_key;
constexpr auto ImpedanceType = "ImpedanceType"_key;
constexpr auto Resistance = "Resistance"_key;
constexpr auto Amplitude = "Amplitude"_key;
constexpr auto Phase = "Phase"_key;
constexpr auto FileName = "FileName"_key;
constexpr auto ModeName = "ModeName"_key;
constexpr auto TermType = "TermType"_key;
constexpr auto SnappedHead = "SnappedHead"_key;
constexpr auto SnappedTail = "SnappedTail"_key;
constexpr auto PolygonPoint = "PolygonPoint"_key;
}  // namespace key

QLatin1String flagOf(WaveGuidePort::WaveGuidePortType type) {
    if (type == WaveGuidePort::Modal) return key::IsModal;
    return type == WaveGuidePort::Voltage ? key::IsVoltage : key::IsCurrent;
}

void writePort(DelimManager& delim, const WaveGuidePort& port) {
    const WrittenBlock block(delim, key::PortData);
    putLine(delim, flagOf(port.getWaveGuidePortType()));
    putLine(delim, key::PortNumber, port.getWaveGuideNumber());
    putLine(delim, key::ModeNumber, port.getWaveGuideModeNumber());
    putLine(delim, key::Offset, port.getWaveGuideOffset());
    const auto impedance = nameOf(names::impedanceTypes, port.getWaveGuideImpedanceType(), QLatin1String());
    if (!impedance.isEmpty()) putLine(delim, key::ImpedanceType, impedance);
    putLine(delim, key::Resistance, port.getWaveGuideRefResistance());
    putLine(delim, key::Amplitude, port.getWaveGuideAmplitude());
    putLine(delim, key::Phase, port.getWaveGuidePhase());
    putLine(delim, key::FileName, port.getOutputFilename());
    putLine(delim, key::ModeName, port.getWaveGuideModeName());
    putLine(delim, key::TermType, names::of(port.termType()));
    circuit::pointBlock("SnappedHead").write(delim, port.getSnappedHead());
    circuit::pointBlock("SnappedTail").write(delim, port.getSnappedTail());
    for (const auto& point : port.planarPolygon()) circuit::pointBlock("PolygonPoint").write(delim, point);
}

std::unique_ptr<WaveGuidePort> readPort(DelimManager& delim) {
    auto port = std::make_unique<WaveGuidePort>();
    auto type = port->getWaveGuidePortType();
    auto impedance = port->getWaveGuideImpedanceType();
    auto termType = port->termType();
    std::vector<tavrix::Cartesian3D> polygon;
    walkBlock(
        delim,
        Unknown::DropLine,
        onChoice(key::IsModal, type, WaveGuidePort::Modal),
        onChoice(key::IsVoltage, type, WaveGuidePort::Voltage),
        onChoice(key::IsCurrent, type, WaveGuidePort::Current),
        onSetting(key::PortNumber, *port, &WaveGuidePort::setWaveGuideNumber),
        onSetting(key::ModeNumber, *port, &WaveGuidePort::setWaveGuideModeNumber),
        onSetting(key::Offset, *port, &WaveGuidePort::setWaveGuideOffset),
        onWord(key::ImpedanceType,
               [&](QTextStream& in) { impedance = valueOf(names::impedanceTypes, readRestOfLine(in), impedance); }),
        onSetting(key::Resistance, *port, &WaveGuidePort::setWaveGuideRefResistance),
        onSetting(key::Amplitude, *port, &WaveGuidePort::setWaveGuideAmplitude),
        onSetting(key::Phase, *port, &WaveGuidePort::setWaveGuidePhase),
        onSetting(key::FileName, *port, &WaveGuidePort::setOutputFilename),
        onSetting(key::ModeName, *port, &WaveGuidePort::setWaveGuideModeName),
        onName(key::TermType, names::termTypes, termType, TermType::InputOutput),
        onBlock(key::SnappedHead,
                [&] {
                    tavrix::Cartesian3D p;
                    circuit::pointBlock("").read(delim, p);
                    port->setSnappedHead(p);
                }),
        onBlock(key::SnappedTail,
                [&] {
                    tavrix::Cartesian3D p;
                    circuit::pointBlock("").read(delim, p);
                    port->setSnappedTail(p);
                }),
        onBlock(key::PolygonPoint, [&] { circuit::pointBlock("").read(delim, polygon.emplace_back()); }));
    port->setWaveGuidePortType(type);
    port->setWaveGuideImpedanceType(impedance);
    port->setTermType(termType);
    port->setPlanarPolygon(polygon);
    return port;
}

}  // namespace

bool writeWaveGuidePorts(DelimManager& delim, const WaveGuidePortManager& manager) {
    const WrittenBlock block(delim, key::WaveGuidePorts);
    for (const WaveGuidePort* port : manager.getWaveguidePorts()) writePort(delim, *port);
    return true;
}

// Ports keep the order of the file, and two ports of the same waveguide and mode are both kept.
std::unique_ptr<WaveGuidePortManager> readWaveGuidePorts(DelimManager& delim) {
    std::vector<std::unique_ptr<WaveGuidePort>> ports;
    walkBlock(delim, Unknown::DropLine, onBlock(key::PortData, [&] { ports.push_back(readPort(delim)); }));
    std::vector<WaveGuidePort*> pointers;
    pointers.reserve(ports.size());
    for (const auto& port : ports) pointers.push_back(port.get());
    auto manager = std::make_unique<WaveGuidePortManager>(pointers);
    for (auto& port : ports) static_cast<void>(port.release());
    return manager;
}

}  // namespace quarn
