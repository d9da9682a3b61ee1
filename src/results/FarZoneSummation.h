#pragma once

#include "results/FarZoneProgress.h"
#include "results/FarZoneSurface.h"

namespace quarn::farzone {

/// A way to sum over the cells of all faces.
class FaceSummation {
public:
    /// Directions that are summed together, as they share work.
    static constexpr std::size_t blockSize = 16;

    virtual ~FaceSummation() = default;

    /// To be done once, before anything is summed. False when the work was stopped.
    virtual bool prepare(Progress& progress) = 0;

    /// Fills `sums` for `count` unit vectors, at most blockSize; a vector that is not finite gives sums that are not
    /// numbers. False when the work was stopped.
    virtual bool evaluate(const Vector* directions, std::size_t count, FaceSums* sums, Progress& progress) = 0;
};

}  // namespace quarn::farzone
