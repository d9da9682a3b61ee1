#pragma once

#include <map>
#include <memory>
#include <vector>

#include "blocktext/BlockWalker.h"
#include "quarn/ComponentKinds.h"

/// The part of a component's block that depends on its kind.
namespace quarn {

/// The seven coefficients of a nonlinear capacitor, which stand in a block of their own.
struct CapacitorCoefficients {
    double c1 = 0.0;
    double c2 = 0.0;
    double vs = 0.0;
    double vc = 0.0;
    double a1 = 0.0;
    double a2 = 0.0;
    double a3 = 0.0;
};

/// What the lines of a component's block may say of its kind, whichever it is.
struct KindRecord {
    int source = -1;
    int polaritySign = 0;
    int arrangement = 0;
    float amplitude = 0.0F;
    float phase = 0.0F;
    float resistance = 0.0F;
    float capacitance = 0.0F;
    float inductance = 0.0F;
    int delay = 0;
    bool isActive = false;
    int waveformIndex = -1;
    QString fieldExcitationFilename;
    int fieldExcitationMeshNum = -1;
    int fieldExcitationModeNum = -1;
    int nonlinearCapacitorIndex = 0;
    Switch::Transition singleTransition;
    int initialState = Switch::Open;
    std::vector<Switch::Transition> transitions;
    float saturationCurrent = 0.0F;
    float emissionCoefficient = 0.0F;
    float junctionPotential = 0.0F;
    float depletionCapacitance = 0.0F;
    float transitTime = 0.0F;
    float gradingCoefficient = 0.0F;
    float forwardCoefficient = 0.0F;
    QString sFileName;
    std::map<int, int> portMap;
};

/// Writes the lines of the kind. `nonlinearCapacitors` counts those written so far.
void writeKind(DelimManager& delim, const CircuitComponent& component, int& nonlinearCapacitors);

/// The component of the kind on its base; null when the record's source code stands for none.
std::unique_ptr<CircuitComponent> makeComponent(const CircuitComponent& base, const KindRecord& record,
                                                const std::vector<CapacitorCoefficients>& capacitors);

void writeCoefficients(DelimManager& delim, const NonlinearCapacitor& capacitor);
CapacitorCoefficients readCoefficients(DelimManager& delim);

namespace kindKey {
using blocktext::operator""_key;
constexpr auto Source = "Source"_key;
constexpr auto Polarity = "Polarity"_key;
constexpr auto Resistance = "Resistance"_key;
constexpr auto Inductance = "Inductance"_key;
constexpr auto Capacitance = "Capacitance"_key;
constexpr auto Type = "Type"_key;
constexpr auto Amplitude = "Amplitude"_key;
constexpr auto Phase = "Phase"_key;
constexpr auto Delay = "Delay"_key;
constexpr auto IsActive = "IsActive"_key;
constexpr auto WaveformIndex = "WaveformIndex"_key;
constexpr auto FieldExcitationFilename = "FieldExcitationFilename"_key;
constexpr auto FieldExcitationMeshNum = "FieldExcitationMeshNum"_key;
constexpr auto FieldExcitationModeNum = "FieldExcitationModeNum"_key;
constexpr auto SwitchTimeStep = "SwitchTimeStep"_key;
constexpr auto SwitchDuration = "SwitchDuration"_key;
constexpr auto ProgrammableSwitch = "ProgrammableSwitch"_key;
constexpr auto NonlinearCapIndex = "NonlinearCapIndex"_key;
constexpr auto Diode = "Diode"_key;
constexpr auto SFileName = "SFileName"_key;
constexpr auto PortLineMap = "PortLineMap"_key;
}  // namespace kindKey

void readSwitch(DelimManager& delim, KindRecord& record);
void readDiode(DelimManager& delim, KindRecord& record);
void readPortLine(DelimManager& delim, KindRecord& record);

/// Walks a component's block: `common` handles what all kinds share.
template <class... Handlers>
void walkKind(DelimManager& delim, KindRecord& record, Handlers... common) {
    using namespace blocktext;
    walkBlock(delim,
              Unknown::DropLine,
              common...,
              onValue(kindKey::Source, record.source),
              onValue(kindKey::Polarity, record.polaritySign),
              onValue(kindKey::Resistance, record.resistance),
              onValue(kindKey::Inductance, record.inductance),
              onValue(kindKey::Capacitance, record.capacitance),
              onValue(kindKey::Amplitude, record.amplitude),
              onValue(kindKey::Phase, record.phase),
              onValue(kindKey::Delay, record.delay),
              onValue(kindKey::Type, record.arrangement),
              onFlag(kindKey::IsActive, record.isActive),
              onValue(kindKey::WaveformIndex, record.waveformIndex),
              onText(kindKey::FieldExcitationFilename, record.fieldExcitationFilename),
              onValue(kindKey::FieldExcitationMeshNum, record.fieldExcitationMeshNum),
              onValue(kindKey::FieldExcitationModeNum, record.fieldExcitationModeNum),
              onValue(kindKey::SwitchTimeStep, record.singleTransition.start),
              onValue(kindKey::SwitchDuration, record.singleTransition.duration),
              onBlock(kindKey::ProgrammableSwitch, [&] { readSwitch(delim, record); }),
              onValue(kindKey::NonlinearCapIndex, record.nonlinearCapacitorIndex),
              onBlock(kindKey::Diode, [&] { readDiode(delim, record); }),
              onText(kindKey::SFileName, record.sFileName),
              onBlock(kindKey::PortLineMap, [&] { readPortLine(delim, record); }));
}

}  // namespace quarn
