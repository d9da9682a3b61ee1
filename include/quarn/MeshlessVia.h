#pragma once

#include <array>
#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

#include "quarn/Export.h"

namespace quarn {

/// A point with the place in the mesh where it lies.
class QUARN_EXPORT QualifiedPoint {
public:
    enum Type : std::int32_t { Unset = -1, OnVertex = 0, OnEdge = 1, OnFace = 2, InElement = 3 };

    QualifiedPoint() = default;

    /// `id` is the number of the vertex, edge, face or element.
    QualifiedPoint(double x, double y, double z, Type type, int id) : m_coord{x, y, z}, m_type(type), m_id(id) {}
    QualifiedPoint(const double* coordinates, Type type, int id)
        : QualifiedPoint(coordinates[0], coordinates[1], coordinates[2], type, id) {}

    /// Coordinate 0, 1 or 2 in metres.
    const double& coord(int axis) const { return m_coord[static_cast<std::size_t>(axis)]; }
    const double& operator[](int axis) const { return coord(axis); }
    std::vector<double> coordVec() const { return {m_coord.begin(), m_coord.end()}; }
    const Type& type() const { return m_type; }
    const int& id() const { return m_id; }

    std::string str() const;

    QUARN_EXPORT friend bool operator==(const QualifiedPoint& a, const QualifiedPoint& b);
    friend bool operator!=(const QualifiedPoint& a, const QualifiedPoint& b) { return !(a == b); }

private:
    std::array<double, 3> m_coord{};
    Type m_type = Unset;
    std::int32_t m_id = -1;
};

/// A thin cylindrical conductor between two points that the grid does not resolve: solid, or coaxial with a dielectric
/// between its two radii. Lengths are in metres.
///
/// Via files are binary: a check value, a count, and the vias, in the byte order of the machine. Failures of files and
/// streams are reported as std::runtime_error, and a list that could not be read is left empty. A count is never
/// trusted: memory grows only with what was read.
class QUARN_EXPORT MeshlessVia {
public:
    /// Unset points, radii of -1 and material values of 0.
    MeshlessVia() = default;

    /// A solid via; resistivity in ohm metres, permeability in H/m.
    MeshlessVia(const QualifiedPoint& first, const QualifiedPoint& second, double radius, double resistivity,
                double permeability);

    /// A coaxial via. Throws a std::runtime_error unless the inner radius is below the outer one.
    MeshlessVia(const QualifiedPoint& first, const QualifiedPoint& second, double outerRadius, double innerRadius,
                double resistivity, double permeability);

    const QualifiedPoint& getFirstPoint() const { return m_first; }
    const QualifiedPoint& getSecondPoint() const { return m_second; }
    double getOuterRadius() const { return m_outerRadius; }

    /// Zero or less for a solid via.
    double getInnerRadius() const { return m_innerRadius; }
    double getResistivity() const { return m_resistivity; }
    double getPermeability() const { return m_permeability; }

    /// The permittivity of the dielectric between the radii, in F/m.
    double getInnerDielectricPermittivity() const { return m_innerDielectricPermittivity; }
    void setInnerDielectricPermittivity(double permittivity) { m_innerDielectricPermittivity = permittivity; }

    std::string str() const;

    /// The number of vias that the file at `path` names; 0 when it cannot be opened or ends before the number.
    static std::uint64_t getNbMeshlessVias(const std::string& path);
    static std::vector<MeshlessVia> load_binary(const std::string& path);
    static void read_binary(std::vector<MeshlessVia>& vias, const std::string& path);
    static void read_binary_stream(std::vector<MeshlessVia>& vias, std::istream& stream);

    /// Writes through a FileReplacement. Throws a std::runtime_error when that fails; an earlier file then stays as it
    /// was where it could be replaced.
    static void write_binary(const std::vector<MeshlessVia>& vias, const std::string& path);
    static void write_binary_stream(const std::vector<MeshlessVia>& vias, std::ostream& stream);

    static constexpr std::uint64_t byte_order_check = 123456;

    QUARN_EXPORT friend bool operator==(const MeshlessVia& a, const MeshlessVia& b);
    friend bool operator!=(const MeshlessVia& a, const MeshlessVia& b) { return !(a == b); }

private:
    QualifiedPoint m_first;
    QualifiedPoint m_second;
    double m_outerRadius = -1.0;
    double m_innerRadius = -1.0;
    double m_resistivity = 0.0;
    double m_permeability = 0.0;
    double m_innerDielectricPermittivity = 0.0;
};

}  // namespace quarn
