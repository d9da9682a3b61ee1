// The frames of the project file: one table for each block that holds sections, in the order in which they are written.

#include "blocktext/BlockDescription.h"
#include "project/ProjectContents.h"
#include "project/Sections.h"
#include "quarn/OwnedProject.h"
#include "quarn/SARAveragingRequest.h"

namespace quarn {

using namespace blocktext;

namespace {

using P = v6ProjectFile;

/// A section as a row of a table, and when it is written, in words.
struct SectionRow : LineShape {
    const Section* section;
    const char* written;

    constexpr SectionRow(const Section& s, const char* w) : section(&s), written(w) {}

    void write(DelimManager& delim, const P& project) const { section->write(delim, project); }
    Offer readBlock(const QString& name, const QString&, DelimManager& delim, P& project) const {
        if (name != section->name) return Offer::Unknown;
        return afterReading(section->read(delim, project), section->unreadable);
    }
    void describeTo(FormatBuilder& builder, const P&, const FormatLine& line) const {
        builder.addBlock(section->name, line.written);
        if (section->describe) section->describe(builder);
    }
    QString usuallyWritten() const { return QString::fromLatin1(written); }
};
constexpr auto row(const Section& section) { return lineOf(SectionRow(section, "where the project has it")); }
constexpr auto rowOfAll(const Section& section) { return lineOf(SectionRow(section, "always")); }

// The timestep goes before the Courant factor.
constexpr auto runParameters = [] {
    constexpr auto timestep = property(&P::getExplicitlySuppliedTimestep, [](P& project, float seconds) {
        project.setExplicitlySuppliedTimestep(seconds);
        project.setUseExplicitlySuppliedTimestep(true);
    });
    constexpr auto courantFactor = property(&P::getCFL, [](P& project, float factor) {
        project.setCFL(factor);
        project.setUseUsersCFL(true);
    });
    constexpr auto usesCourantFactor = [](const P& project) {
        return project.getUseUsersCFL() && !project.getUseExplicitlySuppliedTimestep();
    };
    return describe<P>(
        "RunParameters",
        Unknown::DropLine,
        Unreadable::KeepsValue,
        rowOfAll(boundaryConditionsSection),
        row(ambientConditionsSection),
        row(componentsPortsSection),
        row(waveGuidePortsSection),
        row(terminationCriteriaSection),
        row(sourceTypeSection),
        row(waveformSection),
        row(v6ConvergenceSection).onlyRead(),
        value("UseTimestep", timestep).in("s").where(&P::getUseExplicitlySuppliedTimestep, "where in use"),
        value("UseUsersCFL", courantFactor).where(usesCourantFactor, "where in use without a timestep"));
}();

constexpr NameTable<P::SteadyStateStorageMethod, 2> storageMethods{{
    {P::HardDisk, "SteadyStateStorageMethodIsHardDisk"_key},
    {P::Memory, "SteadyStateStorageMethodIsMemory"_key},
}};

// The settings of steady-state results, and HAC requests, are written only where there are such results.
constexpr auto requestResults = [] {
    constexpr auto withFrequencies = [](auto line) {
        return line.where([](const P& project) { return !project.getSteadyStateFrequencies().empty(); },
                          "with steady-state frequencies");
    };
    constexpr auto storage = property(&P::getSteadyStateStorageMethod, &P::setSteadyStateStorageMethod);
    constexpr auto dropsBoxFile =
        property([](const P& project) { return !project.saveFieldsOnFarZoneBoxForPostProcessing(); },
                 [](P& project, bool drops) { project.setSaveFieldsOnFarZoneBoxForPostProcessing(!drops); });
    constexpr auto skipsPower =
        property([](const P& project) { return !project.computeSystemDissipatedPower(); },
                 [](P& project, bool skips) { project.setComputeSystemDissipatedPower(!skips); });
    return describe<P>("RequestResults",
                       Unknown::DropLine,
                       Unreadable::KeepsValue,
                       row(indexedPointsSection),
                       row(interpolatedPointsSection),
                       row(multiPointFieldRequestsSection),
                       row(rawSARPlanesSection),
                       row(temperatureRiseSection),
                       row(sarAveragingSection),
                       row(farZoneRequestsSection),
                       withFrequencies(row(dftParametersSection)),
                       withFrequencies(oneKeyOf(storageMethods, storage)),
                       withFrequencies(flag("DontSaveFarZoneBoxFile", dropsBoxFile)),
                       withFrequencies(flag("DontComputeSystemDissipatedPower", skipsPower)),
                       withFrequencies(row(steadyStateFrequenciesSection)),
                       withFrequencies(row(hacRequestsSection)));
}();

bool StreamOutRunParameters(DelimManager& delim, const P& project) { return runParameters.write(delim, project); }

bool StreamInRunParameters(DelimManager& delim, P& project) {
    project.setUseExplicitlySuppliedTimestep(false);
    project.setUseUsersCFL(false);
    runParameters.read(delim, project);
    return isOk(delim);
}

bool StreamOutRequestResults(DelimManager& delim, const P& project) { return requestResults.write(delim, project); }

// A setting counts only where it is the whole line.
bool StreamInRequestResults(DelimManager& delim, P& project) {
    project.setSaveFieldsOnFarZoneBoxForPostProcessing(true);
    ProjectContents::install(project, std::unique_ptr<SARAveragingRequest>());
    requestResults.read(delim, project, onLine([&](QString line) {
                            stripEscapeCharacters(line);
                            requestResults.offerWord(line, delim.GetStream(), project);
                        }));
    return isOk(delim);
}

const Section runParametersSection{
    runParameters.name, Unreadable::Fails, StreamOutRunParameters, StreamInRunParameters, [](FormatBuilder& builder) {
        runParameters.describeTo(builder, OwnedProject());
    }};

const Section requestResultsSection{requestResults.name,
                                    Unreadable::Fails,
                                    StreamOutRequestResults,
                                    StreamInRequestResults,
                                    [](FormatBuilder& builder) { requestResults.describeTo(builder, OwnedProject()); }};

constexpr auto fdtdProject =
    describe<P>("FDTDProject", Unknown::DropLine, Unreadable::KeepsValue, rowOfAll(unitsSection),
                rowOfAll(runParametersSection), rowOfAll(requestResultsSection));
constexpr auto femProject = fdtdProject.named("FEMProject");

}  // namespace

void StreamOutProject(DelimManager& delim, const P& project) {
    const auto& block = project.getEngine() == Engine::FEM ? femProject : fdtdProject;
    block.write(delim, project);
}

bool StreamInProject(const QString& name, DelimManager& delim, P& project) {
    if (name != fdtdProject.name && name != femProject.name) return false;
    fdtdProject.read(delim, project);
    project.setEngine(name == femProject.name ? Engine::FEM : Engine::FDTD);
    return true;
}

void describeProjectBlocks(FormatBuilder& builder) { fdtdProject.describeTo(builder, OwnedProject()); }

}  // namespace quarn
