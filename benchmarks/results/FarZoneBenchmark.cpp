// Far fields in the 65 160 directions of a sphere, one degree apart, from the fields on cubes with 20 cells per
// wavelength. The reference sums over all cells for each direction and computes each sine and cosine; since that takes
// hours, it is timed for a few directions. "times reference" is the ratio of the two times for all directions, "share
// sampling" the share of the time for sampling, the rest being lookups, and "model" the estimate on which the choice of
// the method is based. The other benchmarks have a cut of 16 directions and a single direction.

#include <benchmark/benchmark.h>

#include <cmath>
#include <ctime>

#include "quarn/PhysicalConstants.h"
#include "reference/FarZoneSums.h"
#include "results/FarZoneDirectSum.h"
#include "results/FarZoneSpectrum.h"
#include "results/FarZoneTransform.h"

namespace {

using namespace quarn::farzone;
using quarn::reference::SampledBox;

constexpr double waveNumber = 2.0 * quarn::constants::pi;  // of a wavelength of 1 m
constexpr double cellSize = 0.05;

/// The processor time of this process, so that other processes do not affect it.
double processorSeconds() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

SampledBox cube(std::size_t cells) {
    const std::vector<double> sizes(cells, cellSize);
    const double corner = -0.5 * cellSize * static_cast<double>(cells);
    return {{sizes, sizes, sizes}, {corner, corner, corner}, waveNumber};
}

std::vector<Direction> sphere() {
    constexpr double degree = quarn::constants::radiansPerDegree;
    std::vector<Direction> directions;
    for (int theta = 0; theta <= 180; ++theta) {
        for (int phi = 0; phi < 360; ++phi) directions.emplace_back(theta * degree, phi * degree);
    }
    return directions;
}

std::vector<FarField> fieldsBy(Method method, const Surface& surface, const std::vector<Direction>& directions) {
    quarn::Progress progress(nullptr);
    std::vector<FarField> fields;
    Transform transform(surface, waveNumber, method);
    transform.prepare(progress);
    transform.apply(directions, fields, progress);
    return fields;
}

/// Times the reference on some of the directions, and checks the face sums of both methods against it.
struct Reference {
    double secondsPerDirection;
    bool isMet;

    Reference(const SampledBox& box, const Surface& surface, const std::vector<Direction>& directions) {
        constexpr std::size_t count = 6;
        quarn::Progress progress(nullptr);
        DirectSum direct(surface, waveNumber);
        Spectrum spectrum(surface, waveNumber);
        direct.prepare(progress);
        spectrum.prepare(progress);
        quarn::reference::Deviation byDirect, bySampled;
        double seconds = 0.0;
        for (std::size_t i = 0; i < count; ++i) {
            const Vector& direction = directions[(2 * i + 1) * directions.size() / (2 * count)].r;
            const double start = processorSeconds();
            const FaceSums expected = box.sumsIn(direction, waveNumber);
            seconds += processorSeconds() - start;
            FaceSums sums;
            direct.evaluate(&direction, 1, &sums, progress);
            byDirect.add(sums, expected);
            spectrum.evaluate(&direction, 1, &sums, progress);
            bySampled.add(sums, expected);
        }
        secondsPerDirection = seconds / static_cast<double>(count);
        isMet = byDirect.largest() < 1e-12 && bySampled.largest() < 1e-7;
    }
};

void transformToDirections(benchmark::State& state, std::vector<Direction> directions) {
    const auto cells = static_cast<std::size_t>(state.range(0));
    const SampledBox box = cube(cells);
    const auto surface = box.as<Surface>();
    const Reference reference(box, surface, sphere());
    if (!reference.isMet) state.SkipWithError("the sums differ from those of the reference");

    const Method method = fasterMethod(surface, waveNumber, directions.size());
    double seconds = 0.0;
    for (auto _ : state) {
        const double start = processorSeconds();
        benchmark::DoNotOptimize(fieldsBy(method, surface, directions));
        seconds += processorSeconds() - start;
    }
    seconds /= static_cast<double>(state.iterations());

    const auto count = static_cast<double>(directions.size());
    const double cellsOnBox = 6.0 * static_cast<double>(cells * cells);
    state.counters["times reference"] = reference.secondsPerDirection * count / seconds;
    state.counters["ns/cell/direction"] = seconds * 1e9 / (cellsOnBox * count);
    state.counters["reference ns/cell/direction"] = reference.secondsPerDirection * 1e9 / cellsOnBox;
    state.counters["model ms"] = costOf(method, surface, waveNumber, directions.size()) * 1e-6;
    if (method == Method::Sampled) {
        const double start = processorSeconds();
        quarn::Progress progress(nullptr);
        Spectrum spectrum(surface, waveNumber);
        spectrum.prepare(progress);
        state.counters["share sampling"] = (processorSeconds() - start) / seconds;
    }
}

void farFieldsOfASphere(benchmark::State& state) { transformToDirections(state, sphere()); }
BENCHMARK(farFieldsOfASphere)->ArgName("cells")->Arg(60)->Arg(200)->Arg(400)->Unit(benchmark::kMillisecond);

void farFieldsOfACut(benchmark::State& state) {
    std::vector<Direction> directions = sphere();
    directions.resize(16, {0, 0});
    transformToDirections(state, directions);
}
BENCHMARK(farFieldsOfACut)->ArgName("cells")->Arg(60)->Arg(200)->Arg(400)->Unit(benchmark::kMillisecond);

void farFieldOfOneDirection(benchmark::State& state) { transformToDirections(state, {Direction(1.0, 0.5)}); }
BENCHMARK(farFieldOfOneDirection)->ArgName("cells")->Arg(60)->Arg(200)->Arg(400)->Unit(benchmark::kMillisecond);

}  // namespace
