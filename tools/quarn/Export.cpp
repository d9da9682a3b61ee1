#include <algorithm>
#include <optional>

#include "CommandLine.h"
#include "Console.h"
#include "CsvWriter.h"
#include "InputFile.h"
#include "MultiPointSet.h"
#include "NearZoneFile.h"
#include "PatternFile.h"
#include "RecordKinds.h"
#include "ResultFile.h"
#include "Subcommands.h"
#include "quarn/quarn.h"

namespace quarn::tool {

namespace {

int statusOfIncomplete(const QString& path, std::size_t bytes) {
    if (bytes == 0) return ExitFine;
    complain(QStringLiteral("%1: cut short: %2 at the end belong to no whole record")
                 .arg(path, counted(bytes, QStringLiteral("byte"))));
    return ExitFindings;
}

int exportRecords(const RecordKind& kind, const QString& path) {
    CsvWriter csv;
    return statusOfIncomplete(path, kind.exportRows(kind, path, csv));
}

int exportNearZonePoint(const QString& path) {
    NearZoneFile file(path);
    QStringList columns{QStringLiteral("time")};
    for (const NearZoneGroup& group : file.groups()) {
        const QString name = QString::fromLatin1(group.name).replace(u' ', u'_');
        for (const char axis : {'x', 'y', 'z'}) columns << name + QLatin1Char(axis);
    }
    CsvWriter csv;
    csv.addHeader(columns);
    for (NearZoneFile::Record record; file.next(record);) {
        csv.add(record.time);
        for (const NearZoneGroup& group : file.groups()) {
            for (const float value : record.*group.components) csv.add(value);
        }
        csv.endRow();
    }
    return statusOfIncomplete(path, file.incompleteBytes());
}

int exportSarPlane(const QString& path) {
    SarResultReader reader;
    if (!reader.beginResultReading(path)) {
        throw FileProblem(path, QStringLiteral("not a SAR plane of a version that is known, or cut short"));
    }
    CsvWriter csv;
    csv.addHeader({QStringLiteral("i"), QStringLiteral("j"), QStringLiteral("k"), QStringLiteral("sar")});
    std::int64_t records = 0;
    for (SarResult::Record record; reader.readRecord(record); ++records) {
        csv.add(record.i);
        csv.add(record.j);
        csv.add(record.k);
        csv.add(record.value);
        csv.endRow();
    }
    if (records >= reader.getNumberOfRecords()) return ExitFine;
    complain(QStringLiteral("%1: cut short: %2 of %3 records").arg(path).arg(records).arg(reader.getNumberOfRecords()));
    return ExitFindings;
}

int exportPattern(const QString& path) {
    CsvWriter csv;
    csv.addHeader({QStringLiteral("cut"), QStringLiteral("angle"), QStringLiteral("gain"), QStringLiteral("second")});
    std::int32_t number = 0;
    int status = ExitFine;
    for (const PatternCut& cut : readPatternFile(path, readFile(path))) {
        ++number;
        if (cut.refusal) {
            complain(QStringLiteral("%1:%2: cut %3 refused: %4")
                         .arg(path)
                         .arg(cut.refusal->line)
                         .arg(number)
                         .arg(cut.refusal->reason));
            status = ExitFindings;
        }
        for (const auto& [angle, values] : cut.plane.GetSamples()) {
            csv.add(number);
            csv.add(angle);
            csv.add(values.first);
            csv.add(values.second);
            csv.endRow();
        }
    }
    return status;
}

/// Writes one group of a multi-point result: a row for each point of each time step or frequency.
class GroupExport {
public:
    GroupExport(MultiPointSet& set, const SetGroup& group)
        : m_set(set), m_group(group), m_values(static_cast<std::size_t>(group.components().size())) {
        if (m_set.reader.readGeometry(m_points)) return;
        throw FileProblem(m_set.reader.getGeometryFileName(), QStringLiteral("cannot be read"));
    }

