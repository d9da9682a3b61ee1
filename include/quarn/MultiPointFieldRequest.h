#pragma once

#include <QString>
#include <cstdint>

#include "quarn/Export.h"
#include "quarn/FieldGroup.h"
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

    /// The member that asks for a group of transient fields.
    static constexpr bool MultiPointFieldRequest::*transientMember(FieldGroup group) {
        using R = MultiPointFieldRequest;
        constexpr bool R::*members[] = {&R::collectTransientScatteredE,
                                        &R::collectTransientTotalE,
                                        &R::collectTransientScatteredH,
                                        &R::collectTransientTotalH,
                                        &R::collectTransientScatteredB,
                                        &R::collectTransientTotalB,
                                        &R::collectTransientJ};
        return members[static_cast<std::size_t>(group)];
    }

    /// The member that asks for a group of fields in a steady state; null for scattered fields.
    static constexpr bool MultiPointFieldRequest::*steadyMember(FieldGroup group) {
        using R = MultiPointFieldRequest;
        constexpr bool R::*members[] = {nullptr,
                                        &R::collectSteadyTotalE,
                                        nullptr,
                                        &R::collectSteadyTotalH,
                                        nullptr,
                                        &R::collectSteadyTotalB,
                                        &R::collectSteadyJ};
        return members[static_cast<std::size_t>(group)];
    }

    bool collectsTransient(FieldGroup group) const { return this->*transientMember(group); }
    bool collectsSteady(FieldGroup group) const { return steadyMember(group) && this->*steadyMember(group); }

    /// The cells are compared box by box, in their order.
    QUARN_EXPORT friend bool operator==(const MultiPointFieldRequest& a, const MultiPointFieldRequest& b);
    friend bool operator!=(const MultiPointFieldRequest& a, const MultiPointFieldRequest& b) { return !(a == b); }
};

}  // namespace quarn
