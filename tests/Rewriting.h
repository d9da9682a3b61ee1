#pragma once

#include <QTextStream>

#include "quarn/Grid.h"
#include "quarn/quarn.h"

namespace quarn::test {

/// Loads and checks a project and returns its saved form; null when it is refused.
inline QString rewrittenProject(QTextStream& input, QStringList& errors) {
    v6ProjectFile project;
    const bool isLoaded = project.loadFromStream(input, errors);
    QStringList findings;
    project.checkValidity(findings, findings);
    if (!project.getBoundaryConditions()) {  // saving needs them
        constexpr auto any = BoundaryConditions::PEC;
        project.setBoundaryConditions(new BoundaryConditions(any, any, any, any, any, any, 0));
    }
    project.setModelingUnits({"m", 1.0});  // a saved file does not set them when it is read
    QString text;
    QTextStream output(&text, QIODevice::WriteOnly);
    const bool failed = project.saveToStream(output);
    deleteContents(project);
    return isLoaded && !failed ? text : QString();
}

/// Loads and copies a geometry and returns its saved form; null when it is refused.
template <class AnyGrid = Grid>
QString rewrittenGeometry(QTextStream& input, QStringList& errors) {
    v6GeometryFile file;
    AnyGrid grid;
    if (!file.loadFromStream(input, &grid, errors)) return {};
    QString text;
    QTextStream output(&text, QIODevice::WriteOnly);
    return v6GeometryFile(file).saveToStream(grid, output) ? text : QString();
}

}  // namespace quarn::test
