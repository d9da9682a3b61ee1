#include <QDir>
#include <QFileInfo>
#include <cmath>

#include "CommandLine.h"
#include "Console.h"
#include "ProgressBar.h"
#include "Quantity.h"
#include "Subcommands.h"
#include "commands/FarZonePlan.h"
#include "files/FarZoneBoxFile.h"
#include "files/FarZoneOutput.h"
#include "files/GeometryOnDisk.h"
#include "files/InputFile.h"
#include "files/OutputFile.h"
#include "files/ProjectOnDisk.h"
#include "plots/PolarPlot.h"
#include "quarn/BoundaryConditions.h"
#include "sheets/Sheet.h"

namespace quarn::tool {

namespace {

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

/// The far fields of one frequency.
class FarZone {
public:
    /// Throws a FileProblem for fields that are too large or too small for their power to be a positive number.
    FarZone(const FieldsOnSSFarZoneBox& fields, const FarZoneJob& job)
        : m_processor(&fields, job.frequency, 0, 0), m_power(powerOf(fields, m_processor)) {
        if (std::isfinite(m_power.watts) && m_power.watts > 0.0) return;
        throw FileProblem(job.boxFile,
                          QStringLiteral("the fields give a radiated power of %1 W; the run has probably diverged")
                              .arg(m_power.watts));
    }

    const RadiatedPower& power() const { return m_power; }

    FarZoneRecords in(const FarZoneAngles& directions) const {
        ProgressBar bar(QStringLiteral("Far field"));
        FarZoneRecords records;
        if (m_processor.computeFields(directions, records, bar.reporter())) return records;
        throw std::runtime_error("the far field was not computed, as the fields on the box are not complete");
    }

private:
    static RadiatedPower powerOf(const FieldsOnSSFarZoneBox& fields, const PostProcessSSFarZoneFields& processor) {
        ProgressBar bar(QStringLiteral("Radiated power"));
        return radiatedPower(fields, processor, bar.reporter());
    }

