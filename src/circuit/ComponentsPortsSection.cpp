#include <deque>

#include "circuit/CircuitSections.h"
#include "circuit/ComponentRecord.h"
#include "circuit/ImpedanceLineBlock.h"
#include "circuit/ManagerOf.h"

namespace quarn {

using namespace blocktext;
using circuit::CapacitorCoefficients;
using circuit::DiodeParameters;
using circuit::KindValues;
using circuit::PortLine;
using circuit::ReadComponent;
using circuit::SwitchProgram;
using circuit::WrittenComponent;

namespace {

using Component = CircuitComponent;

constexpr NumberTable<Component::ComponentDirection, 3> directions{
    {{Component::X, 0}, {Component::Y, 1}, {Component::Z, 2}}};
constexpr NumberTable<Component::Polarity, 2> polarities{{{Component::Positive, 1}, {Component::Negative, -1}}};
constexpr NumberTable<Component::ElementArrangement, 2> arrangements{
    {{Component::Series, 1}, {Component::Parallel, 2}}};
constexpr NumberTable<Switch::State, 2> switchStates{{{Switch::Open, 0}, {Switch::Closed, 1}}};

constexpr auto switchBlock = [] {
    using P = SwitchProgram;
    using T = Switch::Transition;
    return describe<P>("ProgrammableSwitch",
                       Unknown::DropLine,
                       Unreadable::KeepsValue,
                       value("initial_state", &P::initialState, numberFrom(switchStates, Switch::Open)),
                       entries("switch", &P::transitions, parts(&T::start, &T::duration)));
}();

constexpr auto diodeBlock = [] {
    using D = DiodeParameters;
    return describe<D>("Diode",
                       Unknown::DropLine,
                       Unreadable::KeepsValue,
                       value("Is", &D::saturationCurrent).in("A"),
                       value("n", &D::emissionCoefficient),
                       value("Vj", &D::junctionPotential).in("V"),
                       value("Cj", &D::depletionCapacitance).in("F"),
                       value("td", &D::transitTime).in("s"),
                       value("m", &D::gradingCoefficient),
                       value("FC", &D::forwardCoefficient));
}();

constexpr auto portLineBlock = [] {
    return describe<PortLine>("PortLineMap",
                              Unknown::DropLine,
                              Unreadable::KeepsValue,
                              value("Port", &PortLine::port, OptionalNumber()),
                              value("Line", &PortLine::line, OptionalNumber()));
}();

constexpr auto coefficientsBlock = [] {
    using C = CapacitorCoefficients;
    return describe<C>("NonlinearCapacitor",
                       Unknown::DropLine,
                       Unreadable::KeepsValue,
                       value("er1", &C::c1),
                       value("er2", &C::c2),
                       value("es", &C::vs),
                       value("e0", &C::vc),
                       value("a1", &C::a1),
                       value("a2", &C::a2),
                       value("a3", &C::a3));
}();

}  // namespace

template <>
struct blocktext::Description<CircuitComponent> {
    using C = CircuitComponent;
    using K = KindValues;

    struct BaseOf {
        template <class Record>
        constexpr auto& operator()(Record& record) const {
            return record.base;
        }
    };
    // A member of the component that a record holds or refers to.
    template <class Member>
    static constexpr auto ofBase(Member member) {
        return path(BaseOf(), member);
    }

