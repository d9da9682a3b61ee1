#include "files/NearZoneFile.h"

#include <QFileInfo>

#include "Console.h"
#include "files/ResultFile.h"
#include "quarn/BinaryFile.h"

namespace quarn::tool {

namespace {

using Header = NearZoneMultiFieldPointResult::Header;
constexpr std::int64_t headerSize = 19;

}  // namespace

NearZoneFile::NearZoneFile(const InputFile& file) {
    Header header;
    checkPathLength(file.path());
    m_file.reset(openFile(file.path(), text("rb")));
    if (!m_file) throw FileProblem(file.name(), "cannot be opened");
    if (!m_result.readAndGetHeader(m_file.get(), header)) {
        throw FileProblem(file.name(), "is a near-zone point whose header is cut short, damaged or not of version 0");
    }
    for (const FieldGroupInfo& info : fieldGroups) {
        if (header.collects(info.group)) m_groups.push_back(info);
    }
    const std::size_t recordSize = sizeof(float) * (1 + 3 * m_groups.size());
    m_incompleteBytes = static_cast<std::size_t>(QFileInfo(file.path()).size() - headerSize) % recordSize;
}

}  // namespace quarn::tool
