#pragma once

#include <QString>

#include "quarn/Export.h"

class QTextStream;

namespace tavrix {

/// A point or a direction of the component geometry, in metres.
struct Cartesian3D {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;

    Cartesian3D() = default;
    Cartesian3D(double xCoordinate, double yCoordinate, double zCoordinate)
        : x(xCoordinate), y(yCoordinate), z(zCoordinate) {}

    /// "(x, y, z)" with six significant digits.
    QUARN_EXPORT QString qstr() const;

    friend bool operator==(const Cartesian3D& a, const Cartesian3D& b) {
        return a.x == b.x && a.y == b.y && a.z == b.z;
    }
    friend bool operator!=(const Cartesian3D& a, const Cartesian3D& b) { return !(a == b); }
};

QUARN_EXPORT QTextStream& operator<<(QTextStream& out, const Cartesian3D& point);

}  // namespace tavrix
