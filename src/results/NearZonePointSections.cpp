#include <typeinfo>

#include "blocktext/BlockDescription.h"
#include "quarn/NearZoneMultiFieldPoint.h"
#include "results/RequestSections.h"

namespace quarn {

using namespace blocktext;

/// What points of both kinds have in common stands in an inner block.
template <>
struct blocktext::Description<NearZoneMultiFieldPoint> {
    using P = NearZoneMultiFieldPoint;
    static constexpr auto block() {
        constexpr auto groupFlag = [](FieldGroup group) {
            return flag(infoOf(group).key, element(&P::m_groups, static_cast<std::size_t>(group)));
        };
        return describe<P>("Definition",
                           Unknown::DropLine,
                           Unreadable::KeepsValue,
                           text("File", &P::m_filename),
                           value("MinTimestep", &P::m_minTimestep),
                           value("MaxTimestep", &P::m_maxTimestep),
                           value("DeltaTimestep", &P::m_deltaTimestep),
                           groupFlag(FieldGroup::TotalE),
                           groupFlag(FieldGroup::ScatteredE),
                           groupFlag(FieldGroup::TotalH),
                           groupFlag(FieldGroup::ScatteredH),
                           groupFlag(FieldGroup::TotalB),
                           groupFlag(FieldGroup::ScatteredB),
                           groupFlag(FieldGroup::J));
    }
};

template <>
struct blocktext::Description<NearZoneMultiFieldIndexedPoint> {
    using P = NearZoneMultiFieldIndexedPoint;
    static constexpr auto block() {
        return describe<P>(sectionName::indexedPoint,
                           Unknown::DropLine,
                           Unreadable::KeepsValue,
                           innerBlock(itself, Description<NearZoneMultiFieldPoint>::block()).notCompared(),
                           value("XIndex", &P::m_x),
                           value("YIndex", &P::m_y),
                           value("ZIndex", &P::m_z));
    }
};

template <>
struct blocktext::Description<NearZoneMultiFieldInterpolatedPoint> {
    using P = NearZoneMultiFieldInterpolatedPoint;
    static constexpr auto block() {
        return describe<P>(sectionName::interpolatedPoint,
                           Unknown::DropLine,
                           Unreadable::KeepsValue,
                           innerBlock(itself, Description<NearZoneMultiFieldPoint>::block()).notCompared(),
                           value("XPosition", &P::m_x).in("m"),
                           value("YPosition", &P::m_y).in("m"),
                           value("ZPosition", &P::m_z).in("m"));
    }
};

namespace {

using Point = NearZoneMultiFieldPoint;
using IndexedPoint = NearZoneMultiFieldIndexedPoint;
using InterpolatedPoint = NearZoneMultiFieldInterpolatedPoint;

constexpr auto definition = Description<Point>::block();
constexpr auto indexedPoint = Description<IndexedPoint>::block();
constexpr auto interpolatedPoint = Description<InterpolatedPoint>::block();

}  // namespace

bool Point::operator==(const Point& other) const {
    return typeid(*this) == typeid(other) && definition.areEqual(*this, other);
}

bool IndexedPoint::operator==(const IndexedPoint& other) const {
    return Point::operator==(other) && indexedPoint.areEqual(*this, other);
}

bool InterpolatedPoint::operator==(const InterpolatedPoint& other) const {
    return Point::operator==(other) && interpolatedPoint.areEqual(*this, other);
}

bool writeIndexedPoint(DelimManager& delim, const IndexedPoint& point) { return indexedPoint.write(delim, point); }

bool readIndexedPoint(DelimManager& delim, IndexedPoint& point) {
    indexedPoint.read(delim, point);
    return isOk(delim);
}

bool writeInterpolatedPoint(DelimManager& delim, const InterpolatedPoint& point) {
    return interpolatedPoint.write(delim, point);
}

bool readInterpolatedPoint(DelimManager& delim, InterpolatedPoint& point) {
    interpolatedPoint.read(delim, point);
    return isOk(delim);
}

void describeIndexedPoint(FormatBuilder& builder) { indexedPoint.describeTo(builder, {}); }
void describeInterpolatedPoint(FormatBuilder& builder) { interpolatedPoint.describeTo(builder, {}); }

}  // namespace quarn
