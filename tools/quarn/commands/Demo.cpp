#include <QDir>

#include "Console.h"
#include "commands/Commands.h"
#include "commands/DipoleDemo.h"
#include "files/InputFile.h"
#include "files/OutputFile.h"
#include "files/ProjectOnDisk.h"
#include "findings/Findings.h"
#include "quarn/quarn.h"
#include "sheets/Sheet.h"

namespace quarn::tool {

namespace {

constexpr float ismBand = 2.45e9F;
constexpr float xBand = 10e9F;
const QPair<QString, double> millimetres{text("mm"), 1e-3};

Waveform* modulatedGaussian(float frequency) {
    constexpr float pulseWidth = 512;
    return new Waveform(Waveform::ModulatedGaussian, pulseWidth, frequency, {}, {});
}

/// Ends a run when its fields have decayed around the frequency, or after the maximum number of timesteps.
void endWhenConverged(ProjectFile& project, unsigned maximumTimesteps, float frequency) {
    constexpr unsigned minimumTimesteps = 1000;
    constexpr unsigned noWallClockLimit = 0;
    auto* criteria = new TerminationCriteria(minimumTimesteps, maximumTimesteps, noWallClockLimit);
    criteria->addConvergence(-40, 5, 5, true, TerminationCriteria::Medium);
    project.setTerminationCriteria(criteria);
    auto* tdAfs = new TdAfsTerminationCriteria;
    tdAfs->addTdAfsConvergence(0.8F * frequency,
                               1.2F * frequency,
                               201,
                               TdAfsTerminationCriteria::Energy,
                               TdAfsTerminationCriteria::Interpolation,
                               3);
    project.setTdAfsTerminationCriteria(tdAfs);
}

/// A plane wave that travels along x through a box open on all sides.
void describePlaneWave(ProjectFile& project) {
    constexpr auto open = BoundaryConditions::CPML;
    constexpr float airConvection = 5;
    project.setDisplayUnits(millimetres);
    project.setBoundaryConditions(new BoundaryConditions(open, open, open, open, open, open, 8));
    project.setAmbientConditions(new AmbientConditions(
        298.15F, AmbientConditions::HeatTransfer, airConvection, AmbientConditions::HeatTransfer, airConvection));
    project.setPlaneWave(
        new TFSFPlaneWave(90, 180, 1, PlaneWave::Theta, text("plane-wave.inc"), true, true, true, true, true, true));
    project.getWaveforms().push_back(modulatedGaussian(ismBand));
    endWhenConverged(project, 20000, ismBand);
    project.getSteadyStateFrequencies().push_back({ismBand, text("2.45GHz")});
}

/// One cell of an infinite array in x and y, illuminated at 30 degrees from its normal.
void describePeriodicCell(ProjectFile& project) {
    constexpr auto open = BoundaryConditions::CPML;
    constexpr auto repeated = BoundaryConditions::Periodic;
    constexpr float theta = 30;
    constexpr float phi = 45;
    auto* boundaries = new BoundaryConditions(repeated, repeated, repeated, repeated, open, open, 8);
    boundaries->addPeriodicScanAngleParameters(phi, theta, xBand);
    project.setDisplayUnits(millimetres);
    project.setBoundaryConditions(boundaries);
    project.setPlaneWave(new PlaneWave(theta, phi, 1, PlaneWave::Phi, text("periodic-cell.inc")));
    project.getWaveforms().push_back(new Waveform(Waveform::Sinusoid, 0, xBand, {}, {}));
    project.setUseUsersCFL(true);
    project.setCFL(0.9F);
    endWhenConverged(project, 50000, xBand);
}

struct Example {
    const char* fileName;
    const char* description;
    void (*describe)(ProjectFile& project);
};

constexpr char dipoleFile[] = "dipole.project";

constexpr Example examples[] = {
    {"plane-wave.project", "A plane wave at 2.45 GHz through a box open on all sides", describePlaneWave},
    {"periodic-cell.project",
     "A unit cell, periodic in x and y, scanned at 30 degrees and 10 GHz",
     describePeriodicCell},
    {dipoleFile, "A half-wave dipole at 1 GHz, fed in its middle", describeDipole},
};

/// Saves the example, loads it back and prints the result; false when something differs or is found.
bool show(const Example& example, const QDir& folder) {
    OwnedProject project;
    example.describe(project);
    const QString path = folder.filePath(QLatin1String(example.fileName));
    const QByteArray saved = savedBytes(project);
    writeFile(path, saved);

    LoadedProject loaded(path, readFile(path));
    const bool identical = savedBytes(loaded.project) == saved;
    const Findings findings = examine(loaded);

    Sheet sheet(QString::fromLatin1(example.description));
    sheet.add("File", path);
    sheet.add("Size", counted(static_cast<std::size_t>(saved.size()), "byte"));
    sheet.add("Check", findings.summary());
    sheet.add("Read back", QLatin1String(identical ? "identical" : "different"));
    sheet.print();
    if (!findings.none()) findings.print(path);
    out() << '\n';
    return identical && findings.none();
}

ExitStatus showExamples(const QDir& folder) {
    if (!folder.mkpath(text("."))) throw FileProblem(folder.path(), "cannot make the folder");
    bool isAllRight = true;
    for (const Example& example : examples) isAllRight = show(example, folder) && isAllRight;
    isAllRight = showDipole(folder.filePath(text(dipoleFile)), folder) && isAllRight;
    out() << "\nSee one with: quarn show " << folder.filePath(text(examples[0].fileName)) << '\n';
    return isAllRight ? ExitFine : ExitFindings;
}

}  // namespace

void addDemo(CLI::App& quarn, int& status) {
    const auto path = std::make_shared<QString>();
    CLI::App& command = addCommand(
        quarn,
        "demo",
        "Takes example runs through the whole path, one to its far field",
        text("Describes example runs through the library, checks and saves them, reads the files back and\n"
             "compares. One of them, a half-wave dipole, continues to the far field: its exact fields take the\n"
             "place of an engine's results, are transformed and compared with the closed form.\n"
             "Exit status 1 when something differs or is found."));
    addArgument(command, "DIR", *path, "The folder for the files; created if it does not exist.");
    command.callback([path, &status] { status = showExamples(QDir(*path)); });
}

}  // namespace quarn::tool
