#include "files/RecordKinds.h"

#include <tuple>
#include <vector>

#include "Console.h"
#include "Quantity.h"
#include "files/ResultFile.h"
#include "quarn/quarn.h"

namespace quarn::tool {

namespace {

template <class Record>
void addFields(CsvWriter& csv, const Record& record) {
    std::apply([&csv](const auto&... field) { (csv.add(field), ...); }, Record::fields(record));
}

void addFields(CsvWriter& csv, const FarZoneSSFieldFileRecord& record) {
    csv.add(degreesFromRadians(record.theta));
    csv.add(degreesFromRadians(record.phi));
    csv.add(record.eTheta);
    csv.add(record.ePhi);
}

template <class Codec>
std::size_t exportRecords(DataFileReader& reader, const RecordKind& kind, CsvWriter& csv) {
    csv.addHeader(text(kind.columns));
    return forEachRecord<Codec>(reader, [&csv](const auto& record) {
        addFields(csv, record);
        csv.endRow();
    });
}

template <class Codec>
std::size_t exportPlain(const RecordKind& kind, const InputFile& file, CsvWriter& csv) {
    DataFileReader reader;
    open(reader, file);
    return exportRecords<Codec>(reader, kind, csv);
}

std::size_t exportFarZoneBox(const RecordKind& kind, const InputFile& file, CsvWriter& csv) {
    DataFileReader reader;
    openFarZoneBox(reader, file);
    return exportRecords<FieldsOnSteadyStateFarZoneBoxFile>(reader, kind, csv);
}

/// The file tells the number of its columns.
std::size_t exportDissipatedPower(const RecordKind& kind, const InputFile& file, CsvWriter& csv) {
    DataFileReader reader;
    SystemDissipatedPower codec;
    open(reader, file);
    if (!codec.readHeader(reader)) {
        throw FileProblem(file.name(), "is cut short: the two bytes are missing that count the materials");
    }
    QString columns = text(kind.columns);
    const auto& header = codec.getHeader();
    for (int i = 0; i < header.numElectric; ++i) columns += text(",electric_%1_w").arg(i);
    for (int i = 0; i < header.numMagnetic; ++i) columns += text(",magnetic_%1_w").arg(i);
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
    return bytes % (sizeof(float) * static_cast<std::size_t>(columns.count(u',') + 1));
}

constexpr RecordKind kinds[] = {
    {"radiated-power", "radiated_power_w", exportPlain<SystemRadiatedPower>},
    {"dissipated-power", "total_w,electric_w,magnetic_w", exportDissipatedPower},
    {"eigenmode", "value_re,value_im", exportPlain<SystemEigenMode>},
    {"component-transient", "time_s,voltage_v,current_a", exportPlain<CircuitComponentVCTransient>},
    {"component-s-parameter", "frequency_hz,s_re,s_im", exportPlain<CircuitComponentTdafsSParameter>},
    {"component-steady",
     "voltage_re_v,voltage_im_v,current_re_a,current_im_a",
     exportPlain<CircuitComponentVCSteadyState>},
    {"component-broadband",
     "frequency_hz,voltage_v,current_a,value_re,value_im",
     exportPlain<CircuitComponentVCBroadband>},
    {"plane-wave-transient",
     "time_s,e_x_v_per_m,e_y_v_per_m,e_z_v_per_m",
     exportPlain<IncidentPlaneWaveFieldsInstantaneous>},
    {"plane-wave-steady",
     "e_x_re_v_per_m,e_x_im_v_per_m,e_y_re_v_per_m,e_y_im_v_per_m,e_z_re_v_per_m,e_z_im_v_per_m,"
     "h_x_re_a_per_m,h_x_im_a_per_m,h_y_re_a_per_m,h_y_im_a_per_m,h_z_re_a_per_m,h_z_im_a_per_m",
     exportPlain<IncidentPlaneWaveFieldsSteadyState>},
    {"far-zone", "theta_deg,phi_deg,e_theta_re,e_theta_im,e_phi_re,e_phi_im", exportPlain<FarZoneSSFieldFile>},
    {"far-zone-box",
     "e_1_re_v_per_m,e_1_im_v_per_m,e_2_re_v_per_m,e_2_im_v_per_m,"
     "h_1_re_a_per_m,h_1_im_a_per_m,h_2_re_a_per_m,h_2_im_a_per_m",
     exportFarZoneBox,
     FileKind::FarZoneBox},
    {"raw-sar-statistics", "maximum_w_per_kg,i,j,k,average_w_per_kg,cells,power_w", exportPlain<RawSarStatistics>},
    {"averaged-sar-statistics",
     "maximum_w_per_kg,i,j,k,average_w_per_kg,mass_kg,lower_i,lower_j,lower_k,upper_i,upper_j,upper_k",
     exportPlain<AveragedSarStatistics>},
};

/// The columns in lines that fit into a terminal.
QString columnsText(const RecordKind& kind) {
    constexpr int width = 70;
    QStringList lines(QString{});
    for (const QString& column : text(kind.columns).split(u',')) {
        if (lines.last().size() + column.size() >= width) lines << QString();
        lines.last() += column + u',';
    }
    return lines.join("\n      ").chopped(1);
}

}  // namespace

const RecordKind& recordKindNamed(const QString& name) {
    QStringList names;
    for (const RecordKind& kind : kinds) {
        names << QString::fromLatin1(kind.name);
        if (name == names.constLast()) return kind;
    }
    throw WrongUsage(text("Unknown kind of records '%1'; the kinds are %2.").arg(name, names.join(", ")));
}

const RecordKind* recordKindOf(FileKind fileKind) {
    if (fileKind == FileKind::Unknown) return nullptr;
    for (const RecordKind& kind : kinds) {
        if (kind.fileKind == fileKind) return &kind;
    }
    return nullptr;
}

QString recordKindsText() {
    QString list;
    for (const RecordKind& kind : kinds)
        list += text("\n  %1\n      %2").arg(QLatin1String(kind.name), columnsText(kind));
    return list;
}

}  // namespace quarn::tool
