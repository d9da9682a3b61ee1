// Reads and writes a file of floats value by value. The reference is one call for all of them. Compare the times of
// each pair.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <vector>

#include "quarn/BinaryFile.h"

namespace {

const std::vector<float>& values() {
    static const std::vector<float> result = [] {
        std::vector<float> made(1 << 20);
        for (std::size_t i = 0; i < made.size(); ++i) made[i] = static_cast<float>(i) / 3;
        return made;
    }();
    return result;
}

std::size_t readAtOnce(std::vector<float>& read, std::FILE* file) {
    return std::fread(read.data(), sizeof(float), read.size(), file);
}

std::size_t readEach(std::vector<float>& read, std::FILE* file) {
    std::size_t count = 0;
    while (count < read.size() && quarn::fread_float(read[count], file)) ++count;
    return count;
}

std::size_t writeAtOnce(std::FILE* file) { return std::fwrite(values().data(), sizeof(float), values().size(), file); }

std::size_t writeEach(std::FILE* file) {
    std::size_t count = 0;
    for (const float value : values()) count += quarn::fwrite_float(value, file);
    return count;
}

template <class Read>
void readFloats(benchmark::State& state, Read read) {
    std::FILE* file = std::tmpfile();
    writeAtOnce(file);
    std::vector<float> found(values().size());
    for (auto _ : state) {
        std::rewind(file);
        if (read(found, file) != found.size()) state.SkipWithError("the file is too short");
    }
    if (found != values()) state.SkipWithError("the values did not come back");
    std::fclose(file);
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(found.size() * sizeof(float)));
}
BENCHMARK_CAPTURE(readFloats, each, readEach);
BENCHMARK_CAPTURE(readFloats, atOnceReference, readAtOnce);

template <class Write>
void writeFloats(benchmark::State& state, Write write) {
    std::FILE* file = std::tmpfile();
    for (auto _ : state) {
        std::rewind(file);
        if (write(file) != values().size()) state.SkipWithError("not everything was written");
    }
    std::vector<float> found(values().size());
    std::rewind(file);
    readAtOnce(found, file);
    if (found != values()) state.SkipWithError("the values did not come back");
    std::fclose(file);
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(found.size() * sizeof(float)));
}
BENCHMARK_CAPTURE(writeFloats, each, writeEach);
BENCHMARK_CAPTURE(writeFloats, atOnceReference, writeAtOnce);

}  // namespace
