// Far fields from the tangential fields on a closed box, by the surface equivalence principle: outside the box, the
// currents J = n x H and M = -n x E on its faces radiate in free space what the sources inside radiate, n being the
// normal that points outward (C. A. Balanis, Antenna Theory: Analysis and Design, 3rd edition, sections 12.2 and 12.3).
//
// Fields vary as exp(+j w t). With the integrals over the box
//
//     N = integral of J exp(j k r' . r) dS,  L = integral of M exp(j k r' . r) dS,
//
// r being the unit vector of the direction and r' the place on the box from its centre, the far field is
//
//     E_theta = -j k / (4 pi) (L_phi + eta N_theta) exp(-j k r) / r,
//     E_phi   = +j k / (4 pi) (L_theta - eta N_phi) exp(-j k r) / r.
//
// The last factor is left out, so that fields come in volts. A cell of a face counts as a rectangle of even fields,
// over which the phase is integrated exactly: its weight is its area times sin(a) / a for each in-plane axis, a being
// half of k times its size times the direction's component along that axis.
//
// A perfectly conducting plane is replaced by the image of the box in it. Below the plane are the mirrored electric
// field with its tangential part reversed and the mirrored magnetic field with its normal part reversed. Of the image
// currents, J is reversed along the plane and M across it, and the image radiates in a direction what the box radiates
// in the mirrored one. Box and image together are closed without the face on the plane.

#include "results/FarZoneTransform.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "results/FarZoneDirectSum.h"
#include "results/FarZoneSpectrum.h"

namespace quarn::farzone {

namespace {

constexpr double speedOfLight = 299792458.0;
constexpr double twoPi = 6.283185307179586;
constexpr double fourPi = 12.566370614359172;
constexpr double freeSpaceImpedance = 376.73031346177;
constexpr double largestMemory = 1024.0 * 1024.0 * 1024.0;

/// The integrals N and L.
struct Radiation {
    std::array<Complex, numAxes> electric{};
    std::array<Complex, numAxes> magnetic{};
};

/// The components of a face's sums, in their order.
enum Component : std::size_t { ElectricA, ElectricB, MagneticA, MagneticB };

Radiation radiationOf(const FaceSums& sums) {
    Radiation radiation;
    for (std::size_t normal = 0; normal < numAxes; ++normal) {
        const auto [a, b] = inPlaneAxes(normal);
        // The normal, a and b follow each other as x, y and z do, save for the normal y: its a and b are x and z.
        const double orientation = normal == 1 ? -1.0 : 1.0;
        for (const Side side : {Lower, Upper}) {
            const double sign = side == Upper ? orientation : -orientation;
            const ComponentSums& sum = sums[normal][side];
            radiation.electric[a] -= sign * sum[MagneticB];
            radiation.electric[b] += sign * sum[MagneticA];
            radiation.magnetic[a] += sign * sum[ElectricB];
            radiation.magnetic[b] -= sign * sum[ElectricA];
        }
    }
    return radiation;
}

Vector mirrored(Vector direction, std::size_t axis) {
    direction[axis] = -direction[axis];
    return direction;
}

/// Adds what the image radiates in a direction, given what the box radiates in the mirrored one.
void addImage(const Surface& surface, double waveNumber, const Vector& direction, const Radiation& inMirroredDirection,
              Radiation& radiation) {
    const double phase = 2.0 * waveNumber * surface.mirrorPosition * direction[surface.mirrorAxis];
    const Complex shift = std::polar(1.0, phase);
    for (std::size_t axis = 0; axis < numAxes; ++axis) {
        const double sign = axis == surface.mirrorAxis ? 1.0 : -1.0;
        radiation.electric[axis] += sign * shift * inMirroredDirection.electric[axis];
        radiation.magnetic[axis] -= sign * shift * inMirroredDirection.magnetic[axis];
    }
}

Complex dot(const std::array<Complex, numAxes>& a, const Vector& b) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }

FarField farFieldOf(const Radiation& radiation, const Direction& direction, double waveNumber) {
    const Complex factor(0.0, waveNumber / fourPi);
    return {-factor * (dot(radiation.magnetic, direction.phi) +
                       freeSpaceImpedance * dot(radiation.electric, direction.theta)),
            factor * (dot(radiation.magnetic, direction.theta) -
                      freeSpaceImpedance * dot(radiation.electric, direction.phi))};
}

/// What is looked up: the box in the direction, and where there is an image, in the mirrored direction next to it.
std::size_t lookupsPerDirection(const Surface& surface) { return surface.isMirrored() ? 2 : 1; }

std::size_t putLookups(const Surface& surface, const Direction& direction, Vector* lookups) {
    lookups[0] = direction.r;
    if (surface.isMirrored()) lookups[1] = mirrored(direction.r, surface.mirrorAxis);
    return lookupsPerDirection(surface);
}

FarField farFieldFrom(const Surface& surface, double waveNumber, const Direction& direction, const FaceSums* sums) {
    Radiation radiation = radiationOf(sums[0]);
    if (surface.isMirrored()) addImage(surface, waveNumber, direction.r, radiationOf(sums[1]), radiation);
    return farFieldOf(radiation, direction, waveNumber);
}

bool transformDirectly(const Surface& surface, double waveNumber, const std::vector<Direction>& directions,
                       Progress& progress, std::vector<FarField>& fields) {
    DirectSum direct(surface, waveNumber);
    std::array<Vector, DirectSum::blockSize> lookups;
    std::array<FaceSums, DirectSum::blockSize> sums;
    const std::size_t step = lookupsPerDirection(surface);
    const std::size_t block = DirectSum::blockSize / step;
    for (std::size_t begin = 0; begin < directions.size(); begin += block) {
        const std::size_t count = std::min(block, directions.size() - begin);
        for (std::size_t i = 0; i < count; ++i) putLookups(surface, directions[begin + i], &lookups[i * step]);
        if (!direct.evaluate(lookups.data(), count * step, sums.data(), progress)) return false;
        for (std::size_t i = 0; i < count; ++i) {
            fields[begin + i] = farFieldFrom(surface, waveNumber, directions[begin + i], &sums[i * step]);
        }
    }
    return true;
}

bool isFinite(const Vector& v) { return std::isfinite(v[0] + v[1] + v[2]); }

FarField notANumber() {
    const Complex nan(std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::quiet_NaN());
    return {nan, nan};
}

bool transformSampled(const Surface& surface, double waveNumber, const std::vector<Direction>& directions,
                      Progress& progress, std::vector<FarField>& fields) {
    Spectrum spectrum(surface, waveNumber);
    if (!spectrum.sample(progress)) return false;
    constexpr std::size_t directionsPerReport = 256;
    const double cost =
        Spectrum::lookupCost() * static_cast<double>(directionsPerReport * lookupsPerDirection(surface));
    for (std::size_t i = 0; i < directions.size(); ++i) {
        if (i % directionsPerReport == directionsPerReport - 1 && !progress.advance(cost)) return false;
        if (!isFinite(directions[i].r)) {
            fields[i] = notANumber();
            continue;
        }
        Vector lookups[2];
        FaceSums sums[2];
        const std::size_t count = putLookups(surface, directions[i], lookups);
        for (std::size_t lookup = 0; lookup < count; ++lookup) sums[lookup] = spectrum.sumsAt(lookups[lookup]);
        fields[i] = farFieldFrom(surface, waveNumber, directions[i], sums);
    }
    return true;
}

}  // namespace

