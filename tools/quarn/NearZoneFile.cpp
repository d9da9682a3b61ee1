#include "NearZoneFile.h"

#include <QFile>

#include "Console.h"
#include "ResultFile.h"

namespace quarn::tool {

namespace {

using Header = NearZoneMultiFieldPointResult::Header;
using Record = NearZoneMultiFieldPointResult::Record;

constexpr std::int64_t headerSize = 19;

constexpr NearZoneGroup allGroups[] = {
    {"scattered E", "E", "V/m", &Header::collectScatteredE, &Record::scatteredE},
    {"total E", "E", "V/m", &Header::collectTotalE, &Record::totalE},
    {"scattered H", "H", "A/m", &Header::collectScatteredH, &Record::scatteredH},
    {"total H", "H", "A/m", &Header::collectTotalH, &Record::totalH},
    {"scattered B", "B", "T", &Header::collectScatteredB, &Record::scatteredB},
    {"total B", "B", "T", &Header::collectTotalB, &Record::totalB},
    {"J", "J", "A/m²", &Header::collectJ, &Record::j},
};

}  // namespace

NearZoneFile::NearZoneFile(const QString& path) : m_file(std::fopen(QFile::encodeName(path).constData(), "rb")) {
    Header header;
    if (!m_file) throw FileProblem(path, QStringLiteral("cannot be opened"));
    if (!m_result.readAndGetHeader(m_file.get(), header)) {
        throw FileProblem(path, QStringLiteral("not a near-zone point of a version that is known, or cut short"));
    }
    for (const NearZoneGroup& group : allGroups) {
        if ((header.*group.isCollected)()) m_groups.push_back(group);
    }
    const std::size_t recordSize = sizeof(float) * (1 + 3 * m_groups.size());
    m_incompleteBytes = static_cast<std::size_t>(sizeOfFile(path) - headerSize) % recordSize;
}

}  // namespace quarn::tool
