// Equality compares every value of an object.

#include "EachMember.h"
#include "TestSupport.h"
#include "quarn/quarn.h"

namespace quarn::test {
namespace {

using std::tuple;

const QString none, some("a");
const std::vector<float> noValues, values{1};

struct Periodic : BoundaryConditions {
    Periodic(float phi, float theta, float frequency) : BoundaryConditions(CPML, CPML, CPML, CPML, CPML, CPML, 8) {
        addPeriodicScanAngleParameters(phi, theta, frequency);
    }
};

struct Converging : TerminationCriteria {
    template <class... Arguments>
    explicit Converging(Arguments... arguments) : TerminationCriteria(1, 2, 3) {
        addConvergence(arguments...);
    }
};

struct TdAfs : TdAfsTerminationCriteria {
    template <class... Arguments>
    explicit TdAfs(Arguments... arguments) {
        addTdAfsConvergence(arguments...);
    }
};

TEST(Equality, ComparesEveryValueOfSources) {
    using W = Waveform;
    expectAllDifferent(changedOneByOne<W>(tuple(W::Gaussian, 0.0F, 0.0F, noValues, noValues),
                                          tuple(W::Step, 1.0F, 1.0F, values, values)));
    using P = PlaneWave;
    const tuple wave(0.0F, 0.0F, 0.0F, P::Phi, none), changed(1.0F, 1.0F, 1.0F, P::Theta, some);
    const tuple noFace(false, false, false, false, false, false), faces(true, true, true, true, true, true);
    const tuple focus(0.0F, 0.0F, 0.0F, 0.0F), otherFocus(1.0F, 1.0F, 1.0F, 1.0F);
    expectAllDifferent(changedOneByOne<P>(wave, changed));
    expectAllDifferent(changedOneByOne<TFSFPlaneWave>(tuple_cat(wave, noFace), tuple_cat(changed, faces)));
    expectAllDifferent(changedOneByOne<GaussianBeam>(tuple_cat(wave, focus), tuple_cat(changed, otherFocus)));
    expectAllDifferent(changedOneByOne<StaticVoltageList>(
        tuple(0.0, 0.0, 0U, std::vector<StaticVoltageList::VoltagePoint>()),
        tuple(1.0, 1.0, 1U, std::vector<StaticVoltageList::VoltagePoint>{{0, 0, 0, 0}})));
    using V = StaticVoltageList::VoltagePoint;
    expectAllDifferent<V>({{0, 0, 0, 0}, {1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}});
}

TEST(Equality, ComparesEveryValueOfConditions) {
    using A = AmbientConditions;
    std::vector<A> conditions(4, A(0, A::SpecificationType{}, 0, A::SpecificationType{}, 0));
    conditions[1].setBackgroundTemperature(1);
    conditions[2].setSpecificationType(BoundingBoxSide::UpperY, static_cast<A::SpecificationType>(1));
    conditions[3].setHeatTransferCoefficient(BoundingBoxSide::LowerX, 1);
    expectAllDifferent(conditions);
    using B = BoundaryConditions;
    const auto l = B::Liao, c = B::CPML;
    expectAllDifferent(changedOneByOne<B>(tuple(l, l, l, l, l, l, 8), tuple(c, c, c, c, c, c, 9)));
    expectAllDifferent(changedOneByOne<Periodic>(tuple(1.0F, 2.0F, 3.0F), tuple(4.0F, 4.0F, 4.0F)));
    expectAllDifferent(changedOneByOne<TerminationCriteria>(tuple(1U, 2U, 3U), tuple(4U, 4U, 4U)));
    using D = TerminationCriteria;
    expectAllDifferent(changedOneByOne<Converging>(tuple(1.0F, 2, 3, false, D::Low), tuple(4.0F, 4, 4, true, D::High)));
    expectAllDifferent(changedOneByOne<TdAfs>(tuple(1.0F, 2.0F, 3, TdAfs::SParameters, TdAfs::FFT, 4),
                                              tuple(5.0F, 5.0F, 5, TdAfs::Energy, TdAfs::Interpolation, 5)));
    expectAllDifferent(changedOneByOne<DFTParameters>(tuple(false, 1U), tuple(true, 2U)));
}

TEST(Equality, ComparesEveryValueOfRequestsAndMaps) {
    expectAllDifferent<FarZoneRequest>({{{}, ""}, {{{0, 0}}, ""}, {{{1, 0}}, ""}, {{{0, 1}}, ""}, {{}, "a"}});
    expectAllDifferent(changedOneByOne<MaterialMap>(tuple(none, 0, 0, 0, 0, 0, 0), tuple(some, 1, 1, 1, 1, 1, 1)));
    expectAllDifferent(
        changedOneByOne<PhysicalParameters>(tuple(0.0F, 0.0F, 0.0F, 0.0F, 0.0F), tuple(1.0F, 1.0F, 1.0F, 1.0F, 1.0F)));
    std::vector<HACRequest> requests(7);
    requests[1].origin = {1, 0, 0};
    requests[2].origin = {0, 1, 0};
    requests[3].origin = {0, 0, 1};
    requests[4].u = Vector3D(1, 0, 0);
    requests[5].v = Vector3D(0, 1, 0);
    requests[6].w = Vector3D(0, 0, 1);
    expectAllDifferent(requests);
}

}  // namespace
}  // namespace quarn::test
