#include "quarn/SarResult.h"

#include <tuple>

#include "quarn/FileHeader.h"
#include "results/BlockReading.h"

namespace quarn {

namespace {

using Record = SarResult::Record;

constexpr int waitForAppending = 500;  // ms

// The code of a plane in a file, and the index that all its records have in common.
struct PlaneKind {
    SARPlane::Plane plane;
    std::int32_t code;
    std::int32_t Record::*normal;
};

constexpr PlaneKind planeKinds[] = {
    {SARPlane::XY, 2, &Record::k},
    {SARPlane::YZ, 0, &Record::i},
    {SARPlane::ZX, 1, &Record::j},
};

template <class Member, class Value>
const PlaneKind* findKind(Member member, Value value) {
    for (const PlaneKind& kind : planeKinds) {
        if (kind.*member == value) return &kind;
    }
    return nullptr;
}

// The numbers after the file header; SarResult.h describes the layout.
struct Start {
    std::int32_t planeCode = 0;
    std::int32_t planeIndex = 0;
    std::int32_t numRecords = 0;

    template <class Self>
    static auto fields(Self& r) {
        return std::tie(r.planeCode, r.planeIndex, r.numRecords);
    }
};

// The fields that a record of a plane has in a file.
template <class Self>
auto storedFields(SARPlane::Plane plane, Self& r) {
    switch (plane) {
        case SARPlane::YZ:
            return std::tie(r.j, r.k, r.value);
        case SARPlane::ZX:
            return std::tie(r.i, r.k, r.value);
        default:
            return std::tie(r.i, r.j, r.value);
    }
}

static_assert(records::sizeOf(static_cast<decltype(storedFields(SARPlane::XY, std::declval<Record&>()))*>(nullptr)) ==
              SarResult::recordSize);

}  // namespace

bool SarResultWriter::beginResultWriting(const QString& fileName, SARPlane::Plane plane, int planeIndex,
                                         int numRecords) {
    m_writer.close();
    const PlaneKind* kind = findKind(&PlaneKind::plane, plane);
    if (!kind || numRecords < 0 || !m_writer.open(fileName, QStringLiteral("wb"))) return false;
    const Start start{kind->code, planeIndex, numRecords};
    if (!FileHeader(FileHeader::sarPlane, 0).write(m_writer) || !records::writeFields(m_writer, Start::fields(start))) {
        m_writer.close();
        return false;
    }
    m_plane = plane;
    m_planeIndex = planeIndex;
    return true;
}

bool SarResultWriter::beginResultAppending(const QString& fileName, SARPlane::Plane plane, int planeIndex) {
    m_writer.close();
    if (!findKind(&PlaneKind::plane, plane)) return false;
    if (!m_writer.openWithRetries(fileName, QStringLiteral("ab"), waitForAppending)) return false;
    m_plane = plane;
    m_planeIndex = planeIndex;
    return true;
}

bool SarResultWriter::writeRecord(const SarResult::Record& record) {
    return records::writeFields(m_writer, storedFields(m_plane, record));
}

bool SarResultWriter::endResultWriting() { return m_writer.close(); }

bool SarResultReader::beginResultReading(const QString& fileName) {
    FileHeader header;
    Start start;
    if (!m_reader.open(fileName)) return false;
    const bool complete = header.read(m_reader) && records::readFields(m_reader, Start::fields(start));
    const PlaneKind* kind = findKind(&PlaneKind::code, start.planeCode);
    if (!complete || header != FileHeader(FileHeader::sarPlane, 0) || !kind || start.numRecords < 0) {
        m_reader.close();
        return false;
    }
    m_plane = kind->plane;
    m_planeIndex = start.planeIndex;
    m_numRecords = start.numRecords;
    return true;
}

std::int64_t SarResultReader::getNumberOfRecordsLeft() { return m_reader.bytesLeft() / SarResult::recordSize; }

bool SarResultReader::readRecord(SarResult::Record& record) {
    Record found;
    if (!records::readRecord(m_reader, storedFields(m_plane, found))) return false;
    found.*findKind(&PlaneKind::plane, m_plane)->normal = m_planeIndex;
    record = found;
    return true;
}

bool SarResultReader::endResultReading() { return m_reader.close(); }

}  // namespace quarn
