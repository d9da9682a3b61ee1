#include "Quantity.h"

#include <cmath>

#include "Text.h"
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

/// The value as it is printed: 999.9999999 counts as 1000.
double rounded(double value) { return QString::number(value, 'e', significantDigits - 1).toDouble(); }

}  // namespace

QString numberText(double value) { return QString::number(value, 'g', significantDigits); }

QString pointText(double x, double y, double z) {
    return tripleText(numberText(x), numberText(y), numberText(z)) + text(" m");
}

bool isNumber(QStringView word) {
    bool isValid = false;
    word.toString().toDouble(&isValid);
    return isValid;
}

QString withPrefix(double value, const QString& unit) {
    const double size = std::abs(rounded(value));
    for (const Prefix& prefix : prefixes) {
        if (size < prefix.factor || size >= 1000 * prefix.factor) continue;
        return text("%1 %2%3").arg(numberText(value / prefix.factor), QString::fromUtf8(prefix.symbol), unit);
    }
    return text("%1 %2").arg(numberText(value), unit);
}

QString rangeText(double least, double greatest, const QString& unit) {
    return text("%1 to %2").arg(withPrefix(least, unit), withPrefix(greatest, unit));
}

QString degrees(double angle) { return numberText(angle) + text("°"); }

QString planeName(int plane) {
    static_assert(SARPlane::XY == 0 && SARPlane::YZ == 1 && SARPlane::ZX == 2);
    constexpr const char* names[] = {"XY", "YZ", "ZX"};
    return text(plane >= SARPlane::XY && plane <= SARPlane::ZX ? names[plane] : "unknown");
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
