#pragma once

#include <QString>
#include <cstdint>
#include <memory>
#include <type_traits>

#include "quarn/Description.h"
#include "quarn/Export.h"

namespace quarn {

class DelimManager;

/// The thermal properties of a material, for temperature-rise runs.
class QUARN_EXPORT PhysicalParameters {
public:
    /// Density in kg/m^3, heat capacity in J/(kg K), thermal conductivity in W/(m K).
    PhysicalParameters(float density, float heatCapacity, float thermalConductivity, float perfussionByBlood,
                       float metabolicHeat);

    float getDensity() const { return m_density; }
    float getHeatCapacity() const { return m_heatCapacity; }
    float getThermalConductivity() const { return m_thermalConductivity; }
    float getPerfussionByBlood() const { return m_perfussionByBlood; }
    float getMetabolicHeat() const { return m_metabolicHeat; }

    /// Reads the rest of the "PhysicalParameters" block at the reader's position, with the keys in any order. A missing
    /// key keeps its value, an unknown one is skipped with its line, and an unreadable number ends the reading. Returns
    /// whether the stream has no error.
    bool streamIn(DelimManager& delim);

    /// Writes the block "PhysicalParameters" with `label` as its value. Returns whether the stream has no error.
    bool streamOut(DelimManager& delim, const QString& label) const;

    QUARN_EXPORT friend bool operator==(const PhysicalParameters& a, const PhysicalParameters& b);
    friend bool operator!=(const PhysicalParameters& a, const PhysicalParameters& b) { return !(a == b); }

private:
    friend struct blocktext::Description<PhysicalParameters>;

    float m_density;
    float m_heatCapacity;
    float m_thermalConductivity;
    float m_perfussionByBlood;
    float m_metabolicHeat;
};

/// A material of the geometry file: a name, and thermal properties where a run needs them. The classes that derive from
/// it hold the electric or magnetic data; getMaterialType() says which one an object is.
///
/// Ownership of the physical parameters: copies of a material share them. Those that a GeometryFile made, by loading or
/// as a copy, live as long as any material that shares them, as do those that sharePhysicalParameters() stored; nobody
/// else deletes them. Those that addPhysicalParameters() made belong to the caller, who deletes them once, after the
/// last material that shares them; getPhysicalParameters() gives access to them.
class QUARN_EXPORT Material {
public:
    /// Each class has the type that bears its name. Value 21 belongs to none and stays free.
    enum MaterialType : std::int32_t {
        ElectricFreeSpace = 0,
        ElectricPerfectConductor = 1,
        ElectricNormal = 2,
        ElectricSampled = 3,
        ElectricDebye = 4,
        ElectricLorentz = 5,
        ElectricAnisotropic = 6,
        ElectricNonlinear = 7,
        ElectricThinWire = 8,
        Electric3PoleDebye = 9,
        Electric7PoleDebye = 10,
        ElectricDjordjevic = 11,
        ElectricDebyeLorentzColeCole = 12,
        MagneticFreeSpace = 13,
        MagneticPerfectConductor = 14,
        MagneticNormal = 15,
        MagneticFerrite = 16,
        MagneticDebye = 17,
        Magnetic7PoleDebye = 18,
        MagneticNonlinear = 19,
        MagneticSampled = 20,
        ElectricSurfaceResistance = 22
    };

    /// A material of no class of the library: its type is 21, and a geometry file cannot carry it.
    explicit Material(const QString& name) : Material(name, static_cast<MaterialType>(21)) {}

    virtual ~Material();

    /// Equal when the other is of the same class with the same name, both or neither have physical parameters, and
    /// these and the class's own fields compare equal; a NaN is equal to nothing. Classes say where they leave out a
    /// field.
    virtual bool operator==(const Material& other) const;
    bool operator!=(const Material& other) const { return !(*this == other); }

    Material(const Material& other) = default;

    /// The type of a material never changes.
    Material& operator=(const Material& other);

    QString getName() const { return m_name; }
    MaterialType getMaterialType() const { return m_type; }

    /// Null when there are none.
    PhysicalParameters* getPhysicalParameters() const { return m_physicalParameters; }

    /// Stores parameters that live at least as long as this material and its copies, or null.
    void sharePhysicalParameters(const std::shared_ptr<PhysicalParameters>& parameters);

    /// Stores a new copy of the parameters, which the caller owns, or null. What was stored before is not deleted.
    void addPhysicalParameters(const PhysicalParameters* parameters);
    void addPhysicalParameters(const float& density, const float& heatCapacity, const float& thermalConductivity,
                               const float& perfussionByBlood, const float& metabolicHeat);

protected:
    Material(const QString& name, MaterialType type) : m_type(type), m_name(name) {}

private:
    MaterialType m_type;
    QString m_name;
    PhysicalParameters* m_physicalParameters = nullptr;
    std::shared_ptr<PhysicalParameters> m_sharedParameters;  // kept also when others are added
};

/// Compares objects of any two classes of materials by the operator of the left one. Without it C++20 would find that
/// the operators of both classes match a comparison equally well. Where the left one is known as a Material only, C++20
/// may take the operator of the right one; with the classes of the library both give the same.
template <class Left, class Right>
std::enable_if_t<std::is_base_of_v<Material, Left> && std::is_base_of_v<Material, Right>, bool> operator==(
    const Left& left, const Right& right) {
    return static_cast<const Material&>(left) == static_cast<const Material&>(right);
}

}  // namespace quarn
