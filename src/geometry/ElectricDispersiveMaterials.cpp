#include "quarn/ElectricDispersiveMaterials.h"

#include <utility>

#include "geometry/ElectricDispersiveMaterialBlocks.h"
#include "geometry/MaterialEquality.h"

namespace quarn {

ElectricDispersive::ElectricDispersive(const QString& name, MaterialType type,
                                       const std::vector<float>& effectiveConductivities)
    : Material(name, type), m_effectiveConductivities(effectiveConductivities) {}

ElectricDebye::ElectricDebye(const QString& name, float conductivity, float relativePermittivity,
                             float staticRelativePermittivity, float relaxationTime,
                             const std::vector<float>& effectiveConductivities)
    : ElectricDispersive(name, Material::ElectricDebye, effectiveConductivities),
      m_conductivity(conductivity),
      m_relativePermittivity(relativePermittivity),
      m_staticRelativePermittivity(staticRelativePermittivity),
      m_relaxationTime(relaxationTime) {}

bool ElectricDebye::operator==(const Material& other) const { return isEqual(*this, other); }

ElectricLorentz::ElectricLorentz(const QString& name, float conductivity, float relativePermittivity,
                                 float staticRelativePermittivity, float resonantFrequency, float dampingCoefficient,
                                 const std::vector<float>& effectiveConductivities)
    : ElectricDispersive(name, Material::ElectricLorentz, effectiveConductivities),
      m_conductivity(conductivity),
      m_relativePermittivity(relativePermittivity),
      m_staticRelativePermittivity(staticRelativePermittivity),
      m_resonantFrequency(resonantFrequency),
      m_dampingCoefficient(dampingCoefficient) {}

bool ElectricLorentz::operator==(const Material& other) const { return isEqual(*this, other); }

Electric3PoleDebye::Electric3PoleDebye(const QString& name, float relativePermittivity,
                                       float staticRelativePermittivity1, float staticRelativePermittivity2,
                                       float staticRelativePermittivity3, float relaxationTime1, float relaxationTime2,
                                       float relaxationTime3, float conductivity,
                                       const std::vector<float>& effectiveConductivities)
    : ElectricDispersive(name, Material::Electric3PoleDebye, effectiveConductivities),
      m_relativePermittivity(relativePermittivity),
      m_staticRelativePermittivities{
          staticRelativePermittivity1, staticRelativePermittivity2, staticRelativePermittivity3},
      m_relaxationTimes{relaxationTime1, relaxationTime2, relaxationTime3},
      m_conductivity(conductivity) {}

bool Electric3PoleDebye::operator==(const Material& other) const { return isEqual(*this, other); }

Electric7PoleDebye::Electric7PoleDebye(const QString& name, float relativePermittivity,
                                       float staticRelativePermittivity1, float staticRelativePermittivity2,
                                       float staticRelativePermittivity3, float staticRelativePermittivity4,
                                       float staticRelativePermittivity5, float staticRelativePermittivity6,
                                       float staticRelativePermittivity7, float relaxationTime1, float relaxationTime2,
                                       float relaxationTime3, float relaxationTime4, float relaxationTime5,
                                       float relaxationTime6, float relaxationTime7, float conductivity,
                                       const std::vector<float>& effectiveConductivities)
    : ElectricDispersive(name, Material::Electric7PoleDebye, effectiveConductivities),
      m_relativePermittivity(relativePermittivity),
      m_staticRelativePermittivities{staticRelativePermittivity1,
                                     staticRelativePermittivity2,
                                     staticRelativePermittivity3,
                                     staticRelativePermittivity4,
                                     staticRelativePermittivity5,
                                     staticRelativePermittivity6,
                                     staticRelativePermittivity7},
      m_relaxationTimes{relaxationTime1,
                        relaxationTime2,
                        relaxationTime3,
                        relaxationTime4,
                        relaxationTime5,
                        relaxationTime6,
                        relaxationTime7},
      m_conductivity(conductivity) {}

bool Electric7PoleDebye::operator==(const Material& other) const { return isEqual(*this, other); }

ElectricDjordjevic::ElectricDjordjevic(const QString& name, float relativePermittivity, float imaginaryPart,
                                       float evalFrequency, float lowFrequency, float highFrequency)
    : Material(name, Material::ElectricDjordjevic),
      m_relativePermittivity(relativePermittivity),
      m_imaginaryPart(imaginaryPart),
      m_evalFrequency(evalFrequency),
      m_lowFrequency(lowFrequency),
      m_highFrequency(highFrequency) {}

bool ElectricDjordjevic::operator==(const Material& other) const { return isEqual(*this, other); }

ElectricDebyeLorentzColeCole::ElectricDebyeLorentzColeCole(const QString& name, double relativePermittivity,
                                                           double conductivity, std::vector<DebyeSample> debyeTerms,
                                                           std::vector<LorentzSample> lorentzTerms,
                                                           std::vector<ColeColeSample> coleColeTerms)
    : Material(name, Material::ElectricDebyeLorentzColeCole),
      m_relativePermittivity(relativePermittivity),
      m_conductivity(conductivity),
      m_debyeTerms(std::move(debyeTerms)),
      m_lorentzTerms(std::move(lorentzTerms)),
      m_coleColeTerms(std::move(coleColeTerms)) {}

bool ElectricDebyeLorentzColeCole::operator==(const Material& other) const { return isEqual(*this, other); }

}  // namespace quarn
