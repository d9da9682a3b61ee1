#pragma once

#include "blocktext/ValueForms.h"
#include "quarn/CircuitComponent.h"

/// The names of the enumerations of circuit components, in text forms and in files.
namespace quarn::names {

using blocktext::operator""_key;
using Component = CircuitComponent;

constexpr blocktext::NameTable<TermType, 7> termTypes{{
    {TermType::Input, "Input"_key},
    {TermType::Output, "Output"_key},
    {TermType::InputOutput, "InputOutput"_key},
    {TermType::Switch, "Switch"_key},
    {TermType::Jumper, "Jumper"_key},
    {TermType::Unused, "Unused"_key},
    {TermType::Tristate, "Tristate"_key},
}};

constexpr auto termType = blocktext::nameFrom(termTypes, "Zundefined"_key);
constexpr auto portTermType = blocktext::nameFrom(termTypes, "Zundefined"_key, TermType::InputOutput);

constexpr blocktext::NameTable<Component::CircuitComponentType, 8> componentTypes{{
    {Component::PassiveLoad, "PassiveLoad"_key},
    {Component::SeriesVoltage, "SeriesVoltage"_key},
    {Component::ParallelCurrent, "ParallelCurrent"_key},
    {Component::Switch, "Switch"_key},
    {Component::NonLinearCapacitor, "NonLinearCapacitor"_key},
    {Component::Diode, "Diode"_key},
    {Component::LumpedComponent, "LumpedComponent"_key},
    {Component::SBlock, "SBlock"_key},
}};

constexpr blocktext::NameTable<Component::CircuitComponentType, 8> componentPhrases{{
    {Component::PassiveLoad, "passive load "_key},
    {Component::SeriesVoltage, "voltage source "_key},
    {Component::ParallelCurrent, "current source "_key},
    {Component::Switch, "switch "_key},
    {Component::NonLinearCapacitor, "nonlinear capacitor "_key},
    {Component::Diode, "diode "_key},
    {Component::LumpedComponent, "lumped component "_key},
    {Component::SBlock, "S-parameter block "_key},
}};

constexpr blocktext::NameTable<Component::Calibration, 4> calibrations{{
    {Component::KeepSelfKeepMutual, "KeepSelfKeepMutual"_key},
    {Component::RemoveSelfRemoveMutual, "RemoveSelfRemoveMutual"_key},
    {Component::RemoveSelfKeepMutual, "RemoveSelfKeepMutual"_key},
    {Component::AutomaticCalibration, "AutomaticCalibration"_key},
}};
constexpr auto calibration = blocktext::nameFrom(calibrations, "Undefined"_key);

constexpr blocktext::NameTable<Component::ElementArrangement, 2> arrangements{{
    {Component::Parallel, "Parallel"_key},
    {Component::Series, "Series"_key},
}};

constexpr blocktext::NameTable<Component::PinGroup::ModelType, 3> pinGroupModels{{
    {Component::PinGroup::EquiCurrent, "EquiCurrent"_key},
    {Component::PinGroup::EquiVoltage, "EquiVoltage"_key},
    {Component::PinGroup::SpecifiedCurrent, "SpecifiedCurrent"_key},
}};
constexpr auto pinGroupModel =
    blocktext::nameFrom(pinGroupModels, "UnknownPinGroupModelType"_key, Component::PinGroup::UnknownModel);

constexpr blocktext::NameTable<Component::PinGroup::SignalType, 2> pinGroupSignals{{
    {Component::PinGroup::Ground, "ground"_key},
    {Component::PinGroup::Signal, "signal"_key},
}};
constexpr auto pinGroupSignal =
    blocktext::nameFrom(pinGroupSignals, "UnknownPinGroupSignalType"_key, Component::PinGroup::UnknownSignal);

inline QLatin1String of(Component::CircuitComponentType type) { return nameOf(componentTypes, type, ""_key); }
inline QLatin1String of(Component::Calibration value) { return calibration.nameIn(value); }
inline QLatin1String of(Component::ElementArrangement value) { return nameOf(arrangements, value, ""_key); }
inline QLatin1String of(TermType type) { return termType.nameIn(type); }

}  // namespace quarn::names
