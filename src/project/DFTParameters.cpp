#include "quarn/DFTParameters.h"

#include <optional>

#include "blocktext/BlockDescription.h"
#include "project/ProjectContents.h"
#include "project/Sections.h"

namespace quarn {

using namespace blocktext;

template <>
struct blocktext::Description<DFTParameters> {
    using D = DFTParameters;
    static constexpr auto block() {
        return describe<D>("DFTParameters",
                           Unknown::DropLine,
                           Unreadable::KeepsValue,
                           flag("NormalizeFields", &D::m_normalizeFields),
                           value("DataSampling", &D::m_samplingInterval));
    }
};

namespace {

constexpr unsigned everyTimestep = 1;
constexpr auto dftParameters = Description<DFTParameters>::block();

bool StreamOutDFTParameters(DelimManager& delim, const v6ProjectFile& project) {
    const DFTParameters* parameters = project.getDFTParameters();
    return parameters && dftParameters.write(delim, *parameters);
}

bool StreamInDFTParameters(DelimManager& delim, v6ProjectFile& project) {
    auto parameters = std::make_unique<DFTParameters>(false, everyTimestep);
    dftParameters.read(delim, *parameters);
    ProjectContents::install(project, std::move(parameters));
    return isOk(delim);
}

using Frequency = ProjectFile::SteadyStateFrequency;
using Frequencies = std::vector<Frequency>;

constexpr auto frequencyList(Key name, Key key) {
    return describe<Frequencies>(name,
                                 Unknown::DropLine,
                                 Unreadable::KeepsValue,
                                 entries(key, itself, parts(&Frequency::frequency, &Frequency::folder)).in("Hz"));
}
constexpr auto frequencyFolders = frequencyList("SteadyStateFrequencies", "FrequencyFolder");

bool StreamOutSteadyStateFrequencies(DelimManager& delim, const v6ProjectFile& project) {
    return frequencyFolders.write(delim, project.getSteadyStateFrequencies());
}

bool StreamInSteadyStateFrequencies(DelimManager& delim, v6ProjectFile& project) {
    frequencyFolders.read(delim, project.getSteadyStateFrequencies());
    return isOk(delim);
}

/// Older files give an interval for each kind of result, and ways of storage that have no counterpart.
struct V6DFTParameters {
    Frequencies frequencies;
    bool normalizeFields = false;
    unsigned samplingInterval = everyTimestep;
    std::optional<unsigned> fieldSamplingInterval;
    bool ignoredFlag = false;
    unsigned ignoredNumber = 0;
};

constexpr auto v6DFTParameters = [] {
    using D = V6DFTParameters;
    constexpr auto interval = [](Key key) { return value(key, &D::samplingInterval).onlyRead(); };
    constexpr auto ignored = [](Key key) { return value(key, &D::ignoredNumber).onlyRead(); };
    return describe<D>(Key(dftParameters.name),
                       Unknown::DropLine,
                       Unreadable::KeepsValue,
                       innerBlock(&D::frequencies, frequencyList("DFTFrequencies", "SingleFrequency")).onlyRead(),
                       flag("NormalizeFields", &D::normalizeFields).onlyRead(),
                       value("SSEFieldSampling", &D::fieldSamplingInterval, StoredAs<unsigned>()).onlyRead(),
                       interval("PortDataSampling"),
                       interval("PowerSampling"),
                       interval("PlanewavePowerSampling"),
                       interval("SSHFieldSampling"),
                       flag("DissipatedPower", &D::ignoredFlag).onlyRead(),
                       ignored("PortDataStorage"),
                       ignored("PowerStorage"),
                       ignored("PlanewavePowerStorage"),
                       ignored("SSEFieldStorage"),
                       ignored("SSHFieldStorage"));
}();

}  // namespace

const Section dftParametersSection{dftParameters.name,
                                   Unreadable::KeepsValue,
                                   StreamOutDFTParameters,
                                   StreamInDFTParameters,
                                   [](FormatBuilder& builder) {
                                       dftParameters.describeTo(builder, {false, everyTimestep});
                                   }};

const Section steadyStateFrequenciesSection{frequencyFolders.name,
                                            Unreadable::KeepsValue,
                                            StreamOutSteadyStateFrequencies,
                                            StreamInSteadyStateFrequencies,
                                            [](FormatBuilder& builder) { frequencyFolders.describeTo(builder, {}); }};

// The interval of the steady-state electric field is the closest to today's single one; without it the last one given
// counts.
bool StreamInV6DFTParameters(DelimManager& delim, v6ProjectFile& project) {
    V6DFTParameters older;
    v6DFTParameters.read(delim, older);
    Frequencies& frequencies = project.getSteadyStateFrequencies();
    frequencies.insert(frequencies.end(), older.frequencies.begin(), older.frequencies.end());
    const unsigned interval = older.fieldSamplingInterval.value_or(older.samplingInterval);
    ProjectContents::install(project, std::make_unique<DFTParameters>(older.normalizeFields, interval));
    return isOk(delim);
}

void describeV6DFTParameters(FormatBuilder& builder) { v6DFTParameters.describeTo(builder, {}); }

bool operator==(const DFTParameters& a, const DFTParameters& b) { return dftParameters.areEqual(a, b); }

}  // namespace quarn
