#pragma once

#include <QByteArray>
#include <QString>

#include "quarn/Grid.h"
#include "quarn/v6GeometryFile.h"

namespace quarn::tool {

/// A loaded geometry file and its text.
struct LoadedGeometry {
    /// Throws a FileProblem when the content is not a geometry file or the library refuses it.
    LoadedGeometry(const QString& path, const QByteArray& content);

    QString text;
    int invalidCharacters = 0;  ///< replaced by the UTF-8 decoding
    v6GeometryFile geometry;
    Grid grid;
};

/// Whether the first line is the version line of a geometry file, of any version.
bool isGeometryFile(const QByteArray& content);

QByteArray savedBytes(const LoadedGeometry& loaded);

}  // namespace quarn::tool
