#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <cmath>

#include "CommandLine.h"
#include "Console.h"
#include "CsvWriter.h"
#include "FarZonePattern.h"
#include "GeometryOnDisk.h"
#include "InputFile.h"
#include "OutputFile.h"
#include "PolarPlot.h"
#include "ProgressBar.h"
#include "ProjectOnDisk.h"
#include "Quantity.h"
#include "Sheet.h"
#include "Subcommands.h"
#include "quarn/quarn.h"

namespace quarn::tool {

namespace {

struct Options {
    float frequency = 0.0F;
    double step = 0.0;  ///< degrees; 0 for what the project asks for
    QDir folder;
    QString plot;
};

double numberFrom(const CommandLine& commandLine, const QString& option, double least, double most) {
    bool isNumber = false;
    const double value = commandLine.value(option).toDouble(&isNumber);
    if (isNumber && value >= least && value <= most) return value;
    throw WrongUsage(
        QStringLiteral("--%1 needs a number from %2 to %3.").arg(option, numberText(least), numberText(most)));
}

const QString defaultRecordFile = QStringLiteral("farzone.uan");

/// A list of directions and the files for their fields, which differ in the ending.
struct Pattern {
    Pattern(const QDir& folder, const QString& recordFile, FarZoneAngles directions)
        : name(QFileInfo(recordFile).completeBaseName()),
          recordPath(QDir::cleanPath(folder.filePath(recordFile))),
          csvPath(QDir::cleanPath(folder.filePath(name + QStringLiteral(".csv")))),
          angles(std::move(directions)) {}

