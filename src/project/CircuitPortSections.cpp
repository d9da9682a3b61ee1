// The sections of src/circuit/ as the project file has them.

#include "circuit/CircuitSections.h"

#include "project/ProjectContents.h"
#include "project/Sections.h"

namespace quarn {

using namespace blocktext;

namespace {

bool StreamOutComponentsPorts(DelimManager& delim, const v6ProjectFile& project) {
    return writeComponentsPorts(delim, project.getComponentManager(), project.getStaticVoltageList());
}

bool StreamInComponentsPorts(DelimManager& delim, v6ProjectFile& project) {
    auto [manager, staticVoltages] = readComponentsPorts(delim);
    ProjectContents::install(project, std::move(staticVoltages));
    ProjectContents::install(project, std::move(manager));
    return isOk(delim);
}

bool StreamOutWaveGuidePorts(DelimManager& delim, const v6ProjectFile& project) {
    const WaveGuidePortManager* manager = project.getWaveGuidePortManager();
    return manager && writeWaveGuidePorts(delim, *manager);
}

bool StreamInWaveGuidePorts(DelimManager& delim, v6ProjectFile& project) {
    ProjectContents::install(project, readWaveGuidePorts(delim));
    return isOk(delim);
}

}  // namespace

const Section componentsPortsSection{sectionName::componentsPorts,
                                     Unreadable::Fails,
                                     StreamOutComponentsPorts,
                                     StreamInComponentsPorts,
                                     describeComponentsPorts};

const Section waveGuidePortsSection{sectionName::waveGuidePorts,
                                    Unreadable::Fails,
                                    StreamOutWaveGuidePorts,
                                    StreamInWaveGuidePorts,
                                    describeWaveGuidePorts};

}  // namespace quarn
