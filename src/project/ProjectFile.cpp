#include "quarn/ProjectFile.h"

#include "project/ProjectContents.h"
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

/// Gives a project objects of its own; what lists point to stays shared.
struct Copy {
    template <class T>
    void operator()(T*& object) const {
        if (object) object = new T(*object);
    }
    void operator()(PlaneWave*& wave) const {
        if (wave) wave = withItsClass(wave, [](const auto* object) -> PlaneWave* { return new auto(*object); });
    }
    template <class T>
    void operator()(std::vector<T>&) const {}
};

struct DeleteAndClear {
    template <class T>
    void operator()(T*& object) const {
        destroy(object);
        object = nullptr;
    }
    template <class T>
    void operator()(std::vector<T*>& objects) const {
        destroyEach(objects);
        objects.clear();
    }
    template <class T>
    void operator()(std::vector<T>& values) const {
        values.clear();
    }
};

}  // namespace

ProjectFile::ProjectFile() : m_dftParameters(new DFTParameters(false, 1)) {
    m_ownDFTParameters.pointer = m_dftParameters;
}

ProjectFile::ProjectFile(const ProjectFile& other) {
    *this = other;
    ProjectContents::forEach(*this, Copy());
    m_ownDFTParameters.pointer = m_dftParameters;
}

ProjectFile& ProjectFile::operator=(const ProjectFile& other) = default;

ProjectFile::~ProjectFile() = default;

void ProjectFile::setDFTParameters(DFTParameters* parameters) {
    if (m_dftParameters == m_ownDFTParameters.pointer) m_ownDFTParameters.pointer = nullptr;
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
    DFTParameters*& own = project.m_ownDFTParameters.pointer;
    if (own != project.m_dftParameters) delete own;
    own = nullptr;
    ProjectContents::forEach(project, DeleteAndClear());
}

}  // namespace quarn
