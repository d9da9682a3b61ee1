// Reads any bytes as a file of each kind of record. Reading must end, single records must equal those of a block, and
// they must be written as the same bytes.

#include <cstring>
#include <iterator>
#include <vector>

#include "FuzzFiles.h"
#include "MemoryBound.h"
#include "quarn/quarn.h"

namespace {

using fuzz::require;

template <class Codec>
void checkRecords(const QByteArray& bytes) {
    quarn::DataFileReader reader;
    quarn::DataFileWriter writer;
    require(reader.open(fuzz::pathOf("in")) && writer.open(fuzz::pathOf("out"), "wb"));
    std::size_t count = 0;
    for (typename Codec::Record record; Codec::readRecord(reader, record); ++count) {
        require(Codec::writeRecord(writer, record));
    }
    std::vector<typename Codec::Record> block;
    require(count == static_cast<std::size_t>(bytes.size()) / Codec::recordSize);
    require(reader.seek(0) && Codec::readRecords(reader, count, block));
    require(count == 0 || std::memcmp(block.data(), bytes.constData(), count * Codec::recordSize) == 0);
    require(!Codec::readRecords(reader, 1, block) && writer.close());
    require(bytes.startsWith(fuzz::contents("out")));
}

void checkDissipatedPower(const QByteArray& bytes) {
    quarn::DataFileReader reader;
    quarn::DataFileWriter writer;
    quarn::SystemDissipatedPower file;
    require(reader.open(fuzz::pathOf("in")) && writer.open(fuzz::pathOf("out"), "wb"));
    if (!file.readHeader(reader)) return;
    require(file.writeHeader(writer, quarn::SystemDissipatedPower::Header(file.getHeader())));
    quarn::SystemDissipatedPower::Record record;
    while (file.readRecord(reader, record)) require(file.writeRecord(writer, record));
    require(writer.close() && bytes.startsWith(fuzz::contents("out")));
}

void checkHeader(const QByteArray& bytes) {
    quarn::DataFileReader reader;
    quarn::DataFileWriter writer;
    quarn::FileHeader header;
    require(reader.open(fuzz::pathOf("in")) && writer.open(fuzz::pathOf("out"), "wb"));
    if (header.read(reader)) require(header.write(writer) && writer.close() && fuzz::contents("out").size() == 16);
    require(bytes.startsWith(fuzz::contents("out")));
}

constexpr void (*checks[])(const QByteArray& bytes){
    checkHeader,
    checkDissipatedPower,
    checkRecords<quarn::SystemRadiatedPower>,
    checkRecords<quarn::SystemEigenMode>,
    checkRecords<quarn::CircuitComponentVCTransient>,
    checkRecords<quarn::CircuitComponentTdafsSParameter>,
    checkRecords<quarn::CircuitComponentVCSteadyState>,
    checkRecords<quarn::CircuitComponentVCBroadband>,
    checkRecords<quarn::IncidentPlaneWaveFieldsInstantaneous>,
    checkRecords<quarn::IncidentPlaneWaveFieldsSteadyState>,
    checkRecords<quarn::FarZoneSSFieldFile>,
    checkRecords<quarn::FieldsOnSteadyStateFarZoneBoxFile>,
    checkRecords<quarn::RawSarStatistics>,
    checkRecords<quarn::AveragedSarStatistics>,
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const fuzz::MemoryBound bound(size);
    if (size == 0) return 0;
    const QByteArray bytes(reinterpret_cast<const char*>(data) + 1, static_cast<int>(size) - 1);
    fuzz::put("in", bytes);
    checks[data[0] % std::size(checks)](bytes);
    return 0;
}
