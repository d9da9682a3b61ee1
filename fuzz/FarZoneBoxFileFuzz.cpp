// Reads any bytes as the field file of a small box, above a PEC plane for every second input size. The far field of a
// loaded box can be computed; a file that is refused gives no records.

#include <cstddef>
#include <cstdint>

#include "FuzzFiles.h"
#include "Harness.h"
#include "MemoryBound.h"
#include "quarn/BoundaryConditions.h"
#include "quarn/FieldsOnSSFarZoneBox.h"
#include "quarn/Grid.h"
#include "quarn/PostProcessSSFarZoneFields.h"

namespace {

using fuzz::require;

quarn::FarZoneBox boxIn(const quarn::Grid& grid, bool hasPlane) {
    constexpr auto open = quarn::BoundaryConditions::CPML;
    constexpr auto plane = quarn::BoundaryConditions::PEC;
    return {quarn::BoundaryConditions(open, open, open, open, hasPlane ? plane : open, open, 8), grid};
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const fuzz::MemoryBound bound(size);
    quarn::Grid grid;
    require(grid.initialize(11, 11, 11, 0, 0, 0, {{0, 0.01F}}, {{0, 0.01F}, {5, 0.02F}}, {{0, 0.01F}}, true));
    QString problem;
    fuzz::put("box", fuzz::bytesOf(data, size));
    const quarn::FieldsOnSSFarZoneBox fields(grid, fuzz::pathOf("box"), boxIn(grid, size % 2 == 1), problem);
    require(fields.isComplete() == problem.isEmpty());

    const float frequency = 1e9F * static_cast<float>(size % 7);
    const quarn::PostProcessSSFarZoneFields processor(&fields, frequency, 0, 0);
    const std::vector<quarn::FarZoneRequest::Angle> angles{{1.0F, 0.5F}, {2.5F, -0.5F}, {0.0F, 100.0F}};
    std::vector<quarn::FarZoneSSFieldFile::Record> records;
    require(processor.computeFields(angles, records) == fields.isComplete());
    require(records.size() == (fields.isComplete() ? angles.size() : 0));
    return 0;
}
