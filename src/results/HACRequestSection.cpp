#include "blocktext/BlockDescription.h"
#include "quarn/HACRequest.h"
#include "results/RequestSections.h"

namespace quarn {

using namespace blocktext;

namespace {

using Components = std::array<double, 3>;

constexpr auto axis(Key key, Vector3D HACRequest::*vector) {
    const auto get = [vector](const HACRequest& r) -> Components {
        return {(r.*vector).getX(), (r.*vector).getY(), (r.*vector).getZ()};
    };
    const auto set = [vector](HACRequest& r, const Components& c) { (r.*vector).set(c[0], c[1], c[2]); };
    return value(key, property(get, set), Elements());
}

constexpr auto hacRequest = [] {
    using R = HACRequest;
    using Point = tavrix::Cartesian3D;
    return describeWords<R>(sectionName::hac,
                            Unknown::DropWord,
                            Unreadable::KeepsValue,
                            value("Origin", &R::origin, parts(&Point::x, &Point::y, &Point::z)).in("m"),
                            axis("U", &R::u),
                            axis("V", &R::v),
                            axis("W", &R::w));
}();

}  // namespace

bool writeHACRequest(DelimManager& delim, const HACRequest& request) { return hacRequest.write(delim, request); }

std::unique_ptr<const HACRequest> readHACRequest(DelimManager& delim) {
    auto request = std::make_unique<HACRequest>();
    hacRequest.read(delim, *request);
    return request;
}

void describeHACRequest(FormatBuilder& builder) { hacRequest.describeTo(builder, {}); }

}  // namespace quarn
