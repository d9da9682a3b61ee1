#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "quarn/ComponentKinds.h"

/// A component's block as a record, from which a component is made and which is made from one.
namespace quarn::circuit {

/// The coefficients of a nonlinear capacitor, which stand in a block of their own.
struct CapacitorCoefficients {
    double c1 = 0.0;
    double c2 = 0.0;
    double vs = 0.0;
    double vc = 0.0;
    double a1 = 0.0;
    double a2 = 0.0;
    double a3 = 0.0;
};

struct DiodeParameters {
    float saturationCurrent = 0.0F;
    float emissionCoefficient = 0.0F;
    float junctionPotential = 0.0F;
    float depletionCapacitance = 0.0F;
    float transitTime = 0.0F;
    float gradingCoefficient = 0.0F;
    float forwardCoefficient = 0.0F;
};

struct SwitchProgram {
    Switch::State initialState = Switch::Open;
    std::vector<Switch::Transition> transitions;
};

/// A port of an S-parameter block and the project's port that it is.
struct PortLine {
    std::optional<int> port;
    std::optional<int> line;
};

/// What the lines of a component's block say of its kind, whichever it is: a reader takes the lines of all kinds in any
/// order. The defaults are those of a block without the line.
struct KindValues {
    /// The source codes of the file. The two old kinds of switch, with one transition each, are only read.
    static constexpr int passiveLoad = 0;
    static constexpr int voltageFeed = 1;
    static constexpr int currentFeed = 2;
    static constexpr int openSwitch = 3;
    static constexpr int closedSwitch = 4;
    static constexpr int nonlinearCapacitor = 5;
    static constexpr int programmableSwitch = 6;
    static constexpr int diode = 7;
    static constexpr int sBlock = 9;

    int source = -1;  ///< -1 for a component that has no lines here
    CircuitComponent::Polarity polarity = CircuitComponent::Negative;
    CircuitComponent::ElementArrangement arrangement = CircuitComponent::Parallel;
    float resistance = 0.0F;
    float inductance = 0.0F;
    float capacitance = 0.0F;
    float amplitude = 0.0F;
    float phase = 0.0F;
    int delay = 0;
    bool isActive = false;
    int waveformIndex = -1;
    QString fieldExcitationFilename;
    int fieldExcitationMeshNum = -1;
    int fieldExcitationModeNum = -1;
    Switch::Transition singleTransition;
    SwitchProgram switchProgram;
    int capacitorIndex = 0;  ///< the place of the coefficients among those of the file
    DiodeParameters diodeParameters;
    QString sFileName;
    std::vector<PortLine> portLines;
};

/// A block that was read: a component that the part of the kind is still to be added to.
struct ReadComponent : KindValues {
    CircuitComponent base{QStringLiteral("noname"), {}, {}, 0, 0, 0, CircuitComponent::UndefinedDirection, false};
};

/// A block to be written, which refers to its component, so that names and geometry are not copied.
struct WrittenComponent : KindValues {
    const CircuitComponent& base;
};

/// The record of a component. `capacitors` counts the nonlinear capacitors so far.
WrittenComponent recordOf(const CircuitComponent& component, int& capacitors);

/// The component of a record; null where the source code stands for none.
std::unique_ptr<CircuitComponent> componentOf(const ReadComponent& record,
                                              const std::vector<CapacitorCoefficients>& capacitors);

CapacitorCoefficients coefficientsOf(const NonlinearCapacitor& capacitor);

}  // namespace quarn::circuit
