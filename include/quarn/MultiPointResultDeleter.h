#pragma once

#include <QString>

#include "quarn/Export.h"
#include "quarn/MultiPointResult.h"

namespace quarn {

/// Removes the files of a multi-point result.
class QUARN_EXPORT MultiPointResultDeleter : public MultiPointResult {
public:
    /// Removes the geometry, the components that the info file and the lists name, and one time step and one frequency
    /// more than are listed, then the lists and the info file.
    /// Returns whether the info file was removed; when it cannot be read nothing is.
    bool deleteResult(const QString& baseFileName);

private:
    int numIndices(const QString& listFileName) const;
};

}  // namespace quarn
