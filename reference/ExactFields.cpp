#include "reference/ExactFields.h"

#include <cmath>

#include "quarn/PhysicalConstants.h"

namespace quarn::reference {

using constants::freeSpaceImpedance;
using constants::pi;

namespace {

constexpr Complex j(0.0, 1.0);

template <class A, class B>
auto dot(const A& a, const B& b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

Vector difference(const Vector& a, const Vector& b) { return {a[0] - b[0], a[1] - b[1], a[2] - b[2]}; }

ComplexVector cross(const ComplexVector& a, const Vector& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

ComplexVector scaled(const ComplexVector& a, Complex factor) { return {a[0] * factor, a[1] * factor, a[2] * factor}; }

template <class A>
void addScaled(ComplexVector& sum, const A& a, Complex factor) {
    for (std::size_t axis = 0; axis < 3; ++axis) sum[axis] += a[axis] * factor;
}

struct Direction {
    Vector r;
    Vector theta;
    Vector phi;
};

Direction directionOf(double theta, double phi) {
    return {{std::sin(theta) * std::cos(phi), std::sin(theta) * std::sin(phi), std::cos(theta)},
            {std::cos(theta) * std::cos(phi), std::cos(theta) * std::sin(phi), -std::sin(theta)},
            {-std::sin(phi), std::cos(phi), 0.0}};
}

/// The field of a current element's own kind (E for an electric, H for a magnetic one) at `offset` from it, in units of
/// the impedance or the admittance of free space.
ComplexVector ownField(const ComplexVector& moment, const Vector& offset, double k) {
    const double r = std::sqrt(dot(offset, offset));
    const Vector unit{offset[0] / r, offset[1] / r, offset[2] / r};
    const Complex wave = std::exp(-j * k * r) / (4.0 * pi * r);
    const Complex transverse = -j * k * (1.0 + 1.0 / (j * k * r) - 1.0 / (k * k * r * r)) * wave;
    const Complex radial = 2.0 / r * (1.0 + 1.0 / (j * k * r)) * wave;
    ComplexVector field = scaled(moment, transverse);
    addScaled(field, unit, (radial - transverse) * dot(moment, unit));
    return field;
}

/// The field of the other kind, for an electric current.
ComplexVector otherField(const ComplexVector& moment, const Vector& offset, double k) {
    const double r = std::sqrt(dot(offset, offset));
    const Complex wave = std::exp(-j * k * r) / (4.0 * pi * r);
    return scaled(cross(moment, offset), (j * k + 1.0 / r) * wave / r);
}

}  // namespace

double waveNumberOf(double frequency) { return 2.0 * pi * frequency / constants::speedOfLight; }

Field ElectricDipole::near(const Vector& point, double waveNumber) const {
    const Vector offset = difference(point, m_position);
    return {scaled(ownField(m_moment, offset, waveNumber), freeSpaceImpedance),
            otherField(m_moment, offset, waveNumber)};
}

FarField ElectricDipole::far(double theta, double phi, double waveNumber, const Vector& origin) const {
    const Direction direction = directionOf(theta, phi);
    const double path = dot(difference(m_position, origin), direction.r);
    const Complex factor = -j * freeSpaceImpedance * waveNumber / (4.0 * pi) * std::exp(j * waveNumber * path);
    return {factor * dot(m_moment, direction.theta), factor * dot(m_moment, direction.phi)};
}

// The dual of an electric current element: the magnetic current moment is j w mu times the loop's moment.
Field MagneticDipole::near(const Vector& point, double waveNumber) const {
    const Vector offset = difference(point, m_position);
    const ComplexVector current = scaled(m_moment, j * waveNumber * freeSpaceImpedance);
    return {scaled(otherField(current, offset, waveNumber), -1.0),
            scaled(ownField(current, offset, waveNumber), 1.0 / freeSpaceImpedance)};
}

FarField MagneticDipole::far(double theta, double phi, double waveNumber, const Vector& origin) const {
    const Direction direction = directionOf(theta, phi);
    const double path = dot(difference(m_position, origin), direction.r);
    const ComplexVector current = scaled(m_moment, j * waveNumber * freeSpaceImpedance);
    const Complex factor = j * waveNumber / (4.0 * pi) * std::exp(j * waveNumber * path);
    return {-factor * dot(current, direction.phi), factor * dot(current, direction.theta)};
}

Field WireDipole::near(const Vector& point, double waveNumber) const {
    const Vector offset = difference(point, m_middle);
    const double half = 0.5 * m_length;
    const double s = dot(offset, m_direction);
    Vector radial = offset;
    for (std::size_t axis = 0; axis < 3; ++axis) radial[axis] -= s * m_direction[axis];
    const double rho = std::sqrt(dot(radial, radial));

    const auto spherical = [&](double from) {
        const double distance = std::hypot(rho, s - from);
        return std::exp(-j * waveNumber * distance) / distance;
    };
    const Complex upper = spherical(half);
    const Complex lower = spherical(-half);
    const Complex middle = 2.0 * std::cos(waveNumber * half) * spherical(0.0);
    const Complex factor = j * m_current / (4.0 * pi);

    Field field;
    addScaled(field.e, m_direction, -freeSpaceImpedance * factor * (upper + lower - middle));
    if (rho < 1e-9 * (half + std::abs(s))) return field;  // on the axis nothing points away from it
    const Complex across = freeSpaceImpedance * factor * ((s - half) * upper + (s + half) * lower - s * middle);
    addScaled(field.e, radial, across / (rho * rho));
    const Complex around =
        factor * (upper * std::hypot(rho, s - half) + lower * std::hypot(rho, s + half) - middle * std::hypot(rho, s));
    const ComplexVector direction{m_direction[0], m_direction[1], m_direction[2]};
    addScaled(field.h, cross(direction, radial), around / (rho * rho));
    return field;
}

FarField WireDipole::far(double theta, double phi, double waveNumber, const Vector& origin) const {
    const Direction direction = directionOf(theta, phi);
    const double path = dot(difference(m_middle, origin), direction.r);
    const double halfPhase = 0.5 * waveNumber * m_length;
    const double cosine = dot(direction.r, m_direction);
    const double sineSquared = 1.0 - cosine * cosine;
    const double pattern = sineSquared < 1e-9 ? 0.5 * halfPhase * std::sin(halfPhase)
                                              : (std::cos(halfPhase * cosine) - std::cos(halfPhase)) / sineSquared;
    const Complex factor = -j * freeSpaceImpedance * m_current / (2.0 * pi) * pattern * std::exp(j * waveNumber * path);
    return {factor * dot(m_direction, direction.theta), factor * dot(m_direction, direction.phi)};
}

Field Sources::near(const Vector& point, double waveNumber) const {
    Field sum;
    for (const auto& source : m_sources) {
        const Field field = source->near(point, waveNumber);
        addScaled(sum.e, field.e, 1.0);
        addScaled(sum.h, field.h, 1.0);
    }
    return sum;
}

FarField Sources::far(double theta, double phi, double waveNumber, const Vector& origin) const {
    FarField sum;
    for (const auto& source : m_sources) {
        const FarField field = source->far(theta, phi, waveNumber, origin);
        sum.theta += field.theta;
        sum.phi += field.phi;
    }
    return sum;
}

}  // namespace quarn::reference
