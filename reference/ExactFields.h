#pragma once

#include <QString>
#include <array>
#include <complex>
#include <memory>
#include <vector>

namespace quarn {
class FarZoneBox;
class Grid;
}  // namespace quarn

/// Sources in free space whose fields are known in closed form, near and far. What an engine and a far-zone
/// transformation make of them can be held against these. Fields vary as exp(+j w t).
namespace quarn::reference {

using Complex = std::complex<double>;
using Vector = std::array<double, 3>;
using ComplexVector = std::array<Complex, 3>;

/// In free space, in 1/m.
double waveNumberOf(double frequency);

struct Field {
    ComplexVector e{};  ///< V/m
    ComplexVector h{};  ///< A/m
};

/// Distance times field in volts, without exp(-j k r): the phase refers to the origin that was asked for.
struct FarField {
    Complex theta;
    Complex phi;
};

class Source {
public:
    virtual ~Source() = default;

    /// At a point in metres that does not lie in the source.
    virtual Field near(const Vector& point, double waveNumber) const = 0;

    /// Angles in radians.
    virtual FarField far(double theta, double phi, double waveNumber, const Vector& origin) const = 0;
};

/// A current element of length much shorter than a wavelength (Balanis, Antenna Theory, 3rd edition, section 4.2).
class ElectricDipole : public Source {
public:
    /// The moment is current times length, in A m.
    ElectricDipole(const Vector& position, const ComplexVector& moment) : m_position(position), m_moment(moment) {}
    Field near(const Vector& point, double waveNumber) const override;
    FarField far(double theta, double phi, double waveNumber, const Vector& origin) const override;

private:
    Vector m_position;
    ComplexVector m_moment;
};

/// A current loop much smaller than a wavelength (the same, section 5.2).
class MagneticDipole : public Source {
public:
    /// The moment is current times area along the loop's axis, in A m^2.
    MagneticDipole(const Vector& position, const ComplexVector& moment) : m_position(position), m_moment(moment) {}
    Field near(const Vector& point, double waveNumber) const override;
    FarField far(double theta, double phi, double waveNumber, const Vector& origin) const override;

private:
    Vector m_position;
    ComplexVector m_moment;
};

/// A thin straight wire of finite length with the current I sin(k (length / 2 - |s|)), s from its middle (the same,
/// section 4.5 for the far and section 8.5 for the near field).
class WireDipole : public Source {
public:
    /// The direction is a unit vector; the current is I in A, which is that at the middle of half a wavelength.
    WireDipole(const Vector& middle, const Vector& direction, double length, Complex current)
        : m_middle(middle), m_direction(direction), m_length(length), m_current(current) {}
    Field near(const Vector& point, double waveNumber) const override;
    FarField far(double theta, double phi, double waveNumber, const Vector& origin) const override;

private:
    Vector m_middle;
    Vector m_direction;
    double m_length;
    Complex m_current;
};

/// What several sources radiate together.
class Sources : public Source {
public:
    void add(std::unique_ptr<Source> source) { m_sources.push_back(std::move(source)); }
    Field near(const Vector& point, double waveNumber) const override;
    FarField far(double theta, double phi, double waveNumber, const Vector& origin) const override;

private:
    std::vector<std::unique_ptr<Source>> m_sources;
};

/// Writes the near field of the source on a valid box as the engine writes the box field file: in the middle of each
/// cell of each face, which stands at its node. The grid has nodes. False when the file cannot be written.
bool writeBoxFields(const QString& path, const Grid& grid, const FarZoneBox& box, const Source& source,
                    double frequency);

}  // namespace quarn::reference
