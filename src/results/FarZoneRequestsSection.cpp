#include "results/FarZoneRequestBlock.h"
#include "results/RequestSections.h"

namespace quarn {

using namespace blocktext;

namespace {

using Requests = std::vector<FarZoneRequest>;

// Both lists of a project.
struct FarZoneRequests {
    Requests steadyState;
    Requests transient;
};

constexpr auto farZoneRequests = describe<FarZoneRequests>(
    sectionName::farZone, Unknown::DropLine, Unreadable::KeepsValue,
    wholeInnerBlocks(&FarZoneRequests::steadyState, Description<FarZoneRequest>::block("SteadyState")),
    wholeInnerBlocks(&FarZoneRequests::transient, Description<FarZoneRequest>::block("Transient")));

}  // namespace

bool writeFarZoneRequests(DelimManager& delim, const Requests& steadyState, const Requests& transient) {
    if (steadyState.empty() && transient.empty()) return isOk(delim);
    return farZoneRequests.write(delim, {steadyState, transient});
}

bool readFarZoneRequests(DelimManager& delim, Requests& steadyState, Requests& transient) {
    FarZoneRequests requests{std::move(steadyState), std::move(transient)};
    farZoneRequests.read(delim, requests);
    steadyState = std::move(requests.steadyState);
    transient = std::move(requests.transient);
    return isOk(delim);
}

void describeFarZoneRequests(FormatBuilder& builder) { farZoneRequests.describeTo(builder, {}); }

}  // namespace quarn
