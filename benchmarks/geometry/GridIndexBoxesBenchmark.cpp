// Index boxes of a million cells, forming a ball or random. Building is compared with std::sort of the same shuffled
// list; looking up cells in random order is compared with a sorted list of runs along z and their cumulative counts,
// the simplest index of this kind. Compare the times of each pair. The last benchmark assigns exclusions to boxes:
// compare the times of each row with the next, which has twice as many of both.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <random>
#include <set>
#include <vector>

#include "quarn/GridIndexBoxes.h"

namespace {

using quarn::GridIndexBoxes;
using quarn::ivec3;

constexpr int numCells = 1000000;

std::vector<ivec3> ball() {
    constexpr int radius = 63;  // a little more than a million cells
    std::vector<ivec3> cells;
    for (int x = -radius; x <= radius; ++x) {
        for (int y = -radius; y <= radius; ++y) {
            for (int z = -radius; z <= radius; ++z) {
                if (x * x + y * y + z * z <= radius * radius) cells.emplace_back(100 + x, 100 + y, 100 + z);
            }
        }
    }
    return cells;
}

std::vector<ivec3> randomCells() {
    std::mt19937 random(1);
    std::uniform_int_distribution<int> index(0, 999);
    std::set<ivec3> cells;
    while (cells.size() < numCells) cells.emplace(index(random), index(random), index(random));
    return {cells.begin(), cells.end()};
}

enum Shape { Ball, Random };

const std::vector<ivec3>& sortedCells(int shape) {
    static const std::vector<ivec3> cells[] = {ball(), randomCells()};
    return cells[shape];
}

template <class T>
std::vector<T> shuffled(std::vector<T> items) {
    std::shuffle(items.begin(), items.end(), std::mt19937(2));
    return items;
}

std::vector<int> shuffledIndices(std::size_t count) {
    std::vector<int> indices(count);
    std::iota(indices.begin(), indices.end(), 0);
    return shuffled(indices);
}

bool holds(const GridIndexBoxes& boxes, const std::vector<ivec3>& sorted) {
    std::vector<ivec3> found(static_cast<std::size_t>(boxes.getNumPoints()));
    for (std::size_t i = 0; i < found.size(); ++i) found[i] = boxes.getPoint(static_cast<int>(i));
    std::sort(found.begin(), found.end());
    return found == sorted;
}

void buildIndexBoxes(benchmark::State& state) {
    const std::vector<ivec3> cells = shuffled(sortedCells(static_cast<int>(state.range(0))));
    const GridIndexBoxes built(cells);
    if (!holds(built, sortedCells(static_cast<int>(state.range(0)))))
        state.SkipWithError("the cells did not come back");
    for (auto _ : state) benchmark::DoNotOptimize(GridIndexBoxes(cells));
    state.counters["boxes"] = static_cast<double>(built.getBoxes().size());
}
BENCHMARK(buildIndexBoxes)->Arg(Ball)->Arg(Random)->Unit(benchmark::kMillisecond);

void buildSortReference(benchmark::State& state) {
    const std::vector<ivec3> cells = shuffled(sortedCells(static_cast<int>(state.range(0))));
    for (auto _ : state) {
        std::vector<ivec3> sorted = cells;
        std::sort(sorted.begin(), sorted.end());
        benchmark::DoNotOptimize(sorted.data());
    }
}
BENCHMARK(buildSortReference)->Arg(Ball)->Arg(Random)->Unit(benchmark::kMillisecond);

// Summed over all cells, this value does not depend on the order of their numbers.
long long checksum(const ivec3& cell) { return (cell.x * 1009LL + cell.y) * 1013LL + cell.z; }

long long checksum(const std::vector<ivec3>& cells) {
    long long sum = 0;
    for (const ivec3& cell : cells) sum += checksum(cell);
    return sum;
}

template <class Lookup>
void timeLookups(benchmark::State& state, const std::vector<ivec3>& cells, Lookup lookup) {
    const std::vector<int> indices = shuffledIndices(cells.size());
    const long long expected = checksum(cells);
    for (auto _ : state) {
        long long sum = 0;
        for (const int index : indices) sum += checksum(lookup(index));
        if (sum != expected) state.SkipWithError("the cells did not come back");
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(cells.size()));
}

void lookUpInIndexBoxes(benchmark::State& state) {
    const std::vector<ivec3>& cells = sortedCells(static_cast<int>(state.range(0)));
    const GridIndexBoxes boxes(cells);
    timeLookups(state, cells, [&](int index) { return boxes.getPoint(index); });
}
BENCHMARK(lookUpInIndexBoxes)->Arg(Ball)->Arg(Random)->Unit(benchmark::kMillisecond);

struct Run {
    ivec3 first;
    int start;
};

std::vector<Run> runsOf(const std::vector<ivec3>& sorted) {
    std::vector<Run> runs;
    for (int i = 0; i < static_cast<int>(sorted.size()); ++i) {
        const ivec3& cell = sorted[i];
        if (i == 0 || sorted[i - 1] != ivec3(cell.x, cell.y, cell.z - 1)) runs.push_back({cell, i});
    }
    return runs;
}

void lookUpInRunsReference(benchmark::State& state) {
    const std::vector<ivec3>& cells = sortedCells(static_cast<int>(state.range(0)));
    const std::vector<Run> runs = runsOf(cells);
    timeLookups(state, cells, [&](int index) {
        const auto isBefore = [](int i, const Run& run) { return i < run.start; };
        const Run& run = *(std::upper_bound(runs.begin(), runs.end(), index, isBefore) - 1);
        return ivec3(run.first.x, run.first.y, run.first.z + index - run.start);
    });
}
BENCHMARK(lookUpInRunsReference)->Arg(Ball)->Arg(Random)->Unit(benchmark::kMillisecond);

enum Layout { Lattice, Row, Stack, Scattered };

// Boxes with one exclusion each: in a lattice, in a row along x, or flat and stacked along z; or random boxes and
// exclusions in a region that grows with their number.
GridIndexBoxes::Box boxOf(int layout, int i, int count, std::mt19937& random) {
    const int side = static_cast<int>(std::ceil(std::cbrt(count)));
    const ivec3 places[] = {{i / side / side * 4, i / side % side * 4, i % side * 4}, {i * 4, 0, 0}, {0, 0, i}};
    const ivec3 sizes[] = {{4, 4, 4}, {4, 4, 4}, {300, 300, 1}, {4, 4, 4}};
    std::uniform_int_distribution<int> anywhere(0, 4 * side);
    const ivec3 low =
        layout == Scattered ? ivec3(anywhere(random), anywhere(random), anywhere(random)) : places[layout];
    const ivec3& size = sizes[layout];
    return {low, ivec3(low.x + size.x - 1, low.y + size.y - 1, low.z + size.z - 1)};
}

void excludeFromBoxes(benchmark::State& state) {
    const int layout = static_cast<int>(state.range(0));
    const int count = static_cast<int>(state.range(1));
    std::mt19937 random(3);
    std::vector<GridIndexBoxes::Box> boxes;
    std::set<ivec3> exclusions;
    for (int i = 0; i < count; ++i) {
        const GridIndexBoxes::Box box = boxOf(layout, i, count, random);
        boxes.push_back(box);
        const auto within = [&](int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); };
        exclusions.emplace(
            within(box.first.x, box.second.x), within(box.first.y, box.second.y), within(box.first.z, box.second.z));
    }
    if (GridIndexBoxes(boxes, exclusions, {}).getPointsToRemoveFromBoxes() != exclusions) {
        state.SkipWithError("the exclusions did not come back");
    }
    for (auto _ : state) benchmark::DoNotOptimize(GridIndexBoxes(boxes, exclusions, {}));
}
BENCHMARK(excludeFromBoxes)
    ->ArgNames({"layout", "boxes"})
    ->ArgsProduct({{Lattice, Row, Stack, Scattered}, {100000, 200000}})
    ->Unit(benchmark::kMillisecond);

}  // namespace
