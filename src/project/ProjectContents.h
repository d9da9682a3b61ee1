#pragma once

#include <memory>
#include <set>
#include <tuple>
#include <vector>

#include "quarn/ComponentManager.h"
#include "quarn/PlaneWave.h"
#include "quarn/WaveGuidePort.h"
#include "quarn/v6ProjectFile.h"

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

/// The members of a project that point to objects or list them.
struct ProjectContents {
    template <class Project>
    static auto of(Project& p) {
        return std::tie(p.m_dftParameters,
                        p.m_terminationCriteria,
                        p.m_tdAfsTerminationCriteria,
                        p.m_boundaryConditions,
                        p.m_ambientConditions,
                        p.m_staticVoltageList,
                        p.m_componentManager,
                        p.m_waveGuidePortManager,
                        p.m_planeWave,
                        p.m_waveforms,
                        p.m_sarAveragingRequest,
                        p.m_temperatureRiseRequest,
                        p.m_hacRequests,
                        p.m_sarPlaneRequests,
                        p.m_steadyStateFarZoneRequests,
                        p.m_transientFarZoneRequests,
                        p.m_nearZoneIndexedPoints,
                        p.m_nearZoneInterpolatedPoints,
                        p.m_multiPointFieldRequests,
                        p.m_steadyStateFrequencies);
    }

    /// Calls `use` with each of them.
    template <class Use>
    static void forEach(ProjectFile& project, Use use) {
        std::apply([&](auto&... members) { (use(members), ...); }, of(project));
    }

    /// Puts what a load has read into the member for its class, or for the base of its class. What was there before
    /// stays alive, unless this load created it.
    template <class Object, class Base = Object>
    static void install(v6ProjectFile& project, std::unique_ptr<Object> object) {
        Base*& member = std::get<Base*&>(of(project));
        if (project.m_createdByLoad.erase(member)) destroy(member);
        member = object.release();
        project.m_createdByLoad.insert(member);
    }
};

}  // namespace quarn
