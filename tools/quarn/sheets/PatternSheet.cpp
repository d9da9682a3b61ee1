#include "sheets/PatternSheet.h"

#include <cmath>

#include "Console.h"
#include "Quantity.h"
#include "files/PatternFile.h"

namespace quarn::tool {

namespace {

QString text(const char* utf8) { return QString::fromUtf8(utf8); }

QString angledCutName(const PatternCut& cut) {
    const QString letter(cut.plane.GetPatternCut() == NSMACutPlane::AtTAngle ? u'T' : u'P');
    bool isNumber = false;
    cut.planeText.midRef(cut.planeText.startsWith(letter) ? 1 : 0).toFloat(&isNumber);
    return isNumber ? letter + text(" angle ") + degrees(static_cast<double>(cut.plane.GetPatternCutAngle()))
                    : text("unknown plane \"%1\"").arg(cut.planeText);
}

QString cutName(const PatternCut& cut) {
    if (cut.planeText.isNull()) return text("plane not given");
    switch (cut.plane.GetPatternCut()) {
        case NSMACutPlane::Vertical:
            return text("vertical");
        case NSMACutPlane::Horizontal:
            return text("horizontal");
        case NSMACutPlane::Azimuth:
            return text("azimuth");
        case NSMACutPlane::Elevation:
            return text("elevation");
        case NSMACutPlane::AtTAngle:
        case NSMACutPlane::AtPAngle:
            return angledCutName(cut);
    }
    return text("unknown");
}

QString polarizationName(NSMACutPlane::Polarization polarization) {
    switch (polarization) {
        case NSMACutPlane::V:
            return text("V");
        case NSMACutPlane::H:
            return text("H");
        case NSMACutPlane::LCP:
            return text("LCP");
        case NSMACutPlane::RCP:
            return text("RCP");
        case NSMACutPlane::NoPolarization:
            break;
    }
    return text("not given");
}

QString polarizations(const NSMACutPlane& plane) {
    const QString first = polarizationName(plane.GetFirstPolarization());
    const bool given = plane.GetFirstPolarization() != NSMACutPlane::NoPolarization;
    return given ? first + u'/' + polarizationName(plane.GetSecondPolarization()) : first;
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
        return text("%1 dB at %2").arg(numberText(decibels), degrees(static_cast<double>(sample.first)));
    };
    sheet.addDetail(text("Largest gain"), gainText(*largest));
    sheet.addDetail(text("Smallest gain"), gainText(*smallest));
}

/// The increment follows from both the number of samples and their range.
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
    sheet.addDetail(text("Polarizations"), polarizations(plane));
    sheet.addDetail(text("Points"), points(cut));
    sheet.addDetail(text("Samples"), QString::number(plane.GetSamples().size()));
    addGains(sheet, plane.GetSamples());
    sheet.addDetail(text("Omnidirectional"), text(plane.IsOmni() ? "yes" : "no"));
}

void addCut(Sheet& sheet, std::size_t number, const PatternCut& cut) {
    QString title = text("%1, line %2").arg(cutName(cut)).arg(cut.line);
    if (cut.frequency) title += text(", ") + withPrefix(*cut.frequency, text("Hz"));
    sheet.add(text("Cut %1").arg(number), title);
    if (cut.refusal) {
        sheet.addDetail(text("Refused"), text("line %1, ").arg(cut.refusal->line) + cut.refusal->reason);
        return;
    }
    addPlane(sheet, cut);
    const auto lines = [](int count) { return counted(static_cast<std::size_t>(count), text("line")); };
    if (cut.completedLines > 0) {
        sheet.addDetail(text("Completed"), lines(cut.completedLines) + text(" with an empty second value"));
    }
    if (cut.leftOutLines > 0) {
        sheet.addDetail(text("Left out"), lines(cut.leftOutLines) + text(" after the last point"));
    }
    if (cut.coincidingSamples > 0) {
        sheet.addDetail(text("Left out"),
                        counted(static_cast<std::size_t>(cut.coincidingSamples), text("sample")) +
                            text(" behind one at the same angle with another gain"));
    }
}

}  // namespace

Sheet sheetOfPattern(const QString& path, const QByteArray& content) {
    const auto cuts = readPatternFile(path, content);
    Sheet sheet(text("%1: antenna pattern, %2").arg(path, counted(cuts.size(), text("cut"))));
    std::size_t number = 0;
    for (const PatternCut& cut : cuts) addCut(sheet, ++number, cut);
    return sheet;
}

}  // namespace quarn::tool
