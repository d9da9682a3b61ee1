#include "blocktext/BlockWalker.h"
#include "blocktext/BlockWriter.h"
#include "quarn/SARPlane.h"
#include "results/RequestSections.h"

namespace quarn {

using namespace blocktext;

namespace {

namespace key {
constexpr auto RawSARPlanes = "RawSARPlanes"_key;
constexpr auto Plane = "Plane"_key;
}  // namespace key

constexpr NameTable<SARPlane::Plane, 3> planeNames{{
    {SARPlane::XY, "XY"_key},
    {SARPlane::YZ, "YZ"_key},
    {SARPlane::ZX, "ZX"_key},
}};

}  // namespace

bool writeRawSARPlanes(DelimManager& delim, const std::vector<SARPlane*>& list) {
    if (list.empty()) return isOk(delim);
    const WrittenBlock block(delim, key::RawSARPlanes);
    for (const SARPlane* plane : list) {
        if (plane)
            putLine(delim, key::Plane, nameOf(planeNames, plane->getPlane(), QLatin1String()), plane->getIndex());
    }
    return isOk(delim);
}

// Any other name of a plane stands for XY.
bool readRawSARPlanes(DelimManager& delim, std::vector<SARPlane*>& list) {
    const bool onlyPlanes = walkBlock(delim, Unknown::Stop, onWord(key::Plane, [&](QTextStream& in) {
                                          QString name;
                                          unsigned index = 0;
                                          readAll(in, name, index);
                                          auto plane = std::make_unique<SARPlane>(
                                              valueOf(planeNames, QStringView(name), SARPlane::XY), index);
                                          list.push_back(plane.get());
                                          static_cast<void>(plane.release());
                                      }));
    return onlyPlanes && isOk(delim);
}

}  // namespace quarn
