#pragma once

#include <array>

#include "quarn/Export.h"
#include "quarn/Vector3D.h"

namespace quarn {

/// A rotation of far-zone directions.
class QUARN_EXPORT FarZoneRotation {
public:
    bool isIdentity = true;

    /// Row by row. This is the transpose of the matrix that turns vectors actively: multiplied with a column it turns
    /// the axes instead.
    std::array<std::array<double, 3>, 3> matrix{{{1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}, {0.0, 0.0, 1.0}}};

    /// Turns by `angle` (radians) about an axis of any length. An axis of length 0 and an angle of full turns, each of
    /// them 2 pi in single precision, give the identity.
    void set(const Vector3D& axis, float angle);
    void set(double axisX, double axisY, double axisZ, float angle) { set(Vector3D(axisX, axisY, axisZ), angle); }

    friend bool operator==(const FarZoneRotation& a, const FarZoneRotation& b) {
        return a.isIdentity == b.isIdentity && a.matrix == b.matrix;
    }
    friend bool operator!=(const FarZoneRotation& a, const FarZoneRotation& b) { return !(a == b); }
};

}  // namespace quarn
