#pragma once

#include <QStringList>

#include "quarn/ProjectFile.h"
#include "sheets/Sheet.h"

namespace quarn::tool {

/// The components, static voltages and waveguide ports of a project. Long lists are cut.
void addCircuit(Sheet& sheet, const ProjectFile& project);

/// A line for each component and each waveguide port: "port 0: NAME ...", "component 7: NAME ...".
QStringList circuitLines(const ProjectFile& project);

}  // namespace quarn::tool
