#pragma once

#include <QString>

#include "quarn/quarn.h"

namespace quarn::test {

// clang-format off
/// A project file with every section.
const QString golden =
    "Version 8\nbegin_<FDTDProject> \nbegin_<Units> \nbegin_<Display> \nName µm\nConversion 9.9999999999999995e-07\n"
    "end_<Display>\nbegin_<Modeling> \nName m\nConversion 1\nend_<Modeling>\nend_<Units>\nbegin_<RunParameters> \n"
    "begin_<OuterBoundaries> \nLowerX ORBC_LIAO\nUpperX ORBC_PEC\nLowerY ORBC_PMC\nUpperY ORBC_CPML\nLowerZ ORBC_PERIODIC\n"
    "UpperZ ORBC_ESYMMETRY\nNumberOfPMLLayers 8\nbegin_<PeriodicParameters> \nUseScanAngle\nPhi 30\n"
    "Theta 0.10000000149011612\nFrequency 2500000000\nend_<PeriodicParameters>\nend_<OuterBoundaries>\n"
    "begin_<AmbientConditions> \nbegin_<BackgroundMedium> \nTemperature 310.5\nend_<BackgroundMedium>\nbegin_<Top> \n"
    "HeatTransferCoefficient 0.3333333432674408\nend_<Top>\nbegin_<Bottom> \n"
    "HeatTransferCoefficient 5.6051938572992683e-45\nend_<Bottom>\nend_<AmbientConditions>\n"
    "begin_<TerminationCriteria> \nMaximumTimeSteps 2\nMaximumWallClockSeconds 3600\nConvergenceEnabled\n"
    "Threshhold -40.25\nSamplingInterval 6\nWindowSize 7\nMinimumTimeSteps 1\nFlatLineDetectionEnabled\nHIGH_DENSITY\n"
    "begin_<TdAfsTerminationCriteria> \nStartFrequency 1500000000\nStopFrequency 2500000000\nNumberOfFrequencyPoints 11\n"
    "SPARAMETERS\nFFT\nNumberOfConsecutivePasses 4\nend_<TdAfsTerminationCriteria>\nend_<TerminationCriteria>\n"
    "begin_<SourceType> \nbegin_<TotalFieldScatteredFieldPlaneWave> \nAmplitude 0.69999998807907104\nIncidentTheta 45\n"
    "IncidentPhi -90\nPhiPolarization\nOutputFileName Öffnung Ω.out\nXLower\nZLower\nYUpper\n"
    "end_<TotalFieldScatteredFieldPlaneWave>\nAreaSourceFile area source.dat\nend_<SourceType>\nbegin_<Waveform> \n"
    "begin_<Gaussian> \npulseWidth 64\nend_<Gaussian>\nbegin_<GaussianDerivative> \npulseWidth 65\n"
    "end_<GaussianDerivative>\nbegin_<ModulatedGaussian> \npulseWidth 66\nfrequency 2500000000\nend_<ModulatedGaussian>\n"
    "begin_<Sinusoid> \nfrequency 9.8100004196166992\nend_<Sinusoid>\nbegin_<Step> \npulseWidth 67\nend_<Step>\n"
    "begin_<UserDefined> \nbegin_<Source> \n0\n0.5\n1\nend_<Source>\nbegin_<Derivative> \n1\n0.10000000149011612\n-2\n"
    "end_<Derivative>\nend_<UserDefined>\nend_<Waveform>\nUseTimestep 9.999999960041972e-13\nend_<RunParameters>\n"
    "begin_<RequestResults> \nbegin_<DFTParameters> \nNormalizeFields\nDataSampling 12\nend_<DFTParameters>\n"
    "SteadyStateStorageMethodIsMemory\nDontSaveFarZoneBoxFile\nDontComputeSystemDissipatedPower\n"
    "begin_<SteadyStateFrequencies> \nFrequencyFolder 2500000000 F1\nFrequencyFolder 0.10000000149011612 Größe\n"
    "end_<SteadyStateFrequencies>\nend_<RequestResults>\nend_<FDTDProject>\n";
// clang-format on

/// Describes the same project through the setters.
inline void describe(v6ProjectFile& project) {
    using B = BoundaryConditions;
    using A = AmbientConditions;
    using T = TdAfsTerminationCriteria;
    using W = Waveform;
    project.setDisplayUnits({"µm", 1e-6});
    auto* boundaries = new B(B::Liao, B::PEC, B::PMC, B::CPML, B::Periodic, B::ESymmetry, 8);
    boundaries->addPeriodicScanAngleParameters(30, 0.1F, 2.5e9F);
    project.setBoundaryConditions(boundaries);
    project.setAmbientConditions(new A(310.5F, A::HeatTransfer, 5e-45F, A::HeatTransfer, 1.0F / 3.0F));
    auto* criteria = new TerminationCriteria(1, 2, 3600);
    criteria->addConvergence(-40.25F, 6, 7, true, TerminationCriteria::High);
    project.setTerminationCriteria(criteria);
    auto* tdAfsCriteria = new T;
    tdAfsCriteria->addTdAfsConvergence(1.5e9F, 2.5e9F, 11, T::SParameters, T::FFT, 4);
    project.setTdAfsTerminationCriteria(tdAfsCriteria);
    const auto phi = PlaneWave::Phi;
    project.setPlaneWave(new TFSFPlaneWave(45, -90, 0.7F, phi, "Öffnung Ω.out", true, false, false, true, true, false));
    project.AreaSourceFile("area source.dat");
    const std::vector<float> source{0, 0.5F, 1, 9}, derivative{1, 0.1F, -2, 9};  // one sample more than is written
    project.getWaveforms() = {new W(W::Gaussian, 64, 1, {}, {}),
                              new W(W::GaussianDerivative, 65, 1, {}, {}),
                              new W(W::ModulatedGaussian, 66, 2.5e9F, {}, {}),
                              new W(W::Sinusoid, 1, 9.81F, {}, {}),
                              new W(W::Step, 67, 1, {}, {}),
                              new W(W::UserDefined, 1, 1, source, derivative)};
    project.setUseExplicitlySuppliedTimestep(true);
    project.setExplicitlySuppliedTimestep(1e-12F);
    project.setUseUsersCFL(true);
    delete project.getDFTParameters();
    project.setDFTParameters(new DFTParameters(true, 12));
    project.setSaveFieldsOnFarZoneBoxForPostProcessing(false);
    project.setComputeSystemDissipatedPower(false);
    project.getSteadyStateFrequencies() = {{2.5e9F, "F1"}, {0.1F, "Größe"}};
}

}  // namespace quarn::test
