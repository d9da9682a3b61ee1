#pragma once

#include <QString>

namespace quarn::tool {

/// A number with up to six significant digits.
QString numberText(double value);

/// "2.45 GHz": the value with the SI prefix that leaves one to three digits before the point.
QString withPrefix(double value, const QString& unit);

/// "30°".
QString degrees(double angle);

}  // namespace quarn::tool
