#include "blocktext/BlockWalker.h"
#include "blocktext/BlockWriter.h"
#include "quarn/FarZoneRequest.h"
#include "results/RequestSections.h"

namespace quarn {

using namespace blocktext;

namespace {

namespace key {
constexpr auto FarZoneRequests = "FarZoneRequests"_key;
constexpr auto SteadyState = "SteadyState"_key;
constexpr auto Transient = "Transient"_key;
}  // namespace key

void writeEach(DelimManager& delim, QLatin1String name, const std::vector<FarZoneRequest>& requests) {
    for (const FarZoneRequest& request : requests) {
        const WrittenBlock block(delim, name);
        request.StreamOut(delim);
    }
}

auto onRequest(DelimManager& delim, QLatin1String name, std::vector<FarZoneRequest>& requests) {
    return onBlock(name, [&delim, &requests] {
        FarZoneRequest request;
        if (request.StreamIn(delim)) requests.push_back(std::move(request));
    });
}

}  // namespace

bool writeFarZoneRequests(DelimManager& delim, const std::vector<FarZoneRequest>& steadyState,
                          const std::vector<FarZoneRequest>& transient) {
    if (steadyState.empty() && transient.empty()) return isOk(delim);
    const WrittenBlock block(delim, key::FarZoneRequests);
    writeEach(delim, key::SteadyState, steadyState);
    writeEach(delim, key::Transient, transient);
    return isOk(delim);
}

bool readFarZoneRequests(DelimManager& delim, std::vector<FarZoneRequest>& steadyState,
                         std::vector<FarZoneRequest>& transient) {
    walkBlock(delim,
              Unknown::DropLine,
              onRequest(delim, key::SteadyState, steadyState),
              onRequest(delim, key::Transient, transient));
    return isOk(delim);
}

}  // namespace quarn
