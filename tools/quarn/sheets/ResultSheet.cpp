#include "sheets/Sheets.h"

#include "Console.h"
#include "Quantity.h"
#include "files/MultiPointSet.h"
#include "files/NearZoneFile.h"
#include "files/ResultFile.h"
#include "quarn/quarn.h"
#include "sheets/ValueRange.h"

namespace quarn::tool {

namespace {

void addIncompleteRecord(Sheet& sheet, std::size_t bytes) {
    if (bytes == 0) return;
    sheet.add("Cut short", incompleteRecordText(bytes));
}

Sheet sheetOfNearZonePoint(const InputFile& input) {
    NearZoneFile file(input);
    ValueRange times;
    std::vector<ValueRange> ranges(file.groups().size());
    std::size_t records = 0;
    for (NearZoneFile::Record record; file.next(record); ++records) {
        times.add(record.time);
        for (std::size_t i = 0; i < ranges.size(); ++i) {
            for (const float value : record[file.groups()[i].group]) ranges[i].add(value);
        }
    }
    const auto& header = file.header();
    Sheet sheet(text("%1: near-zone point, version %2").arg(input.name()).arg(header.getVersion()));
    sheet.add("Point", pointText(header.getX(), header.getY(), header.getZ()));
    sheet.add("Records", QString::number(records));
    sheet.add("Time", times.text(text("s")));
    for (std::size_t i = 0; i < ranges.size(); ++i) {
        sheet.addDetail(text(file.groups()[i].name), ranges[i].text(text(file.groups()[i].unit)));
    }
    addIncompleteRecord(sheet, file.incompleteBytes());
    return sheet;
}

/// The component files of a group that exist.
struct GroupSurvey {
    ValueRange range;
    int complete = 0;
    int expected = 0;
};

GroupSurvey survey(MultiPointSet& set, const SetGroup& group) {
    constexpr std::size_t piece = 1 << 16;
    GroupSurvey result;
    std::vector<float> values;
    const int components = group.numberOfComponents();
    const int indices = static_cast<int>(set.listFor(group).size());
    for (int index = 0; index < indices; ++index) {
        group.choose(set.reader, index);
        for (int component = 0; component < components; ++component) {
            ++result.expected;
            if (!group.begin(set.reader, index, component)) continue;
            std::size_t found = 0;
            while (group.read(set.reader, component, values, piece) && !values.empty()) {
                for (const float value : values) result.range.add(value);
                found += values.size();
            }
            if (found >= static_cast<std::size_t>(set.reader.getNumberOfPoints())) ++result.complete;
        }
        set.reader.endTimestep();
    }
    return result;
}

QString listText(const std::vector<float>& list, const char* unit) {
    if (list.empty()) return text("none");
    ValueRange range;
    for (const float value : list) range.add(value);
    return text("%1, %2").arg(list.size()).arg(range.text(text(unit)));
}

Sheet sheetOfMultiPoint(const InputFile& file) {
    MultiPointSet set(file);
    Sheet sheet(text("%1: multi-point result, version %2").arg(file.name()).arg(set.reader.getSerializationVersion()));
    sheet.add("Points", QString::number(set.reader.getNumberOfPoints()));
    sheet.add("Time steps", listText(set.times, "s"));
    sheet.add("Frequencies", listText(set.frequencies, "Hz"));
    int missing = 0;
    int expected = 0;
    for (const SetGroup& group : set.groups) {
        const GroupSurvey found = survey(set, group);
        sheet.addDetail(group.name(), found.range.text(group.unit()));
        missing += found.expected - found.complete;
        expected += found.expected;
    }
    if (missing > 0) {
        sheet.add("Cut short", text("%1 of %2 component files are missing or too short").arg(missing).arg(expected));
    }
    return sheet;
}

Sheet sheetOfSarPlane(const InputFile& file) {
    SarResultReader reader;
    open(reader, file);
    ValueRange range;
    std::int64_t records = 0;
    for (SarResult::Record record; reader.readRecord(record); ++records) range.add(record.value);
    Sheet sheet(text("%1: SAR plane, version 0").arg(file.name()));
    sheet.add("Plane", text("%1, index %2").arg(planeName(reader.getPlane())).arg(reader.getPlaneIndex()));
    sheet.add("Records", QString::number(records));
    sheet.addDetail("SAR", range.text(text("W/kg")));
    const int announced = reader.getNumberOfRecords();
    if (records == announced) return sheet;
    sheet.add(text(records < announced ? "Cut short" : "Appended"),
              text("the file says ") + counted(announced, "record"));
    return sheet;
}

void addComplex(ValueRange& range, const std::complex<float>& value) {
    range.add(value.real());
    range.add(value.imag());
}

Sheet sheetOfFarZoneBox(const InputFile& file) {
    DataFileReader reader;
    openFarZoneBox(reader, file);
    ValueRange electric;
    ValueRange magnetic;
    std::size_t records = 0;
    const std::size_t incompleteBytes =
        forEachRecord<FieldsOnSteadyStateFarZoneBoxFile>(reader, [&](const auto& record) {
            for (const auto& value : {record.e1, record.e2}) addComplex(electric, value);
            for (const auto& value : {record.h1, record.h2}) addComplex(magnetic, value);
            ++records;
        });
    Sheet sheet(text("%1: fields on the far-zone box, version 0").arg(file.name()));
    sheet.add("Records", QString::number(records));
    sheet.addDetail("E", electric.text("V/m"));
    sheet.addDetail("H", magnetic.text("A/m"));
    addIncompleteRecord(sheet, incompleteBytes);
    return sheet;
}

}  // namespace

Sheet sheetOfResult(const InputFile& file, FileKind kind) {
    switch (kind) {
        case FileKind::NearZonePoint:
            return sheetOfNearZonePoint(file);
        case FileKind::MultiPoint:
            return sheetOfMultiPoint(file);
        case FileKind::SarPlane:
            return sheetOfSarPlane(file);
        case FileKind::FarZoneBox:
            return sheetOfFarZoneBox(file);
        default:
            throw FileProblem(file.name(), text("is ") + description(kind));
    }
}

}  // namespace quarn::tool
