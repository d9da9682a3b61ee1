#include "quarn/TerminationCriteria.h"

#include <limits>

#include "blocktext/BlockDescription.h"
#include "project/ProjectContents.h"
#include "project/Sections.h"
#include "quarn/TdAfsTerminationCriteria.h"

namespace quarn {

using namespace blocktext;

namespace {

constexpr NameTable<TdAfsTerminationCriteria::ConvergenceType, 2> convergenceTypes{{
    {TdAfsTerminationCriteria::SParameters, "SPARAMETERS"_key},
    {TdAfsTerminationCriteria::Energy, "ENERGY"_key},
}};
constexpr NameTable<TdAfsTerminationCriteria::InterpolationType, 2> interpolationTypes{{
    {TdAfsTerminationCriteria::FFT, "FFT"_key},
    {TdAfsTerminationCriteria::Interpolation, "INTERPOLATION"_key},
}};

}  // namespace

template <>
struct blocktext::Description<TdAfsTerminationCriteria> {
    using C = TdAfsTerminationCriteria;
    static constexpr auto block() {
        return describeWords<C>("TdAfsTerminationCriteria",
                                Unknown::DropLine,
                                Unreadable::KeepsValue,
                                value("StartFrequency", &C::m_startFrequency).in("Hz"),
                                value("StopFrequency", &C::m_stopFrequency).in("Hz"),
                                value("NumberOfFrequencyPoints", &C::m_numberOfFrequencyPoints),
                                oneKeyOf(convergenceTypes, &C::m_convergenceType),
                                oneKeyOf(interpolationTypes, &C::m_interpolationType),
                                value("NumberOfConsecutivePasses", &C::m_numberOfConsecutivePasses));
    }
};

template <>
struct blocktext::Description<TerminationCriteria> {
    using C = TerminationCriteria;

    static bool isHigh(const C& c) { return c.m_convergenceEnabled && c.m_spacingDensity == C::High; }
    static bool isMedium(const C& c) { return c.m_convergenceEnabled && c.m_spacingDensity == C::Medium; }
    static bool isOther(const C& c) { return c.m_convergenceEnabled && !isHigh(c) && !isMedium(c); }

    // Readers know no line for the medium density: it counts where there is no other.
    static constexpr auto block() {
        constexpr auto convergence = &C::m_convergenceEnabled;
        constexpr auto density = &C::m_spacingDensity;
        return describe<C>("TerminationCriteria",
                           Unknown::DropLine,
                           Unreadable::KeepsValue,
                           value("MaximumTimeSteps", &C::m_maximumTimesteps),
                           value("MaximumWallClockSeconds", &C::m_maximumWallClockSeconds).in("s"),
                           flag("ConvergenceEnabled", convergence),
                           value("Threshhold", &C::m_threshold).onlyWith(convergence).in("dB"),
                           value("SamplingInterval", &C::m_timestepSamplingInterval).onlyWith(convergence),
                           value("WindowSize", &C::m_windowSize).onlyWith(convergence),
                           value("MinimumTimeSteps", &C::m_minimumTimesteps).onlyWith(convergence),
                           flag("FlatLineDetectionEnabled", &C::m_flatLineDetectionEnabled).onlyWith(convergence),
                           choice("HIGH_DENSITY", density, C::High).where(isHigh, "with convergence of high density"),
                           choice("MEDIUM_DENSITY", density, C::Medium)
                               .where(isMedium, "with convergence of medium density")
                               .onlyWritten(),
                           choice("LOW_DENSITY", density, C::Low).where(isOther, "with convergence of low density"));
    }

    static C blank() {
        C criteria(0, 0, 0);
        criteria.m_flatLineDetectionEnabled = false;
        return criteria;
    }
    // The settings of the convergence count only where it is enabled.
    static void complete(C& criteria) {
        if (!criteria.m_convergenceEnabled) {
            criteria = C(criteria.m_minimumTimesteps, criteria.m_maximumTimesteps, criteria.m_maximumWallClockSeconds);
        }
    }
};

namespace {

constexpr auto tdAfsCriteria = Description<TdAfsTerminationCriteria>::block();
constexpr auto terminationCriteria = Description<TerminationCriteria>::block();

// The inner block is handled by hand, since it is for another object of the project.
bool StreamOutTerminationCriteria(DelimManager& delim, const v6ProjectFile& project) {
    const TerminationCriteria* criteria = project.getTerminationCriteria();
    const TdAfsTerminationCriteria* tdAfs = project.getTdAfsTerminationCriteria();
    if (!criteria) return false;
    WrittenBlock block(delim, terminationCriteria.name);
    terminationCriteria.writeLines(delim, *criteria);
    if (criteria->convergenceEnabled() && tdAfs) tdAfsCriteria.write(delim, *tdAfs);
    return block.end();
}

bool StreamInTerminationCriteria(DelimManager& delim, v6ProjectFile& project) {
    using Text = Description<TerminationCriteria>;
    auto criteria = std::make_unique<TerminationCriteria>(Text::blank());
    std::unique_ptr<TdAfsTerminationCriteria> tdAfs;
    terminationCriteria.read(delim, *criteria, onBlock(tdAfsCriteria.name, [&] {
                                 tdAfs = std::make_unique<TdAfsTerminationCriteria>();
                                 tdAfsCriteria.read(delim, *tdAfs);
                             }));
    Text::complete(*criteria);
    if (!tdAfs && !project.getTdAfsTerminationCriteria()) tdAfs = std::make_unique<TdAfsTerminationCriteria>();
    if (tdAfs) ProjectContents::install(project, std::move(tdAfs));
    ProjectContents::install(project, std::move(criteria));
    return isOk(delim);
}

void describeTerminationCriteria(FormatBuilder& builder) {
    terminationCriteria.describeTo(builder, TerminationCriteria(0, 0, 0), [&] {
        builder.addBlock(tdAfsCriteria.name, QStringLiteral("with convergence where the project has TD-AFS criteria"));
        tdAfsCriteria.describeTo(builder, {});
    });
}

/// The criteria of older files.
struct V6Convergence {
    static constexpr unsigned unread = std::numeric_limits<unsigned>::max();