    // The polarity stands before the impedance or behind it, as the kind has it.
    template <class Record>
    static constexpr auto block() {
        constexpr auto polarity = value("Polarity", &K::polarity, numberFrom(polarities, C::Negative));
        constexpr auto withImpedance = [](auto line) {
            return line.onlyFor(&K::source, K::passiveLoad, K::voltageFeed, K::currentFeed);
        };
        constexpr auto ofFeeds = [](auto line) { return line.onlyFor(&K::source, K::voltageFeed, K::currentFeed); };
        return describe<Record>(
            "FeedData",
            Unknown::DropLine,
            Unreadable::KeepsValue,
            text("ComponentName", ofBase(&C::m_componentName)),
            innerBlocks(ofBase(&C::m_endPoints), circuit::pointBlock("EndPoint")),
            innerBlocks(ofBase(&C::m_impLines), circuit::impedanceLineBlock),
            value("XLocation", ofBase(&C::m_xIndex), CountedFromOne()),
            value("YLocation", ofBase(&C::m_yIndex), CountedFromOne()),
            value("ZLocation", ofBase(&C::m_zIndex), CountedFromOne()),
            value("CellEdgeDirection", ofBase(&C::m_componentDirection), numberFrom(directions, C::UndefinedDirection)),
            flag("IsPort", ofBase(&C::m_isPort)),
            text("FileName", ofBase(&C::m_outputFilename)),
            value("Source", &K::source)
                .where([](const K& kind) { return kind.source >= 0; }, "except for lumped components"),
            polarity.onlyFor(&K::source, K::voltageFeed, K::currentFeed, K::programmableSwitch, K::diode),
            value("Resistance", &K::resistance)
                .onlyFor(&K::source, K::passiveLoad, K::voltageFeed, K::currentFeed, K::nonlinearCapacitor)
                .in("ohm"),
            withImpedance(value("Inductance", &K::inductance)).in("H"),
            withImpedance(value("Capacitance", &K::capacitance)).in("F"),
            value("NonlinearCapIndex", &K::capacitorIndex).onlyFor(&K::source, K::nonlinearCapacitor),
            polarity.onlyFor(&K::source, K::passiveLoad, K::nonlinearCapacitor).onlyWritten(),
            ofFeeds(value("Amplitude", &K::amplitude)).in("V or A"),
            ofFeeds(value("Phase", &K::phase)).in("rad"),
            ofFeeds(value("Delay", &K::delay)),
            withImpedance(value("Type", &K::arrangement, numberFrom(arrangements, C::Parallel))),
            flag("IsActive", &K::isActive, " "),
            value("WaveformIndex", &K::waveformIndex).onlyWith(&K::isActive),
            text("FieldExcitationFilename", &K::fieldExcitationFilename).unlessEmpty(),
            value("FieldExcitationMeshNum", &K::fieldExcitationMeshNum)
                .where([](const K& kind) { return kind.fieldExcitationMeshNum >= 0; }, "unless negative"),
            value("FieldExcitationModeNum", &K::fieldExcitationModeNum)
                .where([](const K& kind) { return kind.fieldExcitationModeNum >= 0; }, "unless negative"),
            value("SwitchTimeStep", path(&K::singleTransition, &Switch::Transition::start)).onlyRead(),
            value("SwitchDuration", path(&K::singleTransition, &Switch::Transition::duration)).onlyRead(),
            innerBlock(&K::switchProgram, switchBlock).onlyFor(&K::source, K::programmableSwitch),
            innerBlock(&K::diodeParameters, diodeBlock).onlyFor(&K::source, K::diode),
            text("SFileName", &K::sFileName).onlyFor(&K::source, K::sBlock),
            innerBlocks(&K::portLines, portLineBlock).onlyRead(),
            value("TermType", ofBase(&C::m_termType), names::termType),
            value("Calibration", ofBase(&C::m_calibration), names::calibration));
    }
};

template <>
struct blocktext::Description<StaticVoltageList> {
    using List = StaticVoltageList;
    using Point = List::VoltagePoint;

