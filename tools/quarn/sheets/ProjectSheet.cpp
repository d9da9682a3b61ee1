#include "sheets/ProjectSheet.h"

#include "Console.h"
#include "Quantity.h"
#include "files/ProjectOnDisk.h"
#include "quarn/quarn.h"
#include "sheets/CircuitText.h"
#include "sheets/RequestSheet.h"

namespace quarn::tool {

namespace {

QString text(const char* utf8) { return QString::fromUtf8(utf8); }
QString direction(double theta, double phi) { return text("theta %1, phi %2").arg(degrees(theta), degrees(phi)); }
QString timesteps(std::size_t count) { return counted(count, text("timestep")); }

QString boundaryName(BoundaryConditions::BoundaryType type) {
    switch (type) {
        case BoundaryConditions::Liao:
            return text("Liao");
        case BoundaryConditions::PEC:
            return text("PEC");
        case BoundaryConditions::PMC:
            return text("PMC");
        case BoundaryConditions::CPML:
            return text("CPML");
        case BoundaryConditions::Periodic:
            return text("periodic");
        case BoundaryConditions::ESymmetry:
            return text("electric symmetry");
        case BoundaryConditions::MSymmetry:
            return text("magnetic symmetry");
    }
    return text("unknown");
}

QString versionText(const v6ProjectFile& project) {
    const unsigned major = project.GetMajorFileVersionNumber();
    const unsigned minor = project.GetMinorFileVersionNumber();
    if (major == 0 && minor == 0) return text("no file version");
    return minor == 0 ? text("file version %1").arg(major) : text("file version %1.%2").arg(major).arg(minor);
}

// The modeling units of a file are not read: what the project says there is not from the file.
void addUnits(Sheet& sheet, const ProjectFile& project) {
    const auto units = project.getDisplayUnits();
    sheet.add(text("Display units"), text("%1 (1 %1 = %2 m)").arg(units.first, numberText(units.second)));
}

void addTimestep(Sheet& sheet, const ProjectFile& project) {
    if (project.getUseExplicitlySuppliedTimestep()) {
        sheet.add(text("Timestep"), withPrefix(project.getExplicitlySuppliedTimestep(), text("s")));
    } else if (project.getUseUsersCFL()) {
        sheet.add(text("Timestep"), text("Courant factor %1").arg(numberText(project.getCFL())));
    } else {
        sheet.add(text("Timestep"), text("chosen by the engine"));
    }
}

void addBoundaries(Sheet& sheet, const BoundaryConditions* boundaries) {
    if (!boundaries) {
        sheet.add(text("Boundaries"), text("none"));
        return;
    }
    const auto pair = [boundaries](BoundingBoxSide lower, BoundingBoxSide upper) {
        return boundaryName(boundaries->getBoundaryType(lower)).leftJustified(19) +
               boundaryName(boundaries->getBoundaryType(upper));
    };
    sheet.add(text("Boundaries"), text("lower").leftJustified(19) + text("upper"));
    sheet.addDetail(text("x"), pair(BoundingBoxSide::LowerX, BoundingBoxSide::UpperX));
    sheet.addDetail(text("y"), pair(BoundingBoxSide::LowerY, BoundingBoxSide::UpperY));
    sheet.addDetail(text("z"), pair(BoundingBoxSide::LowerZ, BoundingBoxSide::UpperZ));
    if (boundaries->hasCPMLBoundary()) {
        sheet.addDetail(text("PML layers"), QString::number(boundaries->getNumberOfPMLLayers()));
    }
    if (boundaries->useScanAngle()) {
        sheet.addDetail(text("Scan angle"),
                        text("%1 at %2")
                            .arg(direction(boundaries->getTheta(), boundaries->getPhi()),
                                 withPrefix(boundaries->getFrequency(), text("Hz"))));
    }
}

void addAmbient(Sheet& sheet, const AmbientConditions* ambient) {
    if (!ambient) return;
    const auto transfer = [ambient](BoundingBoxSide side) {
        return text("%1 W/(m² K)").arg(numberText(ambient->getHeatTransferCoefficient(side)));
    };
    sheet.add(text("Ambient"), text("%1 K").arg(numberText(ambient->getBackgroundTemperature())));
    sheet.addDetail(text("Top"), transfer(BoundingBoxSide::Top));
    sheet.addDetail(text("Bottom"), transfer(BoundingBoxSide::Bottom));
}

QString activeFaces(const TFSFPlaneWave& wave) {
    QStringList faces;
    if (wave.getXLower()) faces << text("-x");
    if (wave.getXUpper()) faces << text("+x");
    if (wave.getYLower()) faces << text("-y");
    if (wave.getYUpper()) faces << text("+y");
    if (wave.getZLower()) faces << text("-z");
    if (wave.getZUpper()) faces << text("+z");
    return faces.empty() ? text("none") : faces.join(text(", "));
}

QString sourceName(int type) {
    switch (type) {
        case PlaneWave::TotalFieldScatteredField:
            return text("plane wave, total-field/scattered-field");
        case PlaneWave::Beam:
            return text("Gaussian beam");
        default:
            return text("plane wave, scattered field");
    }
}

void addSource(Sheet& sheet, const ProjectFile& project) {
    const PlaneWave* wave = project.getPlaneWave();
    if (!wave) {
        sheet.add(text("Source"), text("none"));
        return;
    }
    sheet.add(text("Source"), sourceName(wave->getType()));
    sheet.addDetail(text("Amplitude"), withPrefix(wave->getAmplitude(), text("V/m")));
    sheet.addDetail(text("Incidence"), direction(wave->getTheta(), wave->getPhi()));
    sheet.addDetail(text("Polarization"), text(wave->getPolarization() == PlaneWave::Phi ? "phi" : "theta"));
    if (wave->getType() == PlaneWave::TotalFieldScatteredField) {
        sheet.addDetail(text("Active faces"), activeFaces(static_cast<const TFSFPlaneWave&>(*wave)));
    }
    if (wave->getType() == PlaneWave::Beam) {
        const auto& beam = static_cast<const GaussianBeam&>(*wave);
        sheet.addDetail(
            text("Focus"),
            text("(%1, %2, %3) m")
                .arg(numberText(beam.getXFocus()), numberText(beam.getYFocus()), numberText(beam.getZFocus())));
        sheet.addDetail(text("Radius"), withPrefix(beam.getRadius(), text("m")));
    }
    sheet.addDetail(text("Output file"), wave->getOutputFileName());
    if (!project.AreaSourceFile().isEmpty()) sheet.addDetail(text("Area source"), project.AreaSourceFile());
}

QString waveformText(const Waveform& waveform) {
    const QString width = text("pulse width %1 timesteps").arg(numberText(waveform.getPulseWidth()));
    const QString frequency = withPrefix(waveform.getFrequency(), text("Hz"));
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
                .arg(counted(waveform.getNumberOfSourceSamples(), text("sample")))
                .arg(waveform.getNumberOfDerivativeSamples());
    }
    return text("unknown");
}

void addWaveforms(Sheet& sheet, const std::vector<Waveform*>& waveforms) {
    for (std::size_t i = 0; i < waveforms.size(); ++i) {
        sheet.add(text("Waveform %1").arg(i), waveformText(*waveforms[i]));
    }
}

QString densityName(TerminationCriteria::ConvergenceSpacingDensity density) {
    switch (density) {
        case TerminationCriteria::High:
            return text("high");
        case TerminationCriteria::Medium:
            return text("medium");
        default:
            return text("low");
    }
}

void addTdAfs(Sheet& sheet, const TdAfsTerminationCriteria& criteria) {
    sheet.addDetail(
        text("TD-AFS"),
        text("%1 by %2, %3 to %4 in %5 points, %6")
            .arg(text(criteria.convergenceType() == TdAfsTerminationCriteria::SParameters ? "S-parameters" : "energy"),
                 text(criteria.interpolationType() == TdAfsTerminationCriteria::FFT ? "FFT" : "interpolation"),
                 withPrefix(criteria.startFrequency(), text("Hz")),
                 withPrefix(criteria.stopFrequency(), text("Hz")))
            .arg(criteria.numberOfFrequencyPoints())
            .arg(text("%1 consecutive passes").arg(criteria.numberOfConsecutivePasses())));
}

// The TD-AFS criteria are part of the file only with convergence detection.
void addTermination(Sheet& sheet, const ProjectFile& project) {
    const TerminationCriteria* criteria = project.getTerminationCriteria();
    if (!criteria) {
        sheet.add(text("Termination"), text("none"));
        return;
    }
    QString limits = text("after %1").arg(timesteps(criteria->getMaximumTimesteps()));
    if (criteria->wallClockEnabled()) limits += text(" or %1 s").arg(criteria->getMaximumWallClockSeconds());
    sheet.add(text("Termination"), limits);
    if (!criteria->convergenceEnabled()) {
        sheet.addDetail(text("Convergence"), text("not watched"));
        return;
    }
    sheet.addDetail(text("Convergence"),
                    text("%1 dB, not before %2")
                        .arg(numberText(criteria->getThreshhold()), timesteps(criteria->getMinimumTimesteps())));
    sheet.addDetail(text("Sampling"),
                    text("every %1 timesteps, window of %2 samples, %3 density")
                        .arg(criteria->getTimestepSamplingInterval())
                        .arg(criteria->getWindowSize())
                        .arg(densityName(criteria->getSpacingDensity())));
    sheet.addDetail(text("Flat lines"), text(criteria->flatLineDetectionEnabled() ? "detected" : "not detected"));
    if (project.getTdAfsTerminationCriteria()) addTdAfs(sheet, *project.getTdAfsTerminationCriteria());
}

// Of results in steady state a file says something only where it has frequencies for them.
void addSteadyState(Sheet& sheet, const ProjectFile& project) {
    const auto& frequencies = project.getSteadyStateFrequencies();
    if (frequencies.empty()) return;
    sheet.add(text("Steady state"),
              text("%1 %2").arg(frequencies.size()).arg(text(frequencies.size() == 1 ? "frequency" : "frequencies")));
    for (const auto& entry : frequencies) {
        sheet.addDetail(withPrefix(entry.frequency, text("Hz")), text("folder %1").arg(entry.folder));
    }
    const bool inMemory = project.getSteadyStateStorageMethod() == ProjectFile::Memory;
    sheet.addDetail(text("Storage"), text(inMemory ? "memory" : "hard disk"));
    sheet.addDetail(text("Far-zone box"),
                    text(project.saveFieldsOnFarZoneBoxForPostProcessing() ? "fields saved" : "fields not saved"));
    sheet.addDetail(text("Dissipation"), text(project.computeSystemDissipatedPower() ? "computed" : "not computed"));
    if (const DFTParameters* dft = project.getDFTParameters()) {
        sheet.addDetail(text("DFT"),
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
