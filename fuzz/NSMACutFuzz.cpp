// Reads any bytes as a sequence of antenna pattern cuts. Reading must end, a device stream must give the same cuts as a
// string stream, and every sample must be found by its angle.

#include <QTextStream>
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

#include "Harness.h"
#include "MemoryBound.h"
#include "TextStreams.h"
#include "quarn/NSMACutPlane.h"

namespace {

using fuzz::require;

void checkSamples(const quarn::NSMACutPlane& cut) {
    require(static_cast<std::int64_t>(cut.GetSamples().size()) <= std::max(cut.GetNumberOfPoints(), 0));
    for (const auto& [angle, values] : cut.GetSamples()) {
        double gain = 0.0;
        require(angle >= 0.0F && angle < 360.0F);
        require(cut.GetGainAtAngle(angle, gain) && (gain == values.first || values.first != values.first));
    }
}

std::vector<quarn::NSMACutPlane> cutsIn(QTextStream& input, int gainMode) {
    std::vector<quarn::NSMACutPlane> cuts;
    while (!input.atEnd()) cuts.emplace_back().StreamIn(input, 2.15F, gainMode);
    return cuts;
}

bool sameBytes(double a, double b) { return std::memcmp(&a, &b, sizeof a) == 0; }

bool sameSample(const quarn::NSMACutPlane::Samples::value_type& a, const quarn::NSMACutPlane::Samples::value_type& b) {
    return a.first == b.first && sameBytes(a.second.first, b.second.first) &&
           sameBytes(a.second.second, b.second.second);
}

bool sameCut(const quarn::NSMACutPlane& a, const quarn::NSMACutPlane& b) {
    const auto &ours = a.GetSamples(), &theirs = b.GetSamples();
    return a.GetPatternCut() == b.GetPatternCut() &&
           std::equal(ours.begin(), ours.end(), theirs.begin(), theirs.end(), sameSample);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const fuzz::MemoryBound bound(size);
    const QByteArray bytes = fuzz::bytesOf(data, size);
    const int gainMode = static_cast<int>(size % 4);
    fuzz::TwoStreams streams(bytes);
    const auto cuts = cutsIn(streams.overDevice, gainMode), fromString = cutsIn(streams.overString, gainMode);
    for (const auto& cut : cuts) {
        checkSamples(cut);
        cut.IsOmni();
    }
    require(fuzz::endsInsideCharacter(bytes) ||
            std::equal(cuts.begin(), cuts.end(), fromString.begin(), fromString.end(), sameCut));
    return 0;
}
