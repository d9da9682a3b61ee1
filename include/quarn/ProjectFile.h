#pragma once

#include <QPair>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <vector>

#include "quarn/Engine.h"
#include "quarn/Export.h"

namespace quarn {

class AmbientConditions;
class BoundaryConditions;
class ComponentManager;
class DFTParameters;
class FarZoneRequest;
class HACRequest;
class MultiPointFieldRequest;
class NearZoneMultiFieldIndexedPoint;
class NearZoneMultiFieldInterpolatedPoint;
class PlaneWave;
class SARAveragingRequest;
class SARPlane;
class StaticVoltageList;
class TdAfsTerminationCriteria;
class TemperatureRiseRequest;
class TerminationCriteria;
class WaveGuidePortManager;
class Waveform;

/// The description of one simulation run.
///
/// Ownership: the objects that the project points to are not its own. Setters store the pointer and delete nothing, the
/// destructor deletes nothing, several projects may point to one object, and whoever created an object deletes it.
/// Callers who let a load create the objects can leave that to deleteContents(). The destructor is not virtual: delete
/// a project through its own class.
///
/// Copying: the copy constructor copies the objects too, save waveforms, circuit components, waveguide ports, SAR
/// planes and HAC requests, which the copy shares; assignment copies the pointers, so that both projects share
/// everything.
class QUARN_EXPORT ProjectFile {
public:
    enum SteadyStateStorageMethod : std::int32_t { Memory = 0, HardDisk = 1 };

    /// A frequency in Hz at which steady-state fields are computed, and the folder of its results. The project file
    /// cannot carry a folder name with blanks.
    struct SteadyStateFrequency {
        float frequency = 0.0F;
        QString folder;

        friend bool operator==(const SteadyStateFrequency& a, const SteadyStateFrequency& b) {
            return a.frequency == b.frequency && a.folder == b.folder;
        }
        friend bool operator!=(const SteadyStateFrequency& a, const SteadyStateFrequency& b) { return !(a == b); }
    };

    ProjectFile();
    ProjectFile(const ProjectFile& other);
    ProjectFile& operator=(const ProjectFile& other);
    ~ProjectFile();

    /// Units: a name and the factor that converts a length in that unit to metres.
    QPair<QString, double> getDisplayUnits() const { return m_displayUnits; }
    void setDisplayUnits(const QPair<QString, double>& units) { m_displayUnits = units; }
    QPair<QString, double> getModelingUnits() const { return m_modelingUnits; }
    void setModelingUnits(const QPair<QString, double>& units) { m_modelingUnits = units; }

    Engine getEngine() const { return m_engine; }
    void setEngine(Engine engine) { m_engine = engine; }

    const QString& getPathToGeometryFile() const { return m_pathToGeometryFile; }

    /// The timestep in seconds; it takes precedence over the Courant factor where both are in use.
    bool getUseExplicitlySuppliedTimestep() const { return m_useExplicitlySuppliedTimestep; }
    void setUseExplicitlySuppliedTimestep(bool use) { m_useExplicitlySuppliedTimestep = use; }
    float getExplicitlySuppliedTimestep() const { return m_explicitlySuppliedTimestep; }
    void setExplicitlySuppliedTimestep(const float& seconds) { m_explicitlySuppliedTimestep = seconds; }

    /// The Courant factor.
    bool getUseUsersCFL() const { return m_useUsersCFL; }
    void setUseUsersCFL(bool use) { m_useUsersCFL = use; }
    float getCFL() const { return m_cfl; }
    void setCFL(const float& cfl) { m_cfl = cfl; }

    const DFTParameters* getDFTParameters() const { return m_dftParameters; }
    void setDFTParameters(DFTParameters* parameters);
    const std::vector<SteadyStateFrequency>& getSteadyStateFrequencies() const { return m_steadyStateFrequencies; }
    std::vector<SteadyStateFrequency>& getSteadyStateFrequencies() { return m_steadyStateFrequencies; }
    SteadyStateStorageMethod getSteadyStateStorageMethod() const { return m_steadyStateStorageMethod; }
    void setSteadyStateStorageMethod(SteadyStateStorageMethod method) { m_steadyStateStorageMethod = method; }
    bool saveFieldsOnFarZoneBoxForPostProcessing() const { return m_saveFieldsOnFarZoneBox; }
    void setSaveFieldsOnFarZoneBoxForPostProcessing(bool save) { m_saveFieldsOnFarZoneBox = save; }
    bool computeSystemDissipatedPower() const { return m_computeSystemDissipatedPower; }
    void setComputeSystemDissipatedPower(bool compute) { m_computeSystemDissipatedPower = compute; }

