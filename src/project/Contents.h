#pragma once

#include <memory>

#include "quarn/PlaneWave.h"

namespace quarn {

/// Calls `use` with the plane wave as the class that its type names, since the family has no virtual operations.
template <class Use>
auto withItsClass(PlaneWave* wave, Use use) {
    switch (wave->getType()) {
        case PlaneWave::TotalFieldScatteredField:
            return use(static_cast<TFSFPlaneWave*>(wave));
        case PlaneWave::Beam:
            return use(static_cast<GaussianBeam*>(wave));
        default:
            return use(wave);
    }
}

/// Deletes an object that a project points to; null is fine.
template <class T>
void destroy(T* object) {
    delete object;
}
inline void destroy(PlaneWave* wave) {
    if (wave) withItsClass(wave, [](auto* object) { delete object; });
}

struct DestroyPlaneWave {
    void operator()(PlaneWave* wave) const { destroy(wave); }
};
using PlaneWavePointer = std::unique_ptr<PlaneWave, DestroyPlaneWave>;

}  // namespace quarn
