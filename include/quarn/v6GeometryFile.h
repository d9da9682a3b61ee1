#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>

#include "quarn/Export.h"
#include "quarn/GeometryFile.h"

class QTextStream;

namespace quarn {

class Grid;

/// Materials and maps that can be written, with a grid, as the engine's geometry text file and read back.
///
/// The file numbers materials by their position. A load puts free space and the perfect conductor at positions 0 and 1
/// of both lists and skips their blocks in the file, so that the positions of a list survive when it begins with those
/// two. Not preserved are the names of these four, the flags of sampled materials, useSurfaceConductivity(), the loss
/// tangent and the imaginary part of normal materials that do not use them, and the physical parameters of all but
/// ElectricNormal. A name must not hold a line break, nor be longer than about 950 characters. The grid's origin is
/// read in single precision.
class QUARN_EXPORT v6GeometryFile : public GeometryFile {
public:
    /// The version of the file that was read last, -1 and 0 where its first line names none, 0 and 0 without such a
    /// line.
    std::int32_t GetMajorFileVersionNumber() const { return m_majorFileVersion; }
    std::int32_t GetMinorFileVersionNumber() const { return m_minorFileVersion; }

    /// Writes to the stream, in UTF-8 and with 17 digits; the path is not used. The whole text is made before the first
    /// byte is written. False when the stream is in error afterwards, or, with nothing written, when a list holds a
    /// null or a material of an unknown class.
    bool save(const QString& path, const Grid& grid, QTextStream& stream) const;
    bool saveToStream(const Grid& grid, QTextStream& stream) const;

    /// Replaces the materials and maps by those of the file and lays out the grid, which may be null. The stream is
    /// read as UTF-8 to its end; the path is not used. Unknown blocks and keys are skipped, and what a file omits is
    /// zero or the default of the class.
    ///
    /// False when the version is neither 3 nor any with the minor number 19, when the mesh is undefined, when a number
    /// cannot be read, when the axes have more than 2^22 cells together, or when the grid refuses (Grid::initialize).
    /// `errors` then says which, and grid, materials and maps are as they were.
    bool load(const QString& path, QTextStream& stream, Grid* grid, QStringList& errors);
    bool loadFromStream(QTextStream& stream, Grid* grid, QStringList& errors);

private:
    bool acceptsVersionOf(QTextStream& stream, QStringList& errors);

    std::int32_t m_majorFileVersion = 0;
    std::int32_t m_minorFileVersion = 0;
};

}  // namespace quarn
