#pragma once

#include "quarn/Export.h"

namespace quarn {

/// Base of what assigns dielectrics to cells that a surface cuts. A GeometryFile hands the pointer on and nothing else.
class QUARN_EXPORT ConformalDielectricManager {
public:
    ConformalDielectricManager() = default;
    ConformalDielectricManager(const ConformalDielectricManager&) = default;
    ConformalDielectricManager& operator=(const ConformalDielectricManager&) = default;
    virtual ~ConformalDielectricManager();
};

}  // namespace quarn