    static constexpr auto settings() {
        return describe<List>("StaticVoltageInfo",
                              Unknown::DropLine,
                              Unreadable::KeepsValue,
                              value("Residual", &List::m_residualThreshold),
                              value("ConductorThreshold", &List::m_conductorThreshold),
                              value("MaximumIterations", &List::m_maximumIterations));
    }
    static constexpr auto point() {
        return describe<Point>("StaticVoltagePoint",
                               Unknown::DropLine,
                               Unreadable::KeepsValue,
                               value("XLocation", &Point::x),
                               value("YLocation", &Point::y),
                               value("ZLocation", &Point::z),
                               value("Voltage", &Point::voltage).in("V"));
    }
    static constexpr auto points = &List::m_points;
};

namespace {

// What a reader finds. Records stand in a deque, since one that moves would be copied.
struct Section {
    int portType = 0;
    int count = 0;  // of feeds or ports, which older files give
    std::deque<ReadComponent> components;
    std::vector<CapacitorCoefficients> capacitors;
    StaticVoltageList voltages;
};

constexpr auto settingsBlock = Description<StaticVoltageList>::settings();
constexpr auto pointBlock = Description<StaticVoltageList>::point();

constexpr auto portTypeLine = value("PortType", &Section::portType);
constexpr auto sectionBlock = [] {
    constexpr auto hasVoltages = [](const Section& section) { return !section.voltages.getPoints().empty(); };
    return describe<Section>(sectionName::componentsPorts,
                             Unknown::DropLine,
                             Unreadable::KeepsValue,
                             portTypeLine,
                             value("NumberOfFeeds", &Section::count).onlyRead(),
                             value("NumberOfPorts", &Section::count).onlyRead(),
                             innerBlocks(&Section::components, Description<CircuitComponent>::block<ReadComponent>()),
                             innerBlocks(&Section::capacitors, coefficientsBlock),
                             innerBlock(&Section::voltages, settingsBlock).where(hasVoltages, "with static voltages"),
                             innerBlocks(path(&Section::voltages, Description<StaticVoltageList>::points), pointBlock));
}();

void writeComponents(DelimManager& delim, const ComponentManager& manager) {
    constexpr auto block = Description<CircuitComponent>::block<WrittenComponent>();
    int capacitors = 0;
    for (const CircuitComponent* component : manager.getComponents()) {
        block.write(delim, circuit::recordOf(*component, capacitors));
    }
    for (const CircuitComponent* component : manager.getComponents()) {
        if (const auto* capacitor = dynamic_cast<const NonlinearCapacitor*>(component)) {
            coefficientsBlock.write(delim, circuit::coefficientsOf(*capacitor));
        }
    }
}

// The active port is the position of the last active record's component. A record without a component does not count.
std::unique_ptr<ComponentManager> managerOf(const Section& section) {
    const bool computesSParameters = section.portType != 0;
    std::vector<std::unique_ptr<CircuitComponent>> components;
    int activePort = -1;
    for (const ReadComponent& record : section.components) {
        auto component = circuit::componentOf(record, section.capacitors);
        if (!component) continue;
        if (computesSParameters && record.isActive) activePort = static_cast<int>(components.size());
        components.push_back(std::move(component));
    }
    return circuit::managerOf<ComponentManager>(std::move(components), computesSParameters, activePort);
}

}  // namespace

// A record is made and written for one component at a time, so that the section is not written as a whole.
bool writeComponentsPorts(DelimManager& delim, const ComponentManager* manager,
                          const StaticVoltageList* staticVoltages) {
    const bool hasStaticVoltages = staticVoltages && !staticVoltages->getPoints().empty();
    if (!manager && !hasStaticVoltages) return false;
    const WrittenBlock block(delim, sectionBlock.name);
    Section head;
    head.portType = manager && manager->computeSParameters() ? 1 : 0;
    portTypeLine.write(delim, head);
    if (manager) writeComponents(delim, *manager);
    if (hasStaticVoltages) {
        settingsBlock.write(delim, *staticVoltages);
        for (const auto& point : staticVoltages->getPoints()) pointBlock.write(delim, point);
    }
    return isOk(delim);
}

ComponentsPorts readComponentsPorts(DelimManager& delim) {
    Section section;
    sectionBlock.read(delim, section);
    return {managerOf(section), std::make_unique<StaticVoltageList>(std::move(section.voltages))};
}

void describeComponentsPorts(FormatBuilder& builder) { sectionBlock.describeTo(builder, Section()); }

}  // namespace quarn
