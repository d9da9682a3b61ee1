#include "sheets/Sheets.h"

#include <QtEndian>
#include <algorithm>
#include <cstring>
#include <sstream>

#include "Console.h"
#include "Quantity.h"
#include "quarn/MeshlessVia.h"

namespace quarn::tool {

namespace {

constexpr int headerSize = 16;

/// The first vias of the file, whatever number its header gives.
std::vector<MeshlessVia> viasIn(const QByteArray& content, std::uint64_t count) {
    std::string image = content.toStdString();
    std::memcpy(image.data() + sizeof count, &count, sizeof count);
    std::istringstream stream(image);
    std::vector<MeshlessVia> vias;
    MeshlessVia::read_binary_stream(vias, stream);
    return vias;
}

QString extentText(const std::vector<MeshlessVia>& vias, int axis) {
    double least = vias.front().getFirstPoint()[axis];
    double most = least;
    for (const MeshlessVia& via : vias) {
        for (const double coordinate : {via.getFirstPoint()[axis], via.getSecondPoint()[axis]}) {
            least = std::min(least, coordinate);
            most = std::max(most, coordinate);
        }
    }
    return rangeText(least, most, "m");
}

}  // namespace

Sheet sheetOfVias(const QString& path, const QByteArray& content) {
    const auto claimed = qFromUnaligned<std::uint64_t>(content.constData() + sizeof(std::uint64_t));
    const auto room = static_cast<std::uint64_t>(content.size() - headerSize) / sizeof(MeshlessVia);
    const auto vias = viasIn(content, std::min(claimed, room));
    const auto coaxial =
        std::count_if(vias.begin(), vias.end(), [](const MeshlessVia& via) { return via.getInnerRadius() > 0.0; });

    Sheet sheet(path + text(": meshless vias"));
    sheet.add("Vias", text("%1, %2 of them coaxial").arg(vias.size()).arg(coaxial));
    if (claimed > room) sheet.add("Cut short", text("the file says %1 vias").arg(claimed));
    if (vias.empty()) return sheet;
    sheet.addDetail("x", extentText(vias, 0));
    sheet.addDetail("y", extentText(vias, 1));
    sheet.addDetail("z", extentText(vias, 2));
    return sheet;
}

}  // namespace quarn::tool
