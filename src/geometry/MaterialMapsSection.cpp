#include "blocktext/BlockWalker.h"
#include "blocktext/BlockWriter.h"
#include "geometry/GeometrySections.h"
#include "geometry/MaterialLines.h"

namespace quarn {

using namespace geometry;

namespace {

namespace key {
constexpr auto materialMaps = "materialMaps"_key;
constexpr auto materialMap = "materialMap"_key;
constexpr auto materialNumber = "materialNumber"_key;
constexpr auto xElectricMaterial = "xElectricMaterial"_key;
constexpr auto yElectricMaterial = "yElectricMaterial"_key;
constexpr auto zElectricMaterial = "zElectricMaterial"_key;
constexpr auto xMagneticMaterial = "xMagneticMaterial"_key;
constexpr auto yMagneticMaterial = "yMagneticMaterial"_key;
constexpr auto zMagneticMaterial = "zMagneticMaterial"_key;
}  // namespace key

}  // namespace

bool writeMaterialMaps(DelimManager& delim, const std::vector<MaterialMap*>& maps) {
    const WrittenBlock block(delim, key::materialMaps);
    int number = 0;
    for (const MaterialMap* map : maps) {
        if (!map) return false;
        const WrittenBlock mapBlock(delim, key::materialMap, map->getName());
        putLine(delim, key::materialNumber, number++);
        putLine(delim, key::xElectricMaterial, map->getXElectricMaterial());
        putLine(delim, key::yElectricMaterial, map->getYElectricMaterial());
        putLine(delim, key::zElectricMaterial, map->getZElectricMaterial());
        putLine(delim, key::xMagneticMaterial, map->getXMagneticMaterial());
        putLine(delim, key::yMagneticMaterial, map->getYMagneticMaterial());
        putLine(delim, key::zMagneticMaterial, map->getZMagneticMaterial());
    }
    return true;
}

// The number of a map is its position in the file.
bool readMaterialMaps(DelimManager& delim, GeometryContents& contents) {
    const auto readMap = [&](const QString& label) {
        std::array<int, 6> m{};
        const bool isRead = walkBlock(delim,
                                      Unknown::DropLine,
                                      onNumber(key::xElectricMaterial, m[0]),
                                      onNumber(key::yElectricMaterial, m[1]),
                                      onNumber(key::zElectricMaterial, m[2]),
                                      onNumber(key::xMagneticMaterial, m[3]),
                                      onNumber(key::yMagneticMaterial, m[4]),
                                      onNumber(key::zMagneticMaterial, m[5]));
        contents.materialMappings.push_back(std::make_unique<MaterialMap>(label, m[0], m[1], m[2], m[3], m[4], m[5]));
        return isRead;
    };
    return walkBlock(delim, Unknown::DropLine, onBlock(key::materialMap, readMap));
}

}  // namespace quarn
