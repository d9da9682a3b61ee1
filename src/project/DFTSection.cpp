#include <optional>

#include "blocktext/BlockWalker.h"
#include "blocktext/BlockWriter.h"
#include "project/Sections.h"

namespace quarn {

using namespace blocktext;

namespace {

namespace key {
constexpr auto DFTParameters = "DFTParameters"_key;
constexpr auto NormalizeFields = "NormalizeFields"_key;
constexpr auto DataSampling = "DataSampling"_key;
constexpr auto SteadyStateFrequencies = "SteadyStateFrequencies"_key;
constexpr auto FrequencyFolder = "FrequencyFolder"_key;

constexpr auto DFTFrequencies = "DFTFrequencies"_key;
constexpr auto SingleFrequency = "SingleFrequency"_key;
constexpr auto PortDataSampling = "PortDataSampling"_key;
constexpr auto PowerSampling = "PowerSampling"_key;
constexpr auto PlanewavePowerSampling = "PlanewavePowerSampling"_key;
constexpr auto SSEFieldSampling = "SSEFieldSampling"_key;
constexpr auto SSHFieldSampling = "SSHFieldSampling"_key;
constexpr auto DissipatedPower = "DissipatedPower"_key;
constexpr auto PortDataStorage = "PortDataStorage"_key;
constexpr auto PowerStorage = "PowerStorage"_key;
constexpr auto PlanewavePowerStorage = "PlanewavePowerStorage"_key;
constexpr auto SSEFieldStorage = "SSEFieldStorage"_key;
constexpr auto SSHFieldStorage = "SSHFieldStorage"_key;
}  // namespace key

constexpr unsigned everyTimestep = 1;

auto onFrequency(QLatin1String word, SteadyStateFrequencies& frequencies) {
    return onWord(word, [&frequencies](QTextStream& in) {
        ProjectFile::SteadyStateFrequency entry;
        if (readValue(in, entry.frequency) && readValue(in, entry.folder)) frequencies.push_back(entry);
    });
}

void readFrequencies(DelimManager& delim, QLatin1String word, SteadyStateFrequencies& frequencies) {
    walkBlock(delim, Unknown::DropLine, onFrequency(word, frequencies));
}

}  // namespace

bool writeDFTParameters(DelimManager& delim, const DFTParameters& parameters) {
    const WrittenBlock block(delim, key::DFTParameters);
    if (parameters.normalizeFields()) putLine(delim, key::NormalizeFields);
    putLine(delim, key::DataSampling, parameters.getSamplingInterval());
    return isOk(delim);
}

std::unique_ptr<DFTParameters> readDFTParameters(DelimManager& delim) {
    bool normalizeFields = false;
    unsigned samplingInterval = everyTimestep;
    walkBlock(delim,
              Unknown::DropLine,
              onFlag(key::NormalizeFields, normalizeFields),
              onValue(key::DataSampling, samplingInterval));
    return std::make_unique<DFTParameters>(normalizeFields, samplingInterval);
}

void writeSteadyStateFrequencies(DelimManager& delim, const SteadyStateFrequencies& frequencies) {
    const WrittenBlock block(delim, key::SteadyStateFrequencies);
    for (const auto& entry : frequencies) putLine(delim, key::FrequencyFolder, entry.frequency, entry.folder);
}

void readSteadyStateFrequencies(DelimManager& delim, SteadyStateFrequencies& frequencies) {
    readFrequencies(delim, key::FrequencyFolder, frequencies);
}

// Older files give an interval for each kind of result. The one for steady-state electric fields is the closest to
// today's single interval; without it the last one given counts. Their storage settings have no counterpart.
std::unique_ptr<DFTParameters> readV6DFTParameters(DelimManager& delim, SteadyStateFrequencies& frequencies) {
    bool normalizeFields = false;
    unsigned samplingInterval = everyTimestep;
    std::optional<unsigned> fieldSampling;
    bool ignoredFlag = false;
    unsigned ignoredNumber = 0;
    const auto readFieldSampling = [&](QTextStream& in) {
        unsigned interval = 0;
        if (readValue(in, interval)) fieldSampling = interval;
    };
    walkBlock(delim,
              Unknown::DropLine,
              onBlock(key::DFTFrequencies, [&] { readFrequencies(delim, key::SingleFrequency, frequencies); }),
              onFlag(key::NormalizeFields, normalizeFields),
              onWord(key::SSEFieldSampling, readFieldSampling),
              onValue(key::PortDataSampling, samplingInterval),
              onValue(key::PowerSampling, samplingInterval),
              onValue(key::PlanewavePowerSampling, samplingInterval),
              onValue(key::SSHFieldSampling, samplingInterval),
              onFlag(key::DissipatedPower, ignoredFlag),
              onValue(key::PortDataStorage, ignoredNumber),
              onValue(key::PowerStorage, ignoredNumber),
              onValue(key::PlanewavePowerStorage, ignoredNumber),
              onValue(key::SSEFieldStorage, ignoredNumber),
              onValue(key::SSHFieldStorage, ignoredNumber));
    return std::make_unique<DFTParameters>(normalizeFields, fieldSampling.value_or(samplingInterval));
}

}  // namespace quarn
