#include "quarn/AmbientConditions.h"

#include "blocktext/BlockDescription.h"
#include "project/ProjectContents.h"
#include "project/Sections.h"

namespace quarn {

using namespace blocktext;

static_assert(sizeof(AmbientConditions) == 52, "plain data without padding");

template <>
struct blocktext::Description<AmbientConditions> {
    using A = AmbientConditions;

    template <class Line>
    static constexpr auto groupOfOne(Key name, Line line) {
        return group(describeWords<A>(name, Unknown::DropWord, Unreadable::KeepsValue, line));
    }
    static constexpr auto face(Key name, BoundingBoxSide side) {
        const auto coefficient = element(&A::m_coefficients, static_cast<std::size_t>(side));
        return groupOfOne(name, value("HeatTransferCoefficient", coefficient).in("W/(m^2 K)"));
    }
    static constexpr auto block() {
        return describe<A>("AmbientConditions",
                           Unknown::DropWord,
                           Unreadable::KeepsValue,
                           groupOfOne("BackgroundMedium", value("Temperature", &A::m_backgroundTemperature).in("K")),
                           face("Top", BoundingBoxSide::Top),
                           face("Bottom", BoundingBoxSide::Bottom),
                           unwritten(&A::m_types),
                           unwritten(&A::m_coefficients));
    }
};

namespace {

constexpr auto ambientConditions = Description<AmbientConditions>::block();

constexpr float roomTemperature = 298.15F;

AmbientConditions blank() {
    constexpr auto type = AmbientConditions::HeatTransfer;
    return {roomTemperature, type, 0.0F, type, 0.0F};
}

bool StreamOutAmbientConditions(DelimManager& delim, const v6ProjectFile& project) {
    const AmbientConditions* conditions = project.getAmbientConditions();
    return conditions && ambientConditions.write(delim, *conditions);
}

bool StreamInAmbientConditions(DelimManager& delim, v6ProjectFile& project) {
    auto conditions = std::make_unique<AmbientConditions>(blank());
    ambientConditions.read(delim, *conditions);
    ProjectContents::install(project, std::move(conditions));
    return isOk(delim);
}

}  // namespace

const Section ambientConditionsSection{ambientConditions.name,
                                       Unreadable::Fails,
                                       StreamOutAmbientConditions,
                                       StreamInAmbientConditions,
                                       [](FormatBuilder& builder) { ambientConditions.describeTo(builder, blank()); }};

AmbientConditions::AmbientConditions(float backgroundTemperature, SpecificationType bottomType, float bottomCoefficient,
                                     SpecificationType topType, float topCoefficient)
    : m_backgroundTemperature(backgroundTemperature) {
    setSpecificationType(BoundingBoxSide::Bottom, bottomType);
    setHeatTransferCoefficient(BoundingBoxSide::Bottom, bottomCoefficient);
    setSpecificationType(BoundingBoxSide::Top, topType);
    setHeatTransferCoefficient(BoundingBoxSide::Top, topCoefficient);
}

bool operator==(const AmbientConditions& a, const AmbientConditions& b) { return ambientConditions.areEqual(a, b); }

}  // namespace quarn
