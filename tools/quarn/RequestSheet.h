#pragma once

#include "Sheet.h"
#include "quarn/ProjectFile.h"

namespace quarn::tool {

/// The results that a project asks for. Long lists are cut.
void addRequests(Sheet& sheet, const ProjectFile& project);

}  // namespace quarn::tool
