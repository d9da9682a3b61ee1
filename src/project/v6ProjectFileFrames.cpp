// The frames of the project file: in what order the sections of a block are written, and which block name and which key
// goes to which reader.

#include <stdexcept>

#include "blocktext/BlockWalker.h"
#include "blocktext/BlockWriter.h"
#include "circuit/CircuitSections.h"
#include "project/Sections.h"
#include "quarn/FarZoneRequest.h"
#include "quarn/HACRequest.h"
#include "quarn/MultiPointFieldRequest.h"
#include "quarn/NearZoneMultiFieldPoint.h"
#include "quarn/SARAveragingRequest.h"
#include "quarn/TemperatureRiseRequest.h"
#include "quarn/v6ProjectFile.h"
#include "results/RequestSections.h"

namespace quarn {

using namespace blocktext;

namespace {

namespace key {
constexpr auto Units = "Units"_key;
constexpr auto Display = "Display"_key;
constexpr auto Modeling = "Modeling"_key;
constexpr auto Name = "Name"_key;
constexpr auto Conversion = "Conversion"_key;

constexpr auto RunParameters = "RunParameters"_key;
constexpr auto OuterBoundaries = "OuterBoundaries"_key;
constexpr auto AmbientConditions = "AmbientConditions"_key;
constexpr auto ComponentsPorts = "ComponentsPorts"_key;
constexpr auto WaveGuidePorts = "WaveGuidePorts"_key;
constexpr auto TerminationCriteria = "TerminationCriteria"_key;
constexpr auto SourceType = "SourceType"_key;
constexpr auto Waveform = "Waveform"_key;
constexpr auto Convergence = "Convergence"_key;
constexpr auto UseTimestep = "UseTimestep"_key;
constexpr auto UseUsersCFL = "UseUsersCFL"_key;

constexpr auto RequestResults = "RequestResults"_key;
constexpr auto MultiFieldIndexedPoint = "MultiFieldIndexedPoint"_key;
constexpr auto MultiFieldInterpolatedPoint = "MultiFieldInterpolatedPoint"_key;
constexpr auto MultiPointFieldRequest = "MultiPointFieldRequest"_key;
constexpr auto RawSARPlanes = "RawSARPlanes"_key;
constexpr auto TemperatureRiseRequest = "TemperatureRiseRequest"_key;
constexpr auto SARAveraging = "SARAveraging"_key;
constexpr auto FarZoneRequests = "FarZoneRequests"_key;
constexpr auto HACRequest = "HACRequest"_key;
constexpr auto DFTParameters = "DFTParameters"_key;
constexpr auto SteadyStateFrequencies = "SteadyStateFrequencies"_key;
constexpr auto StorageIsMemory = "SteadyStateStorageMethodIsMemory"_key;
constexpr auto StorageIsHardDisk = "SteadyStateStorageMethodIsHardDisk"_key;
constexpr auto DontSaveFarZoneBoxFile = "DontSaveFarZoneBoxFile"_key;
constexpr auto DontComputeSystemDissipatedPower = "DontComputeSystemDissipatedPower"_key;
}  // namespace key

void writeUnits(DelimManager& delim, QLatin1String name, const QPair<QString, double>& units) {
    const WrittenBlock block(delim, name);
    putLine(delim, key::Name, units.first);
    putLine(delim, key::Conversion, units.second);
}

// A request that could not be read is left out.
template <class Request>
void appendRead(DelimManager& delim, std::vector<Request>& requests, bool (*read)(DelimManager&, Request&)) {
    Request request;
    if (read(delim, request)) requests.push_back(std::move(request));
}

}  // namespace

/// Puts what a load has read into its member. What was there before stays alive, unless this load created it.
template <class Member, class Object>
void v6ProjectFile::install(Member*& member, Object object) {
    if (m_createdByLoad.erase(member)) destroy(member);
    member = object.release();
    m_createdByLoad.insert(member);
}

bool v6ProjectFile::StreamIn(DelimManager& delim) {
    walkBlock(delim,
              Unknown::DropLine,
              onBlock(key::Units, [&] { return StreamInUnits(delim); }),
              onBlock(key::RunParameters, [&] { return StreamInRunParameters(delim); }),
              onBlock(key::RequestResults, [&] { return StreamInRequestResults(delim); }));
    return isOk(delim);
}

bool v6ProjectFile::StreamOutUnits(DelimManager& delim) {
    const WrittenBlock block(delim, key::Units);
    writeUnits(delim, key::Display, m_displayUnits);
    writeUnits(delim, key::Modeling, m_modelingUnits);
    return isOk(delim);
}

// The two inner blocks are entered without a walk of their own, so that the close line of the first of them ends this
// reader. Of a file as it is written only the display units are read therefore: the modeling units stay as they are.
bool v6ProjectFile::StreamInUnits(DelimManager& delim) {
    auto* units = &m_displayUnits;
    walkBlock(delim,
              Unknown::DropLine,
              onBlock(key::Display, [&] { units = &m_displayUnits; }),
              onBlock(key::Modeling, [&] { units = &m_modelingUnits; }),
              onWord(key::Name, [&](QTextStream& in) { readValue(in, units->first); }),
              onWord(key::Conversion, [&](QTextStream& in) { readValue(in, units->second); }));
    return isOk(delim);
}

bool v6ProjectFile::StreamOutRunParameters(DelimManager& delim) {
    const WrittenBlock block(delim, key::RunParameters);
    StreamOutBoundaryConditions(delim);
    StreamOutAmbientConditions(delim);
    StreamOutComponentsPorts(delim);
    StreamOutWaveGuidePorts(delim);
    StreamOutTerminationCriteria(delim);
    StreamOutSourceType(delim);
    StreamOutWaveform(delim);
    if (m_useExplicitlySuppliedTimestep) {
        putLine(delim, key::UseTimestep, m_explicitlySuppliedTimestep);
    } else if (m_useUsersCFL) {
        putLine(delim, key::UseUsersCFL, m_cfl);
    }
    return isOk(delim);
}

bool v6ProjectFile::StreamInRunParameters(DelimManager& delim) {
    m_useExplicitlySuppliedTimestep = false;
    m_useUsersCFL = false;
    const auto readAndUse = [](float& value, bool& use) {
        return [&value, &use](QTextStream& in) {
            readValue(in, value);
            use = true;
        };
    };
    walkBlock(delim,
              Unknown::DropLine,
              onBlock(key::OuterBoundaries, [&] { return StreamInBoundaryConditions(delim); }),
              onBlock(key::AmbientConditions, [&] { return StreamInAmbientConditions(delim); }),
              onBlock(key::ComponentsPorts, [&] { return StreamInComponentsPorts(delim); }),
              onBlock(key::WaveGuidePorts, [&] { return StreamInWaveGuidePorts(delim); }),
              onBlock(key::TerminationCriteria, [&] { StreamInTerminationCriteria(delim); }),
              onBlock(key::SourceType, [&] { return StreamInSourceType(delim); }),
              onBlock(key::Waveform, [&] { return StreamInWaveform(delim); }),
              onBlock(key::Convergence, [&] { return StreamInV6Convergence(delim); }),
              onWord(key::UseTimestep, readAndUse(m_explicitlySuppliedTimestep, m_useExplicitlySuppliedTimestep)),
              onWord(key::UseUsersCFL, readAndUse(m_cfl, m_useUsersCFL)));
    return isOk(delim);
}

// The settings of steady-state results, and HAC requests, are written only where there are such results.
bool v6ProjectFile::StreamOutRequestResults(DelimManager& delim) {
    const WrittenBlock block(delim, key::RequestResults);
    for (const auto& point : m_nearZoneIndexedPoints) writeIndexedPoint(delim, point);
    for (const auto& point : m_nearZoneInterpolatedPoints) writeInterpolatedPoint(delim, point);
    for (const auto& request : m_multiPointFieldRequests) writeMultiPointFieldRequest(delim, request);
    writeRawSARPlanes(delim, m_sarPlaneRequests);
    if (m_temperatureRiseRequest) m_temperatureRiseRequest->streamOut(delim);
    if (m_sarAveragingRequest) m_sarAveragingRequest->streamOut(delim);
    writeFarZoneRequests(delim, m_steadyStateFarZoneRequests, m_transientFarZoneRequests);
    if (m_steadyStateFrequencies.empty()) return isOk(delim);
    StreamOutDFTParameters(delim);
    putLine(delim, m_steadyStateStorageMethod == HardDisk ? key::StorageIsHardDisk : key::StorageIsMemory);
    putFlag(delim, key::DontSaveFarZoneBoxFile, !m_saveFieldsOnFarZoneBox);
    putFlag(delim, key::DontComputeSystemDissipatedPower, !m_computeSystemDissipatedPower);
    writeSteadyStateFrequencies(delim, m_steadyStateFrequencies);
    for (const HACRequest* request : m_hacRequests) {
        if (request) writeHACRequest(delim, *request);
    }
    return isOk(delim);
}

bool v6ProjectFile::StreamInRequestResults(DelimManager& delim) {
    m_saveFieldsOnFarZoneBox = true;
    install(m_sarAveragingRequest, std::unique_ptr<SARAveragingRequest>());
    const auto readSetting = [&](QString line) {
        stripEscapeCharacters(line);
        if (line == key::StorageIsMemory) m_steadyStateStorageMethod = Memory;
        if (line == key::StorageIsHardDisk) m_steadyStateStorageMethod = HardDisk;
        if (line == key::DontSaveFarZoneBoxFile) m_saveFieldsOnFarZoneBox = false;
        if (line == key::DontComputeSystemDissipatedPower) m_computeSystemDissipatedPower = false;
    };
    walkBlock(
        delim,
        Unknown::DropLine,
        onBlock(key::MultiFieldIndexedPoint, [&] { appendRead(delim, m_nearZoneIndexedPoints, readIndexedPoint); }),
        onBlock(key::MultiFieldInterpolatedPoint,
                [&] { appendRead(delim, m_nearZoneInterpolatedPoints, readInterpolatedPoint); }),
        onBlock(key::MultiPointFieldRequest,
                [&] { appendRead(delim, m_multiPointFieldRequests, readMultiPointFieldRequest); }),
        onBlock(key::RawSARPlanes, [&] { readRawSARPlanes(delim, m_sarPlaneRequests); }),
        onBlock(key::TemperatureRiseRequest,
                [&] { install(m_temperatureRiseRequest, std::make_unique<quarn::TemperatureRiseRequest>(delim)); }),
        onBlock(key::SARAveraging,
                [&] { install(m_sarAveragingRequest, std::make_unique<SARAveragingRequest>(delim)); }),
        onBlock(key::FarZoneRequests,
                [&] { readFarZoneRequests(delim, m_steadyStateFarZoneRequests, m_transientFarZoneRequests); }),
        onBlock(key::DFTParameters, [&] { StreamInDFTParameters(delim); }),
        onBlock(key::HACRequest, [&] { m_hacRequests.push_back(readHACRequest(delim).release()); }),
        onBlock(key::SteadyStateFrequencies, [&] { StreamInSteadyStateFrequencies(delim); }),
        onLine(readSetting));
    return isOk(delim);
}

bool v6ProjectFile::StreamOutBoundaryConditions(DelimManager& delim) {
    if (!m_boundaryConditions) {
        throw std::runtime_error(
            "quarn::v6ProjectFile::StreamOutBoundaryConditions: boundary condition have not been set");
    }
    return writeBoundaryConditions(delim, *m_boundaryConditions);
}

bool v6ProjectFile::StreamInBoundaryConditions(DelimManager& delim) {
    install(m_boundaryConditions, readBoundaryConditions(delim, m_waveforms));
    return isOk(delim);
}

bool v6ProjectFile::StreamOutAmbientConditions(DelimManager& delim) {
    return m_ambientConditions && writeAmbientConditions(delim, *m_ambientConditions);
}

bool v6ProjectFile::StreamInAmbientConditions(DelimManager& delim) {
    install(m_ambientConditions, readAmbientConditions(delim));
    return isOk(delim);
}

bool v6ProjectFile::StreamOutComponentsPorts(DelimManager& delim) {
    return writeComponentsPorts(delim, m_componentManager, m_staticVoltageList);
}

bool v6ProjectFile::StreamInComponentsPorts(DelimManager& delim) {
    auto [manager, staticVoltages] = readComponentsPorts(delim);
    install(m_staticVoltageList, std::move(staticVoltages));
    install(m_componentManager, std::move(manager));
    return isOk(delim);
}

bool v6ProjectFile::StreamOutWaveGuidePorts(DelimManager& delim) {
    return m_waveGuidePortManager && writeWaveGuidePorts(delim, *m_waveGuidePortManager);
}

bool v6ProjectFile::StreamInWaveGuidePorts(DelimManager& delim) {
    install(m_waveGuidePortManager, readWaveGuidePorts(delim));
    return isOk(delim);
}

bool v6ProjectFile::StreamOutTerminationCriteria(DelimManager& delim) {
    return m_terminationCriteria && writeTerminationCriteria(delim, *m_terminationCriteria, m_tdAfsTerminationCriteria);
}

bool v6ProjectFile::StreamInTerminationCriteria(DelimManager& delim) {
    auto [criteria, tdAfsCriteria] = readTerminationCriteria(delim);
    if (!tdAfsCriteria && !m_tdAfsTerminationCriteria) tdAfsCriteria = std::make_unique<TdAfsTerminationCriteria>();
    if (tdAfsCriteria) install(m_tdAfsTerminationCriteria, std::move(tdAfsCriteria));
    install(m_terminationCriteria, std::move(criteria));
    return isOk(delim);
}

bool v6ProjectFile::StreamInV6Convergence(DelimManager& delim) {
    if (auto criteria = readV6Convergence(delim)) install(m_terminationCriteria, std::move(criteria));
    return isOk(delim);
}

bool v6ProjectFile::StreamOutSourceType(DelimManager& delim) {
    return m_planeWave && writeSourceType(delim, *m_planeWave, m_areaSourceFile);
}

bool v6ProjectFile::StreamInSourceType(DelimManager& delim) {
    if (auto wave = readSourceType(delim, m_areaSourceFile)) install(m_planeWave, std::move(wave));
    return isOk(delim);
}

bool v6ProjectFile::StreamOutWaveform(DelimManager& delim) {
    return !m_waveforms.empty() && writeWaveforms(delim, m_waveforms, m_terminationCriteria);
}

bool v6ProjectFile::StreamInWaveform(DelimManager& delim) {
    std::unique_ptr<quarn::DFTParameters> dftParameters;
    const bool completed = readWaveforms(delim, m_waveforms, dftParameters, m_steadyStateFrequencies);
    if (dftParameters) install(m_dftParameters, std::move(dftParameters));
    return completed;
}

bool v6ProjectFile::StreamOutDFTParameters(DelimManager& delim) {
    return m_dftParameters && writeDFTParameters(delim, *m_dftParameters);
}

bool v6ProjectFile::StreamInDFTParameters(DelimManager& delim) {
    install(m_dftParameters, readDFTParameters(delim));
    return isOk(delim);
}

bool v6ProjectFile::StreamInSteadyStateFrequencies(DelimManager& delim) {
    readSteadyStateFrequencies(delim, m_steadyStateFrequencies);
    return isOk(delim);
}

}  // namespace quarn
