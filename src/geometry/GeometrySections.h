#pragma once

#include <array>
#include <memory>
#include <vector>

#include "quarn/DelimManager.h"
#include "quarn/GeometryFile.h"
#include "quarn/Grid.h"
#include "quarn/Material.h"

/// The sections of the geometry file. Writers return false when there is something that the file cannot carry; readers
/// return false when a number could not be read.
namespace quarn {

/// What the grid sections say of one axis.
struct GridAxis {
    float origin = 0.0F;
    std::uint32_t cells = 0;
    Grid::Runs runs;
};

/// What a load has read so far.
struct GeometryContents {
    std::vector<std::unique_ptr<Material>> electricMaterials;
    std::vector<std::unique_ptr<Material>> magneticMaterials;
    std::vector<std::unique_ptr<MaterialMap>> materialMappings;
    std::array<GridAxis, 3> gridAxes;
};

/// The numbers in a file count the built-in materials, whose blocks are not read: they come first.
void addBuiltInMaterials(GeometryContents& contents);

bool writeMaterials(DelimManager& delim, const std::vector<Material*>& electric,
                    const std::vector<Material*>& magnetic);
bool readMaterials(DelimManager& delim, GeometryContents& contents);

bool writeMaterialMaps(DelimManager& delim, const std::vector<MaterialMap*>& maps);
bool readMaterialMaps(DelimManager& delim, GeometryContents& contents);

void writeGridDefinition(DelimManager& delim, const Grid& grid);
bool readGridDefinition(DelimManager& delim, GeometryContents& contents);
/// Reads the first block inside, whatever its name, as the grid definition.
bool readAdaptiveGridDefinition(DelimManager& delim, GeometryContents& contents);

void writeDeltas(DelimManager& delim, const Grid& grid);
bool readDeltas(DelimManager& delim, GeometryContents& contents);

}  // namespace quarn
