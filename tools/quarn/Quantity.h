#pragma once

#include <QString>

namespace quarn::tool {

/// A number with up to six significant digits.
QString numberText(double value);

/// "2.45 GHz": the value with the SI prefix that leaves one to three digits before the point.
QString withPrefix(double value, const QString& unit);

/// "30°".
QString degrees(double angle);

/// "XY" for SARPlane::XY; planes come from several enumerations with the same values.
QString planeName(int plane);

/// The angle in degrees with as few decimals as give the radians back exactly, so that pi / 2 in single precision
/// is 90.
double degreesFromRadians(float radians);

}  // namespace quarn::tool
