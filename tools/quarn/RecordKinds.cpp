#include "RecordKinds.h"

#include <tuple>
#include <vector>

#include "Console.h"
#include "quarn/quarn.h"

namespace quarn::tool {

namespace {

void open(DataFileReader& reader, const QString& path) {
    if (!reader.open(path)) throw FileProblem(path, QStringLiteral("cannot be opened"));
}

QStringList columnsOf(const RecordKind& kind) { return QString::fromLatin1(kind.columns).split(u','); }

template <class Codec>
std::size_t exportRecords(DataFileReader& reader, const RecordKind& kind, CsvWriter& csv) {
    constexpr std::size_t piece = 1 << 12;
    csv.addHeader(columnsOf(kind));
    const auto bytes = static_cast<std::size_t>(reader.bytesLeft());
    std::vector<typename Codec::Record> records;
    for (bool more = true; more;) {
        more = Codec::readRecords(reader, piece, records);
        for (const auto& record : records) {
            std::apply([&csv](const auto&... field) { (csv.add(field), ...); }, Codec::Record::fields(record));
            csv.endRow();
        }
    }
    return bytes % Codec::recordSize;
}

template <class Codec>
std::size_t exportPlain(const RecordKind& kind, const QString& path, CsvWriter& csv) {
    DataFileReader reader;
    open(reader, path);
    return exportRecords<Codec>(reader, kind, csv);
}

template <class Codec>
std::size_t exportBehindHeader(const RecordKind& kind, const QString& path, CsvWriter& csv) {
    DataFileReader reader;
    FileHeader header;
    open(reader, path);
    if (!header.read(reader)) throw FileProblem(path, QStringLiteral("has no file header"));
    return exportRecords<Codec>(reader, kind, csv);
}

void addNumbered(QStringList& columns, const char* name, int count) {
    for (int i = 0; i < count; ++i) columns << QLatin1String(name) + QString::number(i);
}

/// The file says how many columns it has.
std::size_t exportDissipatedPower(const RecordKind& kind, const QString& path, CsvWriter& csv) {
    DataFileReader reader;
    SystemDissipatedPower codec;
    open(reader, path);
    if (!codec.readHeader(reader)) throw FileProblem(path, QStringLiteral("is cut short within its header"));
    QStringList columns = columnsOf(kind);
    addNumbered(columns, "electric_", codec.getHeader().numElectric);
    addNumbered(columns, "magnetic_", codec.getHeader().numMagnetic);
    csv.addHeader(columns);
    const auto bytes = static_cast<std::size_t>(reader.bytesLeft());
    for (SystemDissipatedPower::Record record; codec.readRecord(reader, record);) {
        csv.add(record.total);
        csv.add(record.electric);
        csv.add(record.magnetic);
        for (const float power : record.electricByMaterial) csv.add(power);
        for (const float power : record.magneticByMaterial) csv.add(power);
        csv.endRow();
    }
    return bytes % (sizeof(float) * static_cast<std::size_t>(columns.size()));
}

constexpr RecordKind kinds[] = {
    {"radiated-power", "radiated_power", exportPlain<SystemRadiatedPower>},
    {"dissipated-power", "total,electric,magnetic", exportDissipatedPower},
    {"eigenmode", "value_re,value_im", exportPlain<SystemEigenMode>},
    {"component-transient", "time,voltage,current", exportPlain<CircuitComponentVCTransient>},
    {"component-s-parameter", "frequency,s_re,s_im", exportPlain<CircuitComponentTdafsSParameter>},
    {"component-steady", "voltage_re,voltage_im,current_re,current_im", exportPlain<CircuitComponentVCSteadyState>},
    {"component-broadband", "frequency,voltage,current,value_re,value_im", exportPlain<CircuitComponentVCBroadband>},
    {"plane-wave-transient", "time,Ex,Ey,Ez", exportPlain<IncidentPlaneWaveFieldsInstantaneous>},
    {"plane-wave-steady",
     "Ex_re,Ex_im,Ey_re,Ey_im,Ez_re,Ez_im,Hx_re,Hx_im,Hy_re,Hy_im,Hz_re,Hz_im",
     exportPlain<IncidentPlaneWaveFieldsSteadyState>},
    {"far-zone", "theta,phi,Etheta_re,Etheta_im,Ephi_re,Ephi_im", exportPlain<FarZoneSSFieldFile>},
    {"far-zone-box",
     "E1_re,E1_im,E2_re,E2_im,H1_re,H1_im,H2_re,H2_im",
     exportBehindHeader<FieldsOnSteadyStateFarZoneBoxFile>},
    {"raw-sar-statistics", "maximum,i,j,k,average,cells,power", exportPlain<RawSarStatistics>},
    {"averaged-sar-statistics",
     "maximum,i,j,k,average,mass,lower_i,lower_j,lower_k,upper_i,upper_j,upper_k",
     exportPlain<AveragedSarStatistics>},
};

}  // namespace

const RecordKind* recordKind(const QString& name) {
    for (const RecordKind& kind : kinds) {
        if (name == QLatin1String(kind.name)) return &kind;
    }
    return nullptr;
}

QStringList recordKindNames() {
    QStringList names;
    for (const RecordKind& kind : kinds) names << QString::fromLatin1(kind.name);
    return names;
}

}  // namespace quarn::tool
