#pragma once

#include <QJsonObject>
#include <QStringList>
#include <vector>

#include "findings/BlockScan.h"
#include "findings/LostLines.h"

namespace quarn::tool {

struct LoadedGeometry;
struct LoadedProject;

/// The findings about a project or geometry file.
struct Findings {
    QStringList circuit;  ///< the components and ports, which are printed but are not findings
    QStringList errors;
    QStringList warnings;
    std::vector<LostLine> lost;
    std::vector<UnclosedBlock> unclosed;

    bool none() const;
    /// "no findings", "1 error, 3 lines not kept".
    QString summary() const;
    /// A message for each line that is not kept and each block that is not closed, with the path and the line number.
    QStringList lossTexts(const QString& path) const;
    QJsonObject toJson(const QString& path) const;
    /// Prints a line for each finding and the summary, each after the path.
    void print(const QString& path) const;
};

/// Compares the text of a file with the text that was saved after loading it: lines that are not kept, blocks that are
/// not closed and, as a warning, characters that are not UTF-8.
Findings lossIn(const LoadedProject& loaded, const QString& saved);
Findings lossIn(const LoadedGeometry& loaded, const QString& saved);

/// Validates the project and compares its text with the text that is saved. A project without boundary conditions gets
/// some, because it cannot be saved without them.
Findings examine(LoadedProject& loaded);

/// Checks the grid, the materials and the maps, and compares the text with the text that is saved.
Findings examine(const LoadedGeometry& loaded);

}  // namespace quarn::tool
