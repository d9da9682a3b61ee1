#include "quarn/v6GeometryFile.h"

#include <QTextStream>

#include "blocktext/BlockWalker.h"
#include "blocktext/WholeText.h"
#include "geometry/GeometrySections.h"

namespace quarn {

using namespace blocktext;

namespace {

constexpr auto unrecognizedFormat = "Unrecognized *.id file format."_key;
constexpr auto undefinedMesh = "The mesh is undefined."_key;
constexpr auto refusedGrid = "Error initializing the grid."_key;

// The zeros replace the extent of the mesh in older files.
constexpr auto fileStart = "Geometry file version 3.20\n\nmesh_defined\n0 0 0\n0 0 0\n0 0 0\n0 0 0\n0 0 0\n0\n"_key;

// In file order.
constexpr const GeometrySection* sections[] = {&materialsSection,
                                               &materialMapsSection,
                                               &adaptiveGridSection,
                                               &gridDefinitionSection,
                                               &deltasSection,
                                               &averagedBinsSection};

bool readBlock(DelimManager& delim, const QString& name, GeometryContents& contents, QStringList& errors) {
    for (const GeometrySection* section : sections) {
        if (!section->read || name != section->name) continue;
        if (section->read(delim, contents)) return true;
        errors << section->failure;
        return false;
    }
    delim.SeekToEndOfDelim();
    return true;
}

bool readBlocks(DelimManager& delim, GeometryContents& contents, QStringList& errors) {
    QTextStream& in = delim.GetStream();
    QString name, value, description;
    for (in.skipWhiteSpace(); !in.atEnd(); in.skipWhiteSpace()) {
        name.clear();
        if (!delim.IsDelim(name, value, description)) {
            dropLine(in);
        } else if (!readBlock(delim, name, contents, errors)) {
            return false;
        }
    }
    return true;
}

// Reads what stands between the version and the blocks: the state of the mesh and its extent, which is ignored.
bool readFileStart(QTextStream& in, QStringList& errors) {
    constexpr int wordsOfExtent = 15;
    QString buffer;
    if (readWord(in, buffer) == "mesh_undefined"_key) {
        errors << undefinedMesh;
        return false;
    }
    for (int i = 0; i < wordsOfExtent; ++i) readWord(in, buffer);
    int more = 0;
    if (readValue(in, more) && more == 1) readWord(in, buffer);
    in.resetStatus();
    return true;
}

// A file that claims more cells than any grid has must not allocate memory for them. It is refused even when the caller
// does not want the grid, so that the validity of a file does not depend on the call. The grid may be null.
bool initialize(Grid* grid, const GeometryContents& contents, QStringList& errors) {
    constexpr std::uint64_t maximumCells = 1U << 22;
    const auto& [x, y, z] = contents.gridAxes;
    bool isAccepted = std::uint64_t{x.cells} + y.cells + z.cells <= maximumCells;
    if (isAccepted && grid) {
        isAccepted = grid->initialize(x.cells,
                                      y.cells,
                                      z.cells,
                                      static_cast<float>(x.origin),
                                      static_cast<float>(y.origin),
                                      static_cast<float>(z.origin),
                                      x.runs,
                                      y.runs,
                                      z.runs,
                                      true);
    }
    if (!isAccepted) errors << refusedGrid;
    return isAccepted;
}

// The integral part of a number, or 0 when it does not fit into an int.
std::int32_t wholePart(float number) {
    constexpr float limit = 2147483648.0F;
    return number > -limit && number < limit ? static_cast<std::int32_t>(number) : 0;
}

}  // namespace

void describeGeometryBlocks(FormatBuilder& builder) {
    for (const GeometrySection* section : sections) section->describe(builder);
}

bool v6GeometryFile::saveToStream(const Grid& grid, QTextStream& stream) const { return save(QString(), grid, stream); }

bool v6GeometryFile::save(const QString& path, const Grid& grid, QTextStream& stream) const {
    QString text;
    QTextStream blocks(&text, QIODevice::WriteOnly);
    blocks.setRealNumberPrecision(17);
    DelimManager delim(blocks, path);
    const GridAxes axes = axesOf(grid);
    for (const GeometrySection* section : sections) {
        if (section->write && !section->write(delim, *this, axes)) return false;
    }

    stream.setRealNumberPrecision(17);
    stream.setCodec("UTF-8");
    stream << fileStart << text;
    stream.flush();
    return stream.status() == QTextStream::Ok;
}

bool v6GeometryFile::loadFromStream(QTextStream& stream, Grid* grid, QStringList& errors) {
    return load(QString(), stream, grid, errors);
}

bool v6GeometryFile::load(const QString& path, QTextStream& stream, Grid* grid, QStringList& errors) {
    decodeAsUtf8(stream);
    if (!acceptsVersionOf(stream, errors)) return false;
    WholeText text(stream);
    if (!readFileStart(text.stream(), errors)) return false;
    GeometryContents contents;
    addBuiltInMaterials(contents);
    DelimManager delim(text.stream(), path);
    if (!readBlocks(delim, contents, errors)) return false;
    if (!initialize(grid, contents, errors)) return false;
    install(contents);
    return true;
}

// Version 3 and any version with the minor number 19 are accepted.
bool v6GeometryFile::acceptsVersionOf(QTextStream& stream, QStringList& errors) {
    constexpr int longestLine = 255;
    m_majorFileVersion = 0;
    m_minorFileVersion = 0;
    QString line = stream.readLine(longestLine).toLower().remove(u' ');
    const auto phrase = "geometryfileversion"_key;
    if (!line.contains(phrase)) {
        stream.seek(0);
    } else if (line.remove(phrase).isEmpty()) {
        m_majorFileVersion = -1;
    } else {
        m_majorFileVersion = wholePart(line.toFloat());
        const int point = line.indexOf(u'.');
        m_minorFileVersion = point < 0 ? 0 : line.midRef(point + 1).toInt();
    }
    if (m_majorFileVersion == 3 || m_minorFileVersion == 19) return true;
    errors << unrecognizedFormat;
    return false;
}

}  // namespace quarn
