#include <gmock/gmock.h>

#include <limits>

#include "TestSupport.h"
#include "quarn/ComponentKinds.h"

namespace quarn::test {
namespace {

using Component = CircuitComponent;
using Line = Component::ImpedanceLine;
using PinGroup = Component::PinGroup;
using Pin = Component::Pin;
using Point = tavrix::Cartesian3D;

struct OpenComponent : Component {
    OpenComponent() : Component("c", {{1, 2, 3}}, {Line()}, 4, 5, 6, Y, true) {}
    using Component::m_circuitComponentType, Component::m_componentDirection, Component::m_componentName;
    using Component::m_endPoints, Component::m_impLines, Component::m_isActive, Component::m_isPort;
    using Component::m_pinGroups, Component::m_xIndex, Component::m_yIndex, Component::m_zIndex;
};

template <class T>
std::string reportOf(const T& a, const T& b, bool equal) {
    testing::internal::CaptureStdout();
    const bool found = a == b;
    const std::string report = testing::internal::GetCapturedStdout();
    EXPECT_EQ(found, equal);
    return report;
}

template <class T>
struct Difference {
    void (*make)(T&);
    std::string report;
};

// Each difference alone gives its report. Of several differences, the first in the table is reported.
template <class T, std::size_t count>
void expectReports(const T& original, const Difference<T> (&differences)[count]) {
    T all = original;
    EXPECT_EQ(reportOf(original, all, true), "");
    for (std::size_t i = count; i-- > 0;) {
        T one = original;
        differences[i].make(one);
        differences[i].make(all);
        EXPECT_EQ(reportOf(original, one, false), differences[i].report) << i;
        EXPECT_EQ(reportOf(original, all, false), differences[i].report) << i;
    }
}

std::string different(const char* member) { return std::string("different quarn::CircuitComponent::") + member + "\n"; }

// clang-format off
const Difference<OpenComponent> componentDifferences[] = {
    {[](auto& c) { c.m_componentName = "d"; }, "different m_componentName\n"},
    {[](auto& c) { c.m_xIndex = 9; }, "different m_xIndex\n"},
    {[](auto& c) { c.m_yIndex = 9; }, "different m_yIndex\n"},
    {[](auto& c) { c.m_zIndex = 9; }, "different m_zIndex\n"},
    {[](auto& c) { c.m_endPoints = {{1.5, 2, 3}, {1.0 / 3, 1e-7, -4}}; },
     "different m_endPoints\n\t0 : 1, 2, 3\n\t0 : 1.5, 2, 3\n\t1 : 0.333333, 1e-07, -4\n"},
    {[](auto& c) { c.m_impLines.resize(2); }, "different m_impLines\n"},
    {[](auto& c) { c.m_impLines[0].type = 1; }, different("ImpedanceLine::type") + "different m_impLines\n"},
    {[](auto& c) { c.m_componentDirection = Component::Z; }, "different m_componentDirection\n\t1\n\t2\n"},
    {[](auto& c) { c.setCalibration(Component::Calibration(3)); },
     "different m_calibration\n\tKeepSelfKeepMutual\n\tUndefined\n"},
    {[](auto& c) { c.m_isActive = true; }, "different m_isActive\n\t0\n\t1\n"},
    {[](auto& c) { c.m_circuitComponentType = Component::SBlock; },
     "different m_circuitComponentType\n\tPassiveLoad\n\tSBlock\n"},
    {[](auto& c) { c.m_isPort = false; }, "different m_isPort\n\t1\n\t0\n"},
    {[](auto& c) { c.setTermType(TermType(7)); }, "different m_termType\n\tInputOutput\n\tZundefined\n"},
    {[](auto& c) { c.m_pinGroups.resize(1); }, "different m_pinGroups\n"},
};
const Difference<Line> lineDifferences[] = {
    {[](auto& line) { line.nodes[0] = 9; }, different("ImpedanceLine::nodes")},
    {[](auto& line) { line.nodes[1] = 9; }, different("ImpedanceLine::nodes")},
    {[](auto& line) { line.type = 4; }, different("ImpedanceLine::type")},
    {[](auto& line) { line.radius = 0; }, different("ImpedanceLine::radius")},
    {[](auto& line) { line.sheetCorners.resize(3); }, different("ImpedanceLine::sheetCorners")},
    {[](auto& line) { line.sheetCorners[1].z = 0; }, different("ImpedanceLine::sheetCorners")},
    {[](auto& line) { line.injectionLines.resize(3); }, different("ImpedanceLine::injectionLines")},
    {[](auto& line) { line.injectionLines[1].second.z = 0; }, different("ImpedanceLine::injectionLines")},
    {[](auto& line) { line.pinGroups.resize(3); }, different("ImpedanceLine::pinGroups")},
    {[](auto& line) { line.pinGroups[1].name = "h"; }, different("PinGroup::name") + different("ImpedanceLine::pinGroups")},
};
const Difference<PinGroup> pinGroupDifferences[] = {
    {[](auto& group) { group.name = "h"; }, different("PinGroup::name")},
    {[](auto& group) { group.model = PinGroup::EquiVoltage; }, different("PinGroup::model")},
    {[](auto& group) { group.signal = PinGroup::Signal; }, different("PinGroup::signal")},
    {[](auto& group) { group.pins.resize(3); }, different("PinGroup::pins")},
    {[](auto& group) { group.pins[1].weight = 9; }, different("Pin::weight") + different("PinGroup::pins")},
};
const Difference<Pin> pinDifferences[] = {
    {[](auto& pin) { pin.name = "Ω"; }, different("Pin::name, diff:") + "\tp\n\tΩ\n"},
    {[](auto& pin) { pin[0] = 9; }, different("Pin::point")},
    {[](auto& pin) { pin[2] = 9; }, different("Pin::point")},
    {[](auto& pin) { pin.weight = 9; }, different("Pin::weight")},
};
// clang-format on

PinGroup groupOfTwo() {
    PinGroup group("g", PinGroup::EquiCurrent, PinGroup::Ground);
    group.add({"p", {1, 2, 3}, 0.5});
    group.add({"q", {0.1, -2, 1234567}, 0});
    return group;
}

Line lineOf(int type) {
    Line line;
    line.nodes = {1, 0};
    line.type = type;
    line.radius = 0.25;
    line.center = {1, 2, 3};
    line.normal = {0, 0, 1};
    line.radius1 = 0.5;
    line.radius2 = 0.75;
    line.sheetCorners = {{4, 5, 6}, {7, 8, 9}};
    line.injectionLines = {{{1, 0, 0}, {2, 0, 0}}, {{3, 0, 0}, {4, 0, 0.1}}};
    line.pinGroups = {groupOfTwo(), PinGroup()};
    return line;
}

TEST(ComponentEquality, ReportsTheFirstDifference) {
    expectReports(OpenComponent(), componentDifferences);
    expectReports(lineOf(Line::Sheet), lineDifferences);
    expectReports(groupOfTwo(), pinGroupDifferences);
    expectReports(Pin("p", {1, 2, 3}, 4), pinDifferences);
    EXPECT_TRUE(groupOfTwo().equal(groupOfTwo()));
    EXPECT_FALSE(groupOfTwo().equal(PinGroup()));
}

TEST(ComponentEquality, IgnoresFileNamesValuesAndCoaxialGeometry) {
    OpenComponent a, b;
    b.setOutputFilename("other");
    EXPECT_EQ(reportOf(a, b, true), "");
    const auto feed = [&a](float resistance) {
        return Feed(a, Component::SeriesVoltage, 0, 1, 0, resistance, 0, 0, 0, Component::Series, Component::Positive);
    };
    EXPECT_EQ(reportOf(feed(50), feed(75), true), "");
    Line line = lineOf(Line::Coaxial), other = line;
    other.center = other.normal = {9, 9, 9};
    other.radius1 = other.radius2 = 9;
    EXPECT_EQ(reportOf(line, other, true), "");
    line.radius = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(reportOf(line, line, false), different("ImpedanceLine::radius"));
}

TEST(ComponentText, DescribesPinsAndGroups) {
    EXPECT_EQ(Pin().qstr(), "Pin (name=<unnamed pin>, (0 , 0 , 0))");
    EXPECT_EQ(Pin("p", {1, 2, 3}, -1).qstr(), "Pin (name=p, (1 , 2 , 3))") << "only a positive weight is shown";
    EXPECT_EQ(PinGroup().qstr(),
              "PinGroup, model=UnknownPinGroupModelType, signal=UnknownPinGroupSignalType, pins(#=0): ");
    EXPECT_EQ(groupOfTwo().qstr(),
              "PinGroup \"g\", model=EquiCurrent, signal=ground, pins(#=2): "
              "Pin (name=p, (1 , 2 , 3), weight=0.5) Pin (name=q, (0.1 , -2 , 1.23457e+06)) ");
}

TEST(ComponentText, DescribesImpedanceLines) {
    EXPECT_EQ(lineOf(Line::NoExtent).qstr(), "no extent");
    EXPECT_EQ(lineOf(Line::Cylindrical).qstr(), "type=cylindrical, radius=0.25");
    EXPECT_EQ(lineOf(Line::Sheet).qstr(), "type=sheet, corners:\n\t\t(4, 5, 6)\n\t\t(7, 8, 9)");
    const QString segments = "injection lines:\n\t\t1 : (1, 0, 0) -> (2, 0, 0)\n\t\t2 : (3, 0, 0) -> (4, 0, 0.1)";
    EXPECT_EQ(lineOf(Line::Coaxial).qstr(),
              "type=coaxial, center=(1, 2, 3), normal=(0, 0, 1), radius1=0.5, radius2=0.75, " + segments);
    EXPECT_EQ(lineOf(Line::Bundle).qstr(), "type=bundle, " + segments);
    EXPECT_EQ(lineOf(Line::MultiPin).qstr(),
              "type=multipin\n\t\tground : p(1,2,3), q(0.1,-2,1.23457e+06), \n\t\tUnknownPinGroupSignalType : ");
}

TEST(ComponentText, DescribesComponents) {
    const OpenComponent base;
    const auto voltage = Component::SeriesVoltage;
    Feed feed("Öffnung", {}, {Line(), lineOf(1)}, voltage, 1.5F, 0.1F, 50, 3e-12F, 2e-9F, Component::Parallel);
    feed.setCalibration(Component::AutomaticCalibration);
    feed.setTermType(TermType(-1));
    EXPECT_EQ(feed.qstr(),
              "name            : Öffnung\ntype            : SeriesVoltage\n"
              "impedance lines : \n\t0 : no extent\n\t1 : type=cylindrical, radius=0.25\n"
              "source        : amplitude=1.5, phase=0.1 rad\nimpedance     : Parallel, R=50, L=2e-09, C=3e-12\n"
              "calibration=AutomaticCalibration, termType=Zundefined\n");
    EXPECT_EQ(feed.qstr_short(), "Öffnung, #=2 : V=1.5, phase=0.1, R=50, L=2e-09, C=3e-12, arr=Parallel");
    const Feed current("c", {}, {}, Component::ParallelCurrent, 7, 0, 1, 3, 2, Component::ElementArrangement(2));
    EXPECT_EQ(current.qstr_short(), "c, #=0 : I=7, phase=0, R=1, L=2, C=3, arr=");
    EXPECT_EQ(PassiveLoad(base, 1, 3, 2, Component::Series, Component::Positive).qstr(),
              "name            : c\ntype            : PassiveLoad\nimpedance lines : \n\t0 : no extent\n"
              "source        : amplitude=0, phase=0 rad\nimpedance     : Series, R=1, L=2, C=3\n"
              "calibration=KeepSelfKeepMutual, termType=InputOutput\n");
    EXPECT_EQ(SBlock("s", {}, {}, "my block.s2p").qstr(),
              "name            : s\ntype            : SBlock\nimpedance lines : \nSblock file   : my block.s2p\n"
              "calibration=KeepSelfKeepMutual, termType=InputOutput\n");
    EXPECT_TRUE(SBlock("s", {}, {}, "my block.s2p").qstr_short().contains("my block.s2p"));
}

TEST(ComponentText, ThrowsForTypesWithoutATextForm) {
    const QStringList names{"Switch", "NonLinearCapacitor", "Diode", "LumpedComponent"};
    for (int type = 3; type <= 6; ++type) {
        OpenComponent component;
        component.m_circuitComponentType = Component::CircuitComponentType(type);
        EXPECT_EQ(thrownBy([&] { component.qstr(); }),
                  "quarn::CircuitComponent::str() not implemented for type=" + names[type - 3].toStdString());
    }
}

TEST(ComponentText, ReadsPinGroupWordsExactly) {
    QString text("EquiCurrent EquiVoltage SpecifiedCurrent equicurrent ground signal Ground");
    QTextStream in(&text);
    PinGroup::ModelType modelTypes[4];
    PinGroup::SignalType signalTypes[3];
    for (auto& model : modelTypes) in >> model;
    for (auto& signal : signalTypes) in >> signal;
    EXPECT_THAT(modelTypes, testing::ElementsAre(0, 1, 2, 3));
    EXPECT_THAT(signalTypes, testing::ElementsAre(0, 1, 2));
}

// clang-format off
TEST(ComponentGeometry, ComputesSheetAreas) {
    const std::tuple<const char*, std::vector<Point>, double> rows[] = {
        {"SquareWithTheLastCornerOpposite", {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {1, 1, 0}}, 1},
        {"CornersInCyclicOrderGiveAnAreaOfZero", {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}}, 0},
        {"NeverNegative", {{0, 0, 0}, {1, 0, 0}, {3, 0, 0}, {0, 1, 0}}, 1},
        {"TiltedRectangle", {{1, 1, 1}, {4, 1, 5}, {1, 3, 1}, {4, 3, 5}}, 10},
        {"CornerOffThePlaneIsProjected", {{0, 0, 0}, {1, 0, 0}, {0, 1, 5}, {1, 1, 0}}, 1},
        {"LastCornerInLineWithTheFirstTwo", {{0, 0, 0}, {1, 0, 0}, {0, 2, 0}, {-1, 0, 0}}, 2},
        {"AllInLine", {{0, 0, 0}, {1, 1, 1}, {2, 2, 2}, {3, 3, 3}}, 0},
        {"FirstTwoEqual", {{1, 0, 0}, {1, 0, 0}, {0, 1, 0}, {1, 1, 0}}, 0},
        {"FifthCornerDoesNotCount", {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {1, 1, 0}, {9, 9, 9}}, 1},
        {"ThreeCorners", {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}}, 0},
    };
    for (const auto& [name, corners, area] : rows) {
        Line line;
        line.sheetCorners = corners;
        EXPECT_DOUBLE_EQ(line.sheetArea(), area) << name;
    }
}
// clang-format on

