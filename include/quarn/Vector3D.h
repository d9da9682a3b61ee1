#pragma once

#include <cmath>

namespace quarn {

/// A direction or a position in space.
class Vector3D {
public:
    Vector3D() = default;
    Vector3D(double x, double y, double z) : m_x(x), m_y(y), m_z(z) {}

    void set(double x, double y, double z) { *this = Vector3D(x, y, z); }
    double getX() const { return m_x; }
    double getY() const { return m_y; }
    double getZ() const { return m_z; }

    /// The Euclidean length.
    double mag() const { return std::sqrt(m_x * m_x + m_y * m_y + m_z * m_z); }

    /// Scales to length 1. A vector of length 0 stays as it is.
    Vector3D& normalize() { return *this /= mag(); }

    /// Division by 0 changes nothing.
    Vector3D& operator/=(double divisor) {
        if (divisor != 0.0) set(m_x / divisor, m_y / divisor, m_z / divisor);
        return *this;
    }

    friend bool operator==(const Vector3D& a, const Vector3D& b) {
        return a.m_x == b.m_x && a.m_y == b.m_y && a.m_z == b.m_z;
    }
    friend bool operator!=(const Vector3D& a, const Vector3D& b) { return !(a == b); }

private:
    double m_x = 0.0;
    double m_y = 0.0;
    double m_z = 0.0;
};

}  // namespace quarn
