#pragma once

#include <QJsonObject>
#include <QStringList>
#include <vector>

#include "findings/BlockText.h"
#include "findings/LostLines.h"

namespace quarn::tool {

struct LoadedGeometry;
struct LoadedProject;

/// What there is to say about a project or geometry file.
struct Findings {
    QStringList circuit;  ///< the components and ports; no findings, but what the reader wants to see beside them
    QStringList errors;
    QStringList warnings;
    std::vector<LostLine> lost;
    std::vector<UnclosedBlock> unclosed;

    bool none() const;
    /// "no findings", "1 error, 3 lines not kept".
    QString summary() const;
    /// A text for each line that is not kept and each block that is not closed, behind the path and the line's number.
    QStringList lossTexts(const QString& path) const;
    QJsonObject toJson() const;
    /// Prints a line for each finding and the summary, each behind the path.
    void print(const QString& path) const;
};

/// What of the text of a file is not in what it was saved as: the lines, the blocks that were not closed and, as a
/// warning, the characters that are not UTF-8.
Findings lossIn(const LoadedProject& loaded, const QString& saved);
Findings lossIn(const LoadedGeometry& loaded, const QString& saved);

/// Validates the project and compares its text with what it is saved as. A project without boundary conditions gets
/// some, as it could not be saved otherwise.
Findings examine(LoadedProject& loaded);

/// Likewise for the grid, the materials and the maps.
Findings examine(const LoadedGeometry& loaded);

}  // namespace quarn::tool
