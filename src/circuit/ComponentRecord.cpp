#include "circuit/ComponentRecord.h"

namespace quarn::circuit {

namespace {

using Component = CircuitComponent;

void addFeed(KindValues& record, const Feed& feed) {
    const bool isCurrent = feed.getCircuitComponentType() == Component::ParallelCurrent;
    record.source = isCurrent ? KindValues::currentFeed : KindValues::voltageFeed;
    record.polarity = feed.getPolarity();
    record.delay = feed.getTimeDelay();
    record.isActive = feed.isActive();
    record.waveformIndex = feed.getWaveformIndex();
    record.fieldExcitationFilename = feed.getFieldExcitationFilename();
    record.fieldExcitationMeshNum = feed.getFieldExcitationMeshNum();
    record.fieldExcitationModeNum = feed.getFieldExcitationModeNum();
}

// Every state but Open is written as Closed.
void addSwitch(KindValues& record, const Switch& component) {
    record.source = KindValues::programmableSwitch;
    record.polarity = component.getMeasurementPolarity();
    const bool isOpen = component.getInitialState() == Switch::Open;
    record.switchProgram = {isOpen ? Switch::Open : Switch::Closed, component.getTransitions()};
}

void addDiode(KindValues& record, const Diode& diode) {
    record.source = KindValues::diode;
    record.polarity = diode.getPolarity();
    record.diodeParameters = {diode.getSaturationCurrent(),
                              diode.getEmissionCoefficient(),
                              diode.getJunctionPotential(),
                              diode.getDepletionCapacitance(),
                              diode.getTransitTime(),
                              diode.getGradingCoefficient(),
                              diode.getForwardCoefficient()};
}

std::unique_ptr<Component> makeFeed(const ReadComponent& record, Component::CircuitComponentType type) {
    auto feed = std::make_unique<Feed>(record.base,
                                       type,
                                       record.waveformIndex,
                                       record.amplitude,
                                       record.phase,
                                       record.resistance,
                                       record.capacitance,
                                       record.inductance,
                                       record.delay,
                                       record.arrangement,
                                       record.polarity);
    if (!record.isActive) feed->setInactive();
    feed->setFieldExcitationFilename(record.fieldExcitationFilename);
    feed->setFieldExcitationMeshNum(record.fieldExcitationMeshNum);
    feed->setFieldExcitationModeNum(record.fieldExcitationModeNum);
    return feed;
}

std::unique_ptr<Component> makeSwitch(const ReadComponent& record, const SwitchProgram& program) {
    auto component = std::make_unique<Switch>(record.base, program.initialState, record.polarity);
    for (const auto& [start, duration] : program.transitions) component->addTransition(start, duration);
    return component;
}

std::unique_ptr<Component> makeNonlinearCapacitor(const ReadComponent& record,
                                                  const std::vector<CapacitorCoefficients>& capacitors) {
    const auto index = static_cast<std::size_t>(record.capacitorIndex);
    const bool isListed = record.capacitorIndex >= 0 && index < capacitors.size();
    const auto [c1, c2, vs, vc, a1, a2, a3] = isListed ? capacitors[index] : CapacitorCoefficients();
    return std::make_unique<NonlinearCapacitor>(
        record.base, record.resistance, c1, c2, vs, vc, a1, a2, a3, record.polarity);
}

std::unique_ptr<Component> makeDiode(const ReadComponent& record) {
    const DiodeParameters& d = record.diodeParameters;
    return std::make_unique<Diode>(record.base,
                                   d.depletionCapacitance,
                                   d.emissionCoefficient,
                                   d.forwardCoefficient,
                                   d.gradingCoefficient,
                                   d.junctionPotential,
                                   d.saturationCurrent,
                                   d.transitTime,
                                   record.polarity);
}

// A port without its line, or a line without its port, says nothing.
std::unique_ptr<Component> makeSBlock(const ReadComponent& record) {
    std::map<int, int> portMap;
    for (const auto& [port, line] : record.portLines) {
        if (port && line) portMap[*port] = *line;
    }
    return std::make_unique<SBlock>(record.base, record.sFileName, portMap);
}

}  // namespace

// A component of no kind has the type of a passive load, and the values of the base. A lumped component has no lines,
// so that it cannot be read back.
WrittenComponent recordOf(const Component& component, int& capacitors) {
    WrittenComponent record{{}, component};
    record.resistance = component.getResistance();
    record.inductance = component.getInductance();
    record.capacitance = component.getCapacitance();
    record.amplitude = component.getAmplitude();
    record.phase = component.getPhase();
    record.arrangement = component.getElementArrangement();
    if (component.getCircuitComponentType() == Component::PassiveLoad) {
        const auto* load = dynamic_cast<const PassiveLoad*>(&component);
        record.source = KindValues::passiveLoad;
        record.polarity = load ? load->getMeasurementPolarity() : Component::Positive;
    } else if (const auto* feed = dynamic_cast<const Feed*>(&component)) {
        addFeed(record, *feed);
    } else if (const auto* switching = dynamic_cast<const Switch*>(&component)) {
        addSwitch(record, *switching);
    } else if (const auto* capacitor = dynamic_cast<const NonlinearCapacitor*>(&component)) {
        record.source = KindValues::nonlinearCapacitor;
        record.polarity = capacitor->getMeasurementPolarity();
        record.capacitorIndex = capacitors++;
    } else if (const auto* diode = dynamic_cast<const Diode*>(&component)) {
        addDiode(record, *diode);
    } else if (const auto* block = dynamic_cast<const SBlock*>(&component)) {
        record.source = KindValues::sBlock;
        record.sFileName = block->getSblockFilename();
    }
    return record;
}

std::unique_ptr<Component> componentOf(const ReadComponent& record,
                                       const std::vector<CapacitorCoefficients>& capacitors) {
    switch (record.source) {
        case KindValues::passiveLoad:
            return std::make_unique<PassiveLoad>(record.base,
                                                 record.resistance,
                                                 record.capacitance,
                                                 record.inductance,
                                                 record.arrangement,
                                                 record.polarity);
        case KindValues::voltageFeed:
            return makeFeed(record, Component::SeriesVoltage);
        case KindValues::currentFeed:
            return makeFeed(record, Component::ParallelCurrent);
        case KindValues::openSwitch:
            return makeSwitch(record, {Switch::Open, {record.singleTransition}});
        case KindValues::closedSwitch:
            return makeSwitch(record, {Switch::Closed, {record.singleTransition}});
        case KindValues::nonlinearCapacitor:
            return makeNonlinearCapacitor(record, capacitors);
        case KindValues::programmableSwitch:
            return makeSwitch(record, record.switchProgram);
        case KindValues::diode:
            return makeDiode(record);
        case KindValues::sBlock:
            return makeSBlock(record);
        default:
            return nullptr;
    }
}

CapacitorCoefficients coefficientsOf(const NonlinearCapacitor& capacitor) {
    return {capacitor.getC1(),
            capacitor.getC2(),
            capacitor.getVs(),
            capacitor.getVc(),
            capacitor.getA1(),
            capacitor.getA2(),
            capacitor.getA3()};
}

}  // namespace quarn::circuit
