#include "blocktext/BlockDescription.h"
#include "quarn/SARPlane.h"
#include "results/RequestSections.h"

namespace quarn {

using namespace blocktext;

namespace {

constexpr NameTable<SARPlane::Plane, 3> planeNames{{
    {SARPlane::XY, "XY"_key},
    {SARPlane::YZ, "YZ"_key},
    {SARPlane::ZX, "ZX"_key},
}};

// The name of a plane and its index. A name that no plane has stands for XY.
struct PlaneAndIndex : Form {
    static void write(QTextStream& out, const SARPlane& plane) {
        out << nameOf(planeNames, plane.getPlane(), QLatin1String()) << ' ' << plane.getIndex();
    }
    static bool read(QTextStream& in, SARPlane& plane) {
        QString name;
        unsigned index = 0;
        const bool isRead = readValue(in, name) && readValue(in, index);
        plane = SARPlane(valueOf(planeNames, QStringView(name), SARPlane::XY), index);
        return isRead;
    }
    template <class>
    static QString kind() {
        return QStringLiteral("XY, YZ or ZX, and an integer");
    }
};

using Planes = std::vector<SARPlane>;

constexpr auto rawSARPlanes = describe<Planes>(sectionName::rawSARPlanes, Unknown::Stop, Unreadable::KeepsValue,
                                               entries("Plane", itself, partial(PlaneAndIndex())));

}  // namespace

bool writeRawSARPlanes(DelimManager& delim, const std::vector<SARPlane*>& list) {
    if (list.empty()) return isOk(delim);
    Planes planes;
    for (const SARPlane* plane : list) {
        if (plane) planes.push_back(*plane);
    }
    return rawSARPlanes.write(delim, planes);
}

bool readRawSARPlanes(DelimManager& delim, std::vector<SARPlane*>& list) {
    Planes planes;
    const bool hasOnlyPlanes = rawSARPlanes.read(delim, planes);
    for (const SARPlane& plane : planes) list.push_back(new SARPlane(plane));
    return hasOnlyPlanes && isOk(delim);
}

void describeRawSARPlanes(FormatBuilder& builder) { rawSARPlanes.describeTo(builder, {}); }

}  // namespace quarn
