#include "quarn/ComponentKinds.h"

#include <algorithm>

namespace quarn {

namespace {

constexpr CircuitComponent::ComponentDirection alongX = CircuitComponent::X;

void warnIfNegative(QStringList& warnings, double value, const QString& message) {
    if (value < 0) warnings << message;
}

// Passive loads use the wording of feeds.
void checkImpedance(QStringList& warnings, const CircuitComponent& component) {
    warnIfNegative(warnings, component.getResistance(), QStringLiteral("Feed resistance should not be negative."));
    warnIfNegative(warnings, component.getCapacitance(), QStringLiteral("Feed capacitance should not be negative."));
    warnIfNegative(warnings, component.getInductance(), QStringLiteral("Feed inductance should not be negative."));
}

void checkCoefficients(QStringList& errors, const std::vector<double>& coefficients, const QString& message) {
    for (const double coefficient : coefficients) {
        if (coefficient < 0.0) errors << message;
    }
}

}  // namespace

Feed::Feed(const CircuitComponent& base, CircuitComponentType type, int waveformIndex, float amplitude, float phase,
           float resistance, float capacitance, float inductance, int timeDelay, ElementArrangement arrangement,
           Polarity polarity)
    : CircuitComponent(base),
      m_waveformIndex(waveformIndex),
      m_amplitude(amplitude),
      m_phase(phase),
      m_timeDelay(timeDelay),
      m_resistance(resistance),
      m_capacitance(capacitance),
      m_inductance(inductance),
      m_polarity(polarity),
      m_elementArrangement(arrangement) {
    m_circuitComponentType = type;
    m_isActive = true;
}

Feed::Feed(const QString& name, const std::vector<tavrix::Cartesian3D>& endPoints,
           const std::vector<ImpedanceLine>& impedanceLines, CircuitComponentType type, float amplitude, float phase,
           float resistance, float capacitance, float inductance, ElementArrangement arrangement)
    : Feed(CircuitComponent(name, endPoints, impedanceLines, 0, 0, 0, alongX, true), type, 0, amplitude, phase,
           resistance, capacitance, inductance, 0, arrangement, Positive) {}

void Feed::setInactive() {
    m_isActive = false;
    m_waveformIndex = -1;
}

void Feed::checkValidity(QStringList& errors, QStringList& warnings, Engine engine) const {
    if (m_isActive && m_waveformIndex < 0 && engine == Engine::FDTD) {
        errors << QStringLiteral("A waveform index is invalid.");
    }
    checkImpedance(warnings, *this);
    warnIfNegative(warnings, m_timeDelay, QStringLiteral("Feed time delay should not be negative."));
}

PassiveLoad::PassiveLoad(const CircuitComponent& base, float resistance, float capacitance, float inductance,
                         ElementArrangement arrangement, Polarity measurementPolarity)
    : CircuitComponent(base),
      m_resistance(resistance),
      m_capacitance(capacitance),
      m_inductance(inductance),
      m_measurementPolarity(measurementPolarity),
      m_elementArrangement(arrangement) {
    m_circuitComponentType = CircuitComponent::PassiveLoad;
}

PassiveLoad::PassiveLoad(const QString& name, const std::vector<tavrix::Cartesian3D>& endPoints,
                         const std::vector<ImpedanceLine>& impedanceLines, float resistance, float capacitance,
                         float inductance, ElementArrangement arrangement)
    : PassiveLoad(CircuitComponent(name, endPoints, impedanceLines, 0, 0, 0, alongX, false), resistance, capacitance,
                  inductance, arrangement, Positive) {}

void PassiveLoad::checkValidity(QStringList&, QStringList& warnings, Engine) const { checkImpedance(warnings, *this); }

Switch::Switch(const CircuitComponent& base, State initialState, const Polarity& measurementPolarity)
    : CircuitComponent(base), m_initialState(initialState), m_measurementPolarity(measurementPolarity) {
    m_circuitComponentType = CircuitComponent::Switch;
}

// A transition that starts where the one before it ends overlaps it. The sum is taken in 64 bits.
void Switch::checkValidity(QStringList& errors, QStringList& warnings, Engine engine) const {
    if (engine != Engine::FDTD) {
        errors << QStringLiteral("A Switch is only supported by the FDTD engine.");
        return;
    }
    if (m_transitions.empty()) {
        warnings << QStringLiteral("A Switch does not have any transitions.");
        return;
    }
    for (std::size_t i = 1; i < m_transitions.size(); ++i) {
        const Transition& last = m_transitions[i - 1];
        const Transition& next = m_transitions[i];
        if (next.start <= last.start) {
            warnings << QStringLiteral("The start of each switch transition is not in cronological order.");
            return;
        }
        if (next.start <= std::int64_t{last.start} + last.duration) {
            warnings << QStringLiteral("A switch duration is too long and overlaps the start of the next transition.");
            return;
        }
    }
}

Diode::Diode(const CircuitComponent& base, float depletionCapacitance, float emissionCoefficient,
             float forwardCoefficient, float gradingCoefficient, float junctionPotential, float saturationCurrent,
             float transitTime, Polarity polarity)
    : CircuitComponent(base),
      m_depletionCapacitance(depletionCapacitance),
      m_emissionCoefficient(emissionCoefficient),
      m_forwardCoefficient(forwardCoefficient),
      m_gradingCoefficient(gradingCoefficient),
      m_junctionPotential(junctionPotential),
      m_saturationCurrent(saturationCurrent),
      m_transitTime(transitTime),
      m_polarity(polarity) {
    m_circuitComponentType = CircuitComponent::Diode;
}

void Diode::checkValidity(QStringList& errors, QStringList& warnings, Engine engine) const {
    if (engine != Engine::FDTD) {
        errors << QStringLiteral("A Diode is only supported by the FDTD engine.");
        return;
    }
    const float parameters[] = {m_depletionCapacitance,
                                m_emissionCoefficient,
                                m_forwardCoefficient,
                                m_gradingCoefficient,
                                m_junctionPotential,
                                m_saturationCurrent,
                                m_transitTime};
    if (std::any_of(std::begin(parameters), std::end(parameters), [](float parameter) { return parameter <= 0.0F; })) {
        warnings << QStringLiteral("All diode parameters should be positive.");
    }
}

NonlinearCapacitor::NonlinearCapacitor(const CircuitComponent& base, float resistance, double c1, double c2, double vs,
                                       double vc, double a1, double a2, double a3, Polarity measurementPolarity)
    : CircuitComponent(base),
      m_resistance(resistance),
      m_c1(c1),
      m_c2(c2),
      m_vs(vs),
      m_vc(vc),
      m_a1(a1),
      m_a2(a2),
      m_a3(a3),
      m_measurementPolarity(measurementPolarity) {
    m_circuitComponentType = NonLinearCapacitor;
}

LumpedComponent::LumpedComponent(const CircuitComponent& base, Polarity measurementPolarity,
                                 const std::vector<double>& arCoefficients, const std::vector<double>& bmCoefficients)
    : CircuitComponent(base),
      m_measurementPolarity(measurementPolarity),
      m_arCoefficients(arCoefficients),
      m_bmCoefficients(bmCoefficients) {
    m_circuitComponentType = CircuitComponent::LumpedComponent;
}

void LumpedComponent::checkValidity(QStringList& errors, QStringList&, Engine) const {
    checkCoefficients(errors,
                      m_arCoefficients,
                      QStringLiteral("Lumped component coefficient a_r < 0.  All coefficients must be greater than or "
                                     "equal to 0."));
    checkCoefficients(errors,
                      m_bmCoefficients,
                      QStringLiteral("Lumped component coefficient b_m < 0.  All coefficients must be greater than or "
                                     "equal to 0."));
}

SBlock::SBlock(const CircuitComponent& base, const QString& filename, const std::map<int, int>& portMap)
    : CircuitComponent(base), m_filename(filename), m_portMap(portMap) {
    m_circuitComponentType = CircuitComponent::SBlock;
}

SBlock::SBlock(const QString& name, const std::vector<tavrix::Cartesian3D>& endPoints,
               const std::vector<ImpedanceLine>& impedanceLines, const QString& filename)
    : SBlock(CircuitComponent(name, endPoints, impedanceLines, 0, 0, 0, alongX, false), filename, {}) {}

}  // namespace quarn
