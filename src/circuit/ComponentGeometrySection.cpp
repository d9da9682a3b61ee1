#include "circuit/ComponentGeometrySection.h"

#include "blocktext/BlockWalker.h"
#include "blocktext/BlockWriter.h"
#include "blocktext/NameTable.h"

namespace quarn {

using namespace blocktext;

namespace {

using Line = CircuitComponent::ImpedanceLine;
using PinGroup = CircuitComponent::PinGroup;
using Pin = CircuitComponent::Pin;

namespace key {
constexpr auto X = "X"_key;
constexpr auto Y = "Y"_key;
constexpr auto Z = "Z"_key;
constexpr auto ImpedanceLine = "ImpedanceLine"_key;
constexpr auto Pin0 = "Pin0"_key;
constexpr auto Pin1 = "Pin1"_key;
constexpr auto LineType = "LineType"_key;
constexpr auto Radius = "Radius"_key;
constexpr auto CornerPoint = "CornerPoint"_key;
constexpr auto Center = "Center"_key;
constexpr auto Normal = "Normal"_key;
constexpr auto Radius1 = "Radius1"_key;
constexpr auto Radius2 = "Radius2"_key;
constexpr auto InjectionLine = "InjectionLine"_key;
constexpr auto X1 = "X1"_key;
constexpr auto Y1 = "Y1"_key;
constexpr auto Z1 = "Z1"_key;
constexpr auto X2 = "X2"_key;
constexpr auto Y2 = "Y2"_key;
constexpr auto Z2 = "Z2"_key;
constexpr auto PinGroup = "PinGroup"_key;
constexpr auto Name = "Name"_key;
constexpr auto SignalType = "SignalType"_key;
constexpr auto ModelType = "ModelType"_key;
constexpr auto Pin = "Pin"_key;
constexpr auto Weight = "Weight"_key;
}  // namespace key

// A line without extent has no type in the file.
constexpr NameTable<int, 5> lineTypes{{
    {Line::Cylindrical, "Cylindrical"_key},
    {Line::Sheet, "Sheet"_key},
    {Line::Coaxial, "Coaxial"_key},
    {Line::Bundle, "Bundle"_key},
    {Line::MultiPin, "MultiPin"_key},
}};

// The radii of a coaxial line have a block each, whose only line is the number.
void writeNumberBlock(DelimManager& delim, QLatin1String name, double number) {
    const WrittenBlock block(delim, name);
    delim.GetStream() << number << '\n';
}

auto onNumberBlock(DelimManager& delim, QLatin1String name, double& number) {
    return onBlock(name, [&delim, &number] { walkList(delim, [&](QTextStream& in) { readValue(in, number); }); });
}

void writeInjectionLine(DelimManager& delim, const Line::Segment& segment) {
    const WrittenBlock block(delim, key::InjectionLine);
    putLine(delim, key::X1, segment.first.x);
    putLine(delim, key::Y1, segment.first.y);
    putLine(delim, key::Z1, segment.first.z);
    putLine(delim, key::X2, segment.second.x);
    putLine(delim, key::Y2, segment.second.y);
    putLine(delim, key::Z2, segment.second.z);
}

Line::Segment readInjectionLine(DelimManager& delim) {
    Line::Segment segment;
    walkBlock(delim,
              Unknown::DropLine,
              onValue(key::X1, segment.first.x),
              onValue(key::Y1, segment.first.y),
              onValue(key::Z1, segment.first.z),
              onValue(key::X2, segment.second.x),
              onValue(key::Y2, segment.second.y),
              onValue(key::Z2, segment.second.z));
    return segment;
}

void writePin(DelimManager& delim, const Pin& pin) {
    const WrittenBlock block(delim, key::Pin);
    putLine(delim, key::Name, pin.name);
    putLine(delim, key::X, pin.point.x);
    putLine(delim, key::Y, pin.point.y);
    putLine(delim, key::Z, pin.point.z);
    putLine(delim, key::Weight, pin.weight);
}

Pin readPin(DelimManager& delim) {
    Pin pin;
    walkBlock(delim,
              Unknown::DropLine,
              onText(key::Name, pin.name),
              onValue(key::X, pin.point.x),
              onValue(key::Y, pin.point.y),
              onValue(key::Z, pin.point.z),
              onValue(key::Weight, pin.weight));
    return pin;
}

void writePinGroup(DelimManager& delim, const PinGroup& group) {
    const WrittenBlock block(delim, key::PinGroup);
    putLine(delim, key::Name, group.name);
    putLine(delim, key::SignalType, group.signal);
    putLine(delim, key::ModelType, group.model);
    for (const Pin& pin : group.pins) writePin(delim, pin);
}

PinGroup readPinGroup(DelimManager& delim) {
    PinGroup group;
    walkBlock(delim,
              Unknown::DropLine,
              onText(key::Name, group.name),
              onWord(key::SignalType, [&](QTextStream& in) { in >> group.signal; }),
              onWord(key::ModelType, [&](QTextStream& in) { in >> group.model; }),
              onBlock(key::Pin, [&] { group.add(readPin(delim)); }));
    return group;
}

}  // namespace

void writePoint(DelimManager& delim, QLatin1String name, const tavrix::Cartesian3D& point) {
    const WrittenBlock block(delim, name);
    putLine(delim, key::X, point.x);
    putLine(delim, key::Y, point.y);
    putLine(delim, key::Z, point.z);
}

tavrix::Cartesian3D readPoint(DelimManager& delim) {
    tavrix::Cartesian3D point;
    walkBlock(delim, Unknown::DropLine, onValue(key::X, point.x), onValue(key::Y, point.y), onValue(key::Z, point.z));
    return point;
}

void writeImpedanceLine(DelimManager& delim, const Line& line) {
    const WrittenBlock block(delim, key::ImpedanceLine);
    putLine(delim, key::Pin0, line.nodes[0]);
    putLine(delim, key::Pin1, line.nodes[1]);
    const QLatin1String type = nameOf(lineTypes, line.type, QLatin1String());
    if (type.isEmpty()) return;
    putLine(delim, key::LineType, type);
    if (line.type == Line::Cylindrical) {
        putLine(delim, key::Radius, line.radius);
    } else if (line.type == Line::Sheet) {
        for (const auto& corner : line.sheetCorners) writePoint(delim, key::CornerPoint, corner);
    } else if (line.type == Line::Coaxial) {
        writePoint(delim, key::Center, line.center);
        writePoint(delim, key::Normal, line.normal);
        writeNumberBlock(delim, key::Radius1, line.radius1);
        writeNumberBlock(delim, key::Radius2, line.radius2);
    } else if (line.type == Line::MultiPin) {
        for (const PinGroup& group : line.pinGroups) writePinGroup(delim, group);
    }
    if (line.type == Line::Coaxial || line.type == Line::Bundle) {
        for (const auto& segment : line.injectionLines) writeInjectionLine(delim, segment);
    }
}

Line readImpedanceLine(DelimManager& delim) {
    Line line;
    walkBlock(delim,
              Unknown::DropLine,
              onValue(key::Pin0, line.nodes[0]),
              onValue(key::Pin1, line.nodes[1]),
              onName(key::LineType, lineTypes, line.type),
              onValue(key::Radius, line.radius),
              onBlock(key::CornerPoint, [&] { line.sheetCorners.push_back(readPoint(delim)); }),
              onBlock(key::Center, [&] { line.center = readPoint(delim); }),
              onBlock(key::Normal, [&] { line.normal = readPoint(delim); }),
              onNumberBlock(delim, key::Radius1, line.radius1),
              onNumberBlock(delim, key::Radius2, line.radius2),
              onBlock(key::InjectionLine, [&] { line.injectionLines.push_back(readInjectionLine(delim)); }),
              onBlock(key::PinGroup, [&] { line.pinGroups.push_back(readPinGroup(delim)); }));
    return line;
}

}  // namespace quarn
