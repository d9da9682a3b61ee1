#pragma once

#include <QString>
#include <cstdint>

#include "quarn/Export.h"
#include "quarn/GridIndexBoxes.h"

namespace quarn {

/// A request for fields at a set of grid cells, into one set of result files.
class QUARN_EXPORT MultiPointFieldRequest {
public:
    bool collectTransientTotalE = false;
    bool collectTransientTotalH = false;
    bool collectTransientJ = false;
    bool collectTransientTotalB = false;
    bool collectTransientScatteredE = false;
    bool collectTransientScatteredH = false;
    bool collectTransientScatteredB = false;

    /// First and last timestep and the distance between them, for the transient fields; -1 where nothing was asked for.
    std::int32_t minTimestep = -1;
    std::int32_t maxTimestep = -1;
    std::int32_t deltaTimestep = -1;

    bool collectSteadyTotalE = false;
    bool collectSteadyTotalH = false;
    bool collectSteadyJ = false;
    bool collectSteadyTotalB = false;

    /// The base name of the result files.
    QString outputFile;

    GridIndexBoxes gridIndexBoxes;
    bool snapped = false;

    /// The cells are compared box by box, in their order.
    QUARN_EXPORT friend bool operator==(const MultiPointFieldRequest& a, const MultiPointFieldRequest& b);
    friend bool operator!=(const MultiPointFieldRequest& a, const MultiPointFieldRequest& b) { return !(a == b); }
};

}  // namespace quarn
