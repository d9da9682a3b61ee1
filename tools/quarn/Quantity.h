#pragma once

#include <QString>
#include <QStringView>

namespace quarn::tool {

/// A number with up to six significant digits.
QString numberText(double value);

/// "(0.5, 0, -1) m": a point in metres.
QString pointText(double x, double y, double z);

/// "2.45 GHz": the value with the SI prefix that leaves one to three digits before the point.
QString withPrefix(double value, const QString& unit);

/// "-2 mV/m to 5 V/m".
QString rangeText(double least, double greatest, const QString& unit);

/// Whether all of the word is a number.
bool isNumber(QStringView word);

/// "30°".
QString degrees(double angle);

/// "XY" for SARPlane::XY. The planes of other enumerations have the same values.
QString planeName(int plane);

/// The angle in degrees with the fewest decimals that give the radians back exactly, so that pi / 2 in single precision
/// is 90.
double degreesFromRadians(float radians);

}  // namespace quarn::tool
