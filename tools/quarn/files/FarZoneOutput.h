#pragma once

#include <QString>

#include "FarZonePattern.h"

/// The files that `quarn farzone` writes. The functions throw a FileProblem.
namespace quarn::tool {

/// As the engine writes far fields.
void writeRecords(const QString& path, const FarZoneRecords& records);

/// A table of comma-separated values with directivity and axial ratio.
void writeTable(const QString& path, const FarZoneRecords& records, const RadiatedPower& power);

}  // namespace quarn::tool
