#pragma once

#include <QStringList>
#include <vector>

#include "files/GeometryOnDisk.h"
#include "findings/BlockScan.h"
#include "quarn/ProjectFile.h"

namespace quarn::tool {

/// Errors within the geometry: cells without a size and maps that name missing materials.
QStringList errorsIn(const LoadedGeometry& loaded);

/// Errors for the components that lie outside the grid.
QStringList misplacedComponents(const ProjectFile& project, const Grid& grid);

/// Gives lines the form in which they are saved: removes cell sizes that repeat the size before them, and moves the
/// grid definition out of an adaptive one.
void normalize(std::vector<BlockLine>& lines, BlockNumbers& numbers);

}  // namespace quarn::tool
