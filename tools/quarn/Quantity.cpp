#include "Quantity.h"

#include <cmath>

#include "quarn/PhysicalConstants.h"
#include "quarn/SARPlane.h"

namespace quarn::tool {

using constants::radiansPerDegree;

namespace {

constexpr int significantDigits = 6;

struct Prefix {
    double factor;
    const char* symbol;
};

constexpr Prefix prefixes[] = {
    {1e12, "T"},
    {1e9, "G"},
    {1e6, "M"},
    {1e3, "k"},
    {1e0, ""},
    {1e-3, "m"},
    {1e-6, "µ"},
    {1e-9, "n"},
    {1e-12, "p"},
    {1e-15, "f"},
};

/// As it will be printed, so that 999.9999999 counts as 1000.
double rounded(double value) { return QString::number(value, 'e', significantDigits - 1).toDouble(); }

}  // namespace

QString numberText(double value) { return QString::number(value, 'g', significantDigits); }

QString withPrefix(double value, const QString& unit) {
    const double size = std::abs(rounded(value));
    for (const Prefix& prefix : prefixes) {
        if (size < prefix.factor || size >= 1000 * prefix.factor) continue;
        return QStringLiteral("%1 %2%3").arg(numberText(value / prefix.factor), QString::fromUtf8(prefix.symbol), unit);
    }
    return QStringLiteral("%1 %2").arg(numberText(value), unit);
}

QString degrees(double angle) { return numberText(angle) + QStringLiteral("°"); }

QString planeName(int plane) {
    switch (plane) {
        case SARPlane::XY:
            return QStringLiteral("XY");
        case SARPlane::YZ:
            return QStringLiteral("YZ");
        case SARPlane::ZX:
            return QStringLiteral("ZX");
        default:
            return QStringLiteral("unknown");
    }
}

double degreesFromRadians(float radians) {
    constexpr double mostDecimals = 1e12;
    const double angle = static_cast<double>(radians) / radiansPerDegree;
    for (double scale = 1.0; scale <= mostDecimals; scale *= 10.0) {
        const double rounded = std::round(angle * scale) / scale;
        if (static_cast<float>(rounded * radiansPerDegree) == radians) return rounded;
    }
    return angle;
}

}  // namespace quarn::tool
