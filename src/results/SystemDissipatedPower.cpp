#include "quarn/DataFileReader.h"
#include "quarn/DataFileWriter.h"
#include "quarn/SystemResults.h"
#include "results/BlockReading.h"

namespace quarn {

bool SystemDissipatedPower::readHeader(DataFileReader& reader) {
    Header header;
    if (!records::readFields(reader, Header::fields(header))) return false;
    m_header = header;
    return true;
}

bool SystemDissipatedPower::writeHeader(DataFileWriter& writer, const Header& header) {
    m_header = header;
    return records::writeFields(writer, Header::fields(header));
}

bool SystemDissipatedPower::readRecord(DataFileReader& reader, Record& record) const {
    record.electricByMaterial.resize(m_header.numElectric);
    record.magneticByMaterial.resize(m_header.numMagnetic);
    return records::readRecord(reader, Record::fields(record));
}

bool SystemDissipatedPower::writeRecord(DataFileWriter& writer, const Record& record) const {
    if (record.electricByMaterial.size() < m_header.numElectric) return false;
    if (record.magneticByMaterial.size() < m_header.numMagnetic) return false;
    Record cut = record;
    cut.electricByMaterial.resize(m_header.numElectric);
    cut.magneticByMaterial.resize(m_header.numMagnetic);
    return records::writeFields(writer, Record::fields(std::as_const(cut)));
}

}  // namespace quarn