    bool requiresMinimum = false;
    unsigned minimum = unread;
};
constexpr auto v6Convergence = [] {
    using C = V6Convergence;
    return describe<C>("Convergence",
                       Unknown::DropLine,
                       Unreadable::KeepsValue,
                       flag("ConvergenceRequireMinimumNumberOfTimeSteps", &C::requiresMinimum).onlyRead(),
                       value("ConvergenceMinimumNumberOfTimeSteps", &C::minimum).onlyRead());
}();

bool StreamInV6Convergence(DelimManager& delim, v6ProjectFile& project) {
    V6Convergence older;
    v6Convergence.read(delim, older);
    if (older.requiresMinimum && older.minimum != V6Convergence::unread) {
        ProjectContents::install(project, std::make_unique<TerminationCriteria>(older.minimum, older.minimum + 1, 0));
    }
    return isOk(delim);
}

}  // namespace

const Section terminationCriteriaSection{terminationCriteria.name,
                                         Unreadable::KeepsValue,
                                         StreamOutTerminationCriteria,
                                         StreamInTerminationCriteria,
                                         describeTerminationCriteria};

const Section v6ConvergenceSection{
    v6Convergence.name, Unreadable::Fails, nullptr, StreamInV6Convergence, [](FormatBuilder& builder) {
        v6Convergence.describeTo(builder, {false, 0});
    }};

TerminationCriteria::TerminationCriteria(std::uint32_t minimumTimesteps, std::uint32_t maximumTimesteps,
                                         std::uint32_t maximumWallClockSeconds)
    : m_minimumTimesteps(minimumTimesteps),
      m_maximumTimesteps(maximumTimesteps),
      m_maximumWallClockSeconds(maximumWallClockSeconds) {}

void TerminationCriteria::addConvergence(float threshold, int timestepSamplingInterval, int windowSize,
                                         bool flatLineDetection, ConvergenceSpacingDensity spacingDensity) {
    m_threshold = threshold;
    m_timestepSamplingInterval = timestepSamplingInterval;
    m_windowSize = windowSize;
    m_flatLineDetectionEnabled = flatLineDetection;
    m_spacingDensity = spacingDensity;
    m_convergenceEnabled = true;
}

void TerminationCriteria::checkValidity(QStringList& warnings, Engine engine) const {
    if (engine != Engine::FDTD && m_maximumTimesteps == 0) {
        warnings << QStringLiteral("The maximum number of timesteps should be greater than zero.");
    }
}

bool operator==(const TerminationCriteria& a, const TerminationCriteria& b) {
    return terminationCriteria.areEqual(a, b);
}

void TdAfsTerminationCriteria::addTdAfsConvergence(float startFrequency, float stopFrequency,
                                                   int numberOfFrequencyPoints, ConvergenceType convergenceType,
                                                   InterpolationType interpolationType, int numberOfConsecutivePasses) {
    m_startFrequency = startFrequency;
    m_stopFrequency = stopFrequency;
    m_numberOfFrequencyPoints = numberOfFrequencyPoints;
    m_convergenceType = convergenceType;
    m_interpolationType = interpolationType;
    m_numberOfConsecutivePasses = numberOfConsecutivePasses;
}

void TdAfsTerminationCriteria::checkValidity(std::vector<std::string>& messages, Engine engine) const {
    if (engine != Engine::FDTD || m_convergenceType != SParameters) return;
    if (m_startFrequency <= 0.0F || m_stopFrequency <= 0.0F) {
        messages.emplace_back(
            "Start and stop frequencies for S-parameter based convergence algorithm need to be positive.");
    }
    if (!(m_startFrequency < m_stopFrequency)) {
        messages.emplace_back(
            "Start frequency for S-parameter based convergence algorithm needs to be larger than the stop frequency.");
    }
    if (m_numberOfFrequencyPoints < 3) {
        messages.emplace_back("Number of frequency points has to be at least 3.");
    }
    if (m_numberOfConsecutivePasses < 1) {
        messages.emplace_back("Number of consecutive passes has to be at least 1.");
    }
}

bool operator==(const TdAfsTerminationCriteria& a, const TdAfsTerminationCriteria& b) {
    return tdAfsCriteria.areEqual(a, b);
}

}  // namespace quarn
