#pragma once

#include <QString>

#include "quarn/FieldsOnSSFarZoneBox.h"

/// The box files that `quarn farzone` reads. All functions throw a FileProblem.
namespace quarn::tool {

/// The only file in a folder within `base` whose header is that of a far-zone box file. The frequency is for messages.
QString boxFileIn(const QString& base, const QString& folder, const QString& frequency);

/// The fields in a box file. Checks that the file has exactly the records of the box, that the fields are finite and
/// not all zero, and that the cells on the box are no larger than half a wavelength.
FieldsOnSSFarZoneBox loadBoxFields(const QString& path, const FarZoneBox& box, const Grid& grid,
                                   const QString& geometryPath, float frequency);

}  // namespace quarn::tool