    void addHeader() {
        const QString list = m_group.isSteady() ? QStringLiteral("frequency") : QStringLiteral("time");
        m_csv.addHeader(QStringList{list, QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z")} +
                        m_group.components());
    }

    /// Returns how many points there are of which all components are known; none when files are missing.
    std::optional<std::size_t> addRows(int index) {
        constexpr std::size_t piece = 1 << 14;
        const auto& list = m_group.isSteady() ? m_set.frequencies : m_set.times;
        m_group.choose(m_set.reader, index);
        if (!begin()) return std::nullopt;
        std::size_t point = 0;
        while (const std::size_t count = read(std::min(piece, m_points.size() - point))) {
            for (std::size_t i = 0; i < count; ++i, ++point) {
                addRow(list[static_cast<std::size_t>(index)], m_points[point], i);
            }
        }
        m_set.reader.endTimestep();
        return point;
    }

private:
    bool begin() {
        for (std::size_t c = 0; c < m_values.size(); ++c) {
            if (!m_group.begin(m_set.reader, static_cast<int>(c))) return false;
        }
        return true;
    }

    std::size_t read(std::size_t count) {
        for (std::size_t c = 0; c < m_values.size(); ++c) {
            if (!m_group.read(m_set.reader, static_cast<int>(c), m_values[c], count)) return 0;
            count = std::min(count, m_values[c].size());
        }
        return count;
    }

    void addRow(float listed, const ivec3& point, std::size_t i) {
        m_csv.add(listed);
        m_csv.add(point.x);
        m_csv.add(point.y);
        m_csv.add(point.z);
        for (const auto& values : m_values) m_csv.add(values[i]);
        m_csv.endRow();
    }

    MultiPointSet& m_set;
    const SetGroup& m_group;
    CsvWriter m_csv;
    std::vector<ivec3> m_points;
    std::vector<std::vector<float>> m_values;  ///< by component
};

const SetGroup& groupNamed(const QString& name, const MultiPointSet& set, const QString& path) {
    QStringList names;
    for (const SetGroup& group : set.groups) {
        if (group.name() == name || (name.isEmpty() && set.groups.size() == 1)) return group;
        names << group.name();
    }
    if (names.empty()) throw FileProblem(path, QStringLiteral("has no group"));
    throw WrongUsage(QStringLiteral("Choose a group with --group: %1.").arg(names.join(QStringLiteral(", "))));
}

int exportMultiPoint(const QString& path, const QString& groupName, const QString& indexText) {
    MultiPointSet set(path);
    const SetGroup& group = groupNamed(groupName, set, path);
    int first = 0;
    int end = set.indicesOf(group);
    if (!indexText.isNull()) {
        bool isNumber = false;
        first = indexText.toInt(&isNumber);
        if (!isNumber || first < 0 || first >= end) {
            throw WrongUsage(QStringLiteral("--index %1 is not one of 0 to %2.").arg(indexText).arg(end - 1));
        }
        end = first + 1;
    }
    GroupExport rows(set, group);
    rows.addHeader();
    int status = ExitFine;
    for (int index = first; index < end; ++index) {
        const auto points = rows.addRows(index);
        const int expected = set.reader.getNumberOfPoints();
        if (points && *points >= static_cast<std::size_t>(expected)) continue;
        complain(QStringLiteral("%1: cut short: %2 of %3 points at index %4")
                     .arg(path)
                     .arg(points.value_or(0))
                     .arg(expected)
                     .arg(index));
        status = ExitFindings;
    }
    return status;
}

}  // namespace

int runExport(const QStringList& arguments) {
    const QString as = QStringLiteral("as");
    const QString group = QStringLiteral("group");
    const QString index = QStringLiteral("index");
    CommandLine commandLine(
        QStringLiteral("export"),
        QStringLiteral("Writes what a result file holds as comma-separated values: near-zone points, groups of a\n"
                       "multi-point result (give its BASE_info.bin), SAR planes, antenna pattern cuts (gains as power\n"
                       "ratios), and files of records. Units are SI, angles of far-zone records in radians, of\n"
                       "patterns in degrees. Kinds of records:\n  %1\n"
                       "Exit status: 0 fine, 1 the file is cut short, 2 it cannot be used.")
            .arg(recordKindNames().join(QStringLiteral("\n  "))));
    commandLine.addOption(
        as, QStringLiteral("What the records are, for files that do not say it."), QStringLiteral("KIND"));
    commandLine.addOption(
        group, QStringLiteral("The group of a multi-point result, such as transient-total-E."), QStringLiteral("NAME"));
    commandLine.addOption(
        index, QStringLiteral("Only this time step or frequency, counted from 0."), QStringLiteral("N"));
    commandLine.addFile(QStringLiteral("RESULT"), QStringLiteral("The file to export."));
    if (!commandLine.parse(arguments)) return ExitFine;

    const QString path = commandLine.files().constFirst();
    if (commandLine.isSet(as)) {
        const RecordKind* kind = recordKind(commandLine.value(as));
        if (!kind) throw WrongUsage(QStringLiteral("'%1' is no kind of records.").arg(commandLine.value(as)));
        return exportRecords(*kind, path);
    }
    switch (resultKindOf(path)) {
        case ResultKind::NearZonePoint:
            return exportNearZonePoint(path);
        case ResultKind::MultiPoint:
            return exportMultiPoint(path, commandLine.value(group), commandLine.value(index));
        case ResultKind::SarPlane:
            return exportSarPlane(path);
        case ResultKind::FarZoneBox:
            return exportRecords(*recordKind(QStringLiteral("far-zone-box")), path);
        case ResultKind::None:
            break;
    }
    if (kindOf(readFile(path)) == FileKind::AntennaPattern) return exportPattern(path);
    throw FileProblem(path, QStringLiteral("does not say what it holds; say it with --as KIND"));
}

}  // namespace quarn::tool
