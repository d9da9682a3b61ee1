#include "sheets/Sheets.h"

#include "Console.h"
#include "Quantity.h"
#include "files/ProjectOnDisk.h"
#include "quarn/quarn.h"

namespace quarn::tool {

namespace {

QString direction(double theta, double phi) { return text("theta %1, phi %2").arg(degrees(theta), degrees(phi)); }
QString timesteps(std::size_t count) { return counted(count, "timestep"); }

constexpr Named<BoundaryConditions::BoundaryType> boundaryNames[] = {
    {BoundaryConditions::Liao, "Liao"},
    {BoundaryConditions::PEC, "PEC"},
    {BoundaryConditions::PMC, "PMC"},
    {BoundaryConditions::CPML, "CPML"},
    {BoundaryConditions::Periodic, "periodic"},
    {BoundaryConditions::ESymmetry, "electric symmetry"},
    {BoundaryConditions::MSymmetry, "magnetic symmetry"},
};

constexpr Named<int> sourceNames[] = {
    {PlaneWave::ScatteredField, "plane wave, scattered field"},
    {PlaneWave::TotalFieldScatteredField, "plane wave, total-field/scattered-field"},
    {PlaneWave::Beam, "Gaussian beam"},
};

const char* densityName(TerminationCriteria::ConvergenceSpacingDensity density) {
    if (density == TerminationCriteria::High) return "high";
    return density == TerminationCriteria::Medium ? "medium" : "low";
}

QString versionText(const v6ProjectFile& project) {
    const unsigned major = project.GetMajorFileVersionNumber();
    const unsigned minor = project.GetMinorFileVersionNumber();
    if (major == 0 && minor == 0) return text("no file version");
    return minor == 0 ? text("file version %1").arg(major) : text("file version %1.%2").arg(major).arg(minor);
}

// The modeling units are left out: they are not read from the file.
void addUnits(Sheet& sheet, const ProjectFile& project) {
    const auto units = project.getDisplayUnits();
    sheet.add("Display units", text("%1 (1 %1 = %2 m)").arg(units.first, numberText(units.second)));
}

void addTimestep(Sheet& sheet, const ProjectFile& project) {
    if (project.getUseExplicitlySuppliedTimestep()) {
        sheet.add("Timestep", withPrefix(project.getExplicitlySuppliedTimestep(), "s"));
    } else if (project.getUseUsersCFL()) {
        sheet.add("Timestep", text("Courant factor %1").arg(numberText(project.getCFL())));
    } else {
        sheet.add("Timestep", "chosen by the engine");
    }
}

void addBoundaries(Sheet& sheet, const BoundaryConditions* boundaries) {
    if (!boundaries) {
        sheet.add("Boundaries", "none");
        return;
    }
    const auto pair = [boundaries](BoundingBoxSide lower, BoundingBoxSide upper) {
        return nameOf(boundaries->getBoundaryType(lower), boundaryNames).leftJustified(19) +
               nameOf(boundaries->getBoundaryType(upper), boundaryNames);
    };
    sheet.add("Boundaries", text("lower").leftJustified(19) + text("upper"));
    sheet.addDetail("x", pair(BoundingBoxSide::LowerX, BoundingBoxSide::UpperX));
    sheet.addDetail("y", pair(BoundingBoxSide::LowerY, BoundingBoxSide::UpperY));
    sheet.addDetail("z", pair(BoundingBoxSide::LowerZ, BoundingBoxSide::UpperZ));
    if (boundaries->hasCPMLBoundary()) {
        sheet.addDetail("PML layers", QString::number(boundaries->getNumberOfPMLLayers()));
    }
    if (boundaries->useScanAngle()) {
        sheet.addDetail("Scan angle",
                        text("%1 at %2")
                            .arg(direction(boundaries->getTheta(), boundaries->getPhi()),
                                 withPrefix(boundaries->getFrequency(), "Hz")));
    }
}

void addAmbient(Sheet& sheet, const AmbientConditions* ambient) {
    if (!ambient) return;
    const auto transfer = [ambient](BoundingBoxSide side) {
        return text("%1 W/(m² K)").arg(numberText(ambient->getHeatTransferCoefficient(side)));
    };
    sheet.add("Ambient", text("%1 K").arg(numberText(ambient->getBackgroundTemperature())));
    sheet.addDetail("Top", transfer(BoundingBoxSide::Top));
    sheet.addDetail("Bottom", transfer(BoundingBoxSide::Bottom));
}

QString activeFaces(const TFSFPlaneWave& wave) {
    const QString faces = listText({{wave.getXLower(), "-x"},
                                    {wave.getXUpper(), "+x"},
                                    {wave.getYLower(), "-y"},
                                    {wave.getYUpper(), "+y"},
                                    {wave.getZLower(), "-z"},
                                    {wave.getZUpper(), "+z"}});
    return faces.isEmpty() ? "none" : faces;
}

void addSource(Sheet& sheet, const ProjectFile& project) {
    const PlaneWave* wave = project.getPlaneWave();
    if (!wave) {
        sheet.add("Source", "none");
        return;
    }
    sheet.add("Source", nameOf<int>(wave->getType(), sourceNames));
    sheet.addDetail("Amplitude", withPrefix(wave->getAmplitude(), "V/m"));
    sheet.addDetail("Incidence", direction(wave->getTheta(), wave->getPhi()));
    sheet.addDetail("Polarization", text(wave->getPolarization() == PlaneWave::Phi ? "phi" : "theta"));
    if (wave->getType() == PlaneWave::TotalFieldScatteredField) {
        sheet.addDetail("Active faces", activeFaces(static_cast<const TFSFPlaneWave&>(*wave)));
    }
    if (wave->getType() == PlaneWave::Beam) {
        const auto& beam = static_cast<const GaussianBeam&>(*wave);
        sheet.addDetail("Focus", pointText(beam.getXFocus(), beam.getYFocus(), beam.getZFocus()));
        sheet.addDetail("Radius", withPrefix(beam.getRadius(), "m"));
    }
    sheet.addDetail("Output file", wave->getOutputFileName());
    if (!project.AreaSourceFile().isEmpty()) sheet.addDetail("Area source", project.AreaSourceFile());
}

QString waveformText(const Waveform& waveform) {
    const QString width = text("pulse width %1 timesteps").arg(numberText(waveform.getPulseWidth()));
    const QString frequency = withPrefix(waveform.getFrequency(), "Hz");
    switch (waveform.getShape()) {
        case Waveform::Gaussian:
            return text("Gaussian, ") + width;
        case Waveform::GaussianDerivative:
            return text("Gaussian derivative, ") + width;
        case Waveform::ModulatedGaussian:
            return text("modulated Gaussian, %1, %2").arg(width, frequency);
        case Waveform::Sinusoid:
            return text("sinusoid, ") + frequency;
        case Waveform::Step:
            return text("step, rise time %1 timesteps").arg(numberText(waveform.getPulseWidth()));
        case Waveform::IEC_61000_4_2:
            return text("electrostatic discharge, IEC 61000-4-2");
        case Waveform::UserDefined:
            return text("user-defined, %1 of the source and %2 of its derivative")
                .arg(counted(waveform.getNumberOfSourceSamples(), "sample"))
                .arg(waveform.getNumberOfDerivativeSamples());
    }
    return text("unknown");
}

void addWaveforms(Sheet& sheet, const std::vector<Waveform*>& waveforms) {
    for (std::size_t i = 0; i < waveforms.size(); ++i) {
        sheet.add(text("Waveform %1").arg(i), waveformText(*waveforms[i]));
    }
}

void addTdAfs(Sheet& sheet, const TdAfsTerminationCriteria& criteria) {
    sheet.addDetail(
        "TD-AFS",
        text("%1 by %2, %3 to %4 in %5 points, %6")
            .arg(text(criteria.convergenceType() == TdAfsTerminationCriteria::SParameters ? "S-parameters" : "energy"),
                 text(criteria.interpolationType() == TdAfsTerminationCriteria::FFT ? "FFT" : "interpolation"),
                 withPrefix(criteria.startFrequency(), "Hz"),
                 withPrefix(criteria.stopFrequency(), "Hz"))
            .arg(criteria.numberOfFrequencyPoints())
            .arg(text("%1 consecutive passes").arg(criteria.numberOfConsecutivePasses())));
}

// The TD-AFS criteria are part of the file only with convergence detection.
void addTermination(Sheet& sheet, const ProjectFile& project) {
    const TerminationCriteria* criteria = project.getTerminationCriteria();
    if (!criteria) {
        sheet.add("Termination", "none");
        return;
    }
    QString limits = text("after %1").arg(timesteps(criteria->getMaximumTimesteps()));
    if (criteria->wallClockEnabled()) limits += text(" or %1 s").arg(criteria->getMaximumWallClockSeconds());
    sheet.add("Termination", limits);
    if (!criteria->convergenceEnabled()) {
        sheet.addDetail("Convergence", "not watched");
        return;
    }
    sheet.addDetail("Convergence",
                    text("%1 dB, not before %2")
                        .arg(numberText(criteria->getThreshhold()), timesteps(criteria->getMinimumTimesteps())));
    sheet.addDetail("Sampling",
                    text("every %1 timesteps, window of %2 samples, %3 density")
                        .arg(criteria->getTimestepSamplingInterval())
                        .arg(criteria->getWindowSize())
                        .arg(densityName(criteria->getSpacingDensity())));
    sheet.addDetail("Flat lines", text(criteria->flatLineDetectionEnabled() ? "detected" : "not detected"));
    if (project.getTdAfsTerminationCriteria()) addTdAfs(sheet, *project.getTdAfsTerminationCriteria());
}

// A file without frequencies has no steady-state results.
void addSteadyState(Sheet& sheet, const ProjectFile& project) {
    const auto& frequencies = project.getSteadyStateFrequencies();
    if (frequencies.empty()) return;
    sheet.add("Steady state",
              text("%1 %2").arg(frequencies.size()).arg(text(frequencies.size() == 1 ? "frequency" : "frequencies")));
    for (const auto& entry : frequencies) {
        sheet.addDetail(withPrefix(entry.frequency, "Hz"), text("folder %1").arg(entry.folder));
    }
    const bool inMemory = project.getSteadyStateStorageMethod() == ProjectFile::Memory;
    sheet.addDetail("Storage", text(inMemory ? "memory" : "hard disk"));
    sheet.addDetail("Far-zone box",
                    text(project.saveFieldsOnFarZoneBoxForPostProcessing() ? "fields saved" : "fields not saved"));
    sheet.addDetail("Dissipation", text(project.computeSystemDissipatedPower() ? "computed" : "not computed"));
    if (const DFTParameters* dft = project.getDFTParameters()) {
        sheet.addDetail("DFT",
                        text("sampled every %1, fields %2")
                            .arg(timesteps(dft->getSamplingInterval()),
                                 text(dft->normalizeFields() ? "normalized" : "not normalized")));
    }
}

}  // namespace

Sheet sheetOfProject(const QString& path, const QByteArray& content) {
    const LoadedProject loaded(path, content);
    const v6ProjectFile& project = loaded.project;
    const QString engine = text(project.getEngine() == Engine::FEM ? "FEM" : "FDTD");
    Sheet sheet(text("%1: project for the %2 engine, %3").arg(path, engine, versionText(project)));
    addUnits(sheet, project);
    addTimestep(sheet, project);
    addBoundaries(sheet, project.getBoundaryConditions());
    addAmbient(sheet, project.getAmbientConditions());
    addSource(sheet, project);
    addCircuit(sheet, project);
    addWaveforms(sheet, project.getWaveforms());
    addTermination(sheet, project);
    addSteadyState(sheet, project);
    addRequests(sheet, project);
    return sheet;
}

}  // namespace quarn::tool
