// The text forms of a circuit component and of what it is made of, for people.

#include <QTextStream>
#include <stdexcept>

#include "circuit/ComponentNames.h"
#include "quarn/CircuitComponent.h"

namespace quarn {

namespace {

using Component = CircuitComponent;
using Line = Component::ImpedanceLine;

void writeInjectionLines(QTextStream& out, const Line& line) {
    out << "injection lines:";
    int number = 0;
    for (const auto& [start, end] : line.injectionLines) {
        out << "\n\t\t" << ++number << " : " << start << " -> " << end;
    }
}

void writePinGroups(QTextStream& out, const Line& line) {
    for (const Component::PinGroup& group : line.pinGroups) {
        out << "\n\t\t" << group.signal << " : ";
        for (const Component::Pin& pin : group.pins) {
            out << pin.name << '(' << pin.point.x << ',' << pin.point.y << ',' << pin.point.z << "), ";
        }
    }
}

bool hasSource(Component::CircuitComponentType type) {
    return type == Component::SeriesVoltage || type == Component::ParallelCurrent;
}

void writeImpedance(QTextStream& out, const Component& component) {
    out << "R=" << component.getResistance() << ", L=" << component.getInductance()
        << ", C=" << component.getCapacitance();
}

}  // namespace

QString Component::Pin::qstr() const {
    QString text;
    QTextStream out(&text);
    out << "Pin (name=" << name << ", (" << point.x << " , " << point.y << " , " << point.z << ')';
    if (weight > 0.0) out << ", weight=" << weight;
    out << ')';
    return text;
}

QString Component::PinGroup::qstr() const {
    QString text;
    QTextStream out(&text);
    out << "PinGroup";
    if (!name.isEmpty()) out << " \"" << name << '"';
    out << ", model=" << model << ", signal=" << signal << ", pins(#=" << size() << "): ";
    for (const Pin& pin : pins) out << pin.qstr() << ' ';
    return text;
}

QString Line::qstr() const {
    QString text;
    QTextStream out(&text);
    switch (type) {
        case NoExtent:
            out << "no extent";
            break;
        case Cylindrical:
            out << "type=cylindrical, radius=" << radius;
            break;
        case Sheet:
            out << "type=sheet, corners:";
            for (const auto& corner : sheetCorners) out << "\n\t\t" << corner;
            break;
        case Coaxial:
            out << "type=coaxial, center=" << center << ", normal=" << normal << ", radius1=" << radius1
                << ", radius2=" << radius2 << ", ";
            writeInjectionLines(out, *this);
            break;
        case Bundle:
            out << "type=bundle, ";
            writeInjectionLines(out, *this);
            break;
        case MultiPin:
            out << "type=multipin";
            writePinGroups(out, *this);
            break;
        default:
            break;
    }
    return text;
}

QString Component::qstr() const {
    QString text;
    QTextStream out(&text);
    out << "name            : " << m_componentName << '\n';
    out << "type            : " << names::of(m_circuitComponentType) << '\n';
    out << "impedance lines : ";
    for (std::size_t i = 0; i < m_impLines.size(); ++i) out << "\n\t" << i << " : " << m_impLines[i].qstr();
    out << '\n';
    if (m_circuitComponentType == PassiveLoad || hasSource(m_circuitComponentType)) {
        out << "source        : amplitude=" << getAmplitude() << ", phase=" << getPhase() << " rad\n";
        out << "impedance     : " << names::of(getElementArrangement()) << ", ";
        writeImpedance(out, *this);
        out << '\n';
    } else if (m_circuitComponentType == SBlock) {
        out << "Sblock file   : " << getSblockFilename() << '\n';
    } else if (m_circuitComponentType >= Switch && m_circuitComponentType <= LumpedComponent) {
        throw std::runtime_error("quarn::CircuitComponent::str() not implemented for type=" +
                                 std::string(names::of(m_circuitComponentType).data()));
    }
    out << "calibration=" << names::of(m_calibration) << ", termType=" << names::of(m_termType) << '\n';
    return text;
}

QString Component::qstr_short() const {
    QString text;
    QTextStream out(&text);
    out << m_componentName << ", #=" << m_impLines.size() << " : ";
    if (hasSource(m_circuitComponentType)) {
        out << (m_circuitComponentType == SeriesVoltage ? "V=" : "I=") << getAmplitude() << ", phase=" << getPhase()
            << ", ";
    }
    if (m_circuitComponentType == PassiveLoad || hasSource(m_circuitComponentType)) {
        writeImpedance(out, *this);
        out << ", arr=" << names::of(getElementArrangement());
    } else if (m_circuitComponentType == SBlock) {
        out << getSblockFilename();
    } else {
        out << names::of(m_circuitComponentType);
    }
    return text;
}

}  // namespace quarn
