#include "quarn/ElectricDispersiveMaterials.h"

#include <utility>

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

bool ElectricDebye::operator==(const Material& other) const {
    return isEqual(*this,
                   other,
                   &ElectricDebye::m_conductivity,
                   &ElectricDebye::m_relativePermittivity,
                   &ElectricDebye::m_staticRelativePermittivity,
                   &ElectricDebye::m_relaxationTime,
                   &ElectricDebye::m_effectiveConductivities);
}

ElectricLorentz::ElectricLorentz(const QString& name, float conductivity, float relativePermittivity,
                                 float staticRelativePermittivity, float resonantFrequency, float dampingCoefficient,
                                 const std::vector<float>& effectiveConductivities)
    : ElectricDispersive(name, Material::ElectricLorentz, effectiveConductivities),
      m_conductivity(conductivity),
      m_relativePermittivity(relativePermittivity),
      m_staticRelativePermittivity(staticRelativePermittivity),
      m_resonantFrequency(resonantFrequency),
      m_dampingCoefficient(dampingCoefficient) {}

bool ElectricLorentz::operator==(const Material& other) const {
    return isEqual(*this,
                   other,
                   &ElectricLorentz::m_conductivity,
                   &ElectricLorentz::m_relativePermittivity,
                   &ElectricLorentz::m_staticRelativePermittivity,
                   &ElectricLorentz::m_resonantFrequency,
                   &ElectricLorentz::m_dampingCoefficient,
                   &ElectricLorentz::m_effectiveConductivities);
}

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

bool Electric3PoleDebye::operator==(const Material& other) const {
    return isEqual(*this,
                   other,
                   &Electric3PoleDebye::m_relativePermittivity,
                   &Electric3PoleDebye::m_staticRelativePermittivities,
                   &Electric3PoleDebye::m_relaxationTimes,
                   &Electric3PoleDebye::m_conductivity,
                   &Electric3PoleDebye::m_effectiveConductivities);
}

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

bool Electric7PoleDebye::operator==(const Material& other) const {
    return isEqual(*this,
                   other,
                   &Electric7PoleDebye::m_relativePermittivity,
                   &Electric7PoleDebye::m_staticRelativePermittivities,
                   &Electric7PoleDebye::m_relaxationTimes,
                   &Electric7PoleDebye::m_conductivity,
                   &Electric7PoleDebye::m_effectiveConductivities);
}

ElectricDjordjevic::ElectricDjordjevic(const QString& name, float relativePermittivity, float imaginaryPart,
                                       float evalFrequency, float lowFrequency, float highFrequency)
    : Material(name, Material::ElectricDjordjevic),
      m_relativePermittivity(relativePermittivity),
      m_imaginaryPart(imaginaryPart),
      m_evalFrequency(evalFrequency),
      m_lowFrequency(lowFrequency),
      m_highFrequency(highFrequency) {}

bool ElectricDjordjevic::operator==(const Material& other) const {
    return isEqual(*this,
                   other,
                   &ElectricDjordjevic::m_relativePermittivity,
                   &ElectricDjordjevic::m_useLossTangent,
                   &ElectricDjordjevic::m_imaginaryPart,
                   &ElectricDjordjevic::m_evalFrequency,
                   &ElectricDjordjevic::m_lowFrequency,
                   &ElectricDjordjevic::m_highFrequency);
}

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

bool ElectricDebyeLorentzColeCole::operator==(const Material& other) const {
    return isEqual(*this,
                   other,
                   &ElectricDebyeLorentzColeCole::m_relativePermittivity,
                   &ElectricDebyeLorentzColeCole::m_conductivity,
                   &ElectricDebyeLorentzColeCole::m_debyeTerms,
                   &ElectricDebyeLorentzColeCole::m_lorentzTerms,
                   &ElectricDebyeLorentzColeCole::m_coleColeTerms);
}

}  // namespace quarn