Direction::Direction(double polarAngle, double azimuth) {
    const double sinTheta = std::sin(polarAngle);
    const double cosTheta = std::cos(polarAngle);
    const double sinPhi = std::sin(azimuth);
    const double cosPhi = std::cos(azimuth);
    r = {sinTheta * cosPhi, sinTheta * sinPhi, cosTheta};
    theta = {cosTheta * cosPhi, cosTheta * sinPhi, -sinTheta};
    phi = {-sinPhi, cosPhi, 0.0};
}

double waveNumberOf(double frequency) { return twoPi * frequency / speedOfLight; }

Method fasterMethod(const Surface& surface, double waveNumber, std::size_t numDirections) {
    if (!(waveNumber > 0.0)) return Method::Direct;
    const double sampled = costOf(Method::Sampled, surface, waveNumber, numDirections);
    const bool isSampledFaster = sampled < costOf(Method::Direct, surface, waveNumber, numDirections);
    return isSampledFaster && Spectrum::memory(surface, waveNumber) < largestMemory ? Method::Sampled : Method::Direct;
}

double costOf(Method method, const Surface& surface, double waveNumber, std::size_t numDirections) {
    const double lookups = static_cast<double>(numDirections * lookupsPerDirection(surface));
    if (method == Method::Direct) return DirectSum::cost(surface, lookups);
    return Spectrum::samplingCost(surface, waveNumber) + lookups * Spectrum::lookupCost();
}

bool transform(const Surface& surface, double waveNumber, Method method, const std::vector<Direction>& directions,
               Progress& progress, std::vector<FarField>& fields) {
    return method == Method::Direct ? transformDirectly(surface, waveNumber, directions, progress, fields)
                                    : transformSampled(surface, waveNumber, directions, progress, fields);
}

}  // namespace quarn::farzone
