#pragma once

#include <QString>
#include <map>
#include <vector>

#include "quarn/CircuitComponent.h"
#include "quarn/Export.h"

/// The kinds of circuit component. Each is built from its base part, which it copies, and its own values; the kinds
/// that a front end draws also from a name and geometry, at cell (0, 0, 0) in direction X. Values are in SI units.
namespace quarn {

/// A voltage or current source with its internal impedance: the only kind that drives a run.
class QUARN_EXPORT Feed : public CircuitComponent {
public:
    /// An active feed. The waveform index counts in the project's list, -1 means none; the phase is in radians and the
    /// delay in timesteps.
    Feed(const CircuitComponent& base, CircuitComponentType type, int waveformIndex, float amplitude, float phase,
         float resistance, float capacitance, float inductance, int timeDelay, ElementArrangement arrangement,
         Polarity polarity);

    /// An active feed that is a port and follows the first waveform.
    Feed(const QString& name, const std::vector<tavrix::Cartesian3D>& endPoints,
         const std::vector<ImpedanceLine>& impedanceLines, CircuitComponentType type, float amplitude, float phase,
         float resistance, float capacitance, float inductance, ElementArrangement arrangement);

    void checkValidity(QStringList& errors, QStringList& warnings, Engine engine) const override;
    float getResistance() const override { return m_resistance; }
    float getInductance() const override { return m_inductance; }
    float getCapacitance() const override { return m_capacitance; }
    float getAmplitude() const override { return m_amplitude; }
    float getPhase() const override { return m_phase; }
    ElementArrangement getElementArrangement() const override { return m_elementArrangement; }
    QString getFieldExcitationFilename() const override { return m_fieldExcitationFilename; }
    int getFieldExcitationMeshNum() const override { return m_fieldExcitationMeshNum; }
    int getFieldExcitationModeNum() const override { return m_fieldExcitationModeNum; }
    void setFieldExcitationFilename(const QString& name) override { m_fieldExcitationFilename = name; }
    void setFieldExcitationMeshNum(int number) override { m_fieldExcitationMeshNum = number; }
    void setFieldExcitationModeNum(int number) override { m_fieldExcitationModeNum = number; }

    int getWaveformIndex() const { return m_waveformIndex; }
    int getTimeDelay() const { return m_timeDelay; }
    Polarity getPolarity() const { return m_polarity; }

    /// Makes the feed a passive termination: not active and without a waveform.
    void setInactive();

private:
    std::int32_t m_waveformIndex;
    float m_amplitude;
    float m_phase;
    std::int32_t m_timeDelay;
    float m_resistance;
    float m_capacitance;
    float m_inductance;
    Polarity m_polarity;
    ElementArrangement m_elementArrangement;
    QString m_fieldExcitationFilename;
    std::int32_t m_fieldExcitationMeshNum = -1;
    std::int32_t m_fieldExcitationModeNum = -1;
};

/// A resistor, inductor and capacitor in series or in parallel.
class QUARN_EXPORT PassiveLoad : public CircuitComponent {
public:
    PassiveLoad(const CircuitComponent& base, float resistance, float capacitance, float inductance,
                ElementArrangement arrangement, Polarity measurementPolarity);
    PassiveLoad(const QString& name, const std::vector<tavrix::Cartesian3D>& endPoints,
                const std::vector<ImpedanceLine>& impedanceLines, float resistance, float capacitance, float inductance,
                ElementArrangement arrangement);

    void checkValidity(QStringList& errors, QStringList& warnings, Engine engine) const override;
    float getResistance() const override { return m_resistance; }
    float getInductance() const override { return m_inductance; }
    float getCapacitance() const override { return m_capacitance; }
    ElementArrangement getElementArrangement() const override { return m_elementArrangement; }
    Polarity getMeasurementPolarity() const { return m_measurementPolarity; }

private:
    float m_resistance;
    float m_capacitance;
    float m_inductance;
    Polarity m_measurementPolarity;
    ElementArrangement m_elementArrangement;
};

/// A switch that changes its state in transitions.
class QUARN_EXPORT Switch : public CircuitComponent {
public:
    enum State : std::int32_t { Open = 0, Closed = 1 };

    /// A change of state that begins at timestep `start` and takes `duration` timesteps.
    struct Transition {
        std::int32_t start = 0;
        std::int32_t duration = 0;
    };

    Switch(const CircuitComponent& base, State initialState, const Polarity& measurementPolarity);

