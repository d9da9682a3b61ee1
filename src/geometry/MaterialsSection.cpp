#include "blocktext/BlockWriter.h"
#include "geometry/ElectricDispersiveMaterialBlocks.h"
#include "geometry/ElectricMaterialBlocks.h"
#include "geometry/GeometrySections.h"
#include "geometry/MagneticMaterialBlocks.h"
#include "geometry/MaterialKinds.h"

namespace quarn {

using namespace blocktext;

namespace {

constexpr Key sectionName = "materials";

using Materials = std::vector<std::unique_ptr<Material>>;

template <class Kind>
constexpr auto materialBlock = Description<Kind>::block();

template <class Kind>
auto numberedBlock(int number) {
    return atPosition(materialBlock<Kind>, "material_number", number);
}

/// Makes a zero of any number, an empty list, and zeros for each axis.
struct Zero {
    template <class T>
    operator T() const {
        if constexpr (std::is_pointer_v<T>) {
            static constexpr std::remove_pointer_t<T> perAxis[3] = {};
            return perAxis;
        } else {
            return T();
        }
    }
};

// The material for which a block without lines stands: it has the defaults of its class, and zero for whatever its
// constructor takes.
template <class Kind, class... Zeros>
std::unique_ptr<Kind> blank(const QString& label, Zeros... zeros) {
    if constexpr (std::is_constructible_v<Kind, const QString&, Zeros...>) {
        return std::make_unique<Kind>(label, zeros...);
    } else {
        return blank<Kind>(label, zeros..., Zero());
    }
}

// The flag is set by default and has a line where it is set.
template <>
std::unique_ptr<ElectricDjordjevic> blank(const QString& label) {
    auto material = blank<ElectricDjordjevic>(label, Zero());
    material->useLossTangent(false);
    return material;
}

bool writeList(DelimManager& delim, const std::vector<Material*>& materials) {
    int number = 0;
    for (const Material* material : materials) {
        const auto write = [&](const auto& kind) {
            numberedBlock<std::decay_t<decltype(kind)>>(number).write(delim, kind, kind.getName());
        };
        if (!material || !useAsItsKind(*material, write)) return false;
        ++number;
    }
    return true;
}

bool write(DelimManager& delim, const GeometryFile& file, const GridAxes&) {
    const WrittenBlock block(delim, sectionName);
    return writeList(delim, file.getElectricMaterials()) && writeList(delim, file.getMagneticMaterials());
}

template <class Kind>
bool readMaterial(DelimManager& delim, const QString& label, Materials& materials) {
    auto material = blank<Kind>(label);
    const bool isRead = materialBlock<Kind>.read(delim, *material);
    materials.push_back(std::move(material));
    return isRead;
}

template <class... Electric, class... Magnetic>
bool readBlocks(DelimManager& delim, GeometryContents& contents, KindList<Electric...>, KindList<Magnetic...>) {
    return walkBlock(delim,
                     Unknown::DropLine,
                     onBlock(materialBlock<Electric>.name,
                             [&](const QString& label) {
                                 return readMaterial<Electric>(delim, label, contents.electricMaterials);
                             })...,
                     onBlock(materialBlock<Magnetic>.name, [&](const QString& label) {
                         return readMaterial<Magnetic>(delim, label, contents.magneticMaterials);
                     })...);
}

// A block of a built-in material is skipped as one that is not known, and so are blocks of kinds that are no more.
bool read(DelimManager& delim, GeometryContents& contents) {
    return readBlocks(delim, contents, ElectricMaterials(), MagneticMaterials());
}

template <class... Kinds>
void describeBlocks(FormatBuilder& builder, KindList<Kinds...>) {
    (describeEntries(builder, numberedBlock<Kinds>(0), *blank<Kinds>(QString())), ...);
}

void describe(FormatBuilder& builder) {
    builder.begin(sectionName);
    describeBlocks(builder, BuiltInMaterials());
    describeBlocks(builder, ElectricMaterials());
    describeBlocks(builder, MagneticMaterials());
    builder.end();
}

}  // namespace

const GeometrySection materialsSection = {sectionName, write, read, "Error loading materials."_key, describe};

void addBuiltInMaterials(GeometryContents& contents) {
    contents.electricMaterials.push_back(std::make_unique<ElectricFreeSpace>("ElectricFreeSpace"));
    contents.electricMaterials.push_back(std::make_unique<ElectricPerfectConductor>("ElectricPerfectConductor"));
    contents.magneticMaterials.push_back(std::make_unique<MagneticFreeSpace>("MagneticFreeSpace"));
    contents.magneticMaterials.push_back(std::make_unique<MagneticPerfectConductor>("MagneticPerfectConductor"));
}

}  // namespace quarn
