#include "quarn/FormatReference.h"

#include "blocktext/FormatBuilder.h"
#include "geometry/GeometrySections.h"
#include "project/Sections.h"

namespace quarn {

std::vector<FormatBlock> projectFormat() {
    blocktext::FormatBuilder builder;
    describeProjectBlocks(builder);
    return std::move(builder).blocks();
}

std::vector<FormatBlock> geometryFormat() {
    blocktext::FormatBuilder builder;
    describeGeometryBlocks(builder);
    return std::move(builder).blocks();
}

}  // namespace quarn