    QString name;
    QString recordPath;
    QString csvPath;
    FarZoneAngles angles;
};

Pattern patternOf(const FarZoneRequest& request, const QString& path, const QDir& folder) {
    // Only the name counts: a project from elsewhere does not choose the folder.
    const QString file = QFileInfo(request.getUANOutputFileName()).fileName();
    const QString shown = printable(file);
    if (file != shown) {
        throw FileProblem(
            path, QStringLiteral("the file name \"%1\" of a far-zone request has control characters").arg(shown));
    }
    return {folder, file.isEmpty() ? defaultRecordFile : file, request.getAngles()};
}

std::vector<Pattern> patternsFor(const ProjectFile& project, const QString& path, const Options& options) {
    constexpr double defaultStep = 5.0;
    const auto& requests = project.getSteadyStateFarZoneRequests();
    if (options.step > 0.0 || requests.empty()) {
        return {{options.folder, defaultRecordFile, sphereOf(options.step > 0.0 ? options.step : defaultStep)}};
    }
    std::vector<Pattern> patterns;
    QStringList names;
    for (const FarZoneRequest& request : requests) {
        patterns.push_back(patternOf(request, path, options.folder));
        const QString name = patterns.back().name;
        if (names.contains(name)) {
            throw FileProblem(path, QStringLiteral("two far-zone requests write to \"%1\"; use --step").arg(name));
        }
        names << name;
    }
    return patterns;
}

/// Throws a FileProblem when an output is one of the inputs, which would be lost.
void keepInputs(const QStringList& inputs, const std::vector<Pattern>& patterns, const QString& plot) {
    QStringList outputs{plot};
    for (const Pattern& pattern : patterns) outputs << pattern.recordPath << pattern.csvPath;
    for (const QString& output : outputs) {
        const QString place = QFileInfo(output).canonicalFilePath();
        const bool isInput = std::any_of(inputs.begin(), inputs.end(), [&place](const QString& input) {
            return !place.isEmpty() && place == QFileInfo(input).canonicalFilePath();
        });
        if (isInput) throw FileProblem(output, QStringLiteral("is an input and would be overwritten"));
    }
}

FarZoneBox boxOf(const ProjectFile& project, const QString& path, const Grid& grid) {
    if (!project.getBoundaryConditions()) {
        throw FileProblem(path, QStringLiteral("has no boundary conditions, and so no far-zone box"));
    }
    BoundaryConditions boundaries = *project.getBoundaryConditions();
    boundaries.cacheVariables();
    const FarZoneBox box(boundaries, grid);
    if (!box.isValid()) {
        throw FileProblem(
            path,
            QStringLiteral("there is no far-zone box: it needs open boundaries, one PEC plane at most, and "
                           "cells between the margins of the grid"));
    }
    return box;
}

/// Throws a FileProblem when the waves turn within a cell. Such fields mean nothing, and their pattern would take more
/// directions than anybody waits for.
void checkCells(const FieldsOnSSFarZoneBox& fields, const QString& path, float frequency) {
    const double waveLength = waveLengthAt(frequency);
    for (const auto* sizes : {&fields.getXDeltas(), &fields.getYDeltas(), &fields.getZDeltas()}) {
        for (const float size : *sizes) {
            if (2.0 * std::abs(static_cast<double>(size)) <= waveLength) continue;
            throw FileProblem(
                path,
                QStringLiteral("has a cell of %1 on the far-zone box, more than half the wavelength of %2")
                    .arg(withPrefix(static_cast<double>(size), QStringLiteral("m")),
                         withPrefix(waveLength, QStringLiteral("m"))));
        }
    }
}

void writeRecords(const QString& path, const FarZoneRecords& records) {
    writeFile(path, [&records](const QString& made) {
        DataFileWriter writer;
        bool isWritten = writer.open(made, QStringLiteral("wb"));
        for (const auto& record : records) isWritten = isWritten && FarZoneSSFieldFile::writeRecord(writer, record);
        return writer.close() && isWritten;
    });
}

void writeCsv(const QString& path, const FarZoneRecords& records, const RadiatedPower& power) {
    QByteArray text;
    {
        CsvWriter csv(text);
        csv.addHeader({QStringLiteral("theta_deg"),
                       QStringLiteral("phi_deg"),
                       QStringLiteral("e_theta_re"),
                       QStringLiteral("e_theta_im"),
                       QStringLiteral("e_phi_re"),
                       QStringLiteral("e_phi_im"),
                       QStringLiteral("directivity_dbi"),
                       QStringLiteral("axial_ratio_db")});
        for (const auto& record : records) {
            csv.add(static_cast<float>(toDegrees(record.theta)));
            csv.add(static_cast<float>(toDegrees(record.phi)));
            csv.add(record.eTheta);
            csv.add(record.ePhi);
            csv.add(static_cast<float>(power.directivity(record)));
            csv.add(static_cast<float>(axialRatio(record)));
            csv.endRow();
        }
    }
    writeFile(path, text);
}

FarZoneRecords fieldsIn(const PostProcessSSFarZoneFields& processor, const FarZoneAngles& angles) {
    ProgressBar bar(QStringLiteral("Far field"));
    FarZoneRecords records;
    processor.computeFields(angles, records, bar.reporter());
    return records;
}

RadiatedPower powerOf(const FieldsOnSSFarZoneBox& fields, const PostProcessSSFarZoneFields& processor) {
    ProgressBar bar(QStringLiteral("Radiated power"));
    return radiatedPower(fields, processor, bar.reporter());
}

PolarCurve curveOf(const PostProcessSSFarZoneFields& processor, const RadiatedPower& power, double azimuth) {
    PolarCurve curve{QStringLiteral("phi = %1°").arg(azimuth), {}, {}};
    for (const auto& record : fieldsIn(processor, polarCut(azimuth))) {
        curve.angles.push_back(toDegrees(record.theta));
        curve.values.push_back(power.directivity(record));
    }
    return curve;
}

QString peakText(const FarZoneSSFieldFile::Record& record, const RadiatedPower& power) {
    return QStringLiteral("%1 dBi at theta %2, phi %3")
        .arg(numberText(std::round(100.0 * power.directivity(record)) / 100.0),
             degrees(std::round(100.0 * toDegrees(record.theta)) / 100.0),
             degrees(std::round(100.0 * toDegrees(record.phi)) / 100.0));
}

void writePattern(const Pattern& pattern, const PostProcessSSFarZoneFields& processor, const RadiatedPower& power,
                  Sheet& sheet) {
    const FarZoneRecords records = fieldsIn(processor, pattern.angles);
    writeRecords(pattern.recordPath, records);
    writeCsv(pattern.csvPath, records, power);
    sheet.add(QStringLiteral("Pattern"), counted(records.size(), QStringLiteral("direction")));
    sheet.addDetail(QStringLiteral("Records"), pattern.recordPath);
    sheet.addDetail(QStringLiteral("Table"), pattern.csvPath);
}

Options optionsFrom(const CommandLine& commandLine) {
    Options options;
    if (!commandLine.isSet(QStringLiteral("frequency"))) throw WrongUsage(QStringLiteral("--frequency is missing."));
    options.frequency = static_cast<float>(numberFrom(commandLine, QStringLiteral("frequency"), 1.0, 1e15));
    if (commandLine.isSet(QStringLiteral("step"))) {
        options.step = numberFrom(commandLine, QStringLiteral("step"), 0.1, 90.0);
    }
    if (commandLine.isSet(QStringLiteral("out"))) options.folder = QDir(commandLine.value(QStringLiteral("out")));
    options.plot = commandLine.value(QStringLiteral("plot"));
    return options;
}

int run(const QStringList& files, const Options& options) {
    if (!options.plot.isEmpty() && !canPlot()) {
        complain(QStringLiteral("--plot needs gnuplot, which is not installed"));
        return ExitUnusable;
    }
    const LoadedProject project(files.at(0), readFile(files.at(0)));
    const LoadedGeometry geometry(files.at(1), readFile(files.at(1)));
    const FarZoneBox box = boxOf(project.project, files.at(0), geometry.grid);
    const std::vector<Pattern> patterns = patternsFor(project.project, files.at(0), options);
    keepInputs(files, patterns, options.plot);
    QString problem;
    const FieldsOnSSFarZoneBox fields(geometry.grid, files.at(2), box, problem);
    if (!fields.isComplete() || !fields.setupImageFields(geometry.grid)) {
        complain(problem);
        return ExitUnusable;
    }
    checkCells(fields, files.at(1), options.frequency);
    if (!options.folder.mkpath(QStringLiteral("."))) {
        throw FileProblem(options.folder.path(), QStringLiteral("the folder cannot be made"));
    }

    const PostProcessSSFarZoneFields processor(&fields, options.frequency, 0, 0);
    const RadiatedPower power = powerOf(fields, processor);
    Sheet sheet(
        QStringLiteral("%1: far field at %2").arg(files.at(2), withPrefix(options.frequency, QStringLiteral("Hz"))));
    sheet.add(QStringLiteral("Radiated power"), withPrefix(power.watts, QStringLiteral("W")));
    if (power.watts > 0.0) sheet.add(QStringLiteral("Peak directivity"), peakText(power.peak, power));
    for (const Pattern& pattern : patterns) writePattern(pattern, processor, power, sheet);
    if (!options.plot.isEmpty()) {
        const QString title =
            QStringLiteral("Directivity in dBi at ") + withPrefix(options.frequency, QStringLiteral("Hz"));
        writeFile(options.plot, polarPlot(title, {curveOf(processor, power, 0.0), curveOf(processor, power, 90.0)}));
        sheet.add(QStringLiteral("Plot"), options.plot);
    }
    sheet.print();
    return ExitFine;
}

}  // namespace

int runFarZone(const QStringList& arguments) {
    CommandLine commandLine(
        QStringLiteral("farzone"),
        QStringLiteral("Transforms the steady-state fields on the far-zone box of a run into far fields, in the\n"
                       "directions of the project's far-zone requests, or of a sphere where it has none. Each list of\n"
                       "directions gives a file of records (.uan) and a table of comma-separated values: distance\n"
                       "times field in volts by real and imaginary part, directivity, axial ratio. Radiated power and\n"
                       "peak directivity go to standard output."));
    commandLine.addOption(QStringLiteral("frequency"), QStringLiteral("Of the fields, in Hz."), QStringLiteral("HZ"));
    commandLine.addOption(QStringLiteral("step"),
                          QStringLiteral("A sphere at this step instead of the requests."),
                          QStringLiteral("DEGREES"));
    commandLine.addOption(QStringLiteral("out"),
                          QStringLiteral("The folder for the files; made if there is none."),
                          QStringLiteral("DIR"));
    commandLine.addOption(QStringLiteral("plot"),
                          QStringLiteral("An SVG image of the cuts at the azimuths 0 and 90 degrees. Needs gnuplot."),
                          QStringLiteral("FILE"));
    commandLine.addFile(QStringLiteral("PROJECT"), QStringLiteral("The project file of the run."));
    commandLine.addFile(QStringLiteral("GEOMETRY"), QStringLiteral("Its geometry file."));
    commandLine.addFile(QStringLiteral("BOXFILE"), QStringLiteral("The fields on the far-zone box."));
    if (!commandLine.parse(arguments)) return ExitFine;
    return run(commandLine.files(), optionsFrom(commandLine));
}

}  // namespace quarn::tool
