#include "quarn/ProjectFile.h"

#include "project/Contents.h"
#include "quarn/AmbientConditions.h"
#include "quarn/BoundaryConditions.h"
#include "quarn/ComponentManager.h"
#include "quarn/DFTParameters.h"
#include "quarn/FarZoneRequest.h"
#include "quarn/HACRequest.h"
#include "quarn/MultiPointFieldRequest.h"
#include "quarn/NearZoneMultiFieldPoint.h"
#include "quarn/SARAveragingRequest.h"
#include "quarn/SARPlane.h"
#include "quarn/StaticVoltageList.h"
#include "quarn/TdAfsTerminationCriteria.h"
#include "quarn/TemperatureRiseRequest.h"
#include "quarn/TerminationCriteria.h"
#include "quarn/WaveGuidePort.h"
#include "quarn/Waveform.h"

namespace quarn {

namespace {

template <class T>
T* copyOf(const T* object) {
    return object ? new T(*object) : nullptr;
}

PlaneWave* copyOfPlaneWave(PlaneWave* wave) {
    return wave ? withItsClass(wave, [](auto* object) -> PlaneWave* { return copyOf(object); }) : nullptr;
}

template <class T>
void deleteAndClear(T*& object) {
    destroy(object);
    object = nullptr;
}

template <class T>
void deleteAndClear(std::vector<T*>& objects) {
    destroyEach(objects);
    objects.clear();
}

}  // namespace

ProjectFile::ProjectFile() : m_dftParameters(new DFTParameters(false, 1)), m_ownDFTParameters(m_dftParameters) {}

ProjectFile::ProjectFile(const ProjectFile& other) {
    *this = other;
    m_dftParameters = copyOf(other.m_dftParameters);
    m_ownDFTParameters = m_dftParameters;
    m_terminationCriteria = copyOf(other.m_terminationCriteria);
    m_tdAfsTerminationCriteria = copyOf(other.m_tdAfsTerminationCriteria);
    m_boundaryConditions = copyOf(other.m_boundaryConditions);
    m_ambientConditions = copyOf(other.m_ambientConditions);
    m_staticVoltageList = copyOf(other.m_staticVoltageList);
    m_componentManager = copyOf(other.m_componentManager);
    m_waveGuidePortManager = copyOf(other.m_waveGuidePortManager);
    m_planeWave = copyOfPlaneWave(other.m_planeWave);
    m_sarAveragingRequest = copyOf(other.m_sarAveragingRequest);
    m_temperatureRiseRequest = copyOf(other.m_temperatureRiseRequest);
}

ProjectFile& ProjectFile::operator=(const ProjectFile& other) {
    m_displayUnits = other.m_displayUnits;
    m_modelingUnits = other.m_modelingUnits;
    m_engine = other.m_engine;
    m_pathToGeometryFile = other.m_pathToGeometryFile;
    m_useExplicitlySuppliedTimestep = other.m_useExplicitlySuppliedTimestep;
    m_explicitlySuppliedTimestep = other.m_explicitlySuppliedTimestep;
    m_useUsersCFL = other.m_useUsersCFL;
    m_cfl = other.m_cfl;
    m_dftParameters = other.m_dftParameters;
    m_steadyStateFrequencies = other.m_steadyStateFrequencies;
    m_steadyStateStorageMethod = other.m_steadyStateStorageMethod;
    m_saveFieldsOnFarZoneBox = other.m_saveFieldsOnFarZoneBox;
    m_computeSystemDissipatedPower = other.m_computeSystemDissipatedPower;
    m_areaSourceFile = other.m_areaSourceFile;
    m_terminationCriteria = other.m_terminationCriteria;
    m_tdAfsTerminationCriteria = other.m_tdAfsTerminationCriteria;
    m_boundaryConditions = other.m_boundaryConditions;
    m_ambientConditions = other.m_ambientConditions;
    m_staticVoltageList = other.m_staticVoltageList;
    m_componentManager = other.m_componentManager;
    m_waveGuidePortManager = other.m_waveGuidePortManager;
    m_planeWave = other.m_planeWave;
    m_waveforms = other.m_waveforms;
    m_steadyStateFarZoneRequests = other.m_steadyStateFarZoneRequests;
    m_transientFarZoneRequests = other.m_transientFarZoneRequests;
    m_nearZoneIndexedPoints = other.m_nearZoneIndexedPoints;
    m_nearZoneInterpolatedPoints = other.m_nearZoneInterpolatedPoints;
    m_multiPointFieldRequests = other.m_multiPointFieldRequests;
    m_sarAveragingRequest = other.m_sarAveragingRequest;
    m_temperatureRiseRequest = other.m_temperatureRiseRequest;
    m_hacRequests = other.m_hacRequests;
    m_sarPlaneRequests = other.m_sarPlaneRequests;
    return *this;
}

ProjectFile::~ProjectFile() = default;

void ProjectFile::setDFTParameters(DFTParameters* parameters) {
    if (m_dftParameters == m_ownDFTParameters) m_ownDFTParameters = nullptr;
    m_dftParameters = parameters;
}

void ProjectFile::clearComponents() {
    if (m_componentManager) m_componentManager->clearComponents();
}

void ProjectFile::clearWaveguidePorts() {
    if (m_waveGuidePortManager) m_waveGuidePortManager->clearWaveguidePorts();
}

bool ProjectFile::hasActivePort() const {
    return m_componentManager && m_componentManager->getNumberOfComponents() > 0 &&
           m_componentManager->getActivePort() != -1;
}

void ProjectFile::checkValidity(QStringList& errors, QStringList& warnings) const {
    if (m_boundaryConditions) {
        m_boundaryConditions->checkValidity(errors, warnings, m_engine);
    } else {
        errors << QStringLiteral("Boundary conditions have not been specified.");
    }
    if (m_staticVoltageList) m_staticVoltageList->checkValidity(errors, warnings, m_engine);
    const bool hasStaticVoltages = m_staticVoltageList && !m_staticVoltageList->getPoints().empty();
    if (!m_planeWave && !m_componentManager && !hasStaticVoltages) {
        errors << QStringLiteral("No excitation has been specified.");
    } else if (m_componentManager) {
        m_componentManager->checkValidity(errors, warnings, m_engine);
    }

    if (m_engine != Engine::FDTD) return;
    if (m_waveforms.empty() && (m_planeWave || hasActivePort())) {
        errors << QStringLiteral("No waveform has been specified.");
    }
    const TerminationCriteria noCriteria(0, 0, 0);
    for (const Waveform* waveform : m_waveforms) {
        if (!waveform) continue;
        waveform->checkValidity(
            errors, warnings, m_terminationCriteria ? *m_terminationCriteria : noCriteria, m_engine);
    }
    if (!m_terminationCriteria && !m_tdAfsTerminationCriteria) {
        errors << QStringLiteral("No termination criteria has been specified.");
    } else if (m_terminationCriteria) {
        m_terminationCriteria->checkValidity(warnings, m_engine);
    }
}

void deleteContents(ProjectFile& project) {
    if (project.m_ownDFTParameters != project.m_dftParameters) delete project.m_ownDFTParameters;
    project.m_ownDFTParameters = nullptr;
    deleteAndClear(project.m_dftParameters);
    deleteAndClear(project.m_terminationCriteria);
    deleteAndClear(project.m_tdAfsTerminationCriteria);
    deleteAndClear(project.m_boundaryConditions);
    deleteAndClear(project.m_ambientConditions);
    deleteAndClear(project.m_staticVoltageList);
    deleteAndClear(project.m_componentManager);
    deleteAndClear(project.m_waveGuidePortManager);
    deleteAndClear(project.m_planeWave);
    deleteAndClear(project.m_waveforms);
    deleteAndClear(project.m_sarAveragingRequest);
    deleteAndClear(project.m_temperatureRiseRequest);
    deleteAndClear(project.m_hacRequests);
    deleteAndClear(project.m_sarPlaneRequests);
    project.m_steadyStateFarZoneRequests.clear();
    project.m_transientFarZoneRequests.clear();
    project.m_nearZoneIndexedPoints.clear();
    project.m_nearZoneInterpolatedPoints.clear();
    project.m_multiPointFieldRequests.clear();
    project.m_steadyStateFrequencies.clear();
}

}  // namespace quarn
