// The text block of a temperature rise request.

#include <algorithm>

#include "blocktext/BlockWalker.h"
#include "blocktext/BlockWriter.h"
#include "quarn/TemperatureRiseRequest.h"
#include "results/BoundLines.h"

namespace quarn {

using namespace blocktext;

namespace {

namespace key {
constexpr auto TemperatureRiseRequest = "TemperatureRiseRequest"_key;
constexpr auto PhysicalParameters = "PhysicalParameters"_key;
constexpr auto load_whole_space = "load_whole_space"_key;
constexpr auto keep_initial_temperatures = "keep_initial_temperatures"_key;
constexpr auto keep_final_temperatures = "keep_final_temperatures"_key;
constexpr auto load_initial_temperatures = "load_initial_temperatures"_key;
constexpr auto initial_temperature_filename = "initial_temperature_filename"_key;
constexpr auto final_temperature_filename = "final_temperature_filename"_key;
constexpr auto steady_state_type = "steady_state_type"_key;
constexpr auto maximum_delta = "maximum_delta"_key;
constexpr auto requested_input_power = "requested_input_power"_key;
constexpr auto steady_state_temperature_change = "steady_state_temperature_change"_key;
constexpr auto plane_type = "plane_type"_key;
constexpr auto immersive_medium_temperature = "immersive_medium_temperature"_key;
constexpr auto perfusive_medium_temperature = "perfusive_medium_temperature"_key;
constexpr auto override_timestep_delta_time = "override_timestep_delta_time"_key;
constexpr auto default_delta_time = "default_delta_time"_key;
constexpr auto requested_delta_time = "requested_delta_time"_key;
constexpr auto maximum_number_of_timesteps = "maximum_number_of_timesteps"_key;
}  // namespace key

constexpr NameTable<std::int32_t, 1> steadyStateTypes{{{TemperatureRiseRequest::maximumDelta, key::maximum_delta}}};

using Plane = TemperatureRiseRequest::Plane;
constexpr NameTable<Plane, 4> planes{{
    {Plane::XY, "XY"_key},
    {Plane::YZ, "YZ"_key},
    {Plane::ZX, "ZX"_key},
    {Plane::ZX, "XZ"_key},
}};

// Leaves out what is empty: names of files, and numbers that have no name.
template <class Text>
void putText(DelimManager& delim, QLatin1String key, const Text& text) {
    if (!text.isEmpty()) putLine(delim, key, text);
}

}  // namespace

/// The label of a medium's block, and what it fills.
struct TemperatureRiseRequest::Medium {
    QLatin1String label;
    PhysicalParameters TemperatureRiseRequest::*parameters;
};

const std::array<TemperatureRiseRequest::Medium, 4> TemperatureRiseRequest::media{{
    {"Immersive"_key, &TemperatureRiseRequest::m_immersiveMediumParameters},
    {"Perfusive"_key, &TemperatureRiseRequest::m_perfusiveMediumParameters},
    {"FreeSpace"_key, &TemperatureRiseRequest::m_freeSpaceParameters},
    {"PEC"_key, &TemperatureRiseRequest::m_pecParameters},
}};

bool TemperatureRiseRequest::streamOut(DelimManager& delim) const {
    WrittenBlock block(delim, key::TemperatureRiseRequest);
    for (const Medium& medium : media) (this->*medium.parameters).streamOut(delim, medium.label);
    putFlag(delim, key::load_whole_space, m_loadWholeSpace);
    putFlag(delim, key::keep_initial_temperatures, m_keepNonSARTemperatureFiles);
    putFlag(delim, key::keep_final_temperatures, m_keepSARTemperatureFiles);
    putFlag(delim, key::load_initial_temperatures, m_loadNonSARTemperatureFromFile);
    putText(delim, key::initial_temperature_filename, m_initialTemperaturesFileName);
    putText(delim, key::final_temperature_filename, m_finalTemperaturesFileName);
    putText(delim, key::steady_state_type, nameOf(steadyStateTypes, m_steadyStateTypeIndicator, QLatin1String()));
    putLine(delim, key::requested_input_power, m_requestedInputPower);
    putLine(delim, key::steady_state_temperature_change, m_temperatureChangeIndicatingSteadyState);
    putText(delim, key::plane_type, nameOf(planes, m_planeTypeIndicator, QLatin1String()));
    putLine(delim, key::immersive_medium_temperature, m_immersiveMediumTemperature);
    putLine(delim, key::perfusive_medium_temperature, m_perfusiveMediumTemperature);
    putFlag(delim, key::override_timestep_delta_time, m_overrideDeltaTime);
    putLine(delim, key::default_delta_time, m_defaultDeltaTime);
    putLine(delim, key::requested_delta_time, m_requestedDeltaTime);
    putLine(delim, key::maximum_number_of_timesteps, m_maximumNumberOfTimesteps);
    putBounds(delim, m_lowerBound, m_upperBound);
    return block.end();
}

TemperatureRiseRequest::TemperatureRiseRequest(DelimManager& delim) {
    const auto readMedium = [&](const QString& label) {
        const auto hasLabel = [&](const Medium& medium) { return medium.label == label; };
        const auto medium = std::find_if(media.begin(), media.end(), hasLabel);
        if (medium == media.end()) {
            delim.SeekToEndOfDelim();
        } else {
            (this->*medium->parameters).streamIn(delim);
        }
    };
    walkBlock(delim,
              Unknown::DropLine,
              onBlock(key::PhysicalParameters, readMedium),
              onFlag(key::load_whole_space, m_loadWholeSpace),
              onFlag(key::keep_initial_temperatures, m_keepNonSARTemperatureFiles),
              onFlag(key::keep_final_temperatures, m_keepSARTemperatureFiles),
              onFlag(key::load_initial_temperatures, m_loadNonSARTemperatureFromFile),
              onText(key::initial_temperature_filename, m_initialTemperaturesFileName),
              onText(key::final_temperature_filename, m_finalTemperaturesFileName),
              onName(key::steady_state_type, steadyStateTypes, m_steadyStateTypeIndicator),
              onValue(key::requested_input_power, m_requestedInputPower),
              onValue(key::steady_state_temperature_change, m_temperatureChangeIndicatingSteadyState),
              onName(key::plane_type, planes, m_planeTypeIndicator),
              onValue(key::immersive_medium_temperature, m_immersiveMediumTemperature),
              onValue(key::perfusive_medium_temperature, m_perfusiveMediumTemperature),
              onFlag(key::override_timestep_delta_time, m_overrideDeltaTime),
              onValue(key::default_delta_time, m_defaultDeltaTime),
              onValue(key::requested_delta_time, m_requestedDeltaTime),
              onValue(key::maximum_number_of_timesteps, m_maximumNumberOfTimesteps),
              onBound(lowerBoundKey, m_lowerBound),
              onBound(upperBoundKey, m_upperBound));
}

}  // namespace quarn
