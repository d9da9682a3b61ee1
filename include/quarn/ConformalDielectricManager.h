#pragma once

#include "quarn/Export.h"

namespace quarn {

/// Base class of objects that assign dielectrics to cells cut by a surface. A GeometryFile only passes the pointer on.
class QUARN_EXPORT ConformalDielectricManager {
public:
    ConformalDielectricManager() = default;
    ConformalDielectricManager(const ConformalDielectricManager&) = default;
    ConformalDielectricManager& operator=(const ConformalDielectricManager&) = default;
    virtual ~ConformalDielectricManager();
};

}  // namespace quarn
