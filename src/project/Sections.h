#pragma once

#include <QLatin1String>

#include "blocktext/FormatBuilder.h"
#include "blocktext/LineShapes.h"
#include "quarn/BoundaryConditions.h"

/// The sections of the project file. Each is one block: its functions stand side by side in one file and are called
/// StreamOut and StreamIn with the section's name behind. The tables of the frame (v6ProjectFileFrames.cpp) say in what
/// order they stand.
namespace quarn {

class DelimManager;
class v6ProjectFile;

struct Section {
    QLatin1String name;

    /// Whether a reader that returns false ends the block around.
    blocktext::Unreadable unreadable;

    /// Writes the whole block, or nothing where the project has nothing for it. Null where the block is only read.
    bool (*write)(DelimManager& delim, const v6ProjectFile& project);

    /// Reads what follows the open line. Returns whether the stream is in order.
    bool (*read)(DelimManager& delim, v6ProjectFile& project);

    /// Adds the block to the reference of the format; null where it is not described yet.
    void (*describe)(blocktext::FormatBuilder& builder);
};

extern const Section unitsSection;

/// The run settings.
extern const Section boundaryConditionsSection, ambientConditionsSection, terminationCriteriaSection,
    v6ConvergenceSection, sourceTypeSection, waveformSection;

/// How fields are sampled for steady-state results, and at which frequencies.
extern const Section dftParametersSection, steadyStateFrequenciesSection;

/// Components and ports.
extern const Section componentsPortsSection, waveGuidePortsSection;

/// The requested results.
extern const Section indexedPointsSection, interpolatedPointsSection, multiPointFieldRequestsSection,
    rawSARPlanesSection, temperatureRiseSection, sarAveragingSection, farZoneRequestsSection, hacRequestsSection;

/// The DFT settings of older files, within their waveform section; never written.
bool StreamInV6DFTParameters(DelimManager& delim, v6ProjectFile& project);
void describeV6DFTParameters(blocktext::FormatBuilder& builder);

QLatin1String boundaryTypeName(BoundaryConditions::BoundaryType type);
BoundaryConditions::BoundaryType boundaryTypeOf(QStringView name);

/// Writes the block of the whole project, which bears the name of its engine.
void StreamOutProject(DelimManager& delim, const v6ProjectFile& project);

/// Reads what follows the open line of a project's block, or what an earlier call has left of it. False where the name
/// is not that of a project.
bool StreamInProject(const QString& name, DelimManager& delim, v6ProjectFile& project);

/// All blocks of the project file, in file order.
void describeProjectBlocks(blocktext::FormatBuilder& builder);

}  // namespace quarn
