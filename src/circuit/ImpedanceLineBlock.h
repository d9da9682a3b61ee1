#pragma once

#include "blocktext/BlockDescription.h"
#include "circuit/ComponentNames.h"

/// The blocks of points and impedance lines, which stand within the blocks of components and ports.
namespace quarn::circuit {

using namespace blocktext;

/// A point; coordinates that the block does not give are zero.
constexpr auto pointBlock(Key name) {
    using Point = tavrix::Cartesian3D;
    return describe<Point>(name,
                           Unknown::DropLine,
                           Unreadable::KeepsValue,
                           value("X", &Point::x).in("m"),
                           value("Y", &Point::y).in("m"),
                           value("Z", &Point::z).in("m"));
}

template <class Segment>
constexpr auto segmentBlock(Key name) {
    using Point = tavrix::Cartesian3D;
    return describe<Segment>(name,
                             Unknown::DropLine,
                             Unreadable::KeepsValue,
                             value("X1", path(&Segment::first, &Point::x)).in("m"),
                             value("Y1", path(&Segment::first, &Point::y)).in("m"),
                             value("Z1", path(&Segment::first, &Point::z)).in("m"),
                             value("X2", path(&Segment::second, &Point::x)).in("m"),
                             value("Y2", path(&Segment::second, &Point::y)).in("m"),
                             value("Z2", path(&Segment::second, &Point::z)).in("m"));
}

inline constexpr auto pinBlock = [] {
    using Pin = CircuitComponent::Pin;
    using Point = tavrix::Cartesian3D;
    constexpr auto point = "quarn::CircuitComponent::Pin::point";
    return describe<Pin>(
        "Pin",
        Unknown::DropLine,
        Unreadable::KeepsValue,
        text("Name", &Pin::name).reports("quarn::CircuitComponent::Pin::name, diff:", report::OnItsLine()),
        value("X", path(&Pin::point, &Point::x)).in("m").reports(point),
        value("Y", path(&Pin::point, &Point::y)).in("m").reports(point),
        value("Z", path(&Pin::point, &Point::z)).in("m").reports(point),
        value("Weight", &Pin::weight).reports("quarn::CircuitComponent::Pin::weight"));
}();

// The model is compared, and reported, before the signal.
inline constexpr auto pinGroupBlock = [] {
    using Group = CircuitComponent::PinGroup;
    return describe<Group>(
        "PinGroup",
        Unknown::DropLine,
        Unreadable::KeepsValue,
        text("Name", &Group::name).reports("quarn::CircuitComponent::PinGroup::name"),
        unwritten(&Group::model).reports("quarn::CircuitComponent::PinGroup::model"),
        value("SignalType", &Group::signal, names::pinGroupSignal).reports("quarn::CircuitComponent::PinGroup::signal"),
        value("ModelType", &Group::model, names::pinGroupModel).notCompared(),
        innerBlocks(&Group::pins, pinBlock).reports("quarn::CircuitComponent::PinGroup::pins"));
}();

// A line without extent has no type in the file.
inline constexpr NameTable<int, 5> lineTypes{{
    {CircuitComponent::ImpedanceLine::Cylindrical, "Cylindrical"_key},
    {CircuitComponent::ImpedanceLine::Sheet, "Sheet"_key},
    {CircuitComponent::ImpedanceLine::Coaxial, "Coaxial"_key},
    {CircuitComponent::ImpedanceLine::Bundle, "Bundle"_key},
    {CircuitComponent::ImpedanceLine::MultiPin, "MultiPin"_key},
}};

inline constexpr auto impedanceLineBlock = [] {
    using Line = CircuitComponent::ImpedanceLine;
    return describe<Line>(
        "ImpedanceLine",
        Unknown::DropLine,
        Unreadable::KeepsValue,
        value("Pin0", element(&Line::nodes, 0)).reports("quarn::CircuitComponent::ImpedanceLine::nodes"),
        value("Pin1", element(&Line::nodes, 1)).reports("quarn::CircuitComponent::ImpedanceLine::nodes"),
        value("LineType", &Line::type, nameFrom(lineTypes)).reports("quarn::CircuitComponent::ImpedanceLine::type"),
        value("Radius", &Line::radius)
            .in("m")
            .onlyFor(&Line::type, Line::Cylindrical)
            .reports("quarn::CircuitComponent::ImpedanceLine::radius"),
        innerBlocks(&Line::sheetCorners, pointBlock("CornerPoint"))
            .onlyFor(&Line::type, Line::Sheet)
            .reports("quarn::CircuitComponent::ImpedanceLine::sheetCorners"),
        innerBlock(anew(&Line::center), pointBlock("Center")).onlyFor(&Line::type, Line::Coaxial).notCompared(),
        innerBlock(anew(&Line::normal), pointBlock("Normal")).onlyFor(&Line::type, Line::Coaxial).notCompared(),
        innerBlock(&Line::radius1, bareValues<double>("Radius1", Unreadable::KeepsValue))
            .onlyFor(&Line::type, Line::Coaxial)
            .notCompared(),
        innerBlock(&Line::radius2, bareValues<double>("Radius2", Unreadable::KeepsValue))
            .onlyFor(&Line::type, Line::Coaxial)
            .notCompared(),
        innerBlocks(&Line::injectionLines, segmentBlock<Line::Segment>("InjectionLine"))
            .onlyFor(&Line::type, Line::Coaxial, Line::Bundle)
            .reports("quarn::CircuitComponent::ImpedanceLine::injectionLines"),
        innerBlocks(&Line::pinGroups, pinGroupBlock)
            .onlyFor(&Line::type, Line::MultiPin)
            .reports("quarn::CircuitComponent::ImpedanceLine::pinGroups"));
}();

}  // namespace quarn::circuit
