#include "circuit/ComponentKindSection.h"

#include <optional>

#include "blocktext/BlockWriter.h"

namespace quarn {

using namespace blocktext;

namespace {

// The source codes of the file. The two old kinds of switch, with one transition each, are only read.
enum Source {
    passiveLoad = 0,
    voltageFeed = 1,
    currentFeed = 2,
    openSwitch = 3,
    closedSwitch = 4,
    nonlinearCapacitor = 5,
    programmableSwitch = 6,
    diode = 7,
    sBlock = 9,
};

namespace key {
using namespace kindKey;
constexpr auto IsActiveLine = "IsActive "_key;
constexpr auto initialState = "initial_state"_key;
constexpr auto switchLine = "switch"_key;
constexpr auto Is = "Is"_key;
constexpr auto n = "n"_key;
constexpr auto Vj = "Vj"_key;
constexpr auto Cj = "Cj"_key;
constexpr auto td = "td"_key;
constexpr auto m = "m"_key;
constexpr auto FC = "FC"_key;
constexpr auto er1 = "er1"_key;
constexpr auto er2 = "er2"_key;
constexpr auto es = "es"_key;
constexpr auto e0 = "e0"_key;
constexpr auto a1 = "a1"_key;
constexpr auto a2 = "a2"_key;
constexpr auto a3 = "a3"_key;
constexpr auto Port = "Port"_key;
constexpr auto Line = "Line"_key;
}  // namespace key

using Component = CircuitComponent;

void putPolarity(DelimManager& delim, Component::Polarity polarity) {
    putLine(delim, key::Polarity, polarity == Component::Positive ? 1 : -1);
}

Component::Polarity polarityOf(int sign) { return sign == 1 ? Component::Positive : Component::Negative; }

void putArrangement(DelimManager& delim, Component::ElementArrangement arrangement) {
    putLine(delim, key::Type, arrangement == Component::Series ? 1 : 2);
}

Component::ElementArrangement arrangementOf(int type) { return type == 1 ? Component::Series : Component::Parallel; }

void putImpedance(DelimManager& delim, const Component& component) {
    putLine(delim, key::Resistance, component.getResistance());
    putLine(delim, key::Inductance, component.getInductance());
    putLine(delim, key::Capacitance, component.getCapacitance());
}

// A component of no kind has this type too, and the values of the base.
void writePassiveLoad(DelimManager& delim, const Component& component) {
    const auto* load = dynamic_cast<const PassiveLoad*>(&component);
    putLine(delim, key::Source, passiveLoad);
    putImpedance(delim, component);
    putPolarity(delim, load ? load->getMeasurementPolarity() : Component::Positive);
    putArrangement(delim, component.getElementArrangement());
}

void writeFeed(DelimManager& delim, const Feed& feed) {
    const bool isCurrent = feed.getCircuitComponentType() == Component::ParallelCurrent;
    putLine(delim, key::Source, isCurrent ? currentFeed : voltageFeed);
    putPolarity(delim, feed.getPolarity());
    putImpedance(delim, feed);
    putLine(delim, key::Amplitude, feed.getAmplitude());
    putLine(delim, key::Phase, feed.getPhase());
    putLine(delim, key::Delay, feed.getTimeDelay());
    putArrangement(delim, feed.getElementArrangement());
    if (feed.isActive()) {
        putLine(delim, key::IsActiveLine);
        putLine(delim, key::WaveformIndex, feed.getWaveformIndex());
    }
    const QString excitation = feed.getFieldExcitationFilename();
    if (!excitation.isEmpty()) putLine(delim, key::FieldExcitationFilename, excitation);
    const int mesh = feed.getFieldExcitationMeshNum();
    if (mesh >= 0) putLine(delim, key::FieldExcitationMeshNum, mesh);
    const int mode = feed.getFieldExcitationModeNum();
    if (mode >= 0) putLine(delim, key::FieldExcitationModeNum, mode);
}

void writeSwitch(DelimManager& delim, const Switch& component) {
    putLine(delim, key::Source, programmableSwitch);
    putPolarity(delim, component.getMeasurementPolarity());
    const WrittenBlock block(delim, key::ProgrammableSwitch);
    putLine(delim, key::initialState, component.getInitialState() == Switch::Open ? 0 : 1);
    for (const auto& [start, duration] : component.getTransitions()) {
        putLine(delim, key::switchLine, start, duration);
    }
}

void writeNonlinearCapacitor(DelimManager& delim, const NonlinearCapacitor& capacitor, int index) {
    putLine(delim, key::Source, nonlinearCapacitor);
    putLine(delim, key::Resistance, capacitor.getResistance());
    putLine(delim, key::NonlinearCapIndex, index);
    putPolarity(delim, capacitor.getMeasurementPolarity());
}

void writeDiode(DelimManager& delim, const Diode& component) {
    putLine(delim, key::Source, diode);
    putPolarity(delim, component.getPolarity());
    const WrittenBlock block(delim, key::Diode);
    putLine(delim, key::Is, component.getSaturationCurrent());
    putLine(delim, key::n, component.getEmissionCoefficient());
    putLine(delim, key::Vj, component.getJunctionPotential());
    putLine(delim, key::Cj, component.getDepletionCapacitance());
    putLine(delim, key::td, component.getTransitTime());
    putLine(delim, key::m, component.getGradingCoefficient());
    putLine(delim, key::FC, component.getForwardCoefficient());
}

std::unique_ptr<Component> makeFeed(const Component& base, const KindRecord& record) {
    auto feed =
        std::make_unique<Feed>(base,
                               record.source == currentFeed ? Component::ParallelCurrent : Component::SeriesVoltage,
                               record.waveformIndex,
                               record.amplitude,
                               record.phase,
                               record.resistance,
                               record.capacitance,
                               record.inductance,
                               record.delay,
                               arrangementOf(record.arrangement),
                               polarityOf(record.polaritySign));
    if (!record.isActive) feed->setInactive();
    feed->setFieldExcitationFilename(record.fieldExcitationFilename);
    feed->setFieldExcitationMeshNum(record.fieldExcitationMeshNum);
    feed->setFieldExcitationModeNum(record.fieldExcitationModeNum);
    return feed;
}

std::unique_ptr<Component> makeSwitch(const Component& base, const KindRecord& record, Switch::State state,
                                      const std::vector<Switch::Transition>& transitions) {
    auto component = std::make_unique<Switch>(base, state, polarityOf(record.polaritySign));
    for (const auto& [start, duration] : transitions) component->addTransition(start, duration);
    return component;
}

std::unique_ptr<Component> makeNonlinearCapacitor(const Component& base, const KindRecord& record,
                                                  const std::vector<CapacitorCoefficients>& capacitors) {
    const auto index = static_cast<std::size_t>(record.nonlinearCapacitorIndex);
    const bool isListed = record.nonlinearCapacitorIndex >= 0 && index < capacitors.size();
    const CapacitorCoefficients c = isListed ? capacitors[index] : CapacitorCoefficients();
    return std::make_unique<NonlinearCapacitor>(
        base, record.resistance, c.c1, c.c2, c.vs, c.vc, c.a1, c.a2, c.a3, polarityOf(record.polaritySign));
}

}  // namespace

// A lumped component has no lines here, so that it cannot be read back.
void writeKind(DelimManager& delim, const Component& component, int& nonlinearCapacitors) {
    if (component.getCircuitComponentType() == Component::PassiveLoad) {
        writePassiveLoad(delim, component);
    } else if (const auto* feed = dynamic_cast<const Feed*>(&component)) {
        writeFeed(delim, *feed);
    } else if (const auto* switching = dynamic_cast<const Switch*>(&component)) {
        writeSwitch(delim, *switching);
    } else if (const auto* capacitor = dynamic_cast<const NonlinearCapacitor*>(&component)) {
        writeNonlinearCapacitor(delim, *capacitor, nonlinearCapacitors++);
    } else if (const auto* junction = dynamic_cast<const Diode*>(&component)) {
        writeDiode(delim, *junction);
    } else if (const auto* block = dynamic_cast<const SBlock*>(&component)) {
        putLine(delim, key::Source, sBlock);
        putLine(delim, key::SFileName, block->getSblockFilename());
    }
}

void readSwitch(DelimManager& delim, KindRecord& record) {
    walkBlock(delim,
              Unknown::DropLine,
              onValue(key::initialState, record.initialState),
              onWord(key::switchLine, [&](QTextStream& in) {
                  Switch::Transition transition;
                  if (readValue(in, transition.start) && readValue(in, transition.duration)) {
                      record.transitions.push_back(transition);
                  }
              }));
}

void readDiode(DelimManager& delim, KindRecord& record) {
    walkBlock(delim,
              Unknown::DropLine,
              onValue(key::Is, record.saturationCurrent),
              onValue(key::n, record.emissionCoefficient),
              onValue(key::Vj, record.junctionPotential),
              onValue(key::Cj, record.depletionCapacitance),
              onValue(key::td, record.transitTime),
              onValue(key::m, record.gradingCoefficient),
              onValue(key::FC, record.forwardCoefficient));
}

void readPortLine(DelimManager& delim, KindRecord& record) {
    std::optional<int> port;
    std::optional<int> line;
    const auto readInto = [&](std::optional<int>& number) {
        return [&](QTextStream& in) {
            int value = 0;
            if (readValue(in, value)) number = value;
        };
    };
    walkBlock(delim, Unknown::DropLine, onWord(key::Port, readInto(port)), onWord(key::Line, readInto(line)));
    if (port && line) record.portMap[*port] = *line;
}

std::unique_ptr<Component> makeComponent(const Component& base, const KindRecord& record,
                                         const std::vector<CapacitorCoefficients>& capacitors) {
    switch (record.source) {
        case passiveLoad:
            return std::make_unique<PassiveLoad>(base,
                                                 record.resistance,
                                                 record.capacitance,
                                                 record.inductance,
                                                 arrangementOf(record.arrangement),
                                                 polarityOf(record.polaritySign));
        case voltageFeed:
        case currentFeed:
            return makeFeed(base, record);
        case openSwitch:
            return makeSwitch(base, record, Switch::Open, {record.singleTransition});
        case closedSwitch:
            return makeSwitch(base, record, Switch::Closed, {record.singleTransition});
        case nonlinearCapacitor:
            return makeNonlinearCapacitor(base, record, capacitors);
        case programmableSwitch:
            return makeSwitch(
                base, record, record.initialState == 1 ? Switch::Closed : Switch::Open, record.transitions);
        case diode:
            return std::make_unique<Diode>(base,
                                           record.depletionCapacitance,
                                           record.emissionCoefficient,
                                           record.forwardCoefficient,
                                           record.gradingCoefficient,
                                           record.junctionPotential,
                                           record.saturationCurrent,
                                           record.transitTime,
                                           polarityOf(record.polaritySign));
        case sBlock:
            return std::make_unique<SBlock>(base, record.sFileName, record.portMap);
        default:
            return nullptr;
    }
}

void writeCoefficients(DelimManager& delim, const NonlinearCapacitor& capacitor) {
    putLine(delim, key::er1, capacitor.getC1());
    putLine(delim, key::er2, capacitor.getC2());
    putLine(delim, key::es, capacitor.getVs());
    putLine(delim, key::e0, capacitor.getVc());
    putLine(delim, key::a1, capacitor.getA1());
    putLine(delim, key::a2, capacitor.getA2());
    putLine(delim, key::a3, capacitor.getA3());
}

CapacitorCoefficients readCoefficients(DelimManager& delim) {
    CapacitorCoefficients c;
    walkBlock(delim,
              Unknown::DropLine,
              onValue(key::er1, c.c1),
              onValue(key::er2, c.c2),
              onValue(key::es, c.vs),
              onValue(key::e0, c.vc),
              onValue(key::a1, c.a1),
              onValue(key::a2, c.a2),
              onValue(key::a3, c.a3));
    return c;
}

}  // namespace quarn
