#include "blocktext/BlockWalker.h"
#include "blocktext/BlockWriter.h"
#include "quarn/HACRequest.h"
#include "results/RequestSections.h"

namespace quarn {

using namespace blocktext;

namespace {

namespace key {
constexpr auto HACRequest = "HACRequest"_key;
constexpr auto Origin = "Origin"_key;
constexpr auto U = "U"_key;
constexpr auto V = "V"_key;
constexpr auto W = "W"_key;
}  // namespace key

void writeAxis(DelimManager& delim, QLatin1String key, const Vector3D& axis) {
    putLine(delim, key, axis.getX(), axis.getY(), axis.getZ());
}

auto onAxis(QLatin1String key, Vector3D& axis) {
    return onWord(key, [&axis](QTextStream& in) {
        double x = axis.getX(), y = axis.getY(), z = axis.getZ();
        readAll(in, x, y, z);
        axis.set(x, y, z);
    });
}

}  // namespace

bool writeHACRequest(DelimManager& delim, const HACRequest& request) {
    const WrittenBlock block(delim, key::HACRequest);
    putLine(delim, key::Origin, request.origin.x, request.origin.y, request.origin.z);
    writeAxis(delim, key::U, request.u);
    writeAxis(delim, key::V, request.v);
    writeAxis(delim, key::W, request.w);
    return isOk(delim);
}

std::unique_ptr<const HACRequest> readHACRequest(DelimManager& delim) {
    auto request = std::make_unique<HACRequest>();
    auto& origin = request->origin;
    walkWords(delim,
              Unknown::DropWord,
              onWord(key::Origin, [&](QTextStream& in) { readAll(in, origin.x, origin.y, origin.z); }),
              onAxis(key::U, request->u),
              onAxis(key::V, request->v),
              onAxis(key::W, request->w));
    return request;
}

}  // namespace quarn
