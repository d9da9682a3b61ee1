#include "quarn/CircuitComponent.h"

#include <QTextStream>
#include <cmath>
#include <stdexcept>

#include "circuit/ComponentNames.h"

namespace quarn {

using tavrix::Cartesian3D;
using Line = CircuitComponent::ImpedanceLine;

namespace {

Cartesian3D operator-(const Cartesian3D& a, const Cartesian3D& b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }

Cartesian3D cross(const Cartesian3D& a, const Cartesian3D& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

double dot(const Cartesian3D& a, const Cartesian3D& b) { return a.x * b.x + a.y * b.y + a.z * b.z; }

// The area of a plane quadrilateral with vertices in cyclic order: the sum of the two triangles at its first vertex,
// projected on the normal of the first three vertices.
double quadrilateralArea(const Cartesian3D& q0, const Cartesian3D& q1, const Cartesian3D& q2, const Cartesian3D& q3) {
    const Cartesian3D normal = cross(q1 - q0, q2 - q0);
    const double length = std::sqrt(dot(normal, normal));
    if (normal == Cartesian3D()) return 0.0;
    const Cartesian3D unit(normal.x / length, normal.y / length, normal.z / length);
    return std::abs(0.5 * (dot(cross(q1 - q0, q2 - q0), unit) + dot(cross(q2 - q0, q3 - q0), unit)));
}

}  // namespace

CircuitComponent::CircuitComponent(const QString& name, unsigned int xIndex, unsigned int yIndex, unsigned int zIndex,
                                   ComponentDirection direction, bool isPort)
    : CircuitComponent(name, {}, {}, xIndex, yIndex, zIndex, direction, isPort) {
    m_outputFilename = QStringLiteral("None");
}

CircuitComponent::CircuitComponent(const QString& name, const std::vector<Cartesian3D>& endPoints,
                                   const std::vector<ImpedanceLine>& impedanceLines, unsigned int xIndex,
                                   unsigned int yIndex, unsigned int zIndex, ComponentDirection direction, bool isPort)
    : m_componentName(name),
      m_xIndex(xIndex),
      m_yIndex(yIndex),
      m_zIndex(zIndex),
      m_endPoints(endPoints),
      m_impLines(impedanceLines),
      m_componentDirection(direction),
      m_isPort(isPort) {}

CircuitComponent::CircuitComponent(const CircuitComponent& other) = default;
CircuitComponent& CircuitComponent::operator=(const CircuitComponent& other) = default;
CircuitComponent::~CircuitComponent() = default;

void CircuitComponent::checkValidity(QStringList&, QStringList&, Engine) const {}

bool CircuitComponent::hasExtent() const {
    return m_impLines.size() > 1 || (m_impLines.size() == 1 && m_impLines.front().type != ImpedanceLine::NoExtent);
}

std::vector<Cartesian3D> CircuitComponent::getAllPointsOfImpedanceLine(int index) const {
    const ImpedanceLine& line = m_impLines[static_cast<std::size_t>(index)];
    std::vector<Cartesian3D> points;
    for (const int node : line.nodes) {
        const bool isEndPoint = node >= 0 && static_cast<std::size_t>(node) < m_endPoints.size();
        points.push_back(isEndPoint ? m_endPoints[static_cast<std::size_t>(node)] : Cartesian3D());
    }
    switch (line.type) {
        case ImpedanceLine::Sheet:
            points.insert(points.end(), line.sheetCorners.begin(), line.sheetCorners.end());
            break;
        case ImpedanceLine::Coaxial:
            points.insert(points.end(), {line.center, line.normal});
            break;
        case ImpedanceLine::Bundle:
            for (const auto& [start, end] : line.injectionLines) points.insert(points.end(), {start, end});
            break;
        case ImpedanceLine::MultiPin:
            for (const PinGroup& group : line.pinGroups) {
                for (const Pin& pin : group.pins) points.push_back(pin.point);
            }
            break;
        default:
            break;
    }
    return points;
}

QString CircuitComponent::getComponentNameFromFilename() const {
    const QStringList parts = m_outputFilename.split(QLatin1Char('_'));
    QString name;
    for (int i = 1; i + 1 < parts.size(); ++i) name += parts[i] + QLatin1Char(' ');
    if (!name.isEmpty()) return name;
    return blocktext::nameOf(names::componentPhrases, m_circuitComponentType, QLatin1String());
}

void Line::addPinGroup(const PinGroup& group) {
    if (type != MultiPin) throw std::runtime_error("pin groups required MultiPin");
    pinGroups.push_back(group);
}

double Line::sheetArea() const {
    if (sheetCorners.size() < 4) return 0.0;
    const auto& p = sheetCorners;
    const Cartesian3D side = p[1] - p[0];
    const Cartesian3D crossed = cross(side, p[3] - p[0]);
    if (dot(crossed, crossed) != 0.0) return quadrilateralArea(p[0], p[1], p[3], p[2]);
    const Cartesian3D otherwise = cross(side, p[2] - p[0]);
    if (dot(otherwise, otherwise) == 0.0) return 0.0;
    return quadrilateralArea(p[0], p[1], p[2], p[3]);
}

QTextStream& operator<<(QTextStream& out, CircuitComponent::PinGroup::ModelType model) {
    names::pinGroupModel.write(out, model);
    return out;
}

QTextStream& operator<<(QTextStream& out, CircuitComponent::PinGroup::SignalType signal) {
    names::pinGroupSignal.write(out, signal);
    return out;
}

QTextStream& operator>>(QTextStream& in, CircuitComponent::PinGroup::ModelType& model) {
    names::pinGroupModel.read(in, model);
    return in;
}

QTextStream& operator>>(QTextStream& in, CircuitComponent::PinGroup::SignalType& signal) {
    names::pinGroupSignal.read(in, signal);
    return in;
}

}  // namespace quarn