    const QString& AreaSourceFile() const { return m_areaSourceFile; }
    void AreaSourceFile(const QString& name) { m_areaSourceFile = name; }

    const TerminationCriteria* getTerminationCriteria() const { return m_terminationCriteria; }
    void setTerminationCriteria(TerminationCriteria* criteria) { m_terminationCriteria = criteria; }
    const TdAfsTerminationCriteria* getTdAfsTerminationCriteria() const { return m_tdAfsTerminationCriteria; }
    void setTdAfsTerminationCriteria(TdAfsTerminationCriteria* criteria) { m_tdAfsTerminationCriteria = criteria; }
    const BoundaryConditions* getBoundaryConditions() const { return m_boundaryConditions; }
    void setBoundaryConditions(BoundaryConditions* conditions) { m_boundaryConditions = conditions; }
    const AmbientConditions* getAmbientConditions() const { return m_ambientConditions; }
    void setAmbientConditions(AmbientConditions* conditions) { m_ambientConditions = conditions; }

    const StaticVoltageList* getStaticVoltageList() const { return m_staticVoltageList; }
    void setStaticVoltageList(StaticVoltageList* voltages) { m_staticVoltageList = voltages; }
    const ComponentManager* getComponentManager() const { return m_componentManager; }
    void setComponentManager(ComponentManager* manager) { m_componentManager = manager; }
    const WaveGuidePortManager* getWaveGuidePortManager() const { return m_waveGuidePortManager; }
    void setWaveGuidePortManager(WaveGuidePortManager* manager) { m_waveGuidePortManager = manager; }

    /// Empty the lists of the managers, if any, without deleting the listed objects.
    void clearComponents();
    void clearWaveguidePorts();

    /// PlaneWave::getType() says which class of the family the object is.
    PlaneWave* getPlaneWave() const { return m_planeWave; }
    void setPlaneWave(PlaneWave* planeWave) { m_planeWave = planeWave; }
    const std::vector<Waveform*>& getWaveforms() const { return m_waveforms; }
    std::vector<Waveform*>& getWaveforms() { return m_waveforms; }

    /// The results that the engine is to record.
    const std::vector<FarZoneRequest>& getSteadyStateFarZoneRequests() const { return m_steadyStateFarZoneRequests; }
    std::vector<FarZoneRequest>& getSteadyStateFarZoneRequests() { return m_steadyStateFarZoneRequests; }
    const std::vector<FarZoneRequest>& getTransientFarZoneRequests() const { return m_transientFarZoneRequests; }
    std::vector<FarZoneRequest>& getTransientFarZoneRequests() { return m_transientFarZoneRequests; }
    const std::vector<NearZoneMultiFieldIndexedPoint>& GetNearZoneMultiFieldIndexedPoints() const {
        return m_nearZoneIndexedPoints;
    }
    std::vector<NearZoneMultiFieldIndexedPoint>& GetNearZoneMultiFieldIndexedPoints() {
        return m_nearZoneIndexedPoints;
    }
    const std::vector<NearZoneMultiFieldInterpolatedPoint>& GetNearZoneMultiFieldInterpolatedPoints() const {
        return m_nearZoneInterpolatedPoints;
    }
    std::vector<NearZoneMultiFieldInterpolatedPoint>& GetNearZoneMultiFieldInterpolatedPoints() {
        return m_nearZoneInterpolatedPoints;
    }
    const std::vector<MultiPointFieldRequest>& GetMultiPointFieldRequests() const { return m_multiPointFieldRequests; }
    std::vector<MultiPointFieldRequest>& GetMultiPointFieldRequests() { return m_multiPointFieldRequests; }
    const SARAveragingRequest* getSARAveragingRequest() const { return m_sarAveragingRequest; }
    void setSARAveragingRequest(SARAveragingRequest* request) { m_sarAveragingRequest = request; }
    const TemperatureRiseRequest* getTemperatureRiseRequest() const { return m_temperatureRiseRequest; }
    void setTemperatureRiseRequest(TemperatureRiseRequest* request) { m_temperatureRiseRequest = request; }
    const std::vector<SARPlane*>& getSARPlaneRequests() const { return m_sarPlaneRequests; }
    std::vector<SARPlane*>& getSARPlaneRequests() { return m_sarPlaneRequests; }

