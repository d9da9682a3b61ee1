#include "blocktext/BlockWriter.h"
#include "geometry/GeometryBlock.h"
#include "geometry/GeometrySections.h"

namespace quarn {

template <>
struct blocktext::Description<MaterialMap> {
    using M = MaterialMap;
    static constexpr auto block() {
        return geometryBlock<M>("materialMap",
                                unwritten(&M::m_name),
                                value("xElectricMaterial", &M::m_xElectricMaterial),
                                value("yElectricMaterial", &M::m_yElectricMaterial),
                                value("zElectricMaterial", &M::m_zElectricMaterial),
                                value("xMagneticMaterial", &M::m_xMagneticMaterial),
                                value("yMagneticMaterial", &M::m_yMagneticMaterial),
                                value("zMagneticMaterial", &M::m_zMagneticMaterial));
    }
};

using namespace blocktext;

namespace {

constexpr Key sectionName = "materialMaps";
constexpr auto mapBlock = Description<MaterialMap>::block();

auto numberedBlock(int number) { return atPosition(mapBlock, "materialNumber", number); }

MaterialMap blank(const QString& label) { return {label, 0, 0, 0, 0, 0, 0}; }

bool write(DelimManager& delim, const GeometryFile& file, const GridAxes&) {
    const WrittenBlock block(delim, sectionName);
    int number = 0;
    for (const MaterialMap* map : file.getMaterialMappings()) {
        if (!map) return false;
        numberedBlock(number++).write(delim, *map, map->getName());
    }
    return true;
}

bool read(DelimManager& delim, GeometryContents& contents) {
    const auto readMap = [&](const QString& label) {
        contents.materialMappings.push_back(std::make_unique<MaterialMap>(blank(label)));
        return mapBlock.read(delim, *contents.materialMappings.back());
    };
    return walkBlock(delim, Unknown::DropLine, onBlock(mapBlock.name, readMap));
}

void describe(FormatBuilder& builder) {
    builder.begin(sectionName);
    describeEntries(builder, numberedBlock(0), blank(QString()));
    builder.end();
}

}  // namespace

const GeometrySection materialMapsSection = {
    sectionName, write, read, "Error loading material mappings."_key, describe};

MaterialMap::MaterialMap(const QString& name, std::int32_t xElectricMaterial, std::int32_t yElectricMaterial,
                         std::int32_t zElectricMaterial, std::int32_t xMagneticMaterial, std::int32_t yMagneticMaterial,
                         std::int32_t zMagneticMaterial)
    : m_name(name),
      m_xElectricMaterial(xElectricMaterial),
      m_yElectricMaterial(yElectricMaterial),
      m_zElectricMaterial(zElectricMaterial),
      m_xMagneticMaterial(xMagneticMaterial),
      m_yMagneticMaterial(yMagneticMaterial),
      m_zMagneticMaterial(zMagneticMaterial) {}

bool operator==(const MaterialMap& a, const MaterialMap& b) { return mapBlock.areEqual(a, b); }

}  // namespace quarn
