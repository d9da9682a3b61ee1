#include "quarn/Material.h"

#include <tuple>

#include "blocktext/BlockWalker.h"
#include "blocktext/BlockWriter.h"

namespace quarn {

using namespace blocktext;

namespace {

namespace key {
constexpr auto PhysicalParameters = "PhysicalParameters"_key;
constexpr auto density = "density"_key;
constexpr auto heatCapacity = "heatCapacity"_key;
constexpr auto thermalConductivity = "thermalConductivity"_key;
constexpr auto perfussionByBlood = "perfussionByBlood"_key;
constexpr auto metabolicHeat = "metabolicHeat"_key;
}  // namespace key

}  // namespace

PhysicalParameters::PhysicalParameters(float density, float heatCapacity, float thermalConductivity,
                                       float perfussionByBlood, float metabolicHeat)
    : m_density(density),
      m_heatCapacity(heatCapacity),
      m_thermalConductivity(thermalConductivity),
      m_perfussionByBlood(perfussionByBlood),
      m_metabolicHeat(metabolicHeat) {}

bool PhysicalParameters::streamIn(DelimManager& delim) {
    walkWords(delim,
              Unknown::DropLine,
              onValue(key::density, m_density),
              onValue(key::heatCapacity, m_heatCapacity),
              onValue(key::thermalConductivity, m_thermalConductivity),
              onValue(key::perfussionByBlood, m_perfussionByBlood),
              onValue(key::metabolicHeat, m_metabolicHeat));
    return isOk(delim);
}

bool PhysicalParameters::streamOut(DelimManager& delim, const QString& label) const {
    WrittenBlock block(delim, key::PhysicalParameters, label);
    putLine(delim, key::density, m_density);
    putLine(delim, key::heatCapacity, m_heatCapacity);
    putLine(delim, key::thermalConductivity, m_thermalConductivity);
    putLine(delim, key::perfussionByBlood, m_perfussionByBlood);
    putLine(delim, key::metabolicHeat, m_metabolicHeat);
    return block.end();
}

bool operator==(const PhysicalParameters& a, const PhysicalParameters& b) {
    const auto fields = [](const PhysicalParameters& p) {
        return std::tie(
            p.m_density, p.m_heatCapacity, p.m_thermalConductivity, p.m_perfussionByBlood, p.m_metabolicHeat);
    };
    return fields(a) == fields(b);
}

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
