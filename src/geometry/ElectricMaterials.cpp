#include "quarn/ElectricMaterials.h"

#include "geometry/ElectricMaterialBlocks.h"
#include "geometry/MaterialEquality.h"

namespace quarn {

namespace {

std::array<float, 3> perAxis(const float* values) { return {values[0], values[1], values[2]}; }

std::array<std::array<float, 3>, 3> tensor(const float (*rows)[3]) {
    return {perAxis(rows[0]), perAxis(rows[1]), perAxis(rows[2])};
}

}  // namespace

ElectricFreeSpace::ElectricFreeSpace(const QString& name) : Material(name, Material::ElectricFreeSpace) {}

bool ElectricFreeSpace::operator==(const Material& other) const { return isEqual(*this, other); }

ElectricPerfectConductor::ElectricPerfectConductor(const QString& name)
    : Material(name, Material::ElectricPerfectConductor) {}

bool ElectricPerfectConductor::operator==(const Material& other) const { return isEqual(*this, other); }

ElectricNormal::ElectricNormal(const QString& name, float conductivity, float uncorrectedConductivity,
                               float relativePermittivity)
    : Material(name, Material::ElectricNormal),
      m_conductivity(conductivity),
      m_uncorrectedConductivity(uncorrectedConductivity),
      m_relativePermittivity(relativePermittivity) {}

bool ElectricNormal::operator==(const Material& other) const { return isEqual(*this, other); }

ElectricSampled::ElectricSampled(const QString& name, const std::vector<Parameters>& parameters,
                                 bool useSurfaceConductivity, bool useLossTangent, bool useComplex)
    : Material(name, Material::ElectricSampled),
      m_parameters(parameters),
      m_useSurfaceConductivity(useSurfaceConductivity),
      m_useLossTangent(useLossTangent),
      m_useComplex(useComplex) {}

bool ElectricSampled::operator==(const Material& other) const { return isEqual(*this, other); }

ElectricAnisotropic::ElectricAnisotropic(const QString& name, const float (*conductivity)[3],
                                         const float (*permittivity)[3])
    : Material(name, Material::ElectricAnisotropic),
      m_conductivity(tensor(conductivity)),
      m_relativePermittivity(tensor(permittivity)) {}

bool ElectricAnisotropic::operator==(const Material& other) const { return isEqual(*this, other); }

ElectricNonlinear::ElectricNonlinear(const QString& name, const float* conductivity, const float* relativePermittivity1,
                                     const float* relativePermittivity2, const float* a1, const float* a2,
                                     const float* a3, const float* es, const float* eo)
    : Material(name, Material::ElectricNonlinear),
      m_conductivity(perAxis(conductivity)),
      m_relativePermittivity1(perAxis(relativePermittivity1)),
      m_relativePermittivity2(perAxis(relativePermittivity2)),
      m_a1(perAxis(a1)),
      m_a2(perAxis(a2)),
      m_a3(perAxis(a3)),
      m_es(perAxis(es)),
      m_eo(perAxis(eo)) {}

bool ElectricNonlinear::operator==(const Material& other) const { return isEqual(*this, other); }

ElectricThinWire::ElectricThinWire(const QString& name, float radius)
    : Material(name, Material::ElectricThinWire), m_radius(radius) {}

bool ElectricThinWire::operator==(const Material& other) const { return isEqual(*this, other); }

ElectricSurfaceResistance::ElectricSurfaceResistance(const QString& name, const std::complex<double>& surfaceResistance,
                                                     double thickness)
    : Material(name, Material::ElectricSurfaceResistance),
      m_resistance(surfaceResistance.real()),
      m_reactance(surfaceResistance.imag()),
      m_thickness(thickness) {}

bool ElectricSurfaceResistance::operator==(const Material& other) const { return isEqual(*this, other); }

}  // namespace quarn
