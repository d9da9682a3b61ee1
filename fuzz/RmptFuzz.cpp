// Reads any bytes as the files of a multi-point result: info, geometry, time steps, frequencies, and one file for all
// components. Reading must end, blocks must equal single values, and a readable result can be deleted.

#include <complex>
#include <cstring>
#include <vector>

#include "FuzzFiles.h"
#include "MemoryBound.h"
#include "quarn/MultiPointResultDeleter.h"
#include "quarn/MultiPointResultReader.h"

namespace {

using fuzz::require;
using Result = quarn::MultiPointResult;
using Reader = quarn::MultiPointResultReader;

bool sameBytes(const std::vector<float>& values, const QByteArray& file) {
    return values.size() == static_cast<std::size_t>(file.size()) / sizeof(float) &&
           (values.empty() || std::memcmp(values.data(), file.constData(), values.size() * sizeof(float)) == 0);
}

template <class Group, class Components>
void putComponents(const Reader& reader, Group group, const Components& components, const QByteArray& file) {
    for (const auto component : components) {
        fuzz::put(reader.getComponentFileName(group, component, 0).section('/', -1), file);
    }
}

void readTransient(Reader& reader, Result::TransientGroup group, const QByteArray& file) {
    putComponents(reader, group, Result::components, file);
    require(reader.beginTransient(group));
    int count = 0;
    for (float x = 0, y = 0, z = 0; reader.readTransient(x, y, z);) ++count;
    std::vector<float> block;
    require(count == file.size() / 4 && reader.beginTransient(group));
    require(reader.readTransientBlock(Result::Y, block) && sameBytes(block, file));
}

void readSteady(Reader& reader, Result::SteadyGroup group, const QByteArray& file) {
    putComponents(reader, group, Result::parts, file);
    require(reader.beginSteady(group));
    int count = 0;
    for (std::complex<float> x, y, z; reader.readSteady(x, y, z);) ++count;
    std::vector<float> block;
    require(count == file.size() / 4 && reader.beginSteady(group));
    require(reader.readSteadyBlock(Result::Zi, block) && sameBytes(block, file));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const fuzz::MemoryBound bound(size);
    fuzz::Pieces pieces(data, size);
    fuzz::put("b_info.bin", pieces.next());
    fuzz::put("b_geom.bin", pieces.next());
    const QByteArray times = pieces.next();
    fuzz::put("b_timesteps.bin", times);
    fuzz::put("b_frequencies.bin", pieces.next());

    Reader reader;
    const bool readable = reader.beginResultReading(fuzz::pathOf("b"));
    if (readable) {
        std::vector<float> list;
        std::vector<quarn::ivec3> points;
        require(reader.readTimesteps(list) && sameBytes(list, times));
        require(reader.readFrequencies(list) && reader.readGeometry(points));
        reader.beginTimestep(0);
        reader.beginFrequency(0);
        for (const auto group : Result::transientGroups) {
            if (reader.collects(group)) readTransient(reader, group, pieces.rest());
        }
        for (const auto group : Result::steadyGroups) {
            if (reader.collects(group)) readSteady(reader, group, pieces.rest());
        }
    }
    require(quarn::MultiPointResultDeleter().deleteResult(fuzz::pathOf("b")) == readable);
    require(fuzz::names().isEmpty() == readable);
    return 0;
}