TEST(ComponentNames, AreDerivedFromFileNames) {
    OpenComponent component;
    const auto name = [&](const QString& file) {
        component.setOutputFilename(file);
        return component.getComponentNameFromFilename();
    };
    EXPECT_EQ(name("port_Feed 1_v.dat"), "Feed 1 ");
    EXPECT_EQ(name("a_b_c_d"), "b c ");
    EXPECT_EQ(name("_x_"), "x ");
    EXPECT_EQ(name("a__b"), " ") << "an empty part still makes a name";
    const auto phrases = QString(
                             "passive load |voltage source |current source |switch |nonlinear capacitor |diode |"
                             "lumped component |S-parameter block |")
                             .split('|');
    for (int type = 0; type <= 8; ++type) {
        component.m_circuitComponentType = Component::CircuitComponentType(type);
        for (const char* file : {"", "None", "a_b"}) EXPECT_EQ(name(file), phrases[type]);
    }
}

TEST(ComponentGeometry, ListsPointsOfImpedanceLines) {
    OpenComponent component;
    component.setEndPoints({{10, 0, 0}, {20, 0, 0}});
    const auto expectPoints = [&](int type, std::vector<Point> further) {
        component.setImpedanceLines({Line(), lineOf(type)});
        further.insert(further.begin(), {{20, 0, 0}, {10, 0, 0}});
        EXPECT_EQ(component.getAllPointsOfImpedanceLine(1), further) << type;
    };
    expectPoints(Line::NoExtent, {});
    expectPoints(Line::Cylindrical, {});
    expectPoints(Line::Sheet, {{4, 5, 6}, {7, 8, 9}});
    expectPoints(Line::Coaxial, {{1, 2, 3}, {0, 0, 1}});
    expectPoints(Line::Bundle, {{1, 0, 0}, {2, 0, 0}, {3, 0, 0}, {4, 0, 0.1}});
    expectPoints(Line::MultiPin, {{1, 2, 3}, {0.1, -2, 1234567}});
    EXPECT_EQ(component.getAllPointsOfImpedanceLine(0), std::vector<Point>(2)) << "its nodes are not end points";
}

