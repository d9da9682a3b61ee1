#include <QLocale>

#include "TestSupport.h"
#include "quarn/quarn.h"

namespace quarn::test {
namespace {

using B = BoundaryConditions;
using W = Waveform;

// clang-format off
const QString noLayers = "error: The number of CPML layers must be greater that zero.";
const QString twoAbsorbers = "error: PML and Liao absorbing boundaries cannot both be specified.";
const QString fewLayers =
    "warning: The number of PML layers is less that five.  Large reflections from the boundary may occur.";
const QString noBoundaries = "error: Boundary conditions have not been specified.";
const QString noExcitation = "error: No excitation has been specified.";
const QString noWaveform = "error: No waveform has been specified.";
const QString noTermination = "error: No termination criteria has been specified.";
const QString shortPulse = "warning: The pulse width must be greater than 32 (currently %1) timesteps in order to "
                           "prevent high frequencies from being introduced into the simulation.";
const QString shortRise = "warning: The rise time must be greater than 32 (currently %1) timesteps in order to "
                          "prevent high frequencies from being introduced into the simulation.";
const QString noFrequency = "warning: The frequency must be greater than 0 (currently %1)";
const QString stepConverges = "warning: Termination criterion to detect convergence of simulation is activated, "
                              "simulation with Step waveform excitation may not converge.";
const QString badSamples = "error: The user defined waveform is incorrectly specified.";
const QString noComponents = "error: S-Parameters are being computed, but there are no circuit components specified.";
const QString negativeR = "warning: Feed resistance should not be negative.";
const QString fewSamples = "error: There are not enough points specified in the user defined waveform.";
// clang-format on

TEST(Validity, AbsorbingLayersAreCheckedOnlyForFEM) {
    const auto check = [](Engine engine, B::BoundaryType lowerX, B::BoundaryType others, int layers) {
        const B conditions(lowerX, others, others, others, others, others, layers);
        return findingsOf(conditions, engine);
    };
    EXPECT_EQ(check(Engine::FDTD, B::Liao, B::CPML, 0), QStringList());
    EXPECT_EQ(check(Engine::FEM, B::Liao, B::CPML, 0), (QStringList{noLayers, twoAbsorbers, fewLayers}));
    EXPECT_EQ(check(Engine::FEM, B::CPML, B::PEC, 1), QStringList(fewLayers));
    EXPECT_EQ(check(Engine::FEM, B::CPML, B::CPML, 4), QStringList(fewLayers));
    EXPECT_EQ(check(Engine::FEM, B::CPML, B::CPML, 5), QStringList());
    EXPECT_EQ(check(Engine::FEM, B::Liao, B::PEC, 0), QStringList()) << "no CPML side";
}

TEST(Validity, WaveformsAreCheckedOnlyForFDTD) {
    const auto check = [](const W& waveform, bool convergence = false, Engine engine = Engine::FDTD) {
        TerminationCriteria criteria(0, 2, 0);
        if (convergence) criteria.addConvergence(-40, 5, 5, true, TerminationCriteria::Medium);
        return findingsOf(waveform, criteria, engine);
    };
    QLocale::setDefault(QLocale::German);  // messages use a decimal point in any locale
    EXPECT_EQ(check(W(W::Gaussian, 31.5F, 0, {}, {})), QStringList(shortPulse.arg("31.5")));
    EXPECT_EQ(check(W(W::Gaussian, 32, 0, {}, {}), true), QStringList());
    EXPECT_EQ(check(W(W::GaussianDerivative, 3.1415927F, 0, {}, {})), QStringList(shortPulse.arg("3.14159")));
    EXPECT_EQ(check(W(W::ModulatedGaussian, -1, 0, {}, {})), (QStringList{shortPulse.arg("-1"), noFrequency.arg("0")}));
    EXPECT_EQ(check(W(W::Sinusoid, 0, -2.5e9F, {}, {})), QStringList(noFrequency.arg("-2.5e+09")));
    EXPECT_EQ(check(W(W::Step, 31.5F, 0, {}, {})), QStringList(shortRise.arg("31.5")));
    EXPECT_EQ(check(W(W::Step, 32, 0, {}, {}), true), QStringList(stepConverges));
    EXPECT_EQ(check(W(W::IEC_61000_4_2, 0, 0, {}, {}), true), QStringList());
    EXPECT_EQ(check(W(W::UserDefined, 0, 0, {1, 2, 3}, {1, 2})), QStringList(badSamples));
    EXPECT_EQ(check(W(W::UserDefined, 0, 0, {1, 2}, {1, 2})), QStringList(fewSamples)) << "timestep 0 counts too";
    EXPECT_EQ(check(W(W::UserDefined, 0, 0, {1, 2}, {1})), (QStringList{badSamples, fewSamples}));
    EXPECT_EQ(check(W(W::ModulatedGaussian, 0, 0, {}, {}), false, Engine::FEM), QStringList());
    QLocale::setDefault(QLocale::c());
}

TEST(Validity, TerminationCriteriaAreCheckedOnlyForFEM) {
    const auto check = [](unsigned maximum, Engine engine) {
        QStringList warnings("earlier");
        TerminationCriteria(0, maximum, 0).checkValidity(warnings, engine);
        return warnings.mid(1);
    };
    EXPECT_EQ(check(0, Engine::FEM), QStringList("The maximum number of timesteps should be greater than zero."));
    EXPECT_EQ(check(1, Engine::FEM) + check(0, Engine::FDTD), QStringList());
}

TEST(Validity, TdAfsCriteriaAreCheckedForSParametersAndFDTD) {
    using C = TdAfsTerminationCriteria;
    using Texts = std::vector<std::string>;
    const auto check = [](float start, float stop, int points, int passes, C::ConvergenceType type, Engine engine) {
        C criteria;
        criteria.addTdAfsConvergence(start, stop, points, type, C::Interpolation, passes);
        Texts messages;
        criteria.checkValidity(messages, engine);
        return messages;
    };
    const Texts all = {
        "Start and stop frequencies for S-parameter based convergence algorithm need to be positive.",
        "Start frequency for S-parameter based convergence algorithm needs to be larger than the stop frequency.",
        "Number of frequency points has to be at least 3.",
        "Number of consecutive passes has to be at least 1."};
    EXPECT_EQ(check(0, 0, 2, 0, C::SParameters, Engine::FDTD), all);
    EXPECT_EQ(check(2e9F, 1e9F, 3, 1, C::SParameters, Engine::FDTD), Texts{all[1]});
    EXPECT_EQ(check(-1, 1, 3, 1, C::SParameters, Engine::FDTD), Texts{all[0]});
    EXPECT_EQ(check(0, 0, 0, 0, C::Energy, Engine::FDTD), Texts());
    EXPECT_EQ(check(0, 0, 0, 0, C::SParameters, Engine::FEM), Texts());
}

TEST(Validity, ProjectChecksItsPartsInOrder) {
    OwnedProject project;
    EXPECT_EQ(findingsOf(project), (QStringList{noBoundaries, noExcitation, noTermination}));
    project.setTdAfsTerminationCriteria(new TdAfsTerminationCriteria);
    EXPECT_EQ(findingsOf(project), (QStringList{noBoundaries, noExcitation}));
    project.setPlaneWave(new PlaneWave(0, 0, 1, PlaneWave::Phi, "wave"));
    EXPECT_EQ(findingsOf(project), (QStringList{noBoundaries, noWaveform}));
    project.setEngine(Engine::FEM);
    EXPECT_EQ(findingsOf(project), QStringList(noBoundaries));

    project.getWaveforms() = {new W(W::Step, 30, 0, {}, {}), new W(W::UserDefined, 0, 0, {1}, {})};
    project.setTerminationCriteria(new TerminationCriteria(0, 0, 0));
    project.setBoundaryConditions(new B(B::CPML, B::Liao, B::PEC, B::PEC, B::PEC, B::PEC, 0));
    EXPECT_EQ(findingsOf(project), (QStringList{noLayers, twoAbsorbers, fewLayers}));
    project.setEngine(Engine::FDTD);
    EXPECT_EQ(findingsOf(project), (QStringList{badSamples, shortRise.arg("30")}));
}

TEST(Validity, ComponentsAndStaticVoltagesAreExcitations) {
    v6ProjectFile project;
    StaticVoltageList voltages(0, 1, 1, {});
    project.setStaticVoltageList(&voltages);
    EXPECT_EQ(findingsOf(project), (QStringList{noBoundaries, noExcitation, noTermination})) << "without a voltage";
    voltages.addPoint({});
    EXPECT_EQ(findingsOf(project), (QStringList{noBoundaries, noTermination}));
    project.setEngine(Engine::FEM);
    EXPECT_EQ(findingsOf(project),
              (QStringList{noBoundaries, "error: The voltage conductor threshhold must be greater than zero."}));
    project.setEngine(Engine::FDTD);
    Feed feed("f", {}, {}, CircuitComponent::SeriesVoltage, 1, 0, -1, 0, 0, CircuitComponent::Series);
    ComponentManager empty({}, true, 0), withPort({&feed}, true, 0), withoutPort({&feed}, false, 0);
    project.setComponentManager(&empty);
    EXPECT_EQ(findingsOf(project), (QStringList{noBoundaries, noComponents, noTermination}));
    project.setComponentManager(&withPort);
    EXPECT_EQ(findingsOf(project), (QStringList{noBoundaries, noWaveform, noTermination, negativeR}));
    project.setComponentManager(&withoutPort);
    EXPECT_EQ(findingsOf(project), (QStringList{noBoundaries, noTermination, negativeR})) << "without an active port";
    delete project.getDFTParameters();
}

}  // namespace
}  // namespace quarn::test
