#pragma once

#include "quarn/Cartesian3D.h"
#include "quarn/Vector3D.h"

namespace quarn {

/// A request for a measurement of hearing-aid compatibility (HAC): the origin and the axes of its plane and normal.
class HACRequest {
public:
    tavrix::Cartesian3D origin;
    Vector3D u;
    Vector3D v;
    Vector3D w;

    friend bool operator==(const HACRequest& a, const HACRequest& b) {
        return a.origin == b.origin && a.u == b.u && a.v == b.v && a.w == b.w;
    }
    friend bool operator!=(const HACRequest& a, const HACRequest& b) { return !(a == b); }
};

}  // namespace quarn