TEST(ComponentGeometry, ExtentAndPinGroupsDependOnTheLines) {
    OpenComponent component;
    const auto hasExtent = [&](const std::vector<Line>& lines) {
        component.setImpedanceLines(lines);
        return component.hasExtent();
    };
    EXPECT_FALSE(hasExtent({}) || hasExtent({Line()}));
    EXPECT_TRUE(hasExtent({lineOf(1)}) && hasExtent({Line(), Line()}));
    Line line;
    EXPECT_EQ(thrownBy([&] { line.addPinGroup(groupOfTwo()); }), "pin groups required MultiPin");
    EXPECT_EQ(line.getNbPinGroups(), 0);
    line.type = Line::MultiPin;
    line.addPinGroup(PinGroup());
    line.addPinGroup(groupOfTwo());
    EXPECT_EQ(line.getNbPinGroups(), 2);
    EXPECT_EQ(line.getPinGroup(1).size(), 2);
    EXPECT_EQ(line.getPinGroup(1).at(1).name + line.getPinGroup(1)(0).name, "qp");
}

TEST(ComponentGeometry, DrawnComponentsHaveNoFileName) {
    const Component plain("p", 1, 2, 3, Component::Z, true), drawn("d", {}, {}, 1, 2, 3, Component::Z, true);
    EXPECT_EQ(plain.getOutputFilename() + '|' + drawn.getOutputFilename() + '|' + plain.getSblockFilename(),
              "None||none");
    const Line line;
    EXPECT_TRUE(line.nodes[0] == -1 && line.nodes[1] == -1 && line.radius == -1.0 && line.type == 0);
}

}  // namespace
}  // namespace quarn::test
