#include "commands/DipoleDemo.h"

#include <algorithm>
#include <cmath>

#include "Console.h"
#include "FarZonePattern.h"
#include "Quantity.h"
#include "commands/Commands.h"
#include "files/GeometryOnDisk.h"
#include "files/InputFile.h"
#include "files/OutputFile.h"
#include "files/ProjectOnDisk.h"
#include "findings/Findings.h"
#include "plots/PolarPlot.h"
#include "quarn/quarn.h"
#include "reference/ExactFields.h"
#include "sheets/Sheet.h"

namespace quarn::tool {

namespace {

constexpr float frequency = 1e9F;
constexpr double waveLength = constants::speedOfLight / 1e9;
constexpr float cellSize = 0.0075F;  // a fortieth of a wavelength
constexpr std::uint32_t cells = 49;  // on each axis
constexpr std::uint32_t middleCell = 24;
constexpr double sphereStep = 5.0;  // degrees

Grid cubicGrid() {
    const float origin = -static_cast<float>(middleCell) * cellSize;
    const Grid::Runs uniform{{0, cellSize}};
    Grid grid;
    grid.initialize(cells, cells, cells, origin, origin, origin, uniform, uniform, uniform, true);
    return grid;
}

// The cells of the wire take the second map, as its current flows along z.
v6GeometryFile wireInFreeSpace() {
    v6GeometryFile geometry;
    geometry.setElectricMaterials({new ElectricFreeSpace(text("ElectricFreeSpace")),
                                   new ElectricPerfectConductor(text("ElectricPerfectConductor"))});
    geometry.setMagneticMaterials({new MagneticFreeSpace(text("MagneticFreeSpace")),
                                   new MagneticPerfectConductor(text("MagneticPerfectConductor"))});
    geometry.setMaterialMappings(
        {new MaterialMap(text("Free space"), 0, 0, 0, 0, 0, 0), new MaterialMap(text("Wire"), 0, 0, 1, 0, 0, 0)});
    return geometry;
}

/// With a current of 1 A in its middle, where the feed is.
reference::WireDipole halfWaveDipole(const Grid& grid) {
    return {{0.0, 0.0, grid.getUserZMagneticNodeLocation(middleCell)}, {0.0, 0.0, 1.0}, 0.5 * waveLength, 1.0};
}

bool showGeometry(const QString& path) {
    QByteArray saved;
    QTextStream stream(&saved, QIODevice::WriteOnly);
    wireInFreeSpace().saveToStream(cubicGrid(), stream);
    writeFile(path, saved);

    const LoadedGeometry loaded(path, readFile(path));
    const bool identical = savedBytes(loaded) == saved;
    const Findings findings = examine(loaded);
    Sheet sheet(text("Its grid and its materials"));
    sheet.add(text("File"), path);
    sheet.add(text("Check"), findings.summary());
    sheet.add(text("Read back"), QLatin1String(identical ? "identical" : "different"));
    sheet.print();
    out() << '\n';
    return identical && findings.none();
}

/// The largest difference between computed and exact fields over the directions, relative to the largest exact field.
double deviation(const FarZoneRecords& records, const reference::Source& source, const FarZoneBox& box) {
    const reference::Vector center{box.getXCenter(), box.getYCenter(), box.getZCenter()};
    const double waveNumber = reference::waveNumberOf(static_cast<double>(frequency));
    double largestDifference = 0.0;
    double largestField = 0.0;
    for (const auto& record : records) {
        const auto field =
            source.far(static_cast<double>(record.theta), static_cast<double>(record.phi), waveNumber, center);
        const reference::Complex theta(record.eTheta);
        const reference::Complex phi(record.ePhi);
        largestDifference =
            std::max(largestDifference, std::hypot(std::abs(theta - field.theta), std::abs(phi - field.phi)));
        largestField = std::max(largestField, std::hypot(std::abs(field.theta), std::abs(field.phi)));
    }
    return largestDifference / largestField;
}

bool showDeviation(const QString& boxPath, const Grid& grid, const FarZoneBox& box, const reference::Source& source) {
    constexpr double tolerance = 0.01;
    QString problem;
    const FieldsOnSSFarZoneBox fields(grid, boxPath, box, problem);
    if (!problem.isEmpty()) throw FileProblem(boxPath, problem);
    FarZoneRecords records;
    PostProcessSSFarZoneFields(&fields, frequency, 0, 0).computeFields(sphereOf(sphereStep), records);
    const double found = deviation(records, source, box);
    Sheet sheet(text("Against the closed form"));
    sheet.add(text("Deviation"),
              text("%1 % of the peak (%2 dB), the largest of %3")
                  .arg(numberText(100.0 * found),
                       QString::number(20.0 * std::log10(found), 'f', 1),
                       counted(records.size(), text("direction"))));
    sheet.add(text("Half-wave dipole"), text("2.15 dBi, 36.6 W for 1 A"));
    sheet.print();
    return found < tolerance;
}

}  // namespace

void describeDipole(ProjectFile& project) {
    constexpr auto open = BoundaryConditions::CPML;
    constexpr float peakAmplitude = 1;
    constexpr float resistance = 73;
    project.setDisplayUnits({text("mm"), 1e-3});
    project.setBoundaryConditions(new BoundaryConditions(open, open, open, open, open, open, 8));
    const CircuitComponent place(text("Feed"), middleCell, middleCell, middleCell, CircuitComponent::Z, true);
    auto* feed = new Feed(place,
                          CircuitComponent::SeriesVoltage,
                          0,
                          peakAmplitude,
                          0,
                          resistance,
                          0,
                          0,
                          0,
                          CircuitComponent::Series,
                          CircuitComponent::Positive);
    project.setComponentManager(new ComponentManager({feed}, false, -1));
    project.getWaveforms().push_back(new Waveform(Waveform::Sinusoid, 0, frequency, {}, {}));
    project.setTerminationCriteria(new TerminationCriteria(1000, 20000, 0));
    project.getSteadyStateFrequencies().push_back({frequency, text("1GHz")});
    FarZoneAngles directions = polarCut(0.0);
    const FarZoneAngles crossing = polarCut(90.0);
    directions.insert(directions.end(), crossing.begin(), crossing.end());
    project.getSteadyStateFarZoneRequests().emplace_back(directions, text("dipole.fz"));
}

bool showDipole(const QString& projectPath, const QDir& folder) {
    const QString geometryPath = folder.filePath(text("dipole.geometry"));
    const QString boxPath = folder.filePath(text("dipole-1GHz.box"));
    if (!showGeometry(geometryPath)) return false;

    const LoadedGeometry geometry(geometryPath, readFile(geometryPath));
    const LoadedProject project(projectPath, readFile(projectPath));
    const FarZoneBox box(*project.project.getBoundaryConditions(), geometry.grid);
    const reference::WireDipole dipole = halfWaveDipole(geometry.grid);
    writeFile(boxPath, [&](const QString& path) {
        return reference::writeBoxFields(path, geometry.grid, box, dipole, static_cast<double>(frequency));
    });

    QStringList arguments{text("farzone"), text("--out"), folder.path()};
    if (canPlot(ImageFormat::Svg)) {
        arguments << text("--plot") << folder.filePath(text("dipole.svg"));
    } else {
        printError(text("no plot is made: gnuplot is not installed"));
    }
    if (runTool(arguments << projectPath << geometryPath << boxPath) != ExitFine) return false;
    out() << '\n';
    return showDeviation(boxPath, geometry.grid, box, dipole);
}

}  // namespace quarn::tool
