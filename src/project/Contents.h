#pragma once

#include <memory>
#include <set>
#include <vector>

#include "quarn/ComponentManager.h"
#include "quarn/PlaneWave.h"
#include "quarn/WaveGuidePort.h"

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

/// Deletes what a list points to, each object once.
template <class T>
void destroyEach(const std::vector<T*>& objects) {
    for (T* object : std::set<T*>(objects.begin(), objects.end())) delete object;
}

/// Deletes an object that a project points to, and what a manager lists; null is fine.
template <class T>
void destroy(T* object) {
    delete object;
}
inline void destroy(PlaneWave* wave) {
    if (wave) withItsClass(wave, [](auto* object) { delete object; });
}

inline void destroy(ComponentManager* manager) {
    if (manager) destroyEach(manager->getComponents());
    delete manager;
}
inline void destroy(WaveGuidePortManager* manager) {
    if (manager) destroyEach(manager->getWaveguidePorts());
    delete manager;
}

struct DestroyPlaneWave {
    void operator()(PlaneWave* wave) const { destroy(wave); }
};
using PlaneWavePointer = std::unique_ptr<PlaneWave, DestroyPlaneWave>;

}  // namespace quarn
