#pragma once

#include <QByteArray>
#include <QString>

#include "quarn/Grid.h"
#include "quarn/v6GeometryFile.h"

namespace quarn::tool {

/// A geometry file and the text that it was loaded from.
struct LoadedGeometry {
    /// Throws a FileProblem when the content is not that of a geometry file, or of one that the library refuses.
    LoadedGeometry(const QString& path, const QByteArray& content);

    QString text;
    int invalidCharacters = 0;  ///< that the UTF-8 decoding had to replace
    v6GeometryFile geometry;
    Grid grid;
};

/// Whether the first line is the version line of a geometry file, of any version.
bool isGeometryFile(const QByteArray& content);

QByteArray savedBytes(const LoadedGeometry& loaded);

}  // namespace quarn::tool
