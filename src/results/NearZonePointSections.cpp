#include <tuple>

#include "blocktext/BlockWalker.h"
#include "blocktext/BlockWriter.h"
#include "quarn/NearZoneMultiFieldPoint.h"
#include "results/RequestSections.h"

namespace quarn {

using namespace blocktext;

namespace {

using Point = NearZoneMultiFieldPoint;
using IndexedPoint = NearZoneMultiFieldIndexedPoint;
using InterpolatedPoint = NearZoneMultiFieldInterpolatedPoint;

namespace key {
constexpr auto MultiFieldIndexedPoint = "MultiFieldIndexedPoint"_key;
constexpr auto XIndex = "XIndex"_key;
constexpr auto YIndex = "YIndex"_key;
constexpr auto ZIndex = "ZIndex"_key;
constexpr auto MultiFieldInterpolatedPoint = "MultiFieldInterpolatedPoint"_key;
constexpr auto XPosition = "XPosition"_key;
constexpr auto YPosition = "YPosition"_key;
constexpr auto ZPosition = "ZPosition"_key;
constexpr auto Definition = "Definition"_key;
constexpr auto File = "File"_key;
constexpr auto MinTimestep = "MinTimestep"_key;
constexpr auto MaxTimestep = "MaxTimestep"_key;
constexpr auto DeltaTimestep = "DeltaTimestep"_key;
}  // namespace key

// The order in which they are written.
constexpr std::array<FieldGroup, 7> groups{FieldGroup::TotalE,
                                           FieldGroup::ScatteredE,
                                           FieldGroup::TotalH,
                                           FieldGroup::ScatteredH,
                                           FieldGroup::TotalB,
                                           FieldGroup::ScatteredB,
                                           FieldGroup::J};

QLatin1String keyOf(FieldGroup group) { return QLatin1String(infoOf(group).key); }

void writeDefinition(DelimManager& delim, const Point& point) {
    const WrittenBlock block(delim, key::Definition);
    putLine(delim, key::File, point.filename());
    putLine(delim, key::MinTimestep, point.getMinTimestep());
    putLine(delim, key::MaxTimestep, point.getMaxTimestep());
    putLine(delim, key::DeltaTimestep, point.getDeltaTimestep());
    for (const FieldGroup group : groups) putFlag(delim, keyOf(group), point.collects(group));
}

void readDefinition(DelimManager& delim, Point& point) {
    const auto walk = [&](auto... group) {
        walkBlock(delim,
                  Unknown::DropLine,
                  onSetting(key::File, point, &Point::setFilename),
                  onSetting(key::MinTimestep, point, &Point::setMinTimestep),
                  onSetting(key::MaxTimestep, point, &Point::setMaxTimestep),
                  onSetting(key::DeltaTimestep, point, &Point::setDeltaTimestep),
                  onWord(keyOf(group), [&] { point.setCollects(group, true); })...);
    };
    std::apply(walk, groups);
}

// What all points have in their blocks, and the handlers for the coordinates.
template <class... Coordinates>
bool readPoint(DelimManager& delim, Point& point, Coordinates... coordinates) {
    walkBlock(
        delim, Unknown::DropLine, onBlock(key::Definition, [&] { readDefinition(delim, point); }), coordinates...);
    return isOk(delim);
}

}  // namespace

bool writeIndexedPoint(DelimManager& delim, const NearZoneMultiFieldIndexedPoint& point) {
    const WrittenBlock block(delim, key::MultiFieldIndexedPoint);
    writeDefinition(delim, point);
    putLine(delim, key::XIndex, point.getX());
    putLine(delim, key::YIndex, point.getY());
    putLine(delim, key::ZIndex, point.getZ());
    return isOk(delim);
}

bool readIndexedPoint(DelimManager& delim, NearZoneMultiFieldIndexedPoint& point) {
    return readPoint(delim,
                     point,
                     onSetting(key::XIndex, point, &IndexedPoint::setX),
                     onSetting(key::YIndex, point, &IndexedPoint::setY),
                     onSetting(key::ZIndex, point, &IndexedPoint::setZ));
}

bool writeInterpolatedPoint(DelimManager& delim, const NearZoneMultiFieldInterpolatedPoint& point) {
    const WrittenBlock block(delim, key::MultiFieldInterpolatedPoint);
    writeDefinition(delim, point);
    putLine(delim, key::XPosition, point.getX());
    putLine(delim, key::YPosition, point.getY());
    putLine(delim, key::ZPosition, point.getZ());
    return isOk(delim);
}

bool readInterpolatedPoint(DelimManager& delim, NearZoneMultiFieldInterpolatedPoint& point) {
    return readPoint(delim,
                     point,
                     onSetting(key::XPosition, point, &InterpolatedPoint::setX),
                     onSetting(key::YPosition, point, &InterpolatedPoint::setY),
                     onSetting(key::ZPosition, point, &InterpolatedPoint::setZ));
}

}  // namespace quarn
