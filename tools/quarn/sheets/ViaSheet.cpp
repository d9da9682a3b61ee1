#include "sheets/ViaSheet.h"

#include <algorithm>
#include <cstring>
#include <sstream>

#include "Console.h"
#include "Quantity.h"
#include "quarn/MeshlessVia.h"

namespace quarn::tool {

namespace {

constexpr int headerSize = 16;

std::uint64_t numberAt(const QByteArray& content, int offset) {
    std::uint64_t number = 0;
    std::memcpy(&number, content.constData() + offset, sizeof number);
    return number;
}

/// The vias that are there whole, whatever the header says of their number.
std::vector<MeshlessVia> viasIn(const QByteArray& content, std::uint64_t count) {
    std::string image = content.toStdString();
    std::memcpy(image.data() + sizeof count, &count, sizeof count);
    std::istringstream stream(image);
    std::vector<MeshlessVia> vias;
    MeshlessVia::read_binary_stream(vias, stream);
    return vias;
}

QString rangeText(const std::vector<MeshlessVia>& vias, int axis) {
    double least = vias.front().getFirstPoint()[axis];
    double most = least;
    for (const MeshlessVia& via : vias) {
        for (const double coordinate : {via.getFirstPoint()[axis], via.getSecondPoint()[axis]}) {
            least = std::min(least, coordinate);
            most = std::max(most, coordinate);
        }
    }
    return QStringLiteral("%1 to %2")
        .arg(withPrefix(least, QStringLiteral("m")), withPrefix(most, QStringLiteral("m")));
}

}  // namespace

bool isViaFile(const QByteArray& content) {
    return content.size() >= headerSize && numberAt(content, 0) == MeshlessVia::byte_order_check;
}

Sheet sheetOfVias(const QString& path, const QByteArray& content) {
    const std::uint64_t claimed = numberAt(content, 8);
    const auto room = static_cast<std::uint64_t>(content.size() - headerSize) / sizeof(MeshlessVia);
    const auto vias = viasIn(content, std::min(claimed, room));
    const auto coaxial =
        std::count_if(vias.begin(), vias.end(), [](const MeshlessVia& via) { return via.getInnerRadius() > 0.0; });

    Sheet sheet(path + QStringLiteral(": meshless vias"));
    sheet.add(QStringLiteral("Vias"), QStringLiteral("%1, %2 of them coaxial").arg(vias.size()).arg(coaxial));
    if (claimed > room) sheet.add(QStringLiteral("Cut short"), QStringLiteral("the file says %1 vias").arg(claimed));
    if (vias.empty()) return sheet;
    sheet.addDetail(QStringLiteral("x"), rangeText(vias, 0));
    sheet.addDetail(QStringLiteral("y"), rangeText(vias, 1));
    sheet.addDetail(QStringLiteral("z"), rangeText(vias, 2));
    return sheet;
}

}  // namespace quarn::tool
