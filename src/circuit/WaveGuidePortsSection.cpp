#include <deque>

#include "circuit/CircuitSections.h"
#include "circuit/ImpedanceLineBlock.h"
#include "circuit/ManagerOf.h"
#include "circuit/WaveGuideNames.h"

namespace quarn {

using namespace blocktext;

template <>
struct blocktext::Description<WaveGuidePort> {
    using P = WaveGuidePort;
    static constexpr auto block() {
        constexpr auto isNeitherModalNorVoltage = [](const P& port) {
            return port.m_portType != P::Modal && port.m_portType != P::Voltage;
        };
        return describe<P>(
            "PortData",
            Unknown::DropLine,
            Unreadable::KeepsValue,
            choice("IsModal", &P::m_portType, P::Modal),
            choice("IsVoltage", &P::m_portType, P::Voltage),
            choice("IsCurrent", &P::m_portType, P::Current).where(isNeitherModalNorVoltage, "for any other type"),
            value("PortNumber", &P::m_waveGuideNumber),
            value("ModeNumber", &P::m_modeNumber),
            value("Offset", &P::m_offset).in("m"),
            value("ImpedanceType", &P::m_impedanceType, wholeName(nameFrom(names::impedanceTypes))),
            value("Resistance", &P::m_refResistance).in("ohm"),
            value("Amplitude", &P::m_amplitude),
            value("Phase", &P::m_phase).in("rad"),
            text("FileName", &P::m_outputFilename),
            text("ModeName", &P::m_modeName),
            value("TermType", &P::m_termType, names::portTermType),
            innerBlock(anew(&P::m_snappedHead), circuit::pointBlock("SnappedHead")),
            innerBlock(anew(&P::m_snappedTail), circuit::pointBlock("SnappedTail")),
            innerBlocks(&P::m_planarPolygon, circuit::pointBlock("PolygonPoint")));
    }
};

namespace {

// A deque, since a port that moves would be copied.
struct Section {
    std::deque<WaveGuidePort> ports;
};

constexpr auto portBlock = Description<WaveGuidePort>::block();
constexpr auto sectionBlock = [] {
    return describe<Section>(sectionName::waveGuidePorts,
                             Unknown::DropLine,
                             Unreadable::KeepsValue,
                             innerBlocks(&Section::ports, portBlock));
}();

}  // namespace

bool writeWaveGuidePorts(DelimManager& delim, const WaveGuidePortManager& manager) {
    const WrittenBlock block(delim, sectionBlock.name);
    for (const WaveGuidePort* port : manager.getWaveguidePorts()) portBlock.write(delim, *port);
    return true;
}

// Ports keep the order of the file, and two ports of the same waveguide and mode are both kept.
std::unique_ptr<WaveGuidePortManager> readWaveGuidePorts(DelimManager& delim) {
    Section section;
    sectionBlock.read(delim, section);
    std::vector<std::unique_ptr<WaveGuidePort>> ports;
    for (const auto& port : section.ports) ports.push_back(std::make_unique<WaveGuidePort>(port));
    return circuit::managerOf<WaveGuidePortManager>(std::move(ports));
}

void describeWaveGuidePorts(FormatBuilder& builder) { sectionBlock.describeTo(builder, Section()); }

}  // namespace quarn
