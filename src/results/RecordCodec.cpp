#include "quarn/RecordCodec.h"

#include "quarn/CircuitComponentResults.h"
#include "quarn/DataFileReader.h"
#include "quarn/DataFileWriter.h"
#include "quarn/FarZoneFieldFiles.h"
#include "quarn/IncidentPlaneWaveFields.h"
#include "quarn/SarStatistics.h"
#include "quarn/SystemResults.h"
#include "results/BlockReading.h"

namespace quarn {

template <class RecordType>
bool RecordCodec<RecordType>::readRecord(DataFileReader& reader, Record& record) {
    return records::readRecord(reader, Record::fields(record));
}

template <class RecordType>
bool RecordCodec<RecordType>::writeRecord(DataFileWriter& writer, const Record& record) {
    return records::writeFields(writer, Record::fields(record));
}

template <class RecordType>
bool RecordCodec<RecordType>::readRecords(DataFileReader& reader, std::size_t count, std::vector<Record>& records) {
    static_assert(records::fileSize<Record> == recordSize, "a record has no gaps in memory, as in a file");
    return records::readBlock(reader, count, records) && records.size() == count;
}

template class RecordCodec<SystemRadiatedPowerRecord>;
template class RecordCodec<SystemEigenModeRecord>;
template class RecordCodec<CircuitComponentVCTransientRecord>;
template class RecordCodec<CircuitComponentTdafsSParameterRecord>;
template class RecordCodec<CircuitComponentVCSteadyStateRecord>;
template class RecordCodec<CircuitComponentVCBroadbandRecord>;
template class RecordCodec<IncidentPlaneWaveFieldsInstantaneousRecord>;
template class RecordCodec<IncidentPlaneWaveFieldsSteadyStateRecord>;
template class RecordCodec<FarZoneSSFieldFileRecord>;
template class RecordCodec<FieldsOnSteadyStateFarZoneBoxFileRecord>;
template class RecordCodec<RawSarStatisticsRecord>;
template class RecordCodec<AveragedSarStatisticsRecord>;

}  // namespace quarn
