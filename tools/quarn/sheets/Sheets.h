#pragma once

#include <QByteArray>
#include <QStringList>

#include "files/InputFile.h"
#include "quarn/ProjectFile.h"
#include "sheets/Sheet.h"

/// What `quarn show` prints. Long lists are cut. All functions that take a file throw a FileProblem.
namespace quarn::tool {

Sheet sheetOfProject(const QString& path, const QByteArray& content);

/// The grid, the materials and the number of maps of a geometry file.
Sheet sheetOfGeometry(const QString& path, const QByteArray& content);

/// A file of meshless vias, and whether it is shorter than its header says.
Sheet sheetOfVias(const QString& path, const QByteArray& content);

/// The cuts of an antenna pattern file, the refused ones with the reason.
Sheet sheetOfPattern(const QString& path, const QByteArray& content);

/// A result file with the range of its values, and whether it is cut short. Reads the file piece by piece.
Sheet sheetOfResult(const InputFile& file, FileKind kind);

/// The components, static voltages and waveguide ports of a project.
void addCircuit(Sheet& sheet, const ProjectFile& project);

/// The results that a project requests.
void addRequests(Sheet& sheet, const ProjectFile& project);

/// A line for each component and each waveguide port: "port 0: NAME ...", "component 7: NAME ...".
QStringList circuitLines(const ProjectFile& project);

}  // namespace quarn::tool
