#include <limits>

#include "circuit/CircuitTestSupport.h"
#include "quarn/quarn.h"

namespace quarn::test {
namespace {

using Component = CircuitComponent;
using Manager = ComponentManager;

constexpr auto positive = Component::Positive;
constexpr auto negative = Component::Negative;
constexpr float nan = std::numeric_limits<float>::quiet_NaN();

Component base(const QString& name, bool isPort = true) { return {name, 0, 0, 0, Component::X, isPort}; }

Feed feedOf(const QString& name, float r, float l, float c, bool isPort = true) {
    return {base(name, isPort), Component::SeriesVoltage, 0, 1, 0, r, c, l, 0, Component::Series, positive};
}

PassiveLoad loadOf(const QString& name, float r, float l, float c, bool isPort = true) {
    return {base(name, isPort), r, c, l, Component::Series, positive};
}

// clang-format off
const QString noWaveform = "error: A waveform index is invalid.";
const QString negativeR = "warning: Feed resistance should not be negative.";
const QString negativeC = "warning: Feed capacitance should not be negative.";
const QString negativeL = "warning: Feed inductance should not be negative.";
const QString negativeDelay = "warning: Feed time delay should not be negative.";
const QString switchEngine = "error: A Switch is only supported by the FDTD engine.";
const QString noTransition = "warning: A Switch does not have any transitions.";
const QString order = "warning: The start of each switch transition is not in cronological order.";
const QString overlap = "warning: A switch duration is too long and overlaps the start of the next transition.";
const QString diodeEngine = "error: A Diode is only supported by the FDTD engine.";
const QString diodeParameters = "warning: All diode parameters should be positive.";
const QString negativeA =
    "error: Lumped component coefficient a_r < 0.  All coefficients must be greater than or equal to 0.";
const QString negativeB =
    "error: Lumped component coefficient b_m < 0.  All coefficients must be greater than or equal to 0.";
const QString tooManyPorts = "error: The number of ports is greater than the number of circuit components.";
const QString noComponents =
    "error: S-Parameters are being computed, but there are no circuit components specified.";
const QString noPorts = "error: S-Parameters are being computed, but there are no ports specified.";
const QString badPort = "error: The active port must be between 0 and %1.";
const QString noFeed = "error: The active port must be a Feed.";
const QString inactive = "error: The active port does not correspond to an active Feed.";
const QString reactance = "warning: The characteristic impedance of a Port possesses a nonzero reactance.  "
                          "S-parameter calculations may not match experimental results.";
const QString mismatch = "warning: The characteristic impedance for the active Port does not match that of all passive "
                         "Ports.  Sij calculations may not match experimental results.";
const QString doubtful =
    "warning: A %1 circuit component is specified as a Port.  S-parameters for this Port may be invalid.";
// clang-format on

TEST(ComponentKinds, drawn_ones) {
    const Feed feed("f", {}, {}, Component::ParallelCurrent, 1, 2, 3, 4, 5, Component::Parallel);
    EXPECT_TRUE(feed.isActive() && feed.isPort());
    EXPECT_EQ(feed.getCapacitance() - feed.getInductance(), -1);
    EXPECT_EQ(feed.getWaveformIndex() + feed.getTimeDelay(), 0);
    const PassiveLoad load("l", {}, {}, 3, 4, 5, Component::Parallel);
    EXPECT_EQ(load.getCapacitance() - load.getInductance(), -1);
    EXPECT_FALSE(load.isPort() || load.isActive() || SBlock("s", {}, {}, "file").isPort());
}

TEST(ComponentKinds, feeds_and_passive_loads_are_checked_alike) {
    Feed feed(base("f"), Component::SeriesVoltage, -1, -1, -1, -1, -1, -1, -1, Component::Series, positive);
    const QStringList warnings{negativeR, negativeC, negativeL};
    EXPECT_EQ(findingsOf(feed, Engine::FDTD), QStringList(noWaveform) + warnings + QStringList(negativeDelay));
    EXPECT_EQ(findingsOf(feed, Engine::FEM), warnings + QStringList(negativeDelay));
    feed.setInactive();
    EXPECT_EQ(findingsOf(feed, Engine::FDTD), warnings + QStringList(negativeDelay));
    EXPECT_EQ(findingsOf(loadOf("l", -1, -1, -1), Engine::FDTD), warnings);
    EXPECT_EQ(findingsOf(loadOf("l", -0.0F, 0, nan), Engine::FDTD), QStringList());
    Feed active = feedOf("f", 50, 0, 0);
    active.setInactive();
    EXPECT_EQ(active.getWaveformIndex(), -1);
    EXPECT_EQ(findingsOf(active, Engine::FDTD), QStringList());
}

TEST(ComponentKinds, switches) {
    using Transitions = std::vector<std::pair<int, int>>;
    const auto check = [](const Transitions& transitions, Engine engine = Engine::FDTD) {
        Switch component(base("s"), Switch::Open, positive);
        for (const auto& [start, duration] : transitions) component.addTransition(start, duration);
        return findingsOf(component, engine);
    };
    EXPECT_EQ(check({}, Engine::FEM), QStringList(switchEngine));
    EXPECT_EQ(check({}), QStringList(noTransition));
    EXPECT_EQ(check({{-5, -5}}), QStringList());
    EXPECT_EQ(check({{10, 5}, {15, 3}}), QStringList(overlap)) << "the start is where the one before ends";
    EXPECT_EQ(check({{10, 5}, {16, 3}}), QStringList());
    EXPECT_EQ(check({{10, 5}, {10, 1}}), QStringList(order));
    EXPECT_EQ(check({{10, -5}, {10, 1}}), QStringList(order));
    EXPECT_EQ(check({{10, 5}, {16, 3}, {19, 1}, {1, 1}}), QStringList(overlap)) << "at most one finding";
    EXPECT_EQ(check({{10, std::numeric_limits<int>::max()}, {20, 1}}), QStringList(overlap)) << "without overflow";
}

TEST(ComponentKinds, diodes_and_lumped_components) {
    for (int i = 0; i < 7; ++i) {
        const auto check = [i](float value, Engine engine) {
            float p[] = {1, 1, 1, 1, 1, 1, 1};
            p[i] = value;
            return findingsOf(Diode(base("d"), p[0], p[1], p[2], p[3], p[4], p[5], p[6], positive), engine);
        };
        EXPECT_EQ(check(0, Engine::FDTD), QStringList(diodeParameters)) << i;
        EXPECT_EQ(check(nan, Engine::FDTD), QStringList()) << i;
        EXPECT_EQ(check(-1, Engine::FEM), QStringList(diodeEngine)) << i;
    }
    const LumpedComponent lumped(base("l"), positive, {-1, 0, -2, 3}, {-1});
    EXPECT_EQ(findingsOf(lumped, Engine::FEM), (QStringList{negativeA, negativeA, negativeB}));
    EXPECT_EQ(lumped.getArSize(), 4U);
    EXPECT_EQ(lumped.getBmCoefficient(0), -1);
}

QStringList namesOf(const Manager& manager) {
    QStringList names;
    for (const Component* component : manager.getComponents()) names << component->getComponentName();
    return names;
}

TEST(ComponentManager, inserts_ports_before_other_components) {
    Component p1 = base("P1"), p2 = base("P2"), p3 = base("P3"), a = base("A", false), b = base("B", false);
    Manager manager({}, false, 7);
    EXPECT_EQ(manager.getActivePort(), -1);
    for (Component* component : {&a, &p1, &b, &p2, &p3}) manager.insert(component, true);
    EXPECT_EQ(namesOf(manager), (QStringList{"P1", "P2", "P3", "A", "B"}));
    EXPECT_EQ(manager.getNumberOfPorts(), 3U);
    Manager copy(manager);
    EXPECT_EQ(copy.getComponents(), manager.getComponents()) << "the components are shared";
    manager.clearComponents();
    EXPECT_EQ(manager.getNumberOfPorts() + manager.getNumberOfComponents(), 0U);
    manager.insert(&p3, true);
    EXPECT_EQ(namesOf(manager), QStringList("P3"));
    EXPECT_EQ(copy.getNumberOfComponents(), 5U);
}

TEST(ComponentManager, insertions_that_fail_leave_the_list) {
    Component a = base("A", false), p1 = base("P1"), p2 = base("P2"), p1Again = base("P1"), lower = base("p1");
    Component umlaut = base("Ö", false);
    Manager manager({&a, &p1}, false, -1);
    EXPECT_EQ(thrownBy([&] { manager.insert(&p2, false); }), "invalid order of quarn circuit components");
    EXPECT_EQ(namesOf(manager), (QStringList{"A", "P1"}));
    manager.insert(&umlaut, false);
    EXPECT_EQ(namesOf(manager), (QStringList{"A", "P1", "Ö"})) << "no port: no matter what the order is";
    EXPECT_EQ(thrownBy([&] { manager.insert(&p1Again, true); }),
              "Unable to insert new circuit component: name <P1> is not unique");
    EXPECT_EQ(thrownBy([&] { manager.insert(&umlaut, true); }),
              "Unable to insert new circuit component: name <\xD6> is not unique");
    EXPECT_EQ(manager.getNumberOfComponents(), 3U);
    Manager ports({&p1}, false, -1);
    ports.insert(&p1Again, false);
    ports.insert(&lower, true);
    EXPECT_EQ(namesOf(ports), (QStringList{"P1", "P1", "p1"}));
}

TEST(ComponentManager, listed_components_that_change_their_role_are_noticed) {
    Component p1 = base("P1"), a = base("A", false), b = base("B", false), p2 = base("P2"), p3 = base("P3");
    Manager manager({&p1, &a, &b}, false, -1);
    a = base("A");
    manager.insert(&p2, true);
    EXPECT_EQ(namesOf(manager), (QStringList{"P1", "A", "P2", "B"}));
    p1 = base("P1", false);
    EXPECT_EQ(thrownBy([&] { manager.insert(&p3, true); }), "invalid order of quarn circuit components");
}

TEST(ComponentManager, null_pointers_are_left_out) {
    ComponentManager manager({nullptr}, true, 0);
    manager.insert(nullptr, true);
    EXPECT_TRUE(manager.getComponents().empty());
    EXPECT_EQ(manager.getActivePort(), -1);
    WaveGuidePortManager ports({nullptr});
    ports.insert(nullptr);
    EXPECT_TRUE(ports.getWaveguidePorts().empty());
}

TEST(ComponentManager, nonlinear_capacitors_are_noticed_on_demand) {
    NonlinearCapacitor capacitor(base("c", false), 1, 1, 2, 3, 4, 5, 6, 7, positive);
    EXPECT_EQ(capacitor.getC1() + 10 * capacitor.getVs() + 100 * capacitor.getA3(), 731);
    Manager manager({}, false, -1);
    manager.insert(&capacitor, false);
    EXPECT_TRUE(manager.hasAnyOfType(Component::NonLinearCapacitor) && !manager.hasNonlinearCapacitor());
    EXPECT_TRUE(Manager(manager).hasNonlinearCapacitor()) << "a copy looks anew";
    Manager assigned({}, true, 3);
    assigned = manager;
    EXPECT_FALSE(assigned.hasNonlinearCapacitor() || assigned.computeSParameters());
    manager.cacheVariables();
    manager.clearComponents();
    EXPECT_TRUE(manager.hasNonlinearCapacitor()) << "as it was";
}

TEST(ComponentManager, s_parameters_leave_one_feed_active) {
    Feed a = feedOf("a", 50, 0, 0), b = feedOf("b", 50, 0, 0), c = feedOf("c", 50, 0, 0, false);
    const Manager without({&a, &b, &c}, false, 1);
    EXPECT_TRUE(a.isActive() && b.isActive() && c.isActive());
    const Manager with({&a, &b, &c}, true, 1);
    EXPECT_EQ(with.getActivePort(), 1);
    EXPECT_TRUE(!a.isActive() && b.isActive() && !c.isActive());
    EXPECT_EQ(a.getWaveformIndex(), -1);
    EXPECT_EQ(b.getWaveformIndex(), 0);
}

TEST(ComponentManager, the_active_port_is_a_position_among_null_pointers_too) {
    struct Row {
        int given, listed;
        bool isActive;
    };
    for (const auto& [given, listed, isActive] :
         {Row{3, 1, true}, {1, 0, false}, {2, -1, false}, {4, 2, false}, {-2, -2, false}}) {
        Feed a = feedOf("a", 50, 0, 0), b = feedOf("b", 50, 0, 0);
        EXPECT_EQ(Manager({nullptr, &a, nullptr, &b}, true, given).getActivePort(), listed);
        EXPECT_EQ(b.isActive(), isActive) << given;
    }
}

// What is found with the port beside an active feed of 50 ohms, 2 H and 3 F, or of 50 ohms alone.
QStringList portFindings(Component& port, float l = 0, float c = 0) {
    Feed feed = feedOf("active", 50, l, c);
    return findingsOf(Manager({&feed, &port}, true, 0), Engine::FDTD);
}

TEST(ComponentManager, impedances_of_ports_are_compared_with_the_active_feed) {
    const auto load = [](float r, float l, float c, float feedL, float feedC, bool isPort = true) {
        PassiveLoad port = loadOf("p", r, l, c, isPort);
        return portFindings(port, feedL, feedC);
    };
    EXPECT_EQ(load(50, 0, 0, 0, 0), QStringList());
    EXPECT_EQ(load(75, 0, 0, 0, 0), QStringList(mismatch));
    EXPECT_EQ(load(50, 2, 0, 0, 0), (QStringList{reactance, mismatch}));
    EXPECT_EQ(load(50, 0, 3, 0, 0), (QStringList{reactance, mismatch}));
    EXPECT_EQ(load(50, 2, 3, 2, 3), QStringList(reactance));
    EXPECT_EQ(load(50, 0, 0, 2, 3), (QStringList{reactance, mismatch})) << "the active feed is reactive itself";
    EXPECT_EQ(load(75, 2, 3, 0, 0, false), QStringList()) << "no port";
    const auto feed = [](float r, float l, float c) {
        Feed port = feedOf("p", r, l, c);
        return portFindings(port, 2, 3);
    };
    EXPECT_EQ(feed(50, 8, 9), QStringList(reactance)) << "one value in common is enough for a feed";
    EXPECT_EQ(feed(75, 2, 9), QStringList(reactance));
    EXPECT_EQ(feed(75, 8, 3), QStringList(reactance));
    EXPECT_EQ(feed(75, 8, 9), (QStringList{reactance, mismatch}));
}

TEST(ComponentManager, kinds_that_are_doubtful_as_ports) {
    LumpedComponent lumped(base("l"), positive, {}, {});
    SBlock block(base("b"), "file", {});
    Diode diode(base("d"), 1, 1, 1, 1, 1, 1, 1, positive);
    NonlinearCapacitor capacitor(base("c"), 1, 1, 1, 1, 1, 1, 1, 1, positive);
    Switch toggle(base("s"), Switch::Open, positive);
    EXPECT_EQ(portFindings(lumped), (QStringList{reactance, mismatch}));
    EXPECT_EQ(portFindings(block), QStringList());
    EXPECT_EQ(portFindings(diode), QStringList(doubtful.arg("Diode")));
    EXPECT_EQ(portFindings(capacitor), QStringList(doubtful.arg("Nonlinear Capacitor")));
    EXPECT_EQ(portFindings(toggle), (QStringList{doubtful.arg("Switch"), noTransition}));

    Feed feed = feedOf("f", 50, 0, -1);
    Manager all({&feed, &diode, &diode, &capacitor, &toggle, &lumped}, true, 0);
    const QStringList own{negativeC, noTransition};
    EXPECT_EQ(
        findingsOf(all, Engine::FDTD),
        (QStringList{
            reactance, mismatch, doubtful.arg("Switch"), doubtful.arg("Nonlinear Capacitor"), doubtful.arg("Diode")}) +
            own)
        << "each once, in this order, and then the components' own";
    EXPECT_EQ(findingsOf(all, Engine::FEM), (QStringList{diodeEngine, diodeEngine, switchEngine, negativeC}));
}

TEST(ComponentManager, without_a_valid_active_feed_nothing_is_compared) {
    Feed feed = feedOf("f", 50, 0, 0), other = feedOf("g", 75, 8, 9), noPort = feedOf("h", 1, 2, 3, false);
    PassiveLoad load = loadOf("l", 75, 0, 0), plain = loadOf("m", 75, 0, 0, false);
    EXPECT_EQ(findingsOf(Manager({}, true, 0), Engine::FDTD), QStringList(noComponents));
    EXPECT_EQ(findingsOf(Manager({}, true, 0), Engine::FEM), QStringList());
    EXPECT_EQ(findingsOf(Manager({}, false, 0), Engine::FDTD), QStringList());
    EXPECT_EQ(findingsOf(Manager({&plain}, true, 0), Engine::FDTD), (QStringList{noPorts, noFeed}));
    EXPECT_EQ(findingsOf(Manager({&noPort}, true, 0), Engine::FDTD), QStringList(noPorts));
    for (const int port : {-1, 2}) {
        const QStringList found = findingsOf(Manager({&feed, &other}, true, port), Engine::FDTD);
        EXPECT_TRUE(found.contains(badPort.arg(1)) && !found.contains(mismatch)) << port;
    }
    EXPECT_EQ(findingsOf(Manager({&load, &noPort}, true, 1), Engine::FDTD), QStringList(badPort.arg(0)));
    EXPECT_EQ(findingsOf(Manager({&load, &other}, true, 0), Engine::FDTD), QStringList(noFeed));
    other.setInactive();
    EXPECT_EQ(findingsOf(Manager({&other, &load}, true, 0), Engine::FDTD), QStringList(inactive));
    Manager stale({&load}, false, -1);
    load = loadOf("n", -1, 0, 0, false);
    EXPECT_EQ(findingsOf(stale, Engine::FDTD), QStringList(negativeR)) << "the ports were counted before";
}

TEST(StaticVoltages, thresholds_are_checked_beyond_fdtd) {
    const QString text = "The voltage %1 threshhold %2 be greater than zero.";
    StaticVoltageList list(0, -1, 3, {});
    EXPECT_EQ(findingsOf(list, Engine::FDTD), QStringList());
    EXPECT_EQ(
        findingsOf(list, Engine::FEM),
        (QStringList{"warning: " + text.arg("conductor", "should"), "warning: " + text.arg("residual", "should")}));
    list.addPoint({1, 2, 3, 4.5F});
    EXPECT_EQ(findingsOf(list, Engine::FEM),
              (QStringList{"error: " + text.arg("conductor", "must"), "error: " + text.arg("residual", "must")}));
    EXPECT_EQ(findingsOf(StaticVoltageList(), Engine::FEM), QStringList());
    EXPECT_EQ(StaticVoltageList(), StaticVoltageList(0.01, 100, 5000, {}));
}

const QString noBoundaries = "error: Boundary conditions have not been specified.";
const QString noExcitation = "error: No excitation has been specified.";
const QString noWaveforms = "error: No waveform has been specified.";
const QString noTermination = "error: No termination criteria has been specified.";

TEST(ProjectValidity, components_and_static_voltages_are_excitations) {
    OwnedProject project;
    auto* voltages = new StaticVoltageList(0, 1, 1, {});
    project.setStaticVoltageList(voltages);
    EXPECT_EQ(findingsOf(project), (QStringList{noBoundaries, noExcitation, noTermination})) << "no voltage is given";
    voltages->addPoint({});
    EXPECT_EQ(findingsOf(project), (QStringList{noBoundaries, noTermination}));
    project.setEngine(Engine::FEM);
    EXPECT_EQ(findingsOf(project),
              (QStringList{noBoundaries, "error: The voltage conductor threshhold must be greater than zero."}));
    project.setEngine(Engine::FDTD);
    project.setComponentManager(new Manager({}, true, 0));
    EXPECT_EQ(findingsOf(project), (QStringList{noBoundaries, noComponents, noTermination})) << "no component, no wave";
    delete project.getComponentManager();
    project.setComponentManager(new Manager({new Feed(feedOf("f", -1, 0, 0))}, true, 0));
    EXPECT_EQ(findingsOf(project), (QStringList{noBoundaries, noWaveforms, noTermination, negativeR}));
    delete project.getComponentManager()->getComponent(0);
    delete project.getComponentManager();
    project.setComponentManager(new Manager({new Feed(feedOf("f", 50, 0, 0))}, false, 0));
    EXPECT_EQ(findingsOf(project), (QStringList{noBoundaries, noTermination})) << "no active port, no wave";
}

TEST(ProjectValidity, copies_share_components_and_ports) {
    OwnedProject source;
    source.setComponentManager(new Manager({new Feed(feedOf("f", 50, 0, 0))}, false, 0));
    source.setWaveGuidePortManager(new WaveGuidePortManager({new WaveGuidePort}));
    source.setStaticVoltageList(new StaticVoltageList(1, 2, 3, {{4, 5, 6, 7}}));
    v6ProjectFile copy(source);
    EXPECT_NE(copy.getComponentManager(), source.getComponentManager());
    EXPECT_EQ(copy.getComponentManager()->getComponents(), source.getComponentManager()->getComponents());
    EXPECT_NE(copy.getWaveGuidePortManager(), source.getWaveGuidePortManager());
    EXPECT_EQ(copy.getWaveGuidePortManager()->getWaveguidePorts(),
              source.getWaveGuidePortManager()->getWaveguidePorts());
    EXPECT_NE(copy.getStaticVoltageList(), source.getStaticVoltageList());
    EXPECT_EQ(*copy.getStaticVoltageList(), *source.getStaticVoltageList());
    copy.clearComponents();
    copy.clearWaveguidePorts();
    EXPECT_EQ(copy.getComponentManager()->getNumberOfPorts() + copy.getWaveGuidePortManager()->getNumberOfPorts(), 0U);
    EXPECT_EQ(source.getComponentManager()->getNumberOfComponents(), 1U);
    EXPECT_EQ(source.getWaveGuidePortManager()->getNumberOfPorts(), 1U);
    deleteContents(copy);
    v6ProjectFile empty;
    empty.clearComponents();
    empty.clearWaveguidePorts();
    deleteContents(empty);
}

}  // namespace
}  // namespace quarn::test
