#include <set>
#include <stdexcept>

#include "blocktext/BlockDescription.h"
#include "quarn/MultiPointFieldRequest.h"
#include "results/RequestSections.h"

namespace quarn {

using namespace blocktext;

namespace {

// A request, which is constant while it is written, and the lists that a reader finds and from which the cells are made
// at the end. Older files list plain grid indices.
template <class Request>
struct Content {
    Request& request;
    std::vector<GridIndexBoxes::Box> boxes{};
    std::set<ivec3> pointsToRemove{};
    std::vector<ivec3> additionalPoints{};
    std::vector<ivec3> gridIndices{};
};

// A member of the request.
template <class Member>
struct InRequest {
    Member member;

    template <class Any>
    constexpr auto& operator()(Any& content) const {
        return content.request.*member;
    }
};
template <class Member>
constexpr InRequest<Member> in(Member member) {
    return {member};
}

// A list that is written from the cells of the request.
template <class Request, class Get, class List>
constexpr auto cells(Get get, List Content<Request>::*list) {
    return separate(
        [get](const auto& content) -> decltype(auto) { return std::invoke(get, content.request.gridIndexBoxes); },
        list);
}

template <class Request>
constexpr auto block() {
    using R = MultiPointFieldRequest;
    using C = Content<Request>;
    constexpr auto point = parts(&ivec3::x, &ivec3::y, &ivec3::z);
    using Box = GridIndexBoxes::Box;
    constexpr auto box = parts(path(&Box::first, &ivec3::x),
                               path(&Box::first, &ivec3::y),
                               path(&Box::first, &ivec3::z),
                               path(&Box::second, &ivec3::x),
                               path(&Box::second, &ivec3::y),
                               path(&Box::second, &ivec3::z));
    return describe<C>(
        sectionName::multiPointField,
        Unknown::DropLine,
        Unreadable::KeepsValue,
        value("MinTimestep", in(&R::minTimestep)),
        value("MaxTimestep", in(&R::maxTimestep)),
        value("DeltaTimestep", in(&R::deltaTimestep)),
        text("File", in(&R::outputFile)),
        flag("TransientTotalE", in(&R::collectTransientTotalE)),
        flag("TransientTotalH", in(&R::collectTransientTotalH)),
        flag("TransientTotalB", in(&R::collectTransientTotalB)),
        flag("TransientJ", in(&R::collectTransientJ)),
        flag("TransientScatteredE", in(&R::collectTransientScatteredE)),
        flag("TransientScatteredH", in(&R::collectTransientScatteredH)),
        flag("TransientScatteredB", in(&R::collectTransientScatteredB)),
        flag("SteadyTotalE", in(&R::collectSteadyTotalE)),
        flag("SteadyTotalH", in(&R::collectSteadyTotalH)),
        flag("SteadyTotalB", in(&R::collectSteadyTotalB)),
        flag("SteadyJ", in(&R::collectSteadyJ)),
        flag("Snapped", in(&R::snapped)),
        unwritten(in(&R::gridIndexBoxes)),
        value("GridBoxes", cells<Request>(&GridIndexBoxes::getBoxes, &C::boxes), counted(box)).notCompared(),
        value("PointsToRemoveFromBoxes",
              cells<Request>(&GridIndexBoxes::getPointsToRemoveFromBoxes, &C::pointsToRemove),
              counted(point))
            .notCompared(),
        value("AdditionalPoints",
              cells<Request>(&GridIndexBoxes::getSparePointIndices, &C::additionalPoints),
              counted(point))
            .notCompared(),
        value("GridIndices", &C::gridIndices, counted(point)).onlyRead().notCompared());
}

}  // namespace

bool operator==(const MultiPointFieldRequest& a, const MultiPointFieldRequest& b) {
    return block<const MultiPointFieldRequest>().areEqual({a}, {b});
}

bool writeMultiPointFieldRequest(DelimManager& delim, const MultiPointFieldRequest& request) {
    return block<const MultiPointFieldRequest>().write(delim, {request});
}

// Plain grid indices count only where there is nothing else.
bool readMultiPointFieldRequest(DelimManager& delim, MultiPointFieldRequest& request) {
    Content<MultiPointFieldRequest> content{request};
    request.snapped = false;
    block<MultiPointFieldRequest>().read(delim, content);
    try {
        auto& [_, boxes, pointsToRemove, additionalPoints, gridIndices] = content;
        request.gridIndexBoxes = boxes.empty() && additionalPoints.empty()
                                     ? GridIndexBoxes(std::move(gridIndices))
                                     : GridIndexBoxes(std::move(boxes), pointsToRemove, std::move(additionalPoints));
    } catch (const std::runtime_error&) {  // boxes that overlap beyond reason
        return false;
    }
    return isOk(delim);
}

void describeMultiPointField(FormatBuilder& builder) {
    const MultiPointFieldRequest blank;
    block<const MultiPointFieldRequest>().describeTo(builder, {blank});
}

}  // namespace quarn
