// No value of an object is left out when objects are compared.

#include "TestSupport.h"
#include "quarn/quarn.h"

namespace quarn::test {
namespace {

// Of objects that differ in one value each.
template <class T>
void expectAllDifferent(const std::vector<T>& objects) {
    for (std::size_t i = 0; i < objects.size(); ++i) {
        for (std::size_t j = 0; j < objects.size(); ++j) {
            EXPECT_EQ(objects[i] == objects[j], i == j) << i << " and " << j;
            EXPECT_EQ(objects[i] != objects[j], i != j) << i << " and " << j;
        }
    }
}

TEST(Equality, of_sources_counts_every_value) {
    using W = Waveform;
    expectAllDifferent<W>({{W::Gaussian, 0, 0, {}, {}},
                           {W::Step, 0, 0, {}, {}},
                           {W::Gaussian, 1, 0, {}, {}},
                           {W::Gaussian, 0, 1, {}, {}},
                           {W::Gaussian, 0, 0, {1}, {}},
                           {W::Gaussian, 0, 0, {}, {1}}});
    using P = PlaneWave;
    expectAllDifferent<P>({{0, 0, 0, P::Phi, ""},
                           {1, 0, 0, P::Phi, ""},
                           {0, 1, 0, P::Phi, ""},
                           {0, 0, 1, P::Phi, ""},
                           {0, 0, 0, P::Theta, ""},
                           {0, 0, 0, P::Phi, "a"}});
    using T = TFSFPlaneWave;
    expectAllDifferent<T>({{0, 0, 0, P::Phi, "", false, false, false, false, false, false},
                           {1, 0, 0, P::Phi, "", false, false, false, false, false, false},
                           {0, 0, 0, P::Phi, "", true, false, false, false, false, false},
                           {0, 0, 0, P::Phi, "", false, true, false, false, false, false},
                           {0, 0, 0, P::Phi, "", false, false, true, false, false, false},
                           {0, 0, 0, P::Phi, "", false, false, false, true, false, false},
                           {0, 0, 0, P::Phi, "", false, false, false, false, true, false},
                           {0, 0, 0, P::Phi, "", false, false, false, false, false, true}});
    expectAllDifferent<GaussianBeam>({{0, 0, 0, P::Phi, "", 0, 0, 0, 0},
                                      {1, 0, 0, P::Phi, "", 0, 0, 0, 0},
                                      {0, 0, 0, P::Phi, "", 1, 0, 0, 0},
                                      {0, 0, 0, P::Phi, "", 0, 1, 0, 0},
                                      {0, 0, 0, P::Phi, "", 0, 0, 1, 0},
                                      {0, 0, 0, P::Phi, "", 0, 0, 0, 1}});
}

TEST(Equality, of_conditions_and_requests_counts_every_value) {
    using A = AmbientConditions;
    std::vector<A> conditions(4, A(0, A::SpecificationType{}, 0, A::SpecificationType{}, 0));
    conditions[1].setBackgroundTemperature(1);
    conditions[2].setSpecificationType(BoundingBoxSide::UpperY, static_cast<A::SpecificationType>(1));
    conditions[3].setHeatTransferCoefficient(BoundingBoxSide::LowerX, 1);
    expectAllDifferent(conditions);
    expectAllDifferent<DFTParameters>({{false, 1}, {true, 1}, {false, 2}});
    expectAllDifferent<FarZoneRequest>({{{}, ""}, {{{0, 0}}, ""}, {{{1, 0}}, ""}, {{{0, 1}}, ""}, {{}, "a"}});
    using V = StaticVoltageList;
    expectAllDifferent<V>({{0, 0, 0, {}},
                           {1, 0, 0, {}},
                           {0, 1, 0, {}},
                           {0, 0, 1, {}},
                           {0, 0, 0, {{0, 0, 0, 0}}},
                           {0, 0, 0, {{1, 0, 0, 0}}},
                           {0, 0, 0, {{0, 1, 0, 0}}},
                           {0, 0, 0, {{0, 0, 1, 0}}},
                           {0, 0, 0, {{0, 0, 0, 1}}}});
    const Vector3D x(1, 0, 0), y(0, 1, 0), z(0, 0, 1);
    expectAllDifferent<HACRequest>({{},
                                    {{1, 0, 0}, {}, {}, {}},
                                    {{0, 1, 0}, {}, {}, {}},
                                    {{0, 0, 1}, {}, {}, {}},
                                    {{}, x, {}, {}},
                                    {{}, {}, y, {}},
                                    {{}, {}, {}, z}});
}

}  // namespace
}  // namespace quarn::test
