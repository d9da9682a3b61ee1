#pragma once

#include <QDir>

#include "quarn/ProjectFile.h"

/// A half-wave dipole at 1 GHz, from its description to its far field.
namespace quarn::tool {

void describeDipole(ProjectFile& project);

/// Writes the geometry that belongs to the project file at `projectPath`, reads it back and compares; puts the fields
/// of the dipole, which are known in closed form, where the engine would; transforms them to the far zone as `quarn
/// farzone` does, and prints the deviation from the closed form. False when anything is not as it should be.
bool showDipole(const QString& projectPath, const QDir& folder);

}  // namespace quarn::tool