    PostProcessSSFarZoneFields m_processor;
    RadiatedPower m_power;
};

PolarCurve curveOf(const FarZone& farZone, double azimuth) {
    PolarCurve curve{QStringLiteral("phi = %1°").arg(azimuth), {}, {}};
    for (const auto& record : farZone.in(polarCut(azimuth))) {
        curve.angles.push_back(toDegrees(record.theta));
        curve.values.push_back(farZone.power().directivity(record));
    }
    return curve;
}

QString peakText(const RadiatedPower& power) {
    const auto rounded = [](double value) { return std::round(100.0 * value) / 100.0; };
    return QStringLiteral("%1 dBi at theta %2, phi %3")
        .arg(numberText(rounded(power.directivity(power.peak))),
             degrees(rounded(toDegrees(power.peak.theta))),
             degrees(rounded(toDegrees(power.peak.phi))));
}

void makeFolderOf(const QString& file) {
    const QString folder = QFileInfo(file).path();
    if (!QDir().mkpath(folder)) throw FileProblem(folder, QStringLiteral("the folder cannot be made"));
}

/// An image of the principal cuts; null when none is wanted.
QByteArray plotOf(const FarZoneJob& job, const FarZone& farZone, const QString& frequency) {
    if (job.plot.isEmpty()) return {};
    const QString title = QStringLiteral("Directivity in dBi at ") + frequency;
    return polarPlot(*imageFormatOf(job.plot), title, {curveOf(farZone, 0.0), curveOf(farZone, 90.0)});
}

/// Everything is computed before the first file is written.
void writeFarFields(const FarZoneJob& job, const std::vector<FarZoneAngles>& directions,
                    const FieldsOnSSFarZoneBox& fields) {
    const QString frequency = withPrefix(job.frequency, QStringLiteral("Hz"));
    const FarZone farZone(fields, job);
    const QByteArray plot = plotOf(job, farZone, frequency);
    std::vector<FarZoneRecords> patterns;
    patterns.reserve(directions.size());
    for (const FarZoneAngles& angles : directions) patterns.push_back(farZone.in(angles));

    for (const QString& output : job.outputs()) makeFolderOf(output);
    Sheet sheet(QStringLiteral("%1: far field at %2").arg(job.boxFile, frequency));
    sheet.add(QStringLiteral("Radiated power"), withPrefix(farZone.power().watts, QStringLiteral("W")));
    sheet.add(QStringLiteral("Peak directivity"), peakText(farZone.power()));
    for (std::size_t i = 0; i < patterns.size(); ++i) {
        const auto& [recordFile, tableFile] = job.patterns[i];
        writeRecords(recordFile, patterns[i]);
        writeTable(tableFile, patterns[i], farZone.power());
        sheet.add(QStringLiteral("Pattern"), counted(patterns[i].size(), QStringLiteral("direction")));
        sheet.addDetail(QStringLiteral("Records"), recordFile);
        sheet.addDetail(QStringLiteral("Table"), tableFile);
    }
    if (!job.plot.isEmpty()) {
        writeFile(job.plot, plot);
        sheet.add(QStringLiteral("Plot"), job.plot);
    }
    sheet.print();
}

int run(const QStringList& files, const FarZoneOptions& options) {
    const QString& projectPath = files.at(0);
    const QString& geometryPath = files.at(1);
    const LoadedProject project(projectPath, readFile(projectPath));
    const LoadedGeometry geometry(geometryPath, readFile(geometryPath));
    const FarZoneBox box = boxOf(project.project, projectPath, geometry.grid);
    const auto fieldsFor = [&](const FarZoneJob& job) {
        return loadBoxFields(job.boxFile, box, geometry.grid, geometryPath, job.frequency);
    };

    const FarZonePlan plan = planFarZone(project.project, projectPath, files.mid(2), options);
    QStringList inputs{projectPath, geometryPath};
    for (const FarZoneJob& job : plan.jobs) inputs << job.boxFile;
    checkOutputs(plan, inputs);
    // The fields of all frequencies together may not fit in memory: they are loaded once to be checked and once more.
    if (plan.jobs.size() > 1) {
        for (const FarZoneJob& job : plan.jobs) FarZone(fieldsFor(job), job);
    }

    for (const FarZoneJob& job : plan.jobs) {
        const FieldsOnSSFarZoneBox fields = fieldsFor(job);
        if (&job != &plan.jobs.front()) out() << '\n';
        writeFarFields(job, plan.directions, fields);
    }
    return ExitFine;
}

double numberFrom(const CommandLine& commandLine, const QString& option, double least, double most) {
    bool isNumber = false;
    const double value = commandLine.value(option).toDouble(&isNumber);
    if (isNumber && value >= least && value <= most) return value;
    throw WrongUsage(
        QStringLiteral("--%1 needs a number from %2 to %3.").arg(option, numberText(least), numberText(most)));
}

FarZoneOptions optionsFrom(const CommandLine& commandLine) {
    FarZoneOptions options;
    if (commandLine.isSet(QStringLiteral("frequency"))) {
        options.frequency = numberFrom(commandLine, QStringLiteral("frequency"), 1.0, 1e15);
    }
    options.takesAnyFrequency = commandLine.isSet(QStringLiteral("force"));
    if (commandLine.isSet(QStringLiteral("step"))) {
        options.step = numberFrom(commandLine, QStringLiteral("step"), 0.1, 90.0);
    }
    options.folder = commandLine.value(QStringLiteral("out"));
    if (!commandLine.isSet(QStringLiteral("plot"))) return options;
    options.plot = commandLine.value(QStringLiteral("plot"));
    const auto format = imageFormatOf(options.plot);
    if (!format) throw WrongUsage(QStringLiteral("--plot needs the name of a file that ends in .svg or .png."));
    if (!canPlot(*format)) {
        throw WrongUsage(
            QStringLiteral("--plot needs gnuplot, which is not installed or cannot draw such images; install it, or "
                           "leave --plot out."));
    }
    return options;
}

}  // namespace

int runFarZone(const QStringList& arguments) {
    CommandLine commandLine(
        QStringLiteral("farzone"),
        QStringLiteral("Transforms the steady-state fields on the far-zone box of a run into far fields, for each\n"
                       "steady-state frequency of the project, in the directions of its far-zone requests, or of a\n"
                       "sphere where it has none. Each list of directions gives a file of records (.uan) and a table\n"
                       "of comma-separated values: the angles in degrees; distance times field in volts by component,\n"
                       "real and imaginary part (e_theta_re, e_theta_im, e_phi_re, e_phi_im); directivity; axial\n"
                       "ratio. Radiated power and peak directivity go to standard output.\n\n"
                       "The names of the files hold the frequency unless it is the only one of the project. Nothing\n"
                       "is written before all box files have been checked."));
    commandLine.addOption(QStringLiteral("frequency"),
                          QStringLiteral("Computes this one of the project's frequencies only, in Hz."),
                          QStringLiteral("HZ"));
    commandLine.addOption(QStringLiteral("force"),
                          QStringLiteral("Takes a --frequency that is not one of the project's."));
    commandLine.addOption(QStringLiteral("step"),
                          QStringLiteral("A sphere at this step instead of the requests."),
                          QStringLiteral("DEGREES"));
    commandLine.addOption(QStringLiteral("out"),
                          QStringLiteral("The folder for the files; made if there is none."),
                          QStringLiteral("DIR"));
    commandLine.addOption(QStringLiteral("plot"),
                          QStringLiteral("An image of the cuts at the azimuths 0 and 90 degrees, as SVG or PNG by the "
                                         "ending of the name (.svg, .png). Needs gnuplot."),
                          QStringLiteral("FILE"));
    commandLine.addFile(QStringLiteral("PROJECT"), QStringLiteral("The project file of the run."));
    commandLine.addFile(QStringLiteral("GEOMETRY"), QStringLiteral("Its geometry file."));
    commandLine.addFiles(QStringLiteral("BOXFILE"),
                         QStringLiteral("The fields on the far-zone box: a file for each frequency, in the order of "
                                        "the project, or the folder that holds the folders of the frequencies."));
    if (!commandLine.parse(arguments)) return ExitFine;
    return run(commandLine.files(), optionsFrom(commandLine));
}

}  // namespace quarn::tool
