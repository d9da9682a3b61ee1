#pragma once

#include <QTextStream>

#include "TestSupport.h"
#include "quarn/Grid.h"
#include "quarn/v6GeometryFile.h"

namespace quarn::test {

inline const QString versionLine = "Geometry file version 3.20\n";
inline const QString fileStart = versionLine + "\nmesh_defined\n0 0 0\n0 0 0\n0 0 0\n0 0 0\n0 0 0\n0\n";
inline const QString builtInElectric =
    "begin_<electricfreespace> ElectricFreeSpace\nmaterial_number 0\nconductivity 0\npermittivity 1\ndensity 0\n"
    "end_<electricfreespace>\n"
    "begin_<electricperfectconductor> ElectricPerfectConductor\nmaterial_number 1\nend_<electricperfectconductor>\n";
inline const QString builtInMagnetic =
    "begin_<magneticfreespace> MagneticFreeSpace\nmaterial_number 0\npermeability 1\nend_<magneticfreespace>\n"
    "begin_<magneticperfectconductor> MagneticPerfectConductor\nmaterial_number 1\n"
    "end_<magneticperfectconductor>\n";

/// A file up to the end of its materials, the built-in ones included.
inline QString withMaterials(const QString& electric, const QString& magnetic = QString()) {
    return fileStart + "begin_<materials> \n" + builtInElectric + electric + builtInMagnetic + magnetic +
           "end_<materials>\n";
}

/// The rest of a file without maps and cells, below the materials.
inline const QString emptyGrid = expanded(
    "materialMaps{} GridDefinition{ GridOriginInMeters 0 0 0; NumberOfCellsInX 0; NumberOfCellsInY 0;"
    "NumberOfCellsInZ 0; } Deltas{ DelX{} DelY{} DelZ{} } AveragedMaterialBins{}");

inline bool loadText(v6GeometryFile& file, QString text, Grid* grid = nullptr, QStringList* errors = nullptr) {
    QTextStream stream(&text, QIODevice::ReadOnly);
    QStringList ignored;
    return file.loadFromStream(stream, grid, errors ? *errors : ignored);
}

inline QString savedText(const v6GeometryFile& file, const Grid& grid = Grid()) {
    QByteArray bytes;
    QTextStream stream(&bytes, QIODevice::WriteOnly);
    EXPECT_TRUE(file.saveToStream(grid, stream));
    return QString::fromUtf8(bytes);
}

}  // namespace quarn::test
