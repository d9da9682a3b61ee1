#pragma once

#include <QString>
#include <QStringList>
#include <array>
#include <cstdint>
#include <utility>
#include <vector>

#include "quarn/Cartesian3D.h"
#include "quarn/Description.h"
#include "quarn/Engine.h"
#include "quarn/Export.h"
#include "quarn/TermType.h"

class QTextStream;

namespace quarn {

/// A lumped element on the grid: the part that all kinds have in common. The kinds (ComponentKinds.h) add the
/// electrical values.
///
/// The equality operators of this class and of the classes within it write "different " and the name of the first
/// member that differs to standard output before they return false. They compare what is listed here, not the
/// electrical values of a kind nor the output file name, and of an impedance line not the coaxial centre, normal and
/// radii.
class QUARN_EXPORT CircuitComponent {
public:
    enum CircuitComponentType : std::int32_t {
        PassiveLoad = 0,
        SeriesVoltage = 1,
        ParallelCurrent = 2,
        Switch = 3,
        NonLinearCapacitor = 4,
        Diode = 5,
        LumpedComponent = 6,
        SBlock = 7,
    };
    /// How the self and mutual effects of the port's own structure are treated.
    enum Calibration : std::int32_t {
        KeepSelfKeepMutual = 0,
        RemoveSelfRemoveMutual = 1,
        RemoveSelfKeepMutual = 2,
        AutomaticCalibration = 99,
    };
    enum ElementArrangement : std::int32_t { Parallel = 0, Series = 1 };
    enum ComponentDirection : std::uint32_t { X = 0, Y = 1, Z = 2, UndefinedDirection = 3 };
    enum Polarity : std::int32_t { Positive = 0, Negative = 1 };

    /// A point with a name and a weight.
    class QUARN_EXPORT Pin {
    public:
        Pin() = default;
        Pin(const QString& pinName, const tavrix::Cartesian3D& pinPoint, double pinWeight)
            : name(pinName), point(pinPoint), weight(pinWeight) {}

        /// Coordinate 0, 1 or 2 of the point.
        double& operator[](int axis) { return axis == 0 ? point.x : axis == 1 ? point.y : point.z; }
        const double& operator[](int axis) const { return axis == 0 ? point.x : axis == 1 ? point.y : point.z; }

        QString qstr() const;

        QString name = QStringLiteral("<unnamed pin>");
        tavrix::Cartesian3D point;
        double weight = 0.0;
    };

    /// Pins that act as one terminal.
    class QUARN_EXPORT PinGroup {
    public:
        enum ModelType : std::int32_t { EquiCurrent = 0, EquiVoltage = 1, SpecifiedCurrent = 2, UnknownModel = 3 };
        enum SignalType : std::int32_t { Ground = 0, Signal = 1, UnknownSignal = 2 };

        PinGroup() = default;
        PinGroup(const QString& groupName, ModelType modelType, SignalType signalType)
            : name(groupName), model(modelType), signal(signalType) {}

        void add(const Pin& pin) { pins.push_back(pin); }
        int size() const { return static_cast<int>(pins.size()); }

        /// The index is not checked.
        const Pin& at(int index) const { return pins[static_cast<std::size_t>(index)]; }
        const Pin& operator()(int index) const { return at(index); }
        bool equal(const PinGroup& other) const;

        QString qstr() const;

        QString name;
        ModelType model = UnknownModel;
        SignalType signal = UnknownSignal;
        std::vector<Pin> pins;
    };

    /// How a component attaches to the structure between two of its end points.
    struct QUARN_EXPORT ImpedanceLine {
        enum Type : int { NoExtent = 0, Cylindrical = 1, Sheet = 2, Coaxial = 3, Bundle = 4, MultiPin = 5 };
        using Segment = std::pair<tavrix::Cartesian3D, tavrix::Cartesian3D>;

        /// Only a line of type MultiPin takes pin groups; others throw a std::runtime_error.
        void addPinGroup(const PinGroup& group);
        int getNbPinGroups() const { return static_cast<int>(pinGroups.size()); }

        /// The index is not checked.
        const PinGroup& getPinGroup(int index) const { return pinGroups[static_cast<std::size_t>(index)]; }

        /// The area that the first four sheet corners span, in square metres: corners 1 and 2 are the neighbours of
        /// corner 0, and corner 3 lies opposite to it. Zero with fewer corners.
        double sheetArea() const;

        QString qstr() const;

        std::array<int, 2> nodes{-1, -1};  ///< indices of the component's end points
        int type = NoExtent;
        double radius = -1.0;  ///< radius of a cylindrical line
        tavrix::Cartesian3D center;
        tavrix::Cartesian3D normal;
        double radius1 = 0.0;  ///< inner radius of a coaxial line
        double radius2 = 0.0;  ///< outer radius of a coaxial line
        std::vector<tavrix::Cartesian3D> sheetCorners;
        std::vector<Segment> injectionLines;
        std::vector<PinGroup> pinGroups;
    };

    /// The cell indices count from 0. The output file name is "None".
    CircuitComponent(const QString& name, unsigned int xIndex, unsigned int yIndex, unsigned int zIndex,
                     ComponentDirection direction, bool isPort);

    /// As above, with geometry. The output file name is empty.
    CircuitComponent(const QString& name, const std::vector<tavrix::Cartesian3D>& endPoints,
                     const std::vector<ImpedanceLine>& impedanceLines, unsigned int xIndex, unsigned int yIndex,
                     unsigned int zIndex, ComponentDirection direction, bool isPort);

