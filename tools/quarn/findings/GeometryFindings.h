#pragma once

#include <QStringList>
#include <vector>

#include "files/GeometryOnDisk.h"
#include "findings/BlockText.h"
#include "quarn/ProjectFile.h"

namespace quarn::tool {

/// What is wrong with a geometry in itself: cells without a size, maps that name materials which are not there.
QStringList errorsIn(const LoadedGeometry& loaded);

/// Components that lie outside the grid.
QStringList misplacedComponents(const ProjectFile& project, const Grid& grid);

/// Gives lines the form in which they are saved: sizes of cells that only repeat the size before are taken out, and the
/// grid definition within an adaptive one counts as the plain one.
void normalize(std::vector<BlockLine>& lines, BlockNumbers& numbers);

}  // namespace quarn::tool
