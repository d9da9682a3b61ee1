#pragma once

#include <array>
#include <memory>
#include <vector>

#include "blocktext/FormatBuilder.h"
#include "quarn/DelimManager.h"
#include "quarn/GeometryFile.h"
#include "quarn/Grid.h"
#include "quarn/Material.h"

namespace quarn {

/// What the grid sections say of one axis. The origin is written in double precision; a grid takes it in single.
struct GridAxis {
    double origin = 0.0;
    std::uint32_t cells = 0;
    Grid::Runs runs;
};
using GridAxes = std::array<GridAxis, 3>;

GridAxes axesOf(const Grid& grid);

/// What a load has read so far.
struct GeometryContents {
    std::vector<std::unique_ptr<Material>> electricMaterials;
    std::vector<std::unique_ptr<Material>> magneticMaterials;
    std::vector<std::unique_ptr<MaterialMap>> materialMappings;
    GridAxes gridAxes;
};

/// The numbers in a file count the built-in materials, whose blocks are not read: they come first.
void addBuiltInMaterials(GeometryContents& contents);

/// A section of the geometry file. A function that a section does without is null: one of older files is not written,
/// and one that is skipped is not read.
struct GeometrySection {
    QLatin1String name;

    /// False when there is something that the file cannot carry.
    bool (*write)(DelimManager&, const GeometryFile&, const GridAxes&);

    /// Reads what follows the open line. False when a number could not be read, which a load reports as `failure`.
    bool (*read)(DelimManager&, GeometryContents&);
    QLatin1String failure;

    void (*describe)(blocktext::FormatBuilder&);
};

extern const GeometrySection materialsSection;
extern const GeometrySection materialMapsSection;
extern const GeometrySection adaptiveGridSection;
extern const GeometrySection gridDefinitionSection;
extern const GeometrySection deltasSection;
extern const GeometrySection averagedBinsSection;

/// Adds the blocks of the geometry file to the reference of the format.
void describeGeometryBlocks(blocktext::FormatBuilder& builder);

}  // namespace quarn