    void addTransition(int start, int duration) { m_transitions.push_back({start, duration}); }

    void checkValidity(QStringList& errors, QStringList& warnings, Engine engine) const override;
    State getInitialState() const { return m_initialState; }
    const std::vector<Transition>& getTransitions() const { return m_transitions; }
    Polarity getMeasurementPolarity() const { return m_measurementPolarity; }

private:
    State m_initialState;
    std::vector<Transition> m_transitions;
    Polarity m_measurementPolarity;
};

/// A diode, described by its SPICE parameters.
class QUARN_EXPORT Diode : public CircuitComponent {
public:
    Diode(const CircuitComponent& base, float depletionCapacitance, float emissionCoefficient, float forwardCoefficient,
          float gradingCoefficient, float junctionPotential, float saturationCurrent, float transitTime,
          Polarity polarity);

    void checkValidity(QStringList& errors, QStringList& warnings, Engine engine) const override;
    float getDepletionCapacitance() const { return m_depletionCapacitance; }
    float getEmissionCoefficient() const { return m_emissionCoefficient; }
    float getForwardCoefficient() const { return m_forwardCoefficient; }
    float getGradingCoefficient() const { return m_gradingCoefficient; }
    float getJunctionPotential() const { return m_junctionPotential; }
    float getSaturationCurrent() const { return m_saturationCurrent; }
    float getTransitTime() const { return m_transitTime; }
    Polarity getPolarity() const { return m_polarity; }

private:
    float m_depletionCapacitance;
    float m_emissionCoefficient;
    float m_forwardCoefficient;
    float m_gradingCoefficient;
    float m_junctionPotential;
    float m_saturationCurrent;
    float m_transitTime;
    Polarity m_polarity;
};

/// A capacitor whose permittivity depends on the voltage, behind a resistance.
class QUARN_EXPORT NonlinearCapacitor : public CircuitComponent {
public:
    NonlinearCapacitor(const CircuitComponent& base, float resistance, double c1, double c2, double vs, double vc,
                       double a1, double a2, double a3, Polarity measurementPolarity);

    float getResistance() const override { return m_resistance; }
    double getC1() const { return m_c1; }
    double getC2() const { return m_c2; }
    double getVs() const { return m_vs; }
    double getVc() const { return m_vc; }
    double getA1() const { return m_a1; }
    double getA2() const { return m_a2; }
    double getA3() const { return m_a3; }
    Polarity getMeasurementPolarity() const { return m_measurementPolarity; }

private:
    float m_resistance;
    double m_c1, m_c2, m_vs, m_vc, m_a1, m_a2, m_a3;
    Polarity m_measurementPolarity;
};

/// A rational admittance, described by the coefficients of its numerator and denominator. The project file does not
/// carry the coefficients, so that a lumped component cannot be read back.
class QUARN_EXPORT LumpedComponent : public CircuitComponent {
public:
    LumpedComponent(const CircuitComponent& base, Polarity measurementPolarity,
                    const std::vector<double>& arCoefficients, const std::vector<double>& bmCoefficients);

    void checkValidity(QStringList& errors, QStringList& warnings, Engine engine) const override;
    std::uint64_t getArSize() const { return m_arCoefficients.size(); }
    std::uint64_t getBmSize() const { return m_bmCoefficients.size(); }

    /// The index is not checked.
    double getArCoefficient(unsigned int index) const { return m_arCoefficients[index]; }
    double getBmCoefficient(unsigned int index) const { return m_bmCoefficients[index]; }
    Polarity getMeasurementPolarity() const { return m_measurementPolarity; }

private:
    Polarity m_measurementPolarity;
    std::vector<double> m_arCoefficients;
    std::vector<double> m_bmCoefficients;
};

/// A network given by a file of S-parameters.
class QUARN_EXPORT SBlock : public CircuitComponent {
public:
    /// The map leads from port numbers of the block to port numbers of the project.
    SBlock(const CircuitComponent& base, const QString& filename, const std::map<int, int>& portMap);
    SBlock(const QString& name, const std::vector<tavrix::Cartesian3D>& endPoints,
           const std::vector<ImpedanceLine>& impedanceLines, const QString& filename);

    QString getSblockFilename() const override { return m_filename; }
    const std::map<int, int>& getPortMap() const { return m_portMap; }

private:
    QString m_filename;
    std::map<int, int> m_portMap;
};

}  // namespace quarn
