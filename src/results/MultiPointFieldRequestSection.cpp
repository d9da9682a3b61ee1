#include <set>
#include <stdexcept>
#include <tuple>

#include "blocktext/BlockWalker.h"
#include "blocktext/BlockWriter.h"
#include "quarn/MultiPointFieldRequest.h"
#include "results/RequestSections.h"

namespace quarn {

using namespace blocktext;

namespace {

using Request = MultiPointFieldRequest;

namespace key {
constexpr auto MultiPointFieldRequest = "MultiPointFieldRequest"_key;
constexpr auto MinTimestep = "MinTimestep"_key;
constexpr auto MaxTimestep = "MaxTimestep"_key;
constexpr auto DeltaTimestep = "DeltaTimestep"_key;
constexpr auto File = "File"_key;
constexpr auto GridBoxes = "GridBoxes"_key;
constexpr auto PointsToRemoveFromBoxes = "PointsToRemoveFromBoxes"_key;
constexpr auto AdditionalPoints = "AdditionalPoints"_key;
constexpr auto GridIndices = "GridIndices"_key;
}  // namespace key

struct Flag {
    QLatin1String key;
    bool Request::*member;
};

// In the order in which they are written.
constexpr std::array<Flag, 12> flags{{
    {"TransientTotalE"_key, &Request::collectTransientTotalE},
    {"TransientTotalH"_key, &Request::collectTransientTotalH},
    {"TransientTotalB"_key, &Request::collectTransientTotalB},
    {"TransientJ"_key, &Request::collectTransientJ},
    {"TransientScatteredE"_key, &Request::collectTransientScatteredE},
    {"TransientScatteredH"_key, &Request::collectTransientScatteredH},
    {"TransientScatteredB"_key, &Request::collectTransientScatteredB},
    {"SteadyTotalE"_key, &Request::collectSteadyTotalE},
    {"SteadyTotalH"_key, &Request::collectSteadyTotalH},
    {"SteadyTotalB"_key, &Request::collectSteadyTotalB},
    {"SteadyJ"_key, &Request::collectSteadyJ},
    {"Snapped"_key, &Request::snapped},
}};

void put(QTextStream& out, const ivec3& p) { out << ' ' << p.x << ' ' << p.y << ' ' << p.z; }
void put(QTextStream& out, const GridIndexBoxes::Box& box) {
    put(out, box.first);
    put(out, box.second);
}

bool read(QTextStream& in, ivec3& p) { return readAll(in, p.x, p.y, p.z); }
bool read(QTextStream& in, GridIndexBoxes::Box& box) { return read(in, box.first) && read(in, box.second); }

template <class List>
void writeList(DelimManager& delim, QLatin1String key, const List& list) {
    QTextStream& out = delim.GetStream();
    out << key << ' ' << list.size();
    for (const auto& entry : list) put(out, entry);
    out << '\n';
}

// Lists come in their order, so that a set takes each entry at its end, too.
template <class List>
auto onList(QLatin1String key, List& list) {
    return onWord(key, [&list](QTextStream& in) {
        readCounted(in, [&list](QTextStream& from) {
            typename List::value_type entry;
            const bool isRead = read(from, entry);
            if (isRead) list.insert(list.end(), entry);
            return isRead;
        });
    });
}

}  // namespace

bool operator==(const MultiPointFieldRequest& a, const MultiPointFieldRequest& b) {
    const auto hasSame = [&](const auto&... flag) { return ((a.*flag.member == b.*flag.member) && ...); };
    const auto others = [](const Request& r) {
        return std::tie(r.minTimestep, r.maxTimestep, r.deltaTimestep, r.outputFile, r.gridIndexBoxes);
    };
    return std::apply(hasSame, flags) && others(a) == others(b);
}

bool writeMultiPointFieldRequest(DelimManager& delim, const MultiPointFieldRequest& request) {
    const WrittenBlock block(delim, key::MultiPointFieldRequest);
    putLine(delim, key::MinTimestep, request.minTimestep);
    putLine(delim, key::MaxTimestep, request.maxTimestep);
    putLine(delim, key::DeltaTimestep, request.deltaTimestep);
    putLine(delim, key::File, request.outputFile);
    for (const Flag& flag : flags) putFlag(delim, flag.key, request.*flag.member);
    writeList(delim, key::GridBoxes, request.gridIndexBoxes.getBoxes());
    writeList(delim, key::PointsToRemoveFromBoxes, request.gridIndexBoxes.getPointsToRemoveFromBoxes());
    writeList(delim, key::AdditionalPoints, request.gridIndexBoxes.getSparePointIndices());
    return isOk(delim);
}

// Older files list plain grid indices; they count only where there is nothing else.
bool readMultiPointFieldRequest(DelimManager& delim, MultiPointFieldRequest& request) {
    std::vector<ivec3> gridIndices;
    std::vector<GridIndexBoxes::Box> boxes;
    std::set<ivec3> pointsToRemove;
    std::vector<ivec3> additionalPoints;
    request.snapped = false;
    const auto walk = [&](const auto&... flag) {
        walkBlock(delim,
                  Unknown::DropLine,
                  onText(key::File, request.outputFile),
                  onValue(key::MinTimestep, request.minTimestep),
                  onValue(key::MaxTimestep, request.maxTimestep),
                  onValue(key::DeltaTimestep, request.deltaTimestep),
                  onFlag(flag.key, request.*flag.member)...,
                  onList(key::GridIndices, gridIndices),
                  onList(key::GridBoxes, boxes),
                  onList(key::PointsToRemoveFromBoxes, pointsToRemove),
                  onList(key::AdditionalPoints, additionalPoints));
    };
    std::apply(walk, flags);
    try {
        request.gridIndexBoxes = boxes.empty() && additionalPoints.empty()
                                     ? GridIndexBoxes(std::move(gridIndices))
                                     : GridIndexBoxes(std::move(boxes), pointsToRemove, std::move(additionalPoints));
    } catch (const std::runtime_error&) {  // boxes that overlap beyond reason
        return false;
    }
    return isOk(delim);
}

}  // namespace quarn
