#pragma once

#include "blocktext/BlockDescription.h"
#include "quarn/FarZoneRequest.h"

namespace quarn {

/// The lines of a far-zone request; the name of the block around them tells the kind of its fields.
template <>
struct blocktext::Description<FarZoneRequest> {
    using R = FarZoneRequest;
    static constexpr auto block(Key name) {
        return describeWords<R>(
            name,
            Unknown::DropWord,
            Unreadable::KeepsValue,
            text("OutputFileName", &R::m_outputFileName),
            entries("Angle", &R::m_angles, partial(parts(&R::Angle::theta, &R::Angle::phi))).in("rad"));
    }
};

}  // namespace quarn