    /// A project without steady-state frequencies saves no HAC requests.
    const std::vector<const HACRequest*>& getHACRequests() const { return m_hacRequests; }
    std::vector<const HACRequest*>& getHACRequests() { return m_hacRequests; }

    /// Appends errors and warnings about the run; never clears the lists.
    void checkValidity(QStringList& errors, QStringList& warnings) const;

    QUARN_EXPORT friend void deleteContents(ProjectFile& project);

protected:
    QPair<QString, double> m_displayUnits{QString(), 0.0};
    QPair<QString, double> m_modelingUnits{QString(), 0.0};
    Engine m_engine = Engine::FDTD;
    QString m_pathToGeometryFile;
    bool m_useExplicitlySuppliedTimestep = false;
    float m_explicitlySuppliedTimestep = 0.0F;
    bool m_useUsersCFL = false;
    float m_cfl = 1.0F;
    DFTParameters* m_dftParameters = nullptr;
    std::vector<SteadyStateFrequency> m_steadyStateFrequencies;
    SteadyStateStorageMethod m_steadyStateStorageMethod = Memory;
    bool m_saveFieldsOnFarZoneBox = true;
    bool m_computeSystemDissipatedPower = true;
    QString m_areaSourceFile;
    TerminationCriteria* m_terminationCriteria = nullptr;
    TdAfsTerminationCriteria* m_tdAfsTerminationCriteria = nullptr;
    BoundaryConditions* m_boundaryConditions = nullptr;
    AmbientConditions* m_ambientConditions = nullptr;
    StaticVoltageList* m_staticVoltageList = nullptr;
    ComponentManager* m_componentManager = nullptr;
    WaveGuidePortManager* m_waveGuidePortManager = nullptr;
    PlaneWave* m_planeWave = nullptr;
    std::vector<Waveform*> m_waveforms;
    std::vector<FarZoneRequest> m_steadyStateFarZoneRequests;
    std::vector<FarZoneRequest> m_transientFarZoneRequests;
    std::vector<NearZoneMultiFieldIndexedPoint> m_nearZoneIndexedPoints;
    std::vector<NearZoneMultiFieldInterpolatedPoint> m_nearZoneInterpolatedPoints;
    std::vector<MultiPointFieldRequest> m_multiPointFieldRequests;
    SARAveragingRequest* m_sarAveragingRequest = nullptr;
    TemperatureRiseRequest* m_temperatureRiseRequest = nullptr;
    std::vector<const HACRequest*> m_hacRequests;
    std::vector<SARPlane*> m_sarPlaneRequests;

private:
    friend struct ProjectContents;

    bool hasActivePort() const;

    // What a constructor allocated, until setDFTParameters() replaces it or deleteContents() deletes it: a load may put
    // other parameters in its place. Assignment leaves it, since the object that allocated it goes on to know it.
    struct OwnParameters {
        DFTParameters* pointer = nullptr;

        OwnParameters() = default;
        OwnParameters(const OwnParameters&) {}
        OwnParameters& operator=(const OwnParameters&) { return *this; }
    };
    OwnParameters m_ownDFTParameters;
};

/// Deletes everything that the project points to, components and ports included, each object once, and leaves the
/// pointers null and the lists empty. For callers who let a load create the objects and who share none of them. An
/// object that a load replaced because the caller had set it before stays the caller's.
QUARN_EXPORT void deleteContents(ProjectFile& project);

}  // namespace quarn
