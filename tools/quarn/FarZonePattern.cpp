#include "FarZonePattern.h"

#include <algorithm>
#include <cmath>
#include <complex>

#include "quarn/PhysicalConstants.h"

namespace quarn::tool {

using constants::pi;

namespace {

FarZoneRequest::Angle angleOf(double theta, double phi) { return {static_cast<float>(theta), static_cast<float>(phi)}; }

double inDecibels(double powerRatio) { return 10.0 * std::log10(powerRatio); }

/// The distance from the phase reference to the farthest corner of the box; an image is not farther away.
double radiusOf(const FieldsOnSSFarZoneBox& fields) {
    const auto reach = [&](std::size_t n) {
        return std::max(std::abs(fields.axis(n).toLowerFace), std::abs(fields.axis(n).toUpperFace));
    };
    return std::hypot(reach(0), reach(1), reach(2));
}

/// The weight of a polar angle in the middle of the i-th of equal intervals by Fejer's first rule, which is exact for
/// polynomials in the cosine of the angle whose degree is below the number of intervals.
double fejerWeight(std::size_t number, std::size_t i) {
    const double angle = (static_cast<double>(i) + 0.5) * pi / static_cast<double>(number);
    double sum = 0.0;
    for (std::size_t m = 1; m <= number / 2; ++m) {
        const auto k = static_cast<double>(m);
        sum += std::cos(2.0 * k * angle) / (4.0 * k * k - 1.0);
    }
    return 2.0 / static_cast<double>(number) * (1.0 - 2.0 * sum);
}

/// A multiple of four, so that a plane through the centre never divides an interval. The degree of the field of sources
/// within a radius is a little above wave number times radius; the intensity has twice this degree.
std::size_t numberOfIntervals(double wavesTimesRadius) {
    constexpr double mostIntervals = 1440.0;
    const double degree = 2.0 * (wavesTimesRadius + 12.0);
    return 4 * static_cast<std::size_t>(std::min(std::ceil((degree + 1.0) / 4.0), mostIntervals / 4.0));
}

}  // namespace

double toDegrees(double radians) { return radians * 180.0 / pi; }

double waveLengthAt(float frequency) { return constants::speedOfLight / static_cast<double>(frequency); }

FarZoneAngles sphereOf(double stepInDegrees) {
    constexpr double tolerance = 1e-9;
    const auto steps = [&](double range) { return static_cast<int>(std::floor(range / stepInDegrees + tolerance)); };
    const int lastTheta = steps(180.0);
    const int endPhi = static_cast<int>(std::ceil(360.0 / stepInDegrees - tolerance));
    const double step = stepInDegrees * pi / 180.0;
    FarZoneAngles angles;
    for (int theta = 0; theta <= lastTheta; ++theta) {
        for (int phi = 0; phi < endPhi; ++phi) angles.push_back(angleOf(theta * step, phi * step));
    }
    return angles;
}

FarZoneAngles polarCut(double azimuthInDegrees) {
    constexpr double degree = constants::radiansPerDegree;
    FarZoneAngles angles;
    for (int theta = 0; theta <= 360; ++theta) angles.push_back(angleOf(theta * degree, azimuthInDegrees * degree));
    return angles;
}

double radiationIntensity(const FarZoneSSFieldFile::Record& record) {
    const std::complex<double> theta = record.eTheta;
    const std::complex<double> phi = record.ePhi;
    return (std::norm(theta) + std::norm(phi)) / (2.0 * constants::freeSpaceImpedance);
}

double RadiatedPower::directivity(const FarZoneSSFieldFile::Record& record) const {
    return inDecibels(4.0 * pi * radiationIntensity(record) / watts);
}

RadiatedPower radiatedPower(const FieldsOnSSFarZoneBox& fields, const PostProcessSSFarZoneFields& processor,
                            const ProgressReporter& reporter) {
    const double waveNumber = 2.0 * pi / waveLengthAt(processor.getFrequency());
    const std::size_t number = numberOfIntervals(waveNumber * radiusOf(fields));
    const double interval = pi / static_cast<double>(number);
    FarZoneAngles angles;
    for (std::size_t theta = 0; theta < number; ++theta) {
        for (std::size_t phi = 0; phi < number; ++phi) {
            angles.push_back(angleOf((static_cast<double>(theta) + 0.5) * interval,
                                     (static_cast<double>(phi) + 0.5) * 2.0 * interval));
        }
    }
    FarZoneRecords records;
    processor.computeFields(angles, records, reporter);

    RadiatedPower power;
    for (std::size_t i = 0; i < records.size(); i += number) {
        double ring = 0.0;
        for (std::size_t phi = 0; phi < number; ++phi) {
            const FarZoneSSFieldFile::Record& record = records[i + phi];
            ring += radiationIntensity(record);
            if (radiationIntensity(record) > radiationIntensity(power.peak)) power.peak = record;
        }
        power.watts += ring * 2.0 * interval * fejerWeight(number, i / number);
    }
    return power;
}

double axialRatio(const FarZoneSSFieldFile::Record& record) {
    const std::complex<double> j(0.0, 1.0);
    const std::complex<double> theta = record.eTheta;
    const std::complex<double> phi = record.ePhi;
    const double oneHand = std::abs(theta + j * phi);
    const double otherHand = std::abs(theta - j * phi);
    return 2.0 * inDecibels((oneHand + otherHand) / std::abs(oneHand - otherHand));
}

}  // namespace quarn::tool
