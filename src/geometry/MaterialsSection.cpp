#include "geometry/ElectricDispersiveMaterialText.h"
#include "geometry/ElectricMaterialText.h"
#include "geometry/GeometrySections.h"
#include "geometry/MagneticMaterialText.h"
#include "geometry/MaterialKinds.h"

namespace quarn {

namespace {

namespace key {
constexpr auto materials = "materials"_key;
constexpr auto materialNumber = "material_number"_key;
}  // namespace key

using Materials = std::vector<std::unique_ptr<Material>>;

template <class Kind>
void writeMaterial(DelimManager& delim, const Kind& material, int number) {
    const WrittenBlock block(delim, MaterialText<Kind>::name, material.getName());
    putLine(delim, key::materialNumber, number);
    writeLines(delim, material, MaterialText<Kind>::lines());
}

bool writeList(DelimManager& delim, const std::vector<Material*>& materials) {
    int number = 0;
    for (const Material* material : materials) {
        const auto write = [&](const auto& kind) { writeMaterial(delim, kind, number); };
        if (!material || !useAsItsKind(*material, write)) return false;
        ++number;
    }
    return true;
}

template <class Kind>
bool readMaterial(DelimManager& delim, const QString& label, Materials& materials) {
    auto material = std::make_unique<Kind>(MaterialText<Kind>::blank(label));
    const bool isRead = readLines(delim, *material, MaterialText<Kind>::lines());
    materials.push_back(std::move(material));
    return isRead;
}

template <class... Electric, class... Magnetic>
bool readBlocks(DelimManager& delim, GeometryContents& contents, KindList<Electric...>, KindList<Magnetic...>) {
    return walkBlock(delim,
                     Unknown::DropLine,
                     onBlock(MaterialText<Electric>::name,
                             [&](const QString& label) {
                                 return readMaterial<Electric>(delim, label, contents.electricMaterials);
                             })...,
                     onBlock(MaterialText<Magnetic>::name, [&](const QString& label) {
                         return readMaterial<Magnetic>(delim, label, contents.magneticMaterials);
                     })...);
}

}  // namespace

void addBuiltInMaterials(GeometryContents& contents) {
    contents.electricMaterials.push_back(std::make_unique<ElectricFreeSpace>("ElectricFreeSpace"));
    contents.electricMaterials.push_back(std::make_unique<ElectricPerfectConductor>("ElectricPerfectConductor"));
    contents.magneticMaterials.push_back(std::make_unique<MagneticFreeSpace>("MagneticFreeSpace"));
    contents.magneticMaterials.push_back(std::make_unique<MagneticPerfectConductor>("MagneticPerfectConductor"));
}

bool writeMaterials(DelimManager& delim, const std::vector<Material*>& electric,
                    const std::vector<Material*>& magnetic) {
    const WrittenBlock block(delim, key::materials);
    return writeList(delim, electric) && writeList(delim, magnetic);
}

// A block of a built-in material is skipped as one that is not known, and so are blocks of kinds that are no more.
bool readMaterials(DelimManager& delim, GeometryContents& contents) {
    return readBlocks(delim, contents, ElectricMaterials(), MagneticMaterials());
}

}  // namespace quarn
