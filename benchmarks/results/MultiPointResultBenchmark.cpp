// Reads ten million points of a multi-point result by block and value by value. The reference is one fread of a
// component's file. Compare the bytes per second.

#include <benchmark/benchmark.h>

#include <QTemporaryDir>
#include <cstdio>
#include <vector>

#include "quarn/BinaryFile.h"
#include "quarn/GridIndexBoxes.h"
#include "quarn/MultiPointResultReader.h"
#include "quarn/MultiPointResultWriter.h"

namespace {

using Reader = quarn::MultiPointResultReader;

constexpr std::size_t numPoints = 10'000'000;

float valueAt(std::size_t point, int component) {
    return static_cast<float>(point) / 3 + static_cast<float>(component);
}

// One time step of a group, without a geometry file, which is not needed here.
class Result {
public:
    Result() {
        quarn::MultiPointResultWriter writer(
            false, true, false, false, false, false, false, false, false, false, false);
        writer.beginResultWriting(m_folder.filePath("result"), quarn::GridIndexBoxes());
        writer.beginTimestep(0);
        writer.beginTransientTotalE();
        for (std::size_t i = 0; i < numPoints; ++i) writer.writeTransient(valueAt(i, 0), valueAt(i, 1), valueAt(i, 2));
        writer.endTransient();
        writer.endResultWriting();
    }

    bool begin(Reader& reader) const {
        return reader.beginResultReading(m_folder.filePath("result")) && reader.beginTimestep(0) &&
               reader.beginTransientTotalE();
    }

    static const Result& instance() {
        static const Result result;
        return result;
    }

private:
    QTemporaryDir m_folder;
};

bool readAtOnce(Reader& reader, std::vector<float>& values) {
    std::FILE* file = quarn::openFile(reader.getComponentFileName(Reader::TransientTotalE, Reader::X, 0), "rb");
    const std::size_t count = std::fread(values.data(), sizeof(float), values.size(), file);
    std::fclose(file);
    return count == values.size();
}

bool readAtOnceIntoNewVector(Reader& reader, std::vector<float>& values) {
    std::vector<float> found(numPoints);
    if (!readAtOnce(reader, found)) return false;
    values.swap(found);
    return true;
}

bool readBlock(Reader& reader, std::vector<float>& values) {
    return reader.beginTransientTotalEx() && reader.readTransientBlock(Reader::X, values);
}

bool readBlockIntoNewVector(Reader& reader, std::vector<float>& values) {
    std::vector<float> found;
    if (!readBlock(reader, found)) return false;
    values.swap(found);
    return true;
}

bool readEach(Reader& reader, std::vector<float>& values) {
    if (!reader.beginTransientTotalEx()) return false;
    std::size_t count = 0;
    while (count < values.size() && reader.readTransientX(values[count])) ++count;
    return count == values.size();
}

template <class Read>
void readComponent(benchmark::State& state, Read read) {
    Reader reader;
    if (!Result::instance().begin(reader)) return state.SkipWithError("the result cannot be read");
    std::vector<float> values(numPoints);
    for (auto _ : state) {
        if (!read(reader, values)) state.SkipWithError("the file is too short");
    }
    for (std::size_t i = 0; i < numPoints; ++i) {
        if (values[i] != valueAt(i, 0)) return state.SkipWithError("the values did not come back");
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(numPoints * sizeof(float)));
}
BENCHMARK_CAPTURE(readComponent, block, readBlock)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(readComponent, blockIntoNewVector, readBlockIntoNewVector)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(readComponent, each, readEach)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(readComponent, atOnceIntoNewVectorReference, readAtOnceIntoNewVector)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(readComponent, atOnceReference, readAtOnce)->Unit(benchmark::kMillisecond);

void readAllComponents(benchmark::State& state) {
    Reader reader;
    for (auto _ : state) {
        if (!Result::instance().begin(reader)) return state.SkipWithError("the result cannot be read");
        bool right = true;
        for (std::size_t i = 0; i < numPoints; ++i) {
            float x = 0, y = 0, z = 0;
            right &= reader.readTransient(x, y, z) && x == valueAt(i, 0) && y == valueAt(i, 1) && z == valueAt(i, 2);
        }
        if (!right) state.SkipWithError("the values did not come back");
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(3 * numPoints * sizeof(float)));
}
BENCHMARK(readAllComponents)->Unit(benchmark::kMillisecond);

}  // namespace
