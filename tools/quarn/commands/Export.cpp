#include <algorithm>
#include <optional>

#include "Console.h"
#include "commands/Commands.h"
#include "files/CsvWriter.h"
#include "files/InputFile.h"
#include "files/MultiPointSet.h"
#include "files/NearZoneFile.h"
#include "files/PatternFile.h"
#include "files/RecordKinds.h"
#include "files/ResultFile.h"
#include "quarn/quarn.h"

namespace quarn::tool {

namespace {

QString adviceFor(FileKind kind) {
    switch (kind) {
        case FileKind::MeshlessVias:
        case FileKind::Geometry:
        case FileKind::Project:
            return text("'quarn show' tells what it holds");
        case FileKind::Unknown:
            return text("say with --as KIND what records it holds");
        case FileKind::OtherResult:
            return text("it cannot be exported");
        default:
            return text("leave --as out");
    }
}

FileProblem notExported(const InputFile& file, FileKind kind) {
    return {file.name(), text("is %1; %2").arg(description(kind), adviceFor(kind))};
}

ExitStatus reportCutShort(const InputFile& file, const QString& what) {
    printError(text("%1: cut short: %2").arg(file.name(), what));
    return ExitFindings;
}

ExitStatus reportIncomplete(const InputFile& file, std::size_t bytes) {
    return bytes == 0 ? ExitFine : reportCutShort(file, incompleteRecordText(bytes));
}

ExitStatus exportRecords(const RecordKind& kind, const InputFile& file) {
    CsvWriter csv;
    return reportIncomplete(file, kind.exportRows(kind, file, csv));
}

/// A file that says what it is cannot be read as something else.
ExitStatus exportRecordsAs(const RecordKind& kind, const InputFile& file) {
    const FileKind found = kindOf(file.beginning());
    if (found == FileKind::Unknown || found == kind.fileKind) return exportRecords(kind, file);
    throw notExported(file, found);
}

ExitStatus exportNearZonePoint(const InputFile& input) {
    NearZoneFile file(input);
    QString columns = text("time_s");
    for (const FieldGroupInfo& info : file.groups()) {
        columns += u',' + vectorColumns(text(info.name), text(info.unit), Components::Real);
    }
    CsvWriter csv;
    csv.addHeader(columns);
    for (NearZoneFile::Record record; file.next(record);) {
        csv.add(record.time);
        for (const FieldGroupInfo& info : file.groups()) {
            for (const float value : record[info.group]) csv.add(value);
        }
        csv.endRow();
    }
    return reportIncomplete(input, file.incompleteBytes());
}

ExitStatus exportSarPlane(const InputFile& file) {
    SarResultReader reader;
    open(reader, file);
    CsvWriter csv;
    csv.addHeader("i,j,k,sar_w_per_kg");
    std::int64_t records = 0;
    for (SarResult::Record record; reader.readRecord(record); ++records) {
        csv.addRow(record.i, record.j, record.k, record.value);
    }
    if (records >= reader.getNumberOfRecords()) return ExitFine;
    return reportCutShort(file, text("%1 of %2 records").arg(records).arg(reader.getNumberOfRecords()));
}

/// Why samples of a cut are missing from the table.
QStringList lossesOf(const PatternCut& cut) {
    const int announced = cut.plane.GetNumberOfPoints();
    const auto samples = [](int count) { return counted(count, "sample"); };
    QStringList losses;
    if (cut.refusal) {
        losses << text("refused at line %1, %2").arg(cut.refusal->line).arg(cut.refusal->reason);
    } else if (cut.missingSamples > 0) {
        losses << text("cut short: %1 of %2 samples").arg(announced - cut.missingSamples).arg(announced);
    } else if (cut.leftOutLines > 0) {
        losses << samples(cut.leftOutLines) + text(" left out after the %1 that NUPOIN announces").arg(announced);
    }
    if (cut.coincidingSamples > 0) {
        losses << samples(cut.coincidingSamples) +
                      text(" left out: a sample at the same angle with another gain came before");
    }
    return losses;
}

ExitStatus exportPattern(const QString& name, const QByteArray& content) {
    CsvWriter csv;
    csv.addHeader("cut,angle_deg,gain_power_ratio,second");
    std::int32_t number = 0;
    ExitStatus status = ExitFine;
    for (const PatternCut& cut : readPatternFile(name, content)) {
        ++number;
        for (const QString& loss : lossesOf(cut)) {
            printError(name + text(":%1: cut %2: ").arg(cut.line).arg(number) + loss);
            status = ExitFindings;
        }
        for (const auto& [angle, values] : cut.plane.GetSamples()) {
            csv.addRow(number, angle, values.first, values.second);
        }
    }
    return status;
}

/// Writes a row for each point at one time step or frequency. Returns the number of points with all components; nothing
/// when files are missing.
std::optional<std::size_t> exportIndex(MultiPointSet& set, const SetGroup& group, int index,
                                       const std::vector<ivec3>& points, CsvWriter& csv) {
    constexpr std::size_t piece = 1 << 14;
    std::vector<std::vector<float>> values(static_cast<std::size_t>(group.numberOfComponents()));
    group.choose(set.reader, index);
    for (int c = 0; c < group.numberOfComponents(); ++c) {
        if (!group.begin(set.reader, index, c)) return std::nullopt;
    }
    std::size_t point = 0;
    for (std::size_t count = piece; count > 0;) {
        count = std::min(piece, points.size() - point);
        for (std::size_t c = 0; c < values.size() && count > 0; ++c) {
            const bool isRead = group.read(set.reader, static_cast<int>(c), values[c], count);
            count = isRead ? std::min(count, values[c].size()) : 0;
        }
        for (std::size_t i = 0; i < count; ++i, ++point) {
            csv.add(set.listFor(group)[static_cast<std::size_t>(index)]);
            for (const int cell : {points[point].x, points[point].y, points[point].z}) csv.add(cell);
            for (const auto& component : values) csv.add(component[i]);
            csv.endRow();
        }
    }
    set.reader.endTimestep();
    return point;
}

/// The part of a multi-point result that the user chose; null where the option is not given.
struct Choice {
    QString group;
    QString index;

