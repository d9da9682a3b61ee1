#include "quarn/GeometryFile.h"

#include <algorithm>
#include <set>
#include <utility>

#include "geometry/GeometrySections.h"
#include "geometry/MaterialKinds.h"
#include "quarn/ConformalDielectricManager.h"

namespace quarn {

namespace {

/// Deletes the objects in `old`, each once, except those that are also in `kept`.
template <class T>
void deleteUnlisted(const std::vector<T*>& old, const std::vector<T*>& kept = {}) {
    std::set<T*> obsolete(old.begin(), old.end());
    for (T* object : kept) obsolete.erase(object);
    for (T* object : obsolete) delete object;
}

template <class T>
std::vector<T*> joined(std::vector<T*> a, const std::vector<T*>& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

Material* copied(const Material* material) {
    if (!material) return nullptr;
    Material* copy = nullptr;
    useAsItsKind(*material, [&copy](const auto& kind) { copy = new std::decay_t<decltype(kind)>(kind); });
    if (copy && copy->getPhysicalParameters()) {
        copy->sharePhysicalParameters(std::make_shared<PhysicalParameters>(*copy->getPhysicalParameters()));
    }
    return copy;
}

template <class T>
std::vector<T*> released(std::vector<std::unique_ptr<T>>& objects) {
    std::vector<T*> result;
    result.reserve(objects.size());
    for (auto& object : objects) result.push_back(object.release());
    return result;
}

}  // namespace

ConformalDielectricManager::~ConformalDielectricManager() = default;

GeometryFile::GeometryFile() = default;

GeometryFile::GeometryFile(const GeometryFile& other)
    : m_conformalDielectricManager(other.m_conformalDielectricManager) {
    for (const Material* m : other.m_electricMaterials) m_electricMaterials.push_back(copied(m));
    for (const Material* m : other.m_magneticMaterials) m_magneticMaterials.push_back(copied(m));
    for (const MaterialMap* map : other.m_materialMappings) {
        m_materialMappings.push_back(map ? new MaterialMap(*map) : nullptr);
    }
}

GeometryFile& GeometryFile::operator=(const GeometryFile& other) {
    if (this != &other) {
        GeometryFile copy(other);
        swap(copy);
    }
    return *this;
}

GeometryFile::~GeometryFile() {
    deleteUnlisted(joined(m_electricMaterials, m_magneticMaterials));
    deleteUnlisted(m_materialMappings);
}

void GeometryFile::swap(GeometryFile& other) {
    m_electricMaterials.swap(other.m_electricMaterials);
    m_magneticMaterials.swap(other.m_magneticMaterials);
    m_materialMappings.swap(other.m_materialMappings);
    std::swap(m_conformalDielectricManager, other.m_conformalDielectricManager);
}

void GeometryFile::setElectricMaterials(const std::vector<Material*>& materials) {
    const auto old = m_electricMaterials;
    m_electricMaterials = materials;
    deleteUnlisted(old, joined(m_electricMaterials, m_magneticMaterials));
}

void GeometryFile::setMagneticMaterials(const std::vector<Material*>& materials) {
    const auto old = m_magneticMaterials;
    m_magneticMaterials = materials;
    deleteUnlisted(old, joined(m_electricMaterials, m_magneticMaterials));
}

void GeometryFile::setMaterialMappings(const std::vector<MaterialMap*>& maps) {
    const auto old = m_materialMappings;
    m_materialMappings = maps;
    deleteUnlisted(old, m_materialMappings);
}

void GeometryFile::install(GeometryContents& contents) {
    setElectricMaterials(released(contents.electricMaterials));
    setMagneticMaterials(released(contents.magneticMaterials));
    setMaterialMappings(released(contents.materialMappings));
}

}  // namespace quarn