    CircuitComponent(const CircuitComponent& other);
    CircuitComponent& operator=(const CircuitComponent& other);
    virtual ~CircuitComponent();

    /// Appends findings about the values of the kind.
    virtual void checkValidity(QStringList& errors, QStringList& warnings, Engine engine) const;

    /// The electrical values of the kind, in SI units (phase in radians); zero where a kind has none.
    virtual float getResistance() const { return 0.0F; }
    virtual float getInductance() const { return 0.0F; }
    virtual float getCapacitance() const { return 0.0F; }
    virtual float getAmplitude() const { return 0.0F; }
    virtual float getPhase() const { return 0.0F; }
    virtual ElementArrangement getElementArrangement() const { return Series; }
    virtual QString getSblockFilename() const { return QStringLiteral("none"); }

    /// The field distribution that excites a feed. Other kinds have none and ignore the setters.
    virtual QString getFieldExcitationFilename() const { return QString(); }
    virtual int getFieldExcitationMeshNum() const { return -1; }
    virtual int getFieldExcitationModeNum() const { return -1; }
    virtual void setFieldExcitationFilename(const QString&) {}
    virtual void setFieldExcitationMeshNum(int) {}
    virtual void setFieldExcitationModeNum(int) {}

    const QString& getComponentName() const { return m_componentName; }
    unsigned int getXIndex() const { return m_xIndex; }
    unsigned int getYIndex() const { return m_yIndex; }
    unsigned int getZIndex() const { return m_zIndex; }
    const std::vector<tavrix::Cartesian3D>& getEndPoints() const { return m_endPoints; }
    void setEndPoints(const std::vector<tavrix::Cartesian3D>& points) { m_endPoints = points; }
    const std::vector<ImpedanceLine>& getImpedanceLines() const { return m_impLines; }
    void setImpedanceLines(const std::vector<ImpedanceLine>& lines) { m_impLines = lines; }
    ComponentDirection getComponentDirection() const { return m_componentDirection; }
    CircuitComponentType getCircuitComponentType() const { return m_circuitComponentType; }
    Calibration calibration() const { return m_calibration; }
    void setCalibration(Calibration calibration) { m_calibration = calibration; }
    TermType termType() const { return m_termType; }
    void setTermType(TermType type) { m_termType = type; }
    bool isActive() const { return m_isActive; }
    bool isPort() const { return m_isPort; }
    const QString& getOutputFilename() const { return m_outputFilename; }
    void setOutputFilename(const QString& name) { m_outputFilename = name; }

    /// Whether the component is more than a point: it has several impedance lines, or one that has an extent.
    bool hasExtent() const;

    /// The two end points of impedance line `index` and all points of its geometry, a coaxial line's normal among them.
    /// A node that is not the index of an end point gives the origin. The index is not checked.
    std::vector<tavrix::Cartesian3D> getAllPointsOfImpedanceLine(int index) const;

    /// The parts of the output file name between its first and its last underscore, each followed by a blank; without
    /// any, a phrase for the type.
    QString getComponentNameFromFilename() const;

    /// A description in several lines. Throws a std::runtime_error for switches, nonlinear capacitors, diodes and
    /// lumped components.
    QString qstr() const;

    /// A description in one line.
    QString qstr_short() const;

    QUARN_EXPORT friend bool operator==(const CircuitComponent& a, const CircuitComponent& b);
    friend bool operator!=(const CircuitComponent& a, const CircuitComponent& b) { return !(a == b); }

protected:
    CircuitComponentType m_circuitComponentType = PassiveLoad;
    bool m_isActive = false;
    TermType m_termType = TermType::InputOutput;
    QString m_componentName;
    std::uint32_t m_xIndex;
    std::uint32_t m_yIndex;
    std::uint32_t m_zIndex;
    std::vector<tavrix::Cartesian3D> m_endPoints;
    std::vector<ImpedanceLine> m_impLines;
    std::vector<PinGroup> m_pinGroups;
    ComponentDirection m_componentDirection;
    Calibration m_calibration = KeepSelfKeepMutual;
    bool m_isPort;
    QString m_outputFilename;

private:
    friend struct blocktext::Description<CircuitComponent>;
};

QUARN_EXPORT bool operator==(const CircuitComponent::Pin& a, const CircuitComponent::Pin& b);
QUARN_EXPORT bool operator==(const CircuitComponent::PinGroup& a, const CircuitComponent::PinGroup& b);
QUARN_EXPORT bool operator==(const CircuitComponent::ImpedanceLine& a, const CircuitComponent::ImpedanceLine& b);
inline bool operator!=(const CircuitComponent::Pin& a, const CircuitComponent::Pin& b) { return !(a == b); }
inline bool operator!=(const CircuitComponent::PinGroup& a, const CircuitComponent::PinGroup& b) { return !(a == b); }
inline bool operator!=(const CircuitComponent::ImpedanceLine& a, const CircuitComponent::ImpedanceLine& b) {
    return !(a == b);
}

/// The words of the project file; any other word reads as the unknown value.
QUARN_EXPORT QTextStream& operator<<(QTextStream& out, CircuitComponent::PinGroup::ModelType model);
QUARN_EXPORT QTextStream& operator>>(QTextStream& in, CircuitComponent::PinGroup::ModelType& model);
QUARN_EXPORT QTextStream& operator<<(QTextStream& out, CircuitComponent::PinGroup::SignalType signal);
QUARN_EXPORT QTextStream& operator>>(QTextStream& in, CircuitComponent::PinGroup::SignalType& signal);

}  // namespace quarn
