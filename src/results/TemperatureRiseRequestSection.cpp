#include "quarn/TemperatureRiseRequest.h"

#include "geometry/PhysicalParametersBlock.h"
#include "results/RequestLines.h"
#include "results/RequestSections.h"

namespace quarn {

using namespace blocktext;

namespace {

constexpr NameTable<std::int32_t, 1> steadyStateTypes{{{TemperatureRiseRequest::maximumDelta, "maximum_delta"_key}}};

using Plane = TemperatureRiseRequest::Plane;
constexpr NameTable<Plane, 4> planes{{
    {Plane::XY, "XY"_key},
    {Plane::YZ, "YZ"_key},
    {Plane::ZX, "ZX"_key},
    {Plane::ZX, "XZ"_key},
}};

}  // namespace

template <>
struct blocktext::Description<TemperatureRiseRequest> {
    using R = TemperatureRiseRequest;
    static constexpr auto block() {
        constexpr auto medium = Description<PhysicalParameters>::block();
        return describe<R>(
            sectionName::temperatureRise,
            Unknown::DropLine,
            Unreadable::KeepsValue,
            innerBlock(&R::m_immersiveMediumParameters, medium, "Immersive"),
            innerBlock(&R::m_perfusiveMediumParameters, medium, "Perfusive"),
            innerBlock(&R::m_freeSpaceParameters, medium, "FreeSpace"),
            innerBlock(&R::m_pecParameters, medium, "PEC"),
            flag("load_whole_space", &R::m_loadWholeSpace),
            flag("keep_initial_temperatures", &R::m_keepNonSARTemperatureFiles),
            flag("keep_final_temperatures", &R::m_keepSARTemperatureFiles),
            flag("load_initial_temperatures", &R::m_loadNonSARTemperatureFromFile),
            text("initial_temperature_filename", &R::m_initialTemperaturesFileName).unlessEmpty(),
            text("final_temperature_filename", &R::m_finalTemperaturesFileName).unlessEmpty(),
            value("steady_state_type", &R::m_steadyStateTypeIndicator, nameFrom(steadyStateTypes)),
            value("requested_input_power", &R::m_requestedInputPower).in("W"),
            value("steady_state_temperature_change", &R::m_temperatureChangeIndicatingSteadyState).in("K"),
            value("plane_type", &R::m_planeTypeIndicator, nameFrom(planes)),
            value("immersive_medium_temperature", &R::m_immersiveMediumTemperature).in("K"),
            value("perfusive_medium_temperature", &R::m_perfusiveMediumTemperature).in("K"),
            flag("override_timestep_delta_time", &R::m_overrideDeltaTime),
            value("default_delta_time", &R::m_defaultDeltaTime).in("s"),
            value("requested_delta_time", &R::m_requestedDeltaTime).in("s"),
            value("maximum_number_of_timesteps", &R::m_maximumNumberOfTimesteps),
            lowerBound(&R::m_lowerBound),
            upperBound(&R::m_upperBound));
    }
};

namespace {

constexpr auto temperatureRise = Description<TemperatureRiseRequest>::block();

}  // namespace

void describeTemperatureRise(FormatBuilder& builder) {
    temperatureRise.describeTo(builder, blankRequest<TemperatureRiseRequest>());
}

bool TemperatureRiseRequest::streamOut(DelimManager& delim) const { return temperatureRise.write(delim, *this); }

TemperatureRiseRequest::TemperatureRiseRequest(DelimManager& delim) { temperatureRise.read(delim, *this); }

bool operator==(const TemperatureRiseRequest& a, const TemperatureRiseRequest& b) {
    return temperatureRise.areEqual(a, b);
}

}  // namespace quarn
