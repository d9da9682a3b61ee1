#include "TestSupport.h"
#include "project/GoldenProject.h"

namespace quarn::test {
namespace {

using B = BoundaryConditions;
using Units = QPair<QString, double>;

TEST(ProjectModel, HasDefaults) {
    EXPECT_EQ(OwnedProject().getDisplayUnits(), Units("m", 1.0));
    EXPECT_EQ(OwnedProject().getModelingUnits(), Units("m", 1.0));
    ProjectFile base;
    EXPECT_EQ(base.getDisplayUnits(), Units("", 0.0));
    EXPECT_EQ(base.getEngine(), Engine::FDTD);
    EXPECT_EQ(base.getCFL(), 1.0F);
    EXPECT_EQ(*base.getDFTParameters(), DFTParameters(false, 1));
    EXPECT_TRUE(base.saveFieldsOnFarZoneBoxForPostProcessing() && base.computeSystemDissipatedPower());
    deleteContents(base);
    const TerminationCriteria criteria(1, 2, 0);
    EXPECT_FALSE(criteria.convergenceEnabled() || criteria.wallClockEnabled());
    EXPECT_TRUE(criteria.flatLineDetectionEnabled() && TerminationCriteria(1, 2, 3).wallClockEnabled());
}

template <class T>
void expectCopy(const T* a, const T* b) {
    EXPECT_NE(a, b);
    EXPECT_EQ(*a, *b);
}

template <class Wave>
void expectDeepCopy(Wave* wave) {
    OwnedProject source;
    describe(source);
    delete static_cast<TFSFPlaneWave*>(source.getPlaneWave());
    source.setPlaneWave(wave);
    source.setPathToGeometryFile("geometry");
    source.setComponentManager(
        new ComponentManager({new CircuitComponent("c", 0, 0, 0, CircuitComponent::X, true)}, false, 0));
    source.setWaveGuidePortManager(new WaveGuidePortManager({new WaveGuidePort}));
    source.setStaticVoltageList(new StaticVoltageList(1, 2, 3, {{4, 5, 6, 7}}));
    v6ProjectFile copy(source);
    expectCopy(copy.getBoundaryConditions(), source.getBoundaryConditions());
    expectCopy(copy.getAmbientConditions(), source.getAmbientConditions());
    expectCopy(copy.getTerminationCriteria(), source.getTerminationCriteria());
    expectCopy(copy.getTdAfsTerminationCriteria(), source.getTdAfsTerminationCriteria());
    expectCopy(copy.getDFTParameters(), source.getDFTParameters());
    expectCopy(static_cast<Wave*>(copy.getPlaneWave()), wave);
    EXPECT_EQ(copy.getWaveforms(), source.getWaveforms()) << "waveforms are shared";
    EXPECT_EQ(copy.getPathToGeometryFile(), "geometry");
    EXPECT_EQ(saved(copy), saved(source));
    copy.getWaveforms().clear();
    expectCopy(copy.getStaticVoltageList(), source.getStaticVoltageList());
    const auto *components = copy.getComponentManager(), *sourceComponents = source.getComponentManager();
    const auto *ports = copy.getWaveGuidePortManager(), *sourcePorts = source.getWaveGuidePortManager();
    EXPECT_TRUE(components != sourceComponents && components->getComponents() == sourceComponents->getComponents());
    EXPECT_TRUE(ports != sourcePorts && ports->getWaveguidePorts() == sourcePorts->getWaveguidePorts());
    copy.clearComponents();
    copy.clearWaveguidePorts();
    EXPECT_EQ(components->getNumberOfPorts() + ports->getNumberOfPorts(), 0U);
    EXPECT_EQ(sourceComponents->getNumberOfComponents() + sourcePorts->getNumberOfPorts(), 2U);
    deleteContents(copy);
}

TEST(ProjectModel, CopyConstructorCopiesObjectsAndSharesWaveformsComponentsAndPorts) {
    expectDeepCopy(new PlaneWave(1, 2, 3, PlaneWave::Theta, "a"));
    expectDeepCopy(new TFSFPlaneWave(1, 2, 3, PlaneWave::Theta, "a", true, false, true, false, true, true));
    expectDeepCopy(new GaussianBeam(1, 2, 3, PlaneWave::Theta, "a", 4, 5, 6, 7));
    v6ProjectFile empty;
    empty.clearComponents();
    empty.clearWaveguidePorts();
    deleteContents(empty);
}

TEST(ProjectModel, AssignmentSharesTheObjects) {
    OwnedProject source;
    describe(source);
    v6ProjectFile other;
    delete other.getDFTParameters();
    other = source;
    EXPECT_EQ(other.getBoundaryConditions(), source.getBoundaryConditions());
    EXPECT_EQ(other.getDFTParameters(), source.getDFTParameters());
    EXPECT_EQ(other.getPlaneWave(), source.getPlaneWave());
    EXPECT_EQ(saved(other), saved(source));
}

TEST(ProjectModel, ContentsAreDeletedOnceAndPointersReset) {
    v6ProjectFile project;
    describe(project);
    project.getWaveforms().push_back(project.getWaveforms().front());
    deleteContents(project);
    EXPECT_TRUE(project.getWaveforms().empty());
    EXPECT_EQ(project.getPlaneWave(), nullptr);
    deleteContents(project);
}

// The address sanitizer detects objects that are left.
TEST(ProjectModel, CopiesAndTheirLoadedContentsAreDeleted) {
    OwnedProject source;
    v6ProjectFile copy(source);
    load(copy, expanded("Version 8; FDTDProject{ RequestResults{ DFTParameters{ NormalizeFields; } } }"));
    EXPECT_NE(*copy.getDFTParameters(), *source.getDFTParameters());
    deleteContents(copy);
}

TEST(ProjectModel, SlicedWavesBecomePlainPlaneWaves) {
    const TFSFPlaneWave box(1, 2, 3, PlaneWave::Theta, "a", true, false, true, false, true, true);
    const GaussianBeam beam(1, 2, 3, PlaneWave::Theta, "a", 4, 5, 6, 7);
    const PlaneWave plain(1, 2, 3, PlaneWave::Theta, "a");
    PlaneWave assigned(4, 5, 6, PlaneWave::Phi, "b");
    EXPECT_EQ(assigned = beam, plain);
    EXPECT_EQ(PlaneWave(box), plain);
    EXPECT_EQ(PlaneWave(beam), plain);
    TFSFPlaneWave filled(4, 5, 6, PlaneWave::Phi, "b", true, false, true, false, true, true);
    static_cast<PlaneWave&>(filled) = beam;
    EXPECT_EQ(filled, box) << "an object never changes its class";
}

TEST(ProjectModel, LoadReplacesObjectsOfTheCallerWithoutDeletingThem) {
    B boundaries(B::PEC, B::PEC, B::PEC, B::PEC, B::PEC, B::PEC, 1);
    OwnedProject project;
    project.setBoundaryConditions(&boundaries);
    load(project, expanded("Version 8; FDTDProject{ RunParameters{ OuterBoundaries{ } OuterBoundaries{ } } }"));
    EXPECT_NE(project.getBoundaryConditions(), &boundaries);
    EXPECT_EQ(boundaries.getNumberOfPECBoundaries(), 6);
}

TEST(BoundaryConditionsModel, AnswersFollowTheTypesOfTheSides) {
    B conditions(B::PEC, B::Liao, B::PEC, B::Periodic, B::ESymmetry, B::MSymmetry, 8);
    EXPECT_EQ(conditions.getNumberOfPECBoundaries(), 2);
    EXPECT_TRUE(conditions.hasPECBoundary() && conditions.hasLiaoBoundary() && conditions.hasPeriodicBoundary());
    EXPECT_FALSE(conditions.hasCPMLBoundary() || conditions.hasPMCBoundary());
    for (const int noSide : {-1, 6}) conditions.setBoundaryType(static_cast<BoundingBoxSide>(noSide), B::CPML);
    conditions.setBoundaryType(BoundingBoxSide::Top, B::PMC);
    EXPECT_EQ(conditions.getUpperZ(), B::PMC);
    EXPECT_EQ(conditions.getBoundaryType(static_cast<BoundingBoxSide>(6)), B::PEC) << "the type of lower X";
    EXPECT_FALSE(conditions.hasPMCBoundary()) << "the answer is cached";
    conditions.cacheVariables();
    EXPECT_TRUE(conditions.hasPMCBoundary());
    EXPECT_FALSE(conditions.hasCPMLBoundary()) << "invalid sides must be ignored";
    EXPECT_EQ(conditions.getPML_M() * 10 + conditions.getPML_Ma(), 42);
    EXPECT_TRUE(conditions.getPMLKappaMax() == 1 && conditions.getPMLAlphaMax() == 0);
}

TEST(BoundaryConditionsModel, ConvertsNumbersAndNamesOfTypes) {
    for (int type = 0; type < 7; ++type) {
        const QString name = v6ProjectFile::OuterBoundaryTypeToDescriptor(static_cast<B::BoundaryType>(type));
        EXPECT_EQ(v6ProjectFile::OuterBoundaryDescriptorToType(type), type);
        EXPECT_EQ(v6ProjectFile::OuterBoundaryDescriptorToType(name), type);
    }
    EXPECT_EQ(v6ProjectFile::OuterBoundaryDescriptorToType(-1), B::CPML);
    EXPECT_EQ(v6ProjectFile::OuterBoundaryDescriptorToType(7), B::CPML);
    EXPECT_EQ(v6ProjectFile::OuterBoundaryTypeToDescriptor(static_cast<B::BoundaryType>(7)), "UnknownType");
}

}  // namespace
}  // namespace quarn::test