    bool hasAny() const { return !group.isNull() || !index.isNull(); }
};

const SetGroup& chosenGroup(const MultiPointSet& set, const Choice& choice, const QString& name) {
    QStringList names;
    for (const SetGroup& group : set.groups) {
        if (group.name() == choice.group || (choice.group.isNull() && set.groups.size() == 1)) return group;
        names << group.name();
    }
    if (names.empty()) throw FileProblem(name, "holds no group of fields");
    throw WrongUsage(text("Choose a group with --group: %1.").arg(names.join(", ")));
}

int chosenIndex(const QString& given, int indices) {
    bool isNumber = false;
    const int index = given.toInt(&isNumber);
    if (isNumber && index >= 0 && index < indices) return index;
    throw WrongUsage(indices == 0 ? text("--index %1 is beyond the end: nothing is recorded yet.").arg(given)
                                  : text("--index needs a number from 0 to %2, not '%1'.").arg(given).arg(indices - 1));
}

ExitStatus exportMultiPoint(const InputFile& file, const Choice& choice) {
    MultiPointSet set(file);
    const SetGroup& group = chosenGroup(set, choice, file.name());
    int first = 0;
    int end = static_cast<int>(set.listFor(group).size());
    if (!choice.index.isNull()) {
        first = chosenIndex(choice.index, end);
        end = first + 1;
    }
    std::vector<ivec3> points;
    if (!set.reader.readGeometry(points)) throw unreadable(set.reader.getGeometryFileName());
    CsvWriter csv;
    csv.addHeader(text(group.isSteady() ? "frequency_hz,i,j,k," : "time_s,i,j,k,") + group.columns());
    ExitStatus status = ExitFine;
    for (int index = first; index < end; ++index) {
        const auto found = exportIndex(set, group, index, points, csv);
        const int expected = set.reader.getNumberOfPoints();
        if (found && *found >= static_cast<std::size_t>(expected)) continue;
        status =
            reportCutShort(file, text("%1 of %2 points at index %3").arg(found.value_or(0)).arg(expected).arg(index));
    }
    return status;
}

ExitStatus exportByContent(const InputFile& file, const Choice& choice) {
    const FileKind kind = kindOf(file.beginning());
    if (kind == FileKind::MultiPoint) return exportMultiPoint(file, choice);
    if (choice.hasAny()) {
        throw WrongUsage(text("--group and --index are for multi-point results, but '%1' is %2.")
                             .arg(file.name(), description(kind)));
    }
    if (kind == FileKind::NearZonePoint) return exportNearZonePoint(file);
    if (kind == FileKind::SarPlane) return exportSarPlane(file);
    if (const RecordKind* records = recordKindOf(kind)) return exportRecords(*records, file);
    if (kind == FileKind::AntennaPattern) return exportPattern(file.name(), readFile(file.path()));
    throw notExported(file, kind);
}

ExitStatus exportResult(const QString& name, const QString& records, const Choice& choice) {
    if (records.isNull()) return exportByContent(InputFile(name), choice);
    if (choice.hasAny()) {
        throw WrongUsage("--group and --index are for multi-point results, not for records (--as).");
    }
    return exportRecordsAs(recordKindNamed(records), InputFile(name));
}

constexpr char helpText[] =
    "Writes what a result file holds as comma-separated values (CSV) to standard output. RESULT is a\n"
    "near-zone point, a SAR plane, the far-zone box, an antenna pattern, the BASE_info.bin of a\n"
    "multi-point result, or with --as a file of records. A pipe is read to its end, and so is standard\n"
    "input, which '-' stands for.\n\n"
    "Column names end in their unit: s, hz, v, a, w, t, kg, deg, v_per_m, a_per_m, a_per_m2, w_per_kg;\n"
    "_re and _im are the parts of a complex number; i, j and k number cells. The columns are, for\n"
    "  a near-zone point\n      time_s, then such as total_e_x_v_per_m for each field and axis\n"
    "  a multi-point result\n      time_s,i,j,k, then such as total_e_x_v_per_m for each axis; or\n"
    "      frequency_hz,i,j,k, then such as total_e_x_re_v_per_m, total_e_x_im_v_per_m\n"
    "  a SAR plane\n      i,j,k,sar_w_per_kg\n"
    "  an antenna pattern\n      cut,angle_deg,gain_power_ratio,second (the value after the gain)\n"
    "and for the kinds of records that --as takes%1\n"
    "The components e_theta and e_phi of far-zone records are in volts: the field times the distance.\n\n"
    "Exit status: 0 fine, 1 the file is cut short or not read in all parts, 2 it cannot be used.";

}  // namespace

void addExport(CLI::App& quarn, int& status) {
    struct Options {
        QString name;
        QString records;
        Choice choice;
    };
    const auto options = std::make_shared<Options>();
    CLI::App& command =
        addCommand(quarn, "export", "Writes what a result file holds as CSV", text(helpText).arg(recordKindsText()));
    addOption(command,
              "--as",
              "KIND",
              options->records,
              "The kind of the records, for files that do not tell it themselves.");
    addOption(command,
              "--group",
              "NAME",
              options->choice.group,
              "The group of a multi-point result, such as transient-total-E.");
    addOption(command,
              "--index",
              "N",
              options->choice.index,
              "Only this time step or frequency of a multi-point result,\ncounted from 0.");
    addArgument(command, "RESULT", options->name, "The file to export.");
    command.callback([options, &status] { status = exportResult(options->name, options->records, options->choice); });
}

}  // namespace quarn::tool
