#include "quarn/Material.h"

#include "geometry/PhysicalParametersBlock.h"

namespace quarn {

using namespace blocktext;

namespace {

constexpr auto physicalParameters = Description<PhysicalParameters>::block();

}  // namespace

PhysicalParameters::PhysicalParameters(float density, float heatCapacity, float thermalConductivity,
                                       float perfussionByBlood, float metabolicHeat)
    : m_density(density),
      m_heatCapacity(heatCapacity),
      m_thermalConductivity(thermalConductivity),
      m_perfussionByBlood(perfussionByBlood),
      m_metabolicHeat(metabolicHeat) {}

bool PhysicalParameters::streamIn(DelimManager& delim) {
    physicalParameters.read(delim, *this);
    return isOk(delim);
}

bool PhysicalParameters::streamOut(DelimManager& delim, const QString& label) const {
    return physicalParameters.write(delim, *this, label);
}

bool operator==(const PhysicalParameters& a, const PhysicalParameters& b) { return physicalParameters.areEqual(a, b); }

Material::~Material() = default;

Material& Material::operator=(const Material& other) {
    m_name = other.m_name;
    m_physicalParameters = other.m_physicalParameters;
    m_sharedParameters = other.m_sharedParameters;
    return *this;
}

bool Material::operator==(const Material& other) const {
    const bool hasParameters = m_physicalParameters != nullptr;
    return hasParameters == (other.m_physicalParameters != nullptr) && m_type == other.m_type &&
           m_name == other.m_name && (!hasParameters || *m_physicalParameters == *other.m_physicalParameters);
}

void Material::sharePhysicalParameters(const std::shared_ptr<PhysicalParameters>& parameters) {
    m_sharedParameters = parameters;
    m_physicalParameters = parameters.get();
}

void Material::addPhysicalParameters(const PhysicalParameters* parameters) {
    m_physicalParameters = parameters ? new PhysicalParameters(*parameters) : nullptr;
}

void Material::addPhysicalParameters(const float& density, const float& heatCapacity, const float& thermalConductivity,
                                     const float& perfussionByBlood, const float& metabolicHeat) {
    m_physicalParameters =
        new PhysicalParameters(density, heatCapacity, thermalConductivity, perfussionByBlood, metabolicHeat);
}

}  // namespace quarn
