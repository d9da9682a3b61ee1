#pragma once

#include <QString>
#include <cstdint>
#include <vector>

#include "quarn/Description.h"
#include "quarn/Export.h"

namespace quarn {

class ConformalDielectricManager;
class Material;
struct GeometryContents;

/// Which materials fill a cell edge of each direction: positions in the lists of a GeometryFile. A position is not
/// checked against the list.
class QUARN_EXPORT MaterialMap {
public:
    MaterialMap(const QString& name, std::int32_t xElectricMaterial, std::int32_t yElectricMaterial,
                std::int32_t zElectricMaterial, std::int32_t xMagneticMaterial, std::int32_t yMagneticMaterial,
                std::int32_t zMagneticMaterial);

    QString getName() const { return m_name; }
    std::int32_t getXElectricMaterial() const { return m_xElectricMaterial; }
    std::int32_t getYElectricMaterial() const { return m_yElectricMaterial; }
    std::int32_t getZElectricMaterial() const { return m_zElectricMaterial; }
    std::int32_t getXMagneticMaterial() const { return m_xMagneticMaterial; }
    std::int32_t getYMagneticMaterial() const { return m_yMagneticMaterial; }
    std::int32_t getZMagneticMaterial() const { return m_zMagneticMaterial; }

    QUARN_EXPORT friend bool operator==(const MaterialMap& a, const MaterialMap& b);
    friend bool operator!=(const MaterialMap& a, const MaterialMap& b) { return !(a == b); }

private:
    friend struct blocktext::Description<MaterialMap>;

    QString m_name;
    std::int32_t m_xElectricMaterial;
    std::int32_t m_yElectricMaterial;
    std::int32_t m_zElectricMaterial;
    std::int32_t m_xMagneticMaterial;
    std::int32_t m_yMagneticMaterial;
    std::int32_t m_zMagneticMaterial;
};

/// The materials of a run and how they combine.
///
/// Ownership: the materials and maps that are set belong to the GeometryFile, each object once however often it is
/// listed; what a setter or an assignment takes out of the lists is deleted, so that pointers to it dangle. Physical
/// parameters that a load or a copy made live as long as any material that shares them, those that a caller added
/// remain the caller's. The manager is never owned by the file.
///
/// Copying is deep: the copy has materials, physical parameters and maps of its own, and shares the manager. A material
/// of a class outside the library cannot be copied; its place in the copy's list is null.
class QUARN_EXPORT GeometryFile {
public:
    GeometryFile();
    GeometryFile(const GeometryFile& other);
    GeometryFile& operator=(const GeometryFile& other);
    virtual ~GeometryFile();

    const std::vector<Material*>& getElectricMaterials() const { return m_electricMaterials; }
    void setElectricMaterials(const std::vector<Material*>& materials);
    const std::vector<Material*>& getMagneticMaterials() const { return m_magneticMaterials; }
    void setMagneticMaterials(const std::vector<Material*>& materials);
    const std::vector<MaterialMap*>& getMaterialMappings() const { return m_materialMappings; }
    void setMaterialMappings(const std::vector<MaterialMap*>& maps);

    ConformalDielectricManager* getConformalDielectricManager() const { return m_conformalDielectricManager; }
    void setConformDielectricManager(ConformalDielectricManager* manager) { m_conformalDielectricManager = manager; }

protected:
    /// Replaces materials and maps by what a load has read.
    void install(GeometryContents& contents);

private:
    void swap(GeometryFile& other);

    std::vector<Material*> m_electricMaterials;
    std::vector<Material*> m_magneticMaterials;
    std::vector<MaterialMap*> m_materialMappings;
    ConformalDielectricManager* m_conformalDielectricManager = nullptr;
};

}  // namespace quarn
