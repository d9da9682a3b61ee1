#pragma once

#include <QString>

#include "quarn/Export.h"
#include "quarn/MultiPointResult.h"

namespace quarn {

/// Removes the files of a multi-point result.
class QUARN_EXPORT MultiPointResultDeleter : public MultiPointResult {
public:
    /// How many listed indices are tried in a folder that may not be listed itself; the index behind them is tried too.
    static constexpr int mostIndicesTried = 100000;

    /// Removes the geometry, the components that the info file and the lists name, and one time step and one frequency
    /// more than are listed, then the lists and the info file. In a folder that may be written but not listed,
    /// components are removed by trying their names, for the first mostIndicesTried indices of a list. Returns whether
    /// the info file was removed; when it cannot be read, nothing is removed.
    bool deleteResult(const QString& baseFileName);

private:
    int numIndices(const QString& listFileName) const;
};

}  // namespace quarn
