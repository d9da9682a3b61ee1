#pragma once

#include <vector>

#include "quarn/FarZoneFieldFiles.h"
#include "quarn/FarZoneRequest.h"
#include "results/FarZoneProgress.h"

namespace quarn {

class FieldsOnSSFarZoneBox;

namespace farzone {

/// Appends a record for each angle to the records; the fields are complete, the frequency is in Hz. Takes memory for
/// the new list of records beside the old one, and for no more than a few thousand directions at a time otherwise.
/// False, with the records as they were, when the work was stopped.
bool appendFarFields(const FieldsOnSSFarZoneBox& fields, double frequency,
                     const std::vector<FarZoneRequest::Angle>& angles, std::vector<FarZoneSSFieldFile::Record>& records,
                     Progress& progress);

}  // namespace farzone

}  // namespace quarn
