// The sections of src/results/ as the project file has them.

#include "results/RequestSections.h"

#include "project/ProjectContents.h"
#include "project/Sections.h"
#include "quarn/FarZoneRequest.h"
#include "quarn/HACRequest.h"
#include "quarn/MultiPointFieldRequest.h"
#include "quarn/NearZoneMultiFieldPoint.h"
#include "quarn/SARAveragingRequest.h"
#include "quarn/TemperatureRiseRequest.h"

namespace quarn {

using namespace blocktext;

namespace {

/// A block for each request of a list. A request that could not be read is left out.
template <class Request, bool (*write)(DelimManager&, const Request&), bool (*read)(DelimManager&, Request&)>
constexpr Section eachOf(QLatin1String name, void (*describe)(FormatBuilder&)) {
    const auto writeAll = [](DelimManager& delim, const v6ProjectFile& project) {
        for (const auto& request : std::get<const std::vector<Request>&>(ProjectContents::of(project))) {
            write(delim, request);
        }
        return isOk(delim);
    };
    const auto readOne = [](DelimManager& delim, v6ProjectFile& project) {
        Request request;
        const bool isRead = read(delim, request);
        if (isRead) std::get<std::vector<Request>&>(ProjectContents::of(project)).push_back(std::move(request));
        return isRead;
    };
    return {name, Unreadable::KeepsValue, writeAll, readOne, describe};
}

/// The block of a request that the project has or not, and that writes and reads itself.
template <class Request>
constexpr Section onlyOne(QLatin1String name, void (*describe)(FormatBuilder&)) {
    const auto write = [](DelimManager& delim, const v6ProjectFile& project) {
        const Request* request = std::get<Request* const&>(ProjectContents::of(project));
        return request && request->streamOut(delim);
    };
    const auto read = [](DelimManager& delim, v6ProjectFile& project) {
        ProjectContents::install(project, std::make_unique<Request>(delim));
        return isOk(delim);
    };
    return {name, Unreadable::KeepsValue, write, read, describe};
}

bool StreamOutRawSARPlanes(DelimManager& delim, const v6ProjectFile& project) {
    return writeRawSARPlanes(delim, project.getSARPlaneRequests());
}

bool StreamInRawSARPlanes(DelimManager& delim, v6ProjectFile& project) {
    return readRawSARPlanes(delim, project.getSARPlaneRequests());
}

bool StreamOutFarZoneRequests(DelimManager& delim, const v6ProjectFile& project) {
    return writeFarZoneRequests(delim, project.getSteadyStateFarZoneRequests(), project.getTransientFarZoneRequests());
}

bool StreamInFarZoneRequests(DelimManager& delim, v6ProjectFile& project) {
    return readFarZoneRequests(delim, project.getSteadyStateFarZoneRequests(), project.getTransientFarZoneRequests());
}

bool StreamOutHACRequests(DelimManager& delim, const v6ProjectFile& project) {
    for (const HACRequest* request : project.getHACRequests()) {
        if (request) writeHACRequest(delim, *request);
    }
    return isOk(delim);
}

bool StreamInHACRequest(DelimManager& delim, v6ProjectFile& project) {
    project.getHACRequests().push_back(readHACRequest(delim).release());
    return isOk(delim);
}

}  // namespace

const Section indexedPointsSection = eachOf<NearZoneMultiFieldIndexedPoint, writeIndexedPoint, readIndexedPoint>(
    sectionName::indexedPoint, describeIndexedPoint);

const Section interpolatedPointsSection =
    eachOf<NearZoneMultiFieldInterpolatedPoint, writeInterpolatedPoint, readInterpolatedPoint>(
        sectionName::interpolatedPoint, describeInterpolatedPoint);

const Section multiPointFieldRequestsSection =
    eachOf<MultiPointFieldRequest, writeMultiPointFieldRequest, readMultiPointFieldRequest>(
        sectionName::multiPointField, describeMultiPointField);

const Section rawSARPlanesSection{sectionName::rawSARPlanes,
                                  Unreadable::KeepsValue,
                                  StreamOutRawSARPlanes,
                                  StreamInRawSARPlanes,
                                  describeRawSARPlanes};

const Section temperatureRiseSection =
    onlyOne<TemperatureRiseRequest>(sectionName::temperatureRise, describeTemperatureRise);

const Section sarAveragingSection = onlyOne<SARAveragingRequest>(sectionName::sarAveraging, describeSARAveraging);

const Section farZoneRequestsSection{sectionName::farZone,
                                     Unreadable::KeepsValue,
                                     StreamOutFarZoneRequests,
                                     StreamInFarZoneRequests,
                                     describeFarZoneRequests};

const Section hacRequestsSection{
    sectionName::hac, Unreadable::KeepsValue, StreamOutHACRequests, StreamInHACRequest, describeHACRequest};

}  // namespace quarn
