#include <typeindex>

#include "circuit/ImpedanceLineBlock.h"

namespace quarn {

using report::areEqual;
using report::member;
using report::OnItsLine;

namespace {

using Component = CircuitComponent;

// The values of an enumeration by their names.
struct NameOnItsLine {
    template <class Enum>
    void operator()(Enum value) const {
        OnItsLine()(QString(names::of(value)));
    }
};

// What a component is: its class and the type that it gives for it.
struct Kind {
    std::type_index objectClass;
    Component::CircuitComponentType type;
    friend bool operator==(const Kind& a, const Kind& b) { return a.objectClass == b.objectClass && a.type == b.type; }
};
Kind kindOf(const Component& component) { return {typeid(component), component.getCircuitComponentType()}; }

struct KindOnItsLine {
    void operator()(const Kind& kind) const { NameOnItsLine()(kind.type); }
};

struct PointsOnLines {
    void operator()(const std::vector<tavrix::Cartesian3D>& points) const {
        for (std::size_t i = 0; i < points.size(); ++i) {
            std::cout << '\t' << i << " : " << points[i].x << ", " << points[i].y << ", " << points[i].z << '\n';
        }
    }
};

}  // namespace

bool operator==(const Component::Pin& a, const Component::Pin& b) { return circuit::pinBlock.areEqual(a, b); }

bool operator==(const Component::PinGroup& a, const Component::PinGroup& b) {
    return circuit::pinGroupBlock.areEqual(a, b);
}

bool Component::PinGroup::equal(const PinGroup& other) const { return *this == other; }

bool operator==(const Component::ImpedanceLine& a, const Component::ImpedanceLine& b) {
    return circuit::impedanceLineBlock.areEqual(a, b);
}

// Objects of different classes are never equal, even where nothing that is listed tells them apart. The members are
// listed here, since neither they nor the order of their reports are those of the file.
bool operator==(const Component& a, const Component& b) {
    const auto kind = member("m_circuitComponentType", kindOf, KindOnItsLine());
    if (typeid(a) != typeid(b)) return areEqual(a, b, kind);
    return areEqual(a,
                    b,
                    member("m_componentName", &Component::m_componentName),
                    member("m_xIndex", &Component::m_xIndex),
                    member("m_yIndex", &Component::m_yIndex),
                    member("m_zIndex", &Component::m_zIndex),
                    member("m_endPoints", &Component::m_endPoints, PointsOnLines()),
                    member("m_impLines", &Component::m_impLines),
                    member("m_componentDirection", &Component::m_componentDirection, OnItsLine()),
                    member("m_calibration", &Component::m_calibration, NameOnItsLine()),
                    member("m_isActive", &Component::m_isActive, OnItsLine()),
                    kind,
                    member("m_isPort", &Component::m_isPort, OnItsLine()),
                    member("m_termType", &Component::m_termType, NameOnItsLine()),
                    member("m_pinGroups", &Component::m_pinGroups));
}

}  // namespace quarn
