#include <QDir>
#include <QFileInfo>
#include <cmath>

#include "Console.h"
#include "ProgressBar.h"
#include "Quantity.h"
#include "commands/Commands.h"
#include "commands/FarZonePlan.h"
#include "files/CsvWriter.h"
#include "files/FarZoneBoxFile.h"
#include "files/GeometryOnDisk.h"
#include "files/InputFile.h"
#include "files/OutputFile.h"
#include "files/ProjectOnDisk.h"
#include "plots/PolarPlot.h"
#include "quarn/BoundaryConditions.h"
#include "quarn/DataFileWriter.h"
#include "sheets/Sheet.h"

namespace quarn::tool {

namespace {

FarZoneBox boxOf(const ProjectFile& project, const QString& path, const Grid& grid) {
    if (!project.getBoundaryConditions()) {
        throw FileProblem(path, "has no boundary conditions, and so no far-zone box");
    }
    BoundaryConditions boundaries = *project.getBoundaryConditions();
    boundaries.cacheVariables();
    const FarZoneBox box(boundaries, grid);
    if (!box.isValid()) {
        throw FileProblem(path,
                          "there is no far-zone box: it needs open boundaries, one PEC plane at most, and cells "
                          "between the margins of the grid");
    }
    return box;
}

/// The far fields of one frequency.
class FarZone {
public:
    /// Throws a FileProblem when the radiated power is not a positive finite number.
    FarZone(const FieldsOnSSFarZoneBox& fields, const FarZoneJob& job)
        : m_processor(&fields, job.frequency, 0, 0), m_power(powerOf(fields, m_processor)) {
        if (std::isfinite(m_power.watts) && m_power.watts > 0.0) return;
        throw FileProblem(
            job.boxFile,
            text("the fields give a radiated power of %1 W; the run has probably diverged").arg(m_power.watts));
    }

    const RadiatedPower& power() const { return m_power; }

    FarZoneRecords in(const FarZoneAngles& directions) const {
        ProgressBar bar(text("Far field"));
        FarZoneRecords records;
        if (m_processor.computeFields(directions, records, bar.reporter())) return records;
        throw std::runtime_error("the far field was not computed, as the fields on the box are not complete");
    }

private:
    static RadiatedPower powerOf(const FieldsOnSSFarZoneBox& fields, const PostProcessSSFarZoneFields& processor) {
        ProgressBar bar(text("Radiated power"));
        return radiatedPower(fields, processor, bar.reporter());
    }

