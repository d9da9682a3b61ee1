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
// field with its tangential part reversed and the mirrored magnetic field with its normal part reversed. The image of J
// is reversed along the plane and that of M across it, and the image radiates in a direction what the box radiates in
// the mirrored one. Box and image together form a closed surface without the face on the plane.

#include "results/FarZoneTransform.h"

#include <algorithm>
#include <cmath>

#include "quarn/PhysicalConstants.h"
#include "results/FarZoneDirectSum.h"
#include "results/FarZoneSpectrum.h"

namespace quarn::farzone {

using constants::freeSpaceImpedance;
using constants::pi;

namespace {

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
    const Complex factor(0.0, waveNumber / (4.0 * pi));
    return {-factor * (dot(radiation.magnetic, direction.phi) +
                       freeSpaceImpedance * dot(radiation.electric, direction.theta)),
            factor * (dot(radiation.magnetic, direction.theta) -
                      freeSpaceImpedance * dot(radiation.electric, direction.phi))};
}

/// How many sums over the box a direction needs: one, and with an image another in the mirrored direction.
std::size_t lookupsPerDirection(const Surface& surface) { return surface.isMirrored() ? 2 : 1; }

void putLookups(const Surface& surface, const Direction& direction, Vector* lookups) {
    lookups[0] = direction.r;
    if (surface.isMirrored()) lookups[1] = mirrored(direction.r, surface.mirrorAxis);
}

FarField farFieldFrom(const Surface& surface, double waveNumber, const Direction& direction, const FaceSums* sums) {
    Radiation radiation = radiationOf(sums[0]);
    if (surface.isMirrored()) addImage(surface, waveNumber, direction.r, radiationOf(sums[1]), radiation);
    return farFieldOf(radiation, direction, waveNumber);
}

std::unique_ptr<FaceSummation> summationBy(Method method, const Surface& surface, double waveNumber) {
    if (method == Method::Direct) return std::make_unique<DirectSum>(surface, waveNumber);
    return std::make_unique<Spectrum>(surface, waveNumber);
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

double waveNumberOf(double frequency) { return 2.0 * pi * frequency / constants::speedOfLight; }

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

Transform::Transform(const Surface& surface, double waveNumber, Method method)
    : m_surface(surface), m_waveNumber(waveNumber), m_summation(summationBy(method, surface, waveNumber)) {}

bool Transform::apply(const std::vector<Direction>& directions, std::vector<FarField>& fields, Progress& progress) {
    std::array<Vector, FaceSummation::blockSize> lookups;
    std::array<FaceSums, FaceSummation::blockSize> sums;
    const std::size_t step = lookupsPerDirection(m_surface);
    const std::size_t block = FaceSummation::blockSize / step;
    fields.resize(directions.size());
    for (std::size_t begin = 0; begin < directions.size(); begin += block) {
        const std::size_t count = std::min(block, directions.size() - begin);
        for (std::size_t i = 0; i < count; ++i) putLookups(m_surface, directions[begin + i], &lookups[i * step]);
        if (!m_summation->evaluate(lookups.data(), count * step, sums.data(), progress)) return false;
        for (std::size_t i = 0; i < count; ++i) {
            fields[begin + i] = farFieldFrom(m_surface, m_waveNumber, directions[begin + i], &sums[i * step]);
        }
    }
    return true;
}

}  // namespace quarn::farzone
