#pragma once

#include <QLatin1String>
#include <QString>
#include <memory>
#include <vector>

#include "project/Contents.h"
#include "quarn/AmbientConditions.h"
#include "quarn/BoundaryConditions.h"
#include "quarn/DFTParameters.h"
#include "quarn/PlaneWave.h"
#include "quarn/ProjectFile.h"
#include "quarn/TdAfsTerminationCriteria.h"
#include "quarn/TerminationCriteria.h"
#include "quarn/Waveform.h"

/// The sections of the project file that carry the run settings: for each a writer of the whole block and a reader of
/// what follows the block's open line, side by side in one file with the keys they share. Writers return whether the
/// stream is in order. Readers return new objects, never null unless stated.
namespace quarn {

class DelimManager;

bool writeBoundaryConditions(DelimManager& delim, const BoundaryConditions& conditions);
std::unique_ptr<BoundaryConditions> readBoundaryConditions(DelimManager& delim,
                                                           const std::vector<Waveform*>& waveforms);
QLatin1String boundaryTypeName(BoundaryConditions::BoundaryType type);
BoundaryConditions::BoundaryType boundaryTypeOf(QStringView name);

bool writeAmbientConditions(DelimManager& delim, const AmbientConditions& conditions);
std::unique_ptr<AmbientConditions> readAmbientConditions(DelimManager& delim);

/// The criteria of a block, and the TD-AFS criteria of the block within it: null where there is none.
struct TerminationSection {
    std::unique_ptr<TerminationCriteria> criteria;
    std::unique_ptr<TdAfsTerminationCriteria> tdAfsCriteria;
};
bool writeTerminationCriteria(DelimManager& delim, const TerminationCriteria& criteria,
                              const TdAfsTerminationCriteria* tdAfsCriteria);
TerminationSection readTerminationCriteria(DelimManager& delim);

/// Null when the block does not ask for a minimum number of timesteps. This block is never written.
std::unique_ptr<TerminationCriteria> readV6Convergence(DelimManager& delim);

bool writeDFTParameters(DelimManager& delim, const DFTParameters& parameters);
std::unique_ptr<DFTParameters> readDFTParameters(DelimManager& delim);

using SteadyStateFrequencies = std::vector<ProjectFile::SteadyStateFrequency>;
void writeSteadyStateFrequencies(DelimManager& delim, const SteadyStateFrequencies& frequencies);
void readSteadyStateFrequencies(DelimManager& delim, SteadyStateFrequencies& frequencies);

/// The DFT settings of older files, within their waveform section; never written.
std::unique_ptr<DFTParameters> readV6DFTParameters(DelimManager& delim, SteadyStateFrequencies& frequencies);

/// The number of samples of a user-defined waveform comes from the criteria where there are any.
bool writeWaveforms(DelimManager& delim, const std::vector<Waveform*>& waveforms, const TerminationCriteria* criteria);

/// Appends the section's waveforms and steady-state frequencies; the DFT parameters of an older file, if any, replace
/// `dftParameters`. False when those could not be read.
bool readWaveforms(DelimManager& delim, std::vector<Waveform*>& waveforms,
                   std::unique_ptr<DFTParameters>& dftParameters, SteadyStateFrequencies& frequencies);

bool writeSourceType(DelimManager& delim, const PlaneWave& wave, const QString& areaSourceFile);

/// Null when the section holds no complete plane wave. The name is set where the section has one.
PlaneWavePointer readSourceType(DelimManager& delim, QString& areaSourceFile);

}  // namespace quarn
