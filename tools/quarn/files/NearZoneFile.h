#pragma once

#include <QString>
#include <QStringList>
#include <cstdio>
#include <memory>
#include <vector>

#include "quarn/NearZoneMultiFieldPointResult.h"

namespace quarn::tool {

class InputFile;

/// A group of fields at a near-zone point.
struct NearZoneGroup {
    const char* name;
    const char* unit;
    bool (NearZoneMultiFieldPointResult::Header::*isCollected)() const;
    NearZoneMultiFieldPointResult::Record::Components NearZoneMultiFieldPointResult::Record::*components;
};

/// The records of a near-zone point, one after the other.
class NearZoneFile {
public:
    using Record = NearZoneMultiFieldPointResult::Record;

    /// Throws a FileProblem when the file cannot be opened or its header is refused.
    explicit NearZoneFile(const InputFile& file);

    const NearZoneMultiFieldPointResult::Header& header() const { return m_result.getHeader(); }

    /// The groups in the records, in their order.
    const std::vector<NearZoneGroup>& groups() const { return m_groups; }

    bool next(Record& record) { return m_result.readRecord(m_file.get(), record); }

    /// The number of bytes behind the last whole record.
    std::size_t incompleteBytes() const { return m_incompleteBytes; }

private:
    struct Close {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    std::unique_ptr<std::FILE, Close> m_file;
    NearZoneMultiFieldPointResult m_result;
    std::vector<NearZoneGroup> m_groups;
    std::size_t m_incompleteBytes = 0;
};

}  // namespace quarn::tool
