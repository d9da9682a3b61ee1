#include "quarn/MagneticMaterials.h"

#include "geometry/MagneticMaterialBlocks.h"
#include "geometry/MaterialEquality.h"

namespace quarn {

MagneticFreeSpace::MagneticFreeSpace(const QString& name) : Material(name, Material::MagneticFreeSpace) {}

bool MagneticFreeSpace::operator==(const Material& other) const { return isEqual(*this, other); }

MagneticPerfectConductor::MagneticPerfectConductor(const QString& name)
    : Material(name, Material::MagneticPerfectConductor) {}

bool MagneticPerfectConductor::operator==(const Material& other) const { return isEqual(*this, other); }

MagneticNormal::MagneticNormal(const QString& name, float conductivity, float relativePermeability)
    : Material(name, Material::MagneticNormal),
      m_conductivity(conductivity),
      m_relativePermeability(relativePermeability) {}

bool MagneticNormal::operator==(const Material& other) const { return isEqual(*this, other); }

MagneticFerrite::MagneticFerrite(const QString& name, float precessionalFrequency, float saturationMagnetization,
                                 float dampingCoefficient, float theta, float phi)
    : Material(name, Material::MagneticFerrite),
      m_precessionalFrequency(precessionalFrequency),
      m_saturationMagnetization(saturationMagnetization),
      m_dampingCoefficient(dampingCoefficient),
      m_theta(theta),
      m_phi(phi) {}

bool MagneticFerrite::operator==(const Material& other) const { return isEqual(*this, other); }

MagneticDebye::MagneticDebye(const QString& name, float conductivity, float relativePermeability,
                             float staticRelativePermeability, float relaxationTime)
    : Material(name, Material::MagneticDebye),
      m_conductivity(conductivity),
      m_relativePermeability(relativePermeability),
      m_staticRelativePermeability(staticRelativePermeability),
      m_relaxationTime(relaxationTime) {}

bool MagneticDebye::operator==(const Material& other) const { return isEqual(*this, other); }

Magnetic7PoleDebye::Magnetic7PoleDebye(const QString& name, float relativePermeability,
                                       float staticRelativePermeability1, float staticRelativePermeability2,
                                       float staticRelativePermeability3, float staticRelativePermeability4,
                                       float staticRelativePermeability5, float staticRelativePermeability6,
                                       float staticRelativePermeability7, float relaxationTime1, float relaxationTime2,
                                       float relaxationTime3, float relaxationTime4, float relaxationTime5,
                                       float relaxationTime6, float relaxationTime7, float conductivity)
    : Material(name, Material::Magnetic7PoleDebye),
      m_relativePermeability(relativePermeability),
      m_staticRelativePermeabilities{staticRelativePermeability1,
                                     staticRelativePermeability2,
                                     staticRelativePermeability3,
                                     staticRelativePermeability4,
                                     staticRelativePermeability5,
                                     staticRelativePermeability6,
                                     staticRelativePermeability7},
      m_relaxationTimes{relaxationTime1,
                        relaxationTime2,
                        relaxationTime3,
                        relaxationTime4,
                        relaxationTime5,
                        relaxationTime6,
                        relaxationTime7},
      m_conductivity(conductivity) {}

bool Magnetic7PoleDebye::operator==(const Material& other) const { return isEqual(*this, other); }

MagneticNonlinear::MagneticNonlinear(const QString& name, float bClosure, float bBreakPoint, float hClosure,
                                     float saturatedRelativePermeability, float a1, float a2, float a3, float a4,
                                     float alpha, float c1, float c2, float c3, float b1Dot, float b2Dot)
    : Material(name, Material::MagneticNonlinear),
      m_bClosure(bClosure),
      m_bBreakPoint(bBreakPoint),
      m_hClosure(hClosure),
      m_saturatedRelativePermeability(saturatedRelativePermeability),
      m_a1(a1),
      m_a2(a2),
      m_a3(a3),
      m_a4(a4),
      m_alpha(alpha),
      m_c1(c1),
      m_c2(c2),
      m_c3(c3),
      m_b1Dot(b1Dot),
      m_b2Dot(b2Dot) {}

bool MagneticNonlinear::operator==(const Material& other) const { return isEqual(*this, other); }

MagneticSampled::MagneticSampled(const QString& name, const std::vector<Parameters>& parameters, bool useLossTangent,
                                 bool useComplex)
    : Material(name, Material::MagneticSampled),
      m_parameters(parameters),
      m_useLossTangent(useLossTangent),
      m_useComplex(useComplex) {}

bool MagneticSampled::operator==(const Material& other) const { return isEqual(*this, other); }

}  // namespace quarn
