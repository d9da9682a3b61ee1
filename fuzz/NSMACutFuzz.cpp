// Any bytes as antenna pattern cuts, one after the other: reading ends, and what was read can be looked up.

#include <QTextStream>
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "MemoryBound.h"
#include "quarn/NSMACutPlane.h"

namespace {

void require(bool holds) {
    if (!holds) std::abort();
}

void checkSamples(const quarn::NSMACutPlane& cut) {
    require(static_cast<std::int64_t>(cut.GetSamples().size()) <= std::max(cut.GetNumberOfPoints(), 0));
    for (const auto& [angle, values] : cut.GetSamples()) {
        double gain = 0.0;
        require(angle >= 0.0F && angle < 360.0F);
        require(cut.GetGainAtAngle(angle, gain) && (gain == values.first || values.first != values.first));
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const fuzz::MemoryBound bound(size);
    QTextStream input(QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<int>(size)));
    const int gainMode = static_cast<int>(size % 4);
    while (!input.atEnd()) {
        quarn::NSMACutPlane cut;
        cut.StreamIn(input, 2.15F, gainMode);
        checkSamples(cut);
        cut.IsOmni();
    }
    return 0;
}
