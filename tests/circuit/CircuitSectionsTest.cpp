#include "TestSupport.h"
#include "quarn/quarn.h"

namespace quarn::test {
namespace {

using Component = CircuitComponent;
using Line = Component::ImpedanceLine;
using PinGroup = Component::PinGroup;

// A project file whose run parameters are boundaries and `run`, which is in short form.
QString fileOf(const QString& run) {
    return expanded("Version 8; FDTDProject{ RunParameters{ OuterBoundaries{ } " + run + "} }");
}

// The saved run parameters behind the boundaries.
QString savedSections(v6ProjectFile& project) {
    const QString text = saved(project), before = "end_<OuterBoundaries>\n";
    const int begin = text.indexOf(before) + before.size();
    return text.mid(begin, text.indexOf("end_<RunParameters>\n") - begin);
}

void expectLoads(const QString& file, const QString& savedShortForm) {
    test::expectLoads(file, expanded(savedShortForm), savedSections);
}

// clang-format off
const QString lumped =
    "FeedData{ ComponentName lumped; XLocation 1; YLocation 1; ZLocation 1; FileName None; TermType Zundefined; "
    "Calibration Undefined; } ";
const QString components =
    "ComponentsPorts{ PortType 1; "
    "FeedData{ ComponentName Feed 1 Ω; EndPoint{ X 0.10000000000000001; Y -2; Z 0; } "
    "EndPoint{ X 0.33333333333333331; Y 1.0000000000000001e-09; Z 5; } XLocation 1; YLocation 2; ZLocation 3; "
    "CellEdgeDirection 2; IsPort; FileName port_Feed 1_v.dat; Source 1; Polarity 1; Resistance 50; Inductance 0.25; "
    "Capacitance 9.999999960041972e-13; Amplitude 0.10000000149011612; Phase -0.5; Delay -4; Type 1; IsActive ; "
    "WaveformIndex 3; FieldExcitationFilename modes 1.fld; FieldExcitationMeshNum 0; FieldExcitationModeNum 2; "
    "TermType Input; Calibration AutomaticCalibration; } "
    "FeedData{ ComponentName current; XLocation 4; YLocation 5; ZLocation 6; CellEdgeDirection 1; IsPort; FileName None; "
    "Source 2; Polarity -1; Resistance 1; Inductance 2; Capacitance 3; Amplitude 4; Phase 5; Delay 6; Type 2; "
    "TermType Output; Calibration RemoveSelfRemoveMutual; } "
    + lumped +
    "FeedData{ ComponentName load; ImpedanceLine{ Pin0 -1; Pin1 -1; } "
    "ImpedanceLine{ Pin0 0; Pin1 1; LineType Cylindrical; Radius 0.001; } "
    "ImpedanceLine{ Pin0 2; Pin1 3; LineType Sheet; CornerPoint{ X 1; Y 2; Z 3; } CornerPoint{ X 4; Y 5; Z 6; } } "
    "ImpedanceLine{ Pin0 4; Pin1 5; LineType Coaxial; Center{ X 1; Y 2; Z 3; } Normal{ X 0; Y 0; Z 1; } "
    "Radius1{ 0.25; } Radius2{ 0.75; } InjectionLine{ X1 1; Y1 2; Z1 3; X2 4; Y2 5; Z2 6; } } "
    "ImpedanceLine{ Pin0 6; Pin1 7; LineType Bundle; InjectionLine{ X1 1; Y1 2; Z1 3; X2 4; Y2 5; Z2 6; } "
    "InjectionLine{ X1 0; Y1 0; Z1 0; X2 0; Y2 0; Z2 0.10000000000000001; } } "
    "ImpedanceLine{ Pin0 8; Pin1 9; LineType MultiPin; "
    "PinGroup{ Name group 1; SignalType ground; ModelType EquiVoltage; "
    "Pin{ Name pin 1; X 1; Y 2; Z 3; Weight 0.5; } Pin{ Name ; X 0; Y 0; Z 0; Weight 0; } } "
    "PinGroup{ Name ; SignalType UnknownPinGroupSignalType; ModelType UnknownPinGroupModelType; } } "
    "XLocation 1; YLocation 1; ZLocation 1; CellEdgeDirection 0; FileName ; Source 0; Resistance 75; Inductance 0.5; "
    "Capacitance 0.125; Polarity -1; Type 2; TermType InputOutput; Calibration RemoveSelfKeepMutual; } "
    "FeedData{ ComponentName closed; XLocation 1; YLocation 1; ZLocation 1; CellEdgeDirection 0; FileName None; Source 6; "
    "Polarity 1; ProgrammableSwitch{ initial_state 1; switch 10 5; switch -20 0; } TermType Switch; "
    "Calibration KeepSelfKeepMutual; } "
    "FeedData{ ComponentName open; XLocation 1; YLocation 1; ZLocation 1; CellEdgeDirection 0; FileName None; Source 6; "
    "Polarity -1; ProgrammableSwitch{ initial_state 0; } TermType Jumper; Calibration KeepSelfKeepMutual; } "
    "FeedData{ ComponentName c0; XLocation 1; YLocation 1; ZLocation 1; CellEdgeDirection 0; FileName None; Source 5; "
    "Resistance 7; NonlinearCapIndex 0; Polarity 1; TermType Unused; Calibration KeepSelfKeepMutual; } "
    "FeedData{ ComponentName c1; XLocation 1; YLocation 1; ZLocation 1; CellEdgeDirection 0; FileName None; Source 5; "
    "Resistance 8; NonlinearCapIndex 1; Polarity -1; TermType Tristate; Calibration KeepSelfKeepMutual; } "
    "FeedData{ ComponentName diode; XLocation 1; YLocation 1; ZLocation 1; CellEdgeDirection 0; FileName None; Source 7; "
    "Polarity -1; Diode{ Is 6; n 2; Vj 5; Cj 0.10000000149011612; td 7; m 4; FC 3; } TermType InputOutput; "
    "Calibration KeepSelfKeepMutual; } "
    "FeedData{ ComponentName block; XLocation 1; YLocation 1; ZLocation 1; CellEdgeDirection 0; FileName None; Source 9; "
    "SFileName my block.s2p; TermType InputOutput; Calibration KeepSelfKeepMutual; } "
    "NonlinearCapacitor{ er1 0.10000000000000001; er2 2; es 3; e0 4; a1 5; a2 6; a3 7; } "
    "NonlinearCapacitor{ er1 11; er2 12; es 13; e0 14; a1 15; a2 16; a3 17; } "
    "StaticVoltageInfo{ Residual 99.5; ConductorThreshold 0.02; MaximumIterations 4294967295; } "
    "StaticVoltagePoint{ XLocation 0; YLocation -1; ZLocation 3; Voltage 0.10000000149011612; } "
    "StaticVoltagePoint{ XLocation 4; YLocation 5; ZLocation 6; Voltage -1.5; } } ";
const QString ports =
    "WaveGuidePorts{ "
    "PortData{ IsModal; PortNumber 2; ModeNumber 3; Offset 0.10000000000000001; ImpedanceType Zvi; Resistance 75; "
    "Amplitude 2.5; Phase -1.5; FileName port_2 3_w.dat; ModeName TE 10 µ; TermType Tristate; "
    "SnappedHead{ X 1; Y 2; Z 3; } SnappedTail{ X 4; Y 5; Z 6; } "
    "PolygonPoint{ X 7; Y 8; Z 9; } PolygonPoint{ X 0; Y 0; Z 0.5; } } "
    "PortData{ IsVoltage; PortNumber 1; ModeNumber 1; Offset 0; ImpedanceType Zpv; Resistance 50; Amplitude 1; Phase 0; "
    "FileName ; ModeName noname; TermType InputOutput; SnappedHead{ X 0; Y 0; Z 0; } SnappedTail{ X 0; Y 0; Z 0; } } } ";
// clang-format on

Component baseOf(const QString& name, TermType termType = TermType::InputOutput) {
    Component base(name, 0, 0, 0, Component::X, false);
    base.setTermType(termType);
    return base;
}

Line lineOf(int type, int node) {
    Line line;
    line.nodes = {node, node + 1};
    line.type = type;
    return line;
}

std::vector<Line> lines() {
    std::vector<Line> all{Line()};
    for (int type = Line::Cylindrical; type <= Line::MultiPin; ++type) all.push_back(lineOf(type, 2 * type - 2));
    all[1].radius = 0.001;
    all[2].sheetCorners = {{1, 2, 3}, {4, 5, 6}};
    all[3].center = {1, 2, 3};
    all[3].normal = {0, 0, 1};
    all[3].radius1 = 0.25;
    all[3].radius2 = 0.75;
    all[3].injectionLines = {{{1, 2, 3}, {4, 5, 6}}};
    all[4].injectionLines = {{{1, 2, 3}, {4, 5, 6}}, {{}, {0, 0, 0.1}}};
    PinGroup group("group 1", PinGroup::EquiVoltage, PinGroup::Ground);
    group.add({"pin 1", {1, 2, 3}, 0.5});
    group.add({"", {}, 0});
    all[5].addPinGroup(group);
    all[5].addPinGroup(PinGroup());
    return all;
}

// Sets through the classes what `components` and `ports` state as text.
void describeComponents(v6ProjectFile& project) {
    constexpr auto positive = Component::Positive, negative = Component::Negative;
    Component base("Feed 1 Ω", {{0.1, -2, 0}, {1.0 / 3, 1e-9, 5}}, {}, 0, 1, 2, Component::Z, true);
    base.setOutputFilename("port_Feed 1_v.dat");
    base.setTermType(TermType::Input);
    base.setCalibration(Component::AutomaticCalibration);
    auto* voltage =
        new Feed(base, Component::SeriesVoltage, 3, 0.1F, -0.5F, 50, 1e-12F, 0.25F, -4, Component::Series, positive);
    voltage->setFieldExcitationFilename("modes 1.fld");
    voltage->setFieldExcitationMeshNum(0);
    voltage->setFieldExcitationModeNum(2);
    const Component currentBase("current", 3, 4, 5, Component::Y, true);
    const auto parallel = Component::Parallel;
    auto* current = new Feed(currentBase, Component::ParallelCurrent, 1, 4, 5, 1, 3, 2, 6, parallel, negative);
    current->setTermType(TermType::Output);
    current->setCalibration(Component::RemoveSelfRemoveMutual);
    auto* lumpedComponent =
        new LumpedComponent(Component("lumped", 0, 0, 0, Component::UndefinedDirection, false), negative, {1}, {2});
    lumpedComponent->setTermType(TermType(7));
    lumpedComponent->setCalibration(Component::Calibration(3));
    const Component loadBase("load", {}, lines(), 0, 0, 0, Component::X, false);
    auto* load = new PassiveLoad(loadBase, 75, 0.125F, 0.5F, parallel, negative);
    load->setCalibration(Component::RemoveSelfKeepMutual);
    auto* closed = new Switch(baseOf("closed", TermType::Switch), Switch::Closed, positive);
    closed->addTransition(10, 5);
    closed->addTransition(-20, 0);
    const auto c0 = baseOf("c0", TermType::Unused), c1 = baseOf("c1", TermType::Tristate);
    // clang-format off
    project.setComponentManager(new ComponentManager({
        voltage, current, lumpedComponent, load, closed,
        new Switch(baseOf("open", TermType::Jumper), Switch::Open, negative),
        new NonlinearCapacitor(c0, 7, 0.1, 2, 3, 4, 5, 6, 7, positive),
        new NonlinearCapacitor(c1, 8, 11, 12, 13, 14, 15, 16, 17, negative),
        new Diode(baseOf("diode"), 0.1F, 2, 3, 4, 5, 6, 7, negative), new SBlock(baseOf("block"), "my block.s2p", {})},
        true, 0));
    // clang-format on
    using Points = std::vector<StaticVoltageList::VoltagePoint>;
    project.setStaticVoltageList(
        new StaticVoltageList(0.02, 99.5, 4294967295, Points{{0, -1, 3, 0.1F}, {4, 5, 6, -1.5F}}));
}

void describePorts(v6ProjectFile& project) {
    auto* port = new WaveGuidePort;
    port->setWaveGuidePortType(WaveGuidePort::Modal);
    port->setWaveGuideNumber(2);
    port->setWaveGuideModeNumber(3);
    port->setWaveGuideOffset(0.1);
    port->setWaveGuideImpedanceType(ImpedanceType::Zvi);
    port->setWaveGuideRefResistance(75);
    port->setWaveGuideAmplitude(2.5);
    port->setWaveGuidePhase(-1.5);
    port->setOutputFilename("port_2 3_w.dat");
    port->setWaveGuideModeName("TE 10 µ");
    port->setTermType(TermType::Tristate);
    port->setSnappedHead({1, 2, 3});
    port->setSnappedTail({4, 5, 6});
    port->setPlanarPolygon({{7, 8, 9}, {0, 0, 0.5}});
    auto* other = new WaveGuidePort;
    other->setWaveGuideNumber(1);
    other->setWaveGuideModeNumber(1);
    other->setWaveGuideImpedanceType(ImpedanceType::Zpv);
    project.setWaveGuidePortManager(new WaveGuidePortManager({port, other}));
}

TEST(CircuitSections, EveryKindAndLineTypeIsWrittenAndReadBack) {
    using B = BoundaryConditions;
    OwnedProject project;
    project.setBoundaryConditions(new B(B::CPML, B::CPML, B::CPML, B::CPML, B::CPML, B::CPML, 8));
    describeComponents(project);
    describePorts(project);
    EXPECT_EQ(savedSections(project), expanded(components + ports));
    const QString text = saved(project), withoutLumped = QString(components).remove(lumped) + ports;
    expectLoads(text, withoutLumped);
    expectLoads(QString(text).replace("\n", "\r\n"), withoutLumped);
}

TEST(CircuitSections, StaticVoltagesNeedNoManager) {
    const QString section =
        "ComponentsPorts{ PortType 0; StaticVoltageInfo{ Residual 2; ConductorThreshold 1; MaximumIterations 3; } "
        "StaticVoltagePoint{ XLocation 4; YLocation 5; ZLocation 6; Voltage 7; } } ";
    OwnedProject project;
    load(project, fileOf(""));
    StaticVoltageList noVoltages;
    project.setStaticVoltageList(&noVoltages);
    EXPECT_EQ(savedSections(project), "");
    project.setStaticVoltageList(new StaticVoltageList(1, 2, 3, {{4, 5, 6, 7}}));
    EXPECT_EQ(savedSections(project), expanded(section));
    project.setComponentManager(new ComponentManager({}, false, 0));
    project.setWaveGuidePortManager(new WaveGuidePortManager);
    EXPECT_EQ(savedSections(project), expanded(section + "WaveGuidePorts{ } "));
}

// Text that ends anywhere, even within a word, is loaded as far as possible.
TEST(CircuitSections, LoadsTextTruncatedAnywhere) {
    const QString text = fileOf(components + ports);
    for (int size = 0; size < text.size(); size += 3) {
        OwnedProject project;
        load(project, text.left(size));
        const auto* manager = project.getComponentManager();
        EXPECT_LE(manager ? manager->getNumberOfComponents() : 0, 9U);
    }
}

TEST(CircuitSections, LaterBlocksReplaceOnlyThoseOfTheSameLoad) {
    Component own("own", 0, 0, 0, Component::X, true);
    ComponentManager ownManager({&own}, false, -1);
    WaveGuidePortManager ownPorts;
    StaticVoltageList ownVoltages;
    OwnedProject project;
    project.setComponentManager(&ownManager);
    project.setWaveGuidePortManager(&ownPorts);
    project.setStaticVoltageList(&ownVoltages);
    load(project, fileOf(components + ports + components + ports + "ComponentsPorts{ FeedData{ Source 9; } } "));
    EXPECT_NE(project.getStaticVoltageList(), &ownVoltages);
    EXPECT_EQ(project.getComponentManager()->getNumberOfComponents(), 1U);
    EXPECT_EQ(project.getWaveGuidePortManager()->getNumberOfPorts(), 2U);
    EXPECT_EQ(ownManager.getComponent(0)->getComponentName(), "own") << "the caller's manager was not deleted";
}

TEST(CircuitSections, ClearedComponentsAndPortsStayAlive) {
    OwnedProject project;
    load(project, fileOf(components + ports));
    const auto listed = project.getComponentManager()->getComponents();
    const auto listedPorts = project.getWaveGuidePortManager()->getWaveguidePorts();
    project.clearComponents();
    project.clearWaveguidePorts();
    EXPECT_EQ(savedSections(project).count("FeedData"), 0);
    EXPECT_EQ(savedSections(project).count("PortData"), 0);
    EXPECT_EQ(listed.at(0)->getComponentName() + listedPorts.at(1)->getWaveGuideModeName(), "Feed 1 Ωnoname");
    for (const auto* component : listed) delete component;
    for (const auto* port : listedPorts) delete port;
}

TEST(CircuitSections, PortLinesAreReadForSBlocks) {
    OwnedProject project;
    load(project,
         fileOf("ComponentsPorts{ FeedData{ PortLineMap{ Port 1; Line 2; } PortLineMap{ Line 4; Port 3; } "
                "PortLineMap{ Port 5; } PortLineMap{ Line 6; } Source 9; } } "));
    const auto* block = dynamic_cast<const SBlock*>(project.getComponentManager()->getComponent(0));
    ASSERT_TRUE(block);
    EXPECT_EQ(block->getPortMap(), (std::map<int, int>{{1, 2}, {3, 4}}));
}

TEST(CircuitSections, TheLastActiveRecordIsTheActivePort) {
    struct Row {
        std::string name;
        QString block;
        int activePort;
        std::vector<bool> active;
    };
    const QString feed = "FeedData{ Source 1; } ", active = "FeedData{ Source 2; IsActive; } ";
    const Row rows[] = {
        {"WithoutSParameters", "PortType 0; " + active + feed + active, -1, {true, false, true}},
        {"WithoutAPortType", active, -1, {true}},
        {"LastOfTwo", active + active + feed + "PortType 1; ", 1, {false, true, false}},
        {"AnyPortTypeBut0", "PortType 2; " + feed + active, 1, {false, true}},
        {"AnyKindCounts", "PortType 1; " + active + "FeedData{ Source 0; IsActive ; } ", 1, {false, false}},
        {"RecordsWithoutAComponentDoNotCount",
         "PortType 1; FeedData{ IsPort; } " + feed + "FeedData{ Source 8; } " + active + "FeedData{ IsActive; } ",
         1,
         {false, true}},
        {"NoActiveRecord", "PortType 1; " + feed, -1, {false}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        OwnedProject project;
        load(project, fileOf("ComponentsPorts{ " + row.block + "} "));
        const auto& manager = *project.getComponentManager();
        EXPECT_EQ(manager.getActivePort(), row.activePort);
        EXPECT_EQ(manager.computeSParameters(), row.block.contains("PortType") && !row.block.contains("PortType 0"));
        std::vector<bool> found;
        for (const auto* component : manager.getComponents()) found.push_back(component->isActive());
        EXPECT_EQ(found, row.active);
    }
}

// The saved form of a record that gives only its kind.
QString record(const QString& kind, const QString& cell = "XLocation 1; YLocation 1; ZLocation 1; ",
               const QString& roles = "TermType InputOutput; Calibration KeepSelfKeepMutual; ") {
    return "FeedData{ ComponentName noname; " + cell + "FileName ; " + kind + roles + "} ";
}

QString loadOf(const QString& polarity = "-1", const QString& type = "2") {
    return "Source 0; Resistance 0; Inductance 0; Capacitance 0; Polarity " + polarity + "; Type " + type + "; ";
}

QString blockWith(const QString& lines, const QString& kind = loadOf()) {
    return record(kind).replace("noname; ", "noname; " + lines);
}

struct Row {
    const char* name;
    QString content, savedContent;
};

template <std::size_t count>
void expectSaves(const Row (&rows)[count], const QString& block, const QString& start = QString()) {
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        expectLoads(fileOf(block + "{ " + row.content + "} "), block + "{ " + start + row.savedContent + "} ");
    }
}

// clang-format off
const QString kinds = "Resistance 1; Inductance 2; Capacitance 3; Amplitude 4; Phase 5; Delay 6; ";
const QString defaults = "StaticVoltageInfo{ Residual 100; ConductorThreshold 0.01; MaximumIterations 5000; } ";
const QString noCoefficients = "NonlinearCapacitor{ er1 0; er2 0; es 0; e0 0; a1 0; a2 0; a3 0; } ";
const QString coefficients = "NonlinearCapacitor{ er1 1; er2 2; es 3; e0 4; a1 5; a2 6; a3 7; } ";

QString capacitor(int index) {
    return record(QString("Source 5; Resistance 0; NonlinearCapIndex %1; Polarity -1; ").arg(index));
}

QString activeFeedWith(const QString& index) {
    return record("Source 1; Polarity -1; Resistance 0; Inductance 0; Capacitance 0; Amplitude 0; Phase 0; Delay 0; Type 2; "
                  "IsActive ; WaveformIndex " + index + "; ");
}

QString switchOf(const QString& content) { return record("Source 6; Polarity -1; ProgrammableSwitch{ " + content + "} "); }

const Row componentRows[] = {
    {"SourceAloneMakesAComponent", "FeedData{ Source 0; }", record(loadOf())},
    {"OtherSourcesMakeNoComponent", "FeedData{ } FeedData{ Source 8; } FeedData{ Source 10; } FeedData{ Source -1; }", ""},
    {"CellsCountFrom1InTheFile", "FeedData{ Source 0; XLocation 0; YLocation 7; ZLocation 1; CellEdgeDirection 1; }",
     record(loadOf(), "XLocation 0; YLocation 7; ZLocation 1; CellEdgeDirection 1; ")},
    {"UnknownDirectionsAreNotSaved", "FeedData{ Source 0; CellEdgeDirection 1; CellEdgeDirection 3; } FeedData{ Source 0; CellEdgeDirection -1; }",
     record(loadOf()).repeated(2)},
    {"NamesAreTheTrimmedRestOfTheirLine", "FeedData{ ComponentName  a  b ; FileName \tc d ; Source 9; SFileName e f; }",
     record("Source 9; SFileName e f; ").replace("noname", "a  b").replace("FileName ; ", "FileName c d; ")},
    {"FeedWithoutTheFlagIsInactive", "FeedData{ Source 1; WaveformIndex 4; " + kinds + "}",
     record("Source 1; Polarity -1; " + kinds + "Type 2; ")},
    {"ActivityFlagWithAndWithoutABlank", "FeedData{ Source 1; IsActive ; WaveformIndex 4; } FeedData{ Source 1; IsActive; WaveformIndex 4; }",
     activeFeedWith("4").repeated(2)},
    {"ActiveFeedWithoutAWaveformIndex", "FeedData{ Source 1; IsActive; }", activeFeedWith("-1")},
    {"NegativeExcitationNumbersAreNotSaved", "FeedData{ Source 2; " + kinds + "FieldExcitationFilename ; FieldExcitationMeshNum -1; FieldExcitationModeNum 0; }",
     record("Source 2; Polarity -1; " + kinds + "Type 2; FieldExcitationModeNum 0; ")},
    {"OldOpenSwitch", "FeedData{ Source 3; SwitchTimeStep 10; SwitchDuration 5; }",
     switchOf("initial_state 0; switch 10 5; ")},
    {"OldClosedSwitch", "FeedData{ Source 4; SwitchDuration 5; ProgrammableSwitch{ switch 1 2; } }",
     switchOf("initial_state 1; switch 0 5; ")},
    {"OnlyState1IsClosed", "FeedData{ Source 6; ProgrammableSwitch{ initial_state 2; foo switch; switch 7 8; } }",
     switchOf("initial_state 0; switch 7 8; ")},
    {"MissingCoefficientsAreZero", "FeedData{ Source 5; NonlinearCapIndex 1; } FeedData{ Source 5; NonlinearCapIndex -1; } " + coefficients,
     capacitor(0) + capacitor(1) + noCoefficients.repeated(2)},
    {"CoefficientsMayPrecedeTheComponentsAndAreFoundByIndex", noCoefficients + "FeedData{ Source 5; NonlinearCapIndex 1; } FeedData{ Source 5; } " + coefficients,
     capacitor(0) + capacitor(1) + coefficients + noCoefficients},
    {"UnknownRoleWordsGiveDefaults", "FeedData{ Source 0; TermType Zundefined; Calibration Undefined; } FeedData{ Source 0; TermType input; Calibration 99; }",
     record(loadOf()).repeated(2)},
    {"PolarityIsPositiveOnlyFor1", "FeedData{ Source 0; Polarity 1; } FeedData{ Source 0; Polarity 0; } FeedData{ Source 0; Polarity 2; }",
     record(loadOf("1")) + record(loadOf()).repeated(2)},
    {"ArrangementIsSeriesOnlyFor1", "FeedData{ Source 0; Type 1; } FeedData{ Source 0; Type 0; } FeedData{ Source 0; Type 3; }",
     record(loadOf("-1", "1")) + record(loadOf()).repeated(2)},
    {"PointsStartAtTheOrigin", "FeedData{ Source 0; EndPoint{ Y 2; foo X 3; } EndPoint{ } }",
     blockWith("EndPoint{ X 0; Y 2; Z 0; } EndPoint{ X 0; Y 0; Z 0; } ")},
    {"UnknownLineTypeHasNoExtent", "FeedData{ Source 0; ImpedanceLine{ Pin1 4; LineType Foo; Radius 3; MajorAxis{ X 1; } } }",
     blockWith("ImpedanceLine{ Pin0 -1; Pin1 4; } ")},
    {"LinePartsHaveDefaults", "FeedData{ Source 0; ImpedanceLine{ LineType MultiPin; PinGroup{ SignalType Ground; ModelType equal; Pin{ } foo{ Pin{ } } } } "
     "ImpedanceLine{ LineType Cylindrical; } ImpedanceLine{ LineType Bundle; InjectionLine{ Z2 1; } } "
     "ImpedanceLine{ LineType Coaxial; Center{ X 1; } Center{ Y 2; } Normal{ Z 1; } Normal{ } } }",
     blockWith("ImpedanceLine{ Pin0 -1; Pin1 -1; LineType MultiPin; PinGroup{ Name ; SignalType UnknownPinGroupSignalType; "
               "ModelType UnknownPinGroupModelType; Pin{ Name <unnamed pin>; X 0; Y 0; Z 0; Weight 0; } } } "
               "ImpedanceLine{ Pin0 -1; Pin1 -1; LineType Cylindrical; Radius -1; } "
               "ImpedanceLine{ Pin0 -1; Pin1 -1; LineType Bundle; InjectionLine{ X1 0; Y1 0; Z1 0; X2 0; Y2 0; Z2 1; } } "
               "ImpedanceLine{ Pin0 -1; Pin1 -1; LineType Coaxial; Center{ X 0; Y 2; Z 0; } Normal{ X 0; Y 0; Z 0; } "
               "Radius1{ 0; } Radius2{ 0; } } ")},
    {"UnknownKeysAndBlocksAreSkipped", "NumberOfFeeds 3; NumberOfPorts 2; foo PortType 1; bar{ FeedData{ Source 0; } } "
     "FeedData{ foo Source 1; bar{ Source 1; } PortLineMap{ Port 1; Line 2; } Source 0; }", record(loadOf())},
    {"StaticVoltagesHaveDefaults", "StaticVoltagePoint{ } StaticVoltagePoint{ foo XLocation 9; YLocation 2; }",
     defaults + "StaticVoltagePoint{ XLocation 0; YLocation 0; ZLocation 0; Voltage 0; } "
     "StaticVoltagePoint{ XLocation 0; YLocation 2; ZLocation 0; Voltage 0; } "},
    {"StaticSettingsWithoutPointsAreNotSaved", "StaticVoltageInfo{ Residual 1; }", ""},
    {"MissingStaticSettingsKeepTheirDefaults", "StaticVoltagePoint{ Voltage 1; } StaticVoltageInfo{ MaximumIterations 7; }",
     QString(defaults).replace("5000", "7") + "StaticVoltagePoint{ XLocation 0; YLocation 0; ZLocation 0; Voltage 1; } "},
};

const QString defaultPort =
    "PortData{ IsVoltage; PortNumber -1; ModeNumber -1; Offset 0; ImpedanceType Zpi; Resistance 50; Amplitude 1; Phase 0; "
    "FileName ; ModeName noname; TermType InputOutput; SnappedHead{ X 0; Y 0; Z 0; } SnappedTail{ X 0; Y 0; Z 0; } } ";

QString portWith(const char* before, const char* after) { return QString(defaultPort).replace(before, after); }

const Row waveGuideRows[] = {
    {"NothingGiven", "PortData{ }", defaultPort},
    {"UnknownImpedanceKeepsWhatWasRead", "PortData{ ImpedanceType zpv; } PortData{ ImpedanceType  Zpv ; ImpedanceType Zpi Zvi; }",
     defaultPort + portWith("Zpi", "Zpv")},
    {"UnknownTerminalIsInputOutput", "PortData{ TermType Switch; TermType Zundefined; } PortData{ TermType Switch; }",
     defaultPort + portWith("InputOutput", "Switch")},
    {"LastFlagIsTheType", "PortData{ IsModal; IsCurrent; }", portWith("IsVoltage", "IsCurrent")},
    {"NamesAreTheTrimmedRestOfTheirLine", "PortData{ FileName  a b ; ModeName \tTE  10 ; }",
     portWith("noname", "TE  10").replace("FileName ;", "FileName a b;")},
    {"PointsStartAtTheOrigin", "PortData{ SnappedTail{ X 9; } SnappedTail{ Y 2; foo X 3; } SnappedHead{ Z 1; } }",
     portWith("SnappedHead{ X 0; Y 0; Z 0; } SnappedTail{ X 0; Y 0;", "SnappedHead{ X 0; Y 0; Z 1; } SnappedTail{ X 0; Y 2;")},
    {"UnknownKeysAndBlocksAreSkipped", "foo IsModal; bar{ PortData{ } } PortData{ foo IsModal; bar{ IsModal; SnappedHead{ X 1; } } PortNumber 5; }",
     portWith("PortNumber -1", "PortNumber 5")},
    {"SameNumbersInFileOrder", "PortData{ PortNumber 2; } PortData{ PortNumber 1; Phase 1; } PortData{ PortNumber 1; Phase 2; }",
     portWith("PortNumber -1", "PortNumber 2") + portWith("PortNumber -1", "PortNumber 1").replace("Phase 0", "Phase 1") +
     portWith("PortNumber -1", "PortNumber 1").replace("Phase 0", "Phase 2")},
};
// clang-format on

TEST(CircuitSections, ComponentRecordsAreSavedInCanonicalForm) {
    expectSaves(componentRows, "ComponentsPorts", "PortType 0; ");
}

TEST(CircuitSections, WaveGuideRecordsAreSavedInCanonicalForm) { expectSaves(waveGuideRows, "WaveGuidePorts"); }

TEST(CircuitSections, WaveGuideValuesWithoutATextAreOmittedOrDefaulted) {
    OwnedProject project;
    load(project, fileOf("WaveGuidePorts{ PortData{ } } "));
    auto* port = project.getWaveGuidePortManager()->getWaveGuidePort(0);
    port->setWaveGuidePortType(WaveGuidePort::WaveGuidePortType(7));
    port->setWaveGuideImpedanceType(ImpedanceType(5));
    port->setTermType(TermType(-1));
    const QString text = saved(project);
    EXPECT_EQ(savedSections(project),
              expanded("WaveGuidePorts{ " +
                       portWith("IsVoltage", "IsCurrent")
                           .replace("ImpedanceType Zpi; ", "")
                           .replace("TermType InputOutput", "TermType Zundefined") +
                       "} "));
    expectLoads(text, "WaveGuidePorts{ " + portWith("IsVoltage", "IsCurrent") + "} ");
}

}  // namespace
}  // namespace quarn::test
