#include "quarn/FarZoneRotation.h"

#include <cmath>

#include "quarn/PhysicalConstants.h"

namespace quarn {

void FarZoneRotation::set(const Vector3D& axis, float angle) {
    constexpr float fullTurn = static_cast<float>(2.0 * constants::pi);
    *this = FarZoneRotation();
    if (axis.mag() == 0.0 || std::fmod(angle, fullTurn) == 0.0F) return;

    // The unit quaternion of the rotation.
    Vector3D direction = axis;
    direction.normalize();
    const double half = 0.5 * static_cast<double>(angle);
    double w = std::cos(half);
    double x = direction.getX() * std::sin(half);
    double y = direction.getY() * std::sin(half);
    double z = direction.getZ() * std::sin(half);
    const double norm = std::sqrt(w * w + x * x + y * y + z * z);
    w /= norm;
    x /= norm;
    y /= norm;
    z /= norm;

    isIdentity = false;
    matrix = {{{1 - 2 * (y * y + z * z), 2 * (x * y + z * w), 2 * (x * z - y * w)},
               {2 * (x * y - z * w), 1 - 2 * (x * x + z * z), 2 * (y * z + x * w)},
               {2 * (x * z + y * w), 2 * (y * z - x * w), 1 - 2 * (x * x + y * y)}}};
}

}  // namespace quarn
