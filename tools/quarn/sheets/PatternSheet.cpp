#include "sheets/Sheets.h"

#include <cmath>

#include "Console.h"
#include "Quantity.h"
#include "files/PatternFile.h"

namespace quarn::tool {

namespace {

QString angledCutName(const PatternCut& cut) {
    const QString letter(cut.plane.GetPatternCut() == NSMACutPlane::AtTAngle ? u'T' : u'P');
    bool isNumber = false;
    cut.planeText.midRef(cut.planeText.startsWith(letter) ? 1 : 0).toFloat(&isNumber);
    return isNumber ? letter + text(" angle ") + degrees((cut.plane.GetPatternCutAngle()))
                    : text("unknown plane \"%1\"").arg(cut.planeText);
}

QString cutName(const PatternCut& cut) {
    constexpr Named<NSMACutPlane::PatternCut> names[] = {
        {NSMACutPlane::Vertical, "vertical"},
        {NSMACutPlane::Horizontal, "horizontal"},
        {NSMACutPlane::Azimuth, "azimuth"},
        {NSMACutPlane::Elevation, "elevation"},
    };
    const auto plane = cut.plane.GetPatternCut();
    if (cut.planeText.isNull()) return text("plane not given");
    if (plane == NSMACutPlane::AtTAngle || plane == NSMACutPlane::AtPAngle) return angledCutName(cut);
    return nameOf(plane, names);
}

QString polarizations(const NSMACutPlane& plane) {
    constexpr Named<NSMACutPlane::Polarization> names[] = {
        {NSMACutPlane::V, "V"},
        {NSMACutPlane::H, "H"},
        {NSMACutPlane::LCP, "LCP"},
        {NSMACutPlane::RCP, "RCP"},
        {NSMACutPlane::NoPolarization, "not given"},
    };
    QString first = nameOf(plane.GetFirstPolarization(), names);
    if (plane.GetFirstPolarization() == NSMACutPlane::NoPolarization) return first;
    return first + u'/' + nameOf(plane.GetSecondPolarization(), names);
}

void addGains(Sheet& sheet, const NSMACutPlane::Samples& samples) {
    auto largest = samples.end();
    auto smallest = samples.end();
    for (auto sample = samples.begin(); sample != samples.end(); ++sample) {
        const double gain = sample->second.first;
        if (std::isnan(gain)) continue;
        if (largest == samples.end() || gain > largest->second.first) largest = sample;
        if (smallest == samples.end() || gain < smallest->second.first) smallest = sample;
    }
    if (largest == samples.end()) return;
    const auto gainText = [](const NSMACutPlane::Samples::value_type& sample) {
        const double decibels = 10.0 * std::log10(sample.second.first);
        return text("%1 dB at %2").arg(numberText(decibels), degrees((sample.first)));
    };
    sheet.addDetail("Largest gain", gainText(*largest));
    sheet.addDetail("Smallest gain", gainText(*smallest));
}

/// The increment follows from the number of samples and their range; without one of them it is not shown.
QString points(const PatternCut& cut) {
    const NSMACutPlane& plane = cut.plane;
    const QString number = QString::number(plane.GetNumberOfPoints());
    const QString range = text("from %1 to %2").arg(degrees(plane.GetAngleStart()), degrees(plane.GetAngleStop()));
    if (!cut.hasRange) return cut.hasCount ? number + text(", range not given") : text("number and range not given");
    if (!cut.hasCount) return text("number not given, ") + range;
    return text("%1 %2, increment %3").arg(number, range, degrees(plane.GetAngleIncrement()));
}

void addPlane(Sheet& sheet, const PatternCut& cut) {
    const NSMACutPlane& plane = cut.plane;
    sheet.addDetail("Polarizations", polarizations(plane));
    sheet.addDetail("Points", points(cut));
    sheet.addDetail("Samples", QString::number(plane.GetSamples().size()));
    addGains(sheet, plane.GetSamples());
    sheet.addDetail("Omnidirectional", text(plane.IsOmni() ? "yes" : "no"));
}

void addCut(Sheet& sheet, std::size_t number, const PatternCut& cut) {
    QString title = text("%1, line %2").arg(cutName(cut)).arg(cut.line);
    if (cut.frequency) title += text(", ") + withPrefix(*cut.frequency, "Hz");
    sheet.add(text("Cut %1").arg(number), title);
    if (cut.refusal) {
        sheet.addDetail("Refused", text("line %1, ").arg(cut.refusal->line) + cut.refusal->reason);
        return;
    }
    addPlane(sheet, cut);
    if (cut.completedLines > 0) {
        sheet.addDetail("Completed", counted(cut.completedLines, "line") + text(" with an empty second value"));
    }
    if (cut.leftOutLines > 0) {
        sheet.addDetail("Left out", counted(cut.leftOutLines, "line") + text(" after the last point"));
    }
    if (cut.coincidingSamples > 0) {
        sheet.addDetail(
            "Left out",
            counted(cut.coincidingSamples, "sample") + text(" after one at the same angle with another gain"));
    }
}

}  // namespace

Sheet sheetOfPattern(const QString& path, const QByteArray& content) {
    const auto cuts = readPatternFile(path, content);
    Sheet sheet(text("%1: antenna pattern, %2").arg(path, counted(cuts.size(), "cut")));
    std::size_t number = 0;
    for (const PatternCut& cut : cuts) addCut(sheet, ++number, cut);
    return sheet;
}

}  // namespace quarn::tool
