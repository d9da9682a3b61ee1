#pragma once

#include "quarn/ProjectFile.h"
#include "sheets/Sheet.h"

namespace quarn::tool {

/// The results that a project asks for. Long lists are cut.
void addRequests(Sheet& sheet, const ProjectFile& project);

}  // namespace quarn::tool