    PostProcessSSFarZoneFields m_processor;
    RadiatedPower m_power;
};

PolarCurve curveOf(const FarZone& farZone, double azimuth) {
    PolarCurve curve{text("phi = %1°").arg(azimuth), {}, {}};
    for (const auto& record : farZone.in(polarCut(azimuth))) {
        curve.angles.push_back(toDegrees(record.theta));
        curve.values.push_back(farZone.power().directivity(record));
    }
    return curve;
}

QString peakText(const RadiatedPower& power) {
    const auto rounded = [](double value) { return std::round(100.0 * value) / 100.0; };
    return text("%1 dBi at theta %2, phi %3")
        .arg(numberText(rounded(power.directivity(power.peak))),
             degrees(rounded(toDegrees(power.peak.theta))),
             degrees(rounded(toDegrees(power.peak.phi))));
}

void makeFolderOf(const QString& file) {
    const QString folder = QFileInfo(file).path();
    if (!QDir().mkpath(folder)) throw FileProblem(folder, "the folder cannot be made");
}

/// An image of the principal cuts; null when no plot is wanted.
QByteArray plotOf(const FarZoneJob& job, const FarZone& farZone, const QString& frequency) {
    if (job.plot.isEmpty()) return {};
    const QString title = text("Directivity in dBi at ") + frequency;
    return polarPlot(*imageFormatOf(job.plot), title, {curveOf(farZone, 0.0), curveOf(farZone, 90.0)});
}

/// Writes the records in the engine's format.
void writeRecords(const QString& path, const FarZoneRecords& records) {
    writeFile(path, [&records](const QString& made) {
        DataFileWriter writer;
        bool isWritten = writer.open(made, text("wb"));
        for (const auto& record : records) isWritten = isWritten && FarZoneSSFieldFile::writeRecord(writer, record);
        return writer.close() && isWritten;
    });
}

void writeTable(const QString& path, const FarZoneRecords& records, const RadiatedPower& power) {
    QByteArray table;
    {
        CsvWriter csv(table);
        csv.addHeader("theta_deg,phi_deg,e_theta_re,e_theta_im,e_phi_re,e_phi_im,directivity_dbi,axial_ratio_db");
        for (const auto& record : records) {
            csv.addRow(static_cast<float>(toDegrees(record.theta)),
                       static_cast<float>(toDegrees(record.phi)),
                       record.eTheta,
                       record.ePhi,
                       static_cast<float>(power.directivity(record)),
                       static_cast<float>(axialRatio(record)));
        }
    }
    writeFile(path, table);
}

/// Computes everything before it writes the first file.
void writeFarFields(const FarZoneJob& job, const std::vector<FarZoneAngles>& directions,
                    const FieldsOnSSFarZoneBox& fields) {
    const QString frequency = withPrefix(job.frequency, "Hz");
    const FarZone farZone(fields, job);
    const QByteArray plot = plotOf(job, farZone, frequency);
    std::vector<FarZoneRecords> patterns;
    patterns.reserve(directions.size());
    for (const FarZoneAngles& angles : directions) patterns.push_back(farZone.in(angles));

    for (const QString& output : job.outputs()) makeFolderOf(output);
    Sheet sheet(text("%1: far field at %2").arg(job.boxFile, frequency));
    sheet.add("Radiated power", withPrefix(farZone.power().watts, "W"));
    sheet.add("Peak directivity", peakText(farZone.power()));
    for (std::size_t i = 0; i < patterns.size(); ++i) {
        const auto& [recordFile, tableFile] = job.patterns[i];
        writeRecords(recordFile, patterns[i]);
        writeTable(tableFile, patterns[i], farZone.power());
        sheet.add("Pattern", counted(patterns[i].size(), "direction"));
        sheet.addDetail("Records", recordFile);
        sheet.addDetail("Table", tableFile);
    }
    if (!job.plot.isEmpty()) {
        writeFile(job.plot, plot);
        sheet.add("Plot", job.plot);
    }
    sheet.print();
}

ExitStatus run(const QString& projectPath, const QString& geometryPath, const QStringList& boxFiles,
               const FarZoneOptions& options) {
    const LoadedProject project(projectPath, readFile(projectPath));
    const LoadedGeometry geometry(geometryPath, readFile(geometryPath));
    const FarZoneBox box = boxOf(project.project, projectPath, geometry.grid);
    const auto fieldsFor = [&](const FarZoneJob& job) {
        return loadBoxFields(job.boxFile, box, geometry.grid, geometryPath, job.frequency);
    };

    const FarZonePlan plan = planFarZone(project.project, projectPath, boxFiles, options);
    QStringList inputs{projectPath, geometryPath};
    for (const FarZoneJob& job : plan.jobs) inputs << job.boxFile;
    checkOutputs(plan, inputs);
    // The fields of all frequencies may not fit into memory together, so they are loaded once for the check and again
    // for the computation.
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

void checkPlot(const QString& path) {
    const auto format = imageFormatOf(path);
    if (!format) throw WrongUsage("--plot needs the name of a file that ends in .svg or .png.");
    if (canPlot(*format)) return;
    throw WrongUsage(
        "--plot needs gnuplot, which is not installed or cannot draw such images; install it, or leave --plot out.");
}

constexpr char helpText[] =
    "Transforms the steady-state fields on the far-zone box of a run into far fields, for each\n"
    "steady-state frequency of the project, in the directions of its far-zone requests, or of a\n"
    "sphere where it has none. Each list of directions gives a file of records (.uan) and a table\n"
    "of comma-separated values: the angles in degrees; distance times field in volts by component,\n"
    "real and imaginary part (e_theta_re, e_theta_im, e_phi_re, e_phi_im); directivity; axial\n"
    "ratio. Radiated power and peak directivity go to standard output.\n\n"
    "The names of the files hold the frequency unless it is the only one of the project. Nothing\n"
    "is written before all box files have been checked.";

}  // namespace

void addFarZone(CLI::App& quarn, int& status) {
    struct Arguments {
        QString project;
        QString geometry;
        QStringList boxFiles;
        FarZoneOptions options;
    };
    const auto given = std::make_shared<Arguments>();
    FarZoneOptions& options = given->options;
    CLI::App& command =
        addCommand(quarn, "farzone", "Computes far fields from the fields on a far-zone box", text(helpText));
    addOption(command,
              "--frequency",
              "HZ",
              options.frequency,
              {1.0, 1e15},
              "Computes this one of the project's frequencies only, in Hz.");
    addFlag(command, "--force", options.takesAnyFrequency, "Takes a --frequency that is not one of the project's.");
    addOption(
        command, "--step", "DEGREES", options.step, {0.1, 90.0}, "A sphere at this step instead of the requests.");
    addOption(command, "--out", "DIR", options.folder, "The folder for the files; created if it does not exist.");
    addOption(command,
              "--plot",
              "FILE",
              options.plot,
              "An image of the cuts at the azimuths 0 and 90 degrees, as SVG or\n"
              "PNG by the ending of the name (.svg, .png). Needs gnuplot.");
    addArgument(command, "PROJECT", given->project, "The project file of the run.");
    addArgument(command, "GEOMETRY", given->geometry, "Its geometry file.");
    addArguments(command,
                 "BOXFILE",
                 given->boxFiles,
                 "The fields on the far-zone box: a file for each frequency, in the\n"
                 "order of the project, or the folder that holds the folders of the\n"
                 "frequencies.");
    command.callback([given, &status] {
        if (!given->options.plot.isNull()) checkPlot(given->options.plot);
        status = run(given->project, given->geometry, given->boxFiles, given->options);
    });
}

}  // namespace quarn::tool
