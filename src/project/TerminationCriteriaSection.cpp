#include <limits>

#include "blocktext/BlockWalker.h"
#include "blocktext/BlockWriter.h"
#include "blocktext/NameTable.h"
#include "project/Sections.h"

namespace quarn {

using namespace blocktext;

namespace {

namespace key {
constexpr auto TerminationCriteria = "TerminationCriteria"_key;
constexpr auto MaximumTimeSteps = "MaximumTimeSteps"_key;
constexpr auto MaximumWallClockSeconds = "MaximumWallClockSeconds"_key;
constexpr auto ConvergenceEnabled = "ConvergenceEnabled"_key;
constexpr auto Threshhold = "Threshhold"_key;
constexpr auto SamplingInterval = "SamplingInterval"_key;
constexpr auto WindowSize = "WindowSize"_key;
constexpr auto MinimumTimeSteps = "MinimumTimeSteps"_key;
constexpr auto FlatLineDetectionEnabled = "FlatLineDetectionEnabled"_key;
constexpr auto HighDensity = "HIGH_DENSITY"_key;
constexpr auto MediumDensity = "MEDIUM_DENSITY"_key;
constexpr auto LowDensity = "LOW_DENSITY"_key;

constexpr auto TdAfsTerminationCriteria = "TdAfsTerminationCriteria"_key;
constexpr auto StartFrequency = "StartFrequency"_key;
constexpr auto StopFrequency = "StopFrequency"_key;
constexpr auto NumberOfFrequencyPoints = "NumberOfFrequencyPoints"_key;
constexpr auto SParameters = "SPARAMETERS"_key;
constexpr auto Energy = "ENERGY"_key;
constexpr auto FFT = "FFT"_key;
constexpr auto Interpolation = "INTERPOLATION"_key;
constexpr auto NumberOfConsecutivePasses = "NumberOfConsecutivePasses"_key;

constexpr auto RequireMinimum = "ConvergenceRequireMinimumNumberOfTimeSteps"_key;
constexpr auto Minimum = "ConvergenceMinimumNumberOfTimeSteps"_key;
}  // namespace key

using Criteria = TerminationCriteria;
using TdAfs = TdAfsTerminationCriteria;

constexpr NameTable<Criteria::ConvergenceSpacingDensity, 2> densityNames{{
    {Criteria::High, key::HighDensity},
    {Criteria::Medium, key::MediumDensity},
}};

void writeTdAfsCriteria(DelimManager& delim, const TdAfs& criteria) {
    const WrittenBlock block(delim, key::TdAfsTerminationCriteria);
    putLine(delim, key::StartFrequency, criteria.startFrequency());
    putLine(delim, key::StopFrequency, criteria.stopFrequency());
    putLine(delim, key::NumberOfFrequencyPoints, criteria.numberOfFrequencyPoints());
    putLine(delim, criteria.convergenceType() == TdAfs::SParameters ? key::SParameters : key::Energy);
    putLine(delim, criteria.interpolationType() == TdAfs::FFT ? key::FFT : key::Interpolation);
    putLine(delim, key::NumberOfConsecutivePasses, criteria.numberOfConsecutivePasses());
}

std::unique_ptr<TdAfs> readTdAfsCriteria(DelimManager& delim) {
    auto criteria = std::make_unique<TdAfs>();
    float startFrequency = criteria->startFrequency();
    float stopFrequency = criteria->stopFrequency();
    int points = criteria->numberOfFrequencyPoints();
    int passes = criteria->numberOfConsecutivePasses();
    auto type = criteria->convergenceType();
    auto interpolation = criteria->interpolationType();
    walkWords(delim,
              Unknown::DropLine,
              onValue(key::StartFrequency, startFrequency),
              onValue(key::StopFrequency, stopFrequency),
              onValue(key::NumberOfFrequencyPoints, points),
              onChoice(key::SParameters, type, TdAfs::SParameters),
              onChoice(key::Energy, type, TdAfs::Energy),
              onChoice(key::FFT, interpolation, TdAfs::FFT),
              onChoice(key::Interpolation, interpolation, TdAfs::Interpolation),
              onValue(key::NumberOfConsecutivePasses, passes));
    criteria->addTdAfsConvergence(startFrequency, stopFrequency, points, type, interpolation, passes);
    return criteria;
}

void writeConvergence(DelimManager& delim, const Criteria& criteria, const TdAfs* tdAfsCriteria) {
    putLine(delim, key::ConvergenceEnabled);
    putLine(delim, key::Threshhold, criteria.getThreshhold());
    putLine(delim, key::SamplingInterval, criteria.getTimestepSamplingInterval());
    putLine(delim, key::WindowSize, criteria.getWindowSize());
    putLine(delim, key::MinimumTimeSteps, criteria.getMinimumTimesteps());
    if (criteria.flatLineDetectionEnabled()) putLine(delim, key::FlatLineDetectionEnabled);
    putLine(delim, nameOf(densityNames, criteria.getSpacingDensity(), key::LowDensity));
    if (tdAfsCriteria) writeTdAfsCriteria(delim, *tdAfsCriteria);
}

}  // namespace

bool writeTerminationCriteria(DelimManager& delim, const Criteria& criteria, const TdAfs* tdAfsCriteria) {
    const WrittenBlock block(delim, key::TerminationCriteria);
    putLine(delim, key::MaximumTimeSteps, criteria.getMaximumTimesteps());
    putLine(delim, key::MaximumWallClockSeconds, criteria.getMaximumWallClockSeconds());
    if (criteria.convergenceEnabled()) writeConvergence(delim, criteria, tdAfsCriteria);
    return isOk(delim);
}

TerminationSection readTerminationCriteria(DelimManager& delim) {
    const Criteria defaults(0, 0, 0);
    unsigned minimum = 0;
    unsigned maximum = 0;
    unsigned wallClockSeconds = 0;
    bool convergence = false;
    bool flatLineDetection = false;
    float threshold = defaults.getThreshhold();
    int samplingInterval = defaults.getTimestepSamplingInterval();
    int windowSize = defaults.getWindowSize();
    auto density = Criteria::Medium;
    TerminationSection section;
    walkBlock(delim,
              Unknown::DropLine,
              onBlock(key::TdAfsTerminationCriteria, [&] { section.tdAfsCriteria = readTdAfsCriteria(delim); }),
              onValue(key::MaximumTimeSteps, maximum),
              onValue(key::MaximumWallClockSeconds, wallClockSeconds),
              onFlag(key::ConvergenceEnabled, convergence),
              onValue(key::Threshhold, threshold),
              onValue(key::SamplingInterval, samplingInterval),
              onValue(key::WindowSize, windowSize),
              onValue(key::MinimumTimeSteps, minimum),
              onFlag(key::FlatLineDetectionEnabled, flatLineDetection),
              onChoice(key::HighDensity, density, Criteria::High),
              onChoice(key::LowDensity, density, Criteria::Low));
    section.criteria = std::make_unique<Criteria>(minimum, maximum, wallClockSeconds);
    if (convergence) {
        section.criteria->addConvergence(threshold, samplingInterval, windowSize, flatLineDetection, density);
    }
    return section;
}

std::unique_ptr<Criteria> readV6Convergence(DelimManager& delim) {
    constexpr unsigned unread = std::numeric_limits<unsigned>::max();
    bool required = false;
    unsigned minimum = unread;
    walkBlock(delim, Unknown::DropLine, onFlag(key::RequireMinimum, required), onValue(key::Minimum, minimum));
    if (!required || minimum == unread) return nullptr;
    return std::make_unique<Criteria>(minimum, minimum + 1, 0);
}

}  // namespace quarn
