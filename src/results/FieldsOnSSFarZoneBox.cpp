#include "quarn/FieldsOnSSFarZoneBox.h"

#include <algorithm>
#include <cstddef>
#include <new>
#include <utility>

#include "quarn/DataFileReader.h"
#include "quarn/FarZoneFieldFiles.h"
#include "quarn/FileHeader.h"
#include "quarn/Grid.h"

namespace quarn {

namespace {

using Record = FieldsOnSteadyStateFarZoneBoxFile::Record;

constexpr FarZoneBox::Face facesInFileOrder[] = {FarZoneBox::XLower,
                                                 FarZoneBox::XUpper,
                                                 FarZoneBox::YLower,
                                                 FarZoneBox::YUpper,
                                                 FarZoneBox::ZLower,
                                                 FarZoneBox::ZUpper};

constexpr std::uint64_t recordsReadAtOnce = 1U << 15;

/// A component of more cells would take half a tebibyte or more, which a system may grant but does not have.
constexpr std::uint64_t mostCellsOnFace = std::uint64_t{1} << 36;

constexpr std::size_t numAxes = 3;

std::uint64_t cellsOn(const FarZoneBox& box, FarZoneBox::Face face) {
    return std::uint64_t{box.axis((face + 1) % numAxes).cells} * box.axis((face + 2) % numAxes).cells;
}

}  // namespace

FieldsOnSSFarZoneBox::FieldsOnSSFarZoneBox(const Grid& grid, const QString& path, const FarZoneBox& box,
                                           QString& errorMessage)
    : m_box(box) {
    const QString problem = build(grid, path);
    m_isComplete = problem.isEmpty();
    if (!m_isComplete) errorMessage = problem;
}

FieldsOnSSFarZoneBox::FieldsOnSSFarZoneBox(FieldsOnSSFarZoneBox&& other) noexcept
    : m_box(std::exchange(other.m_box, FarZoneBox())),
      m_axes(std::exchange(other.m_axes, {})),
      m_faces(std::exchange(other.m_faces, {})),
      m_isComplete(std::exchange(other.m_isComplete, false)) {}

// The third object keeps an object that is assigned to itself as it is.
FieldsOnSSFarZoneBox& FieldsOnSSFarZoneBox::operator=(FieldsOnSSFarZoneBox&& other) noexcept {
    FieldsOnSSFarZoneBox taken(std::move(other));
    m_box = taken.m_box;
    m_axes.swap(taken.m_axes);
    m_faces.swap(taken.m_faces);
    m_isComplete = taken.m_isComplete;
    return *this;
}

// Returns an error message, which is empty on success.
QString FieldsOnSSFarZoneBox::build(const Grid& grid, const QString& path) {
    if (!isIn(grid)) return QStringLiteral("The far zone box does not lie in the grid.");
    try {
        allocate();
        placeCells(grid);
        return load(path);
    } catch (const std::bad_alloc&) {
        return QStringLiteral("Unable to allocate arrays for loading far zone fields.");
    }
}

bool FieldsOnSSFarZoneBox::isIn(const Grid& grid) const {
    if (!m_box.isValid()) return true;
    if (!grid.hasNodes()) return false;
    for (std::size_t n = 0; n < numAxes; ++n) {
        if (m_box.axis(n).upper >= grid.axis(n).cells()) return false;
    }
    return true;
}

// Memory is reserved for the fields, but their lists stay empty: a file may hold fewer records than the box has cells,
// and memory that is not written to costs nothing.
void FieldsOnSSFarZoneBox::allocate() {
    for (const FarZoneBox::Face face : facesInFileOrder) {
        if (cellsOn(m_box, face) > mostCellsOnFace) throw std::bad_alloc();
        for (Samples& component : m_faces[face]) component.reserve(cellsOn(m_box, face));
    }
    for (std::size_t n = 0; n < numAxes; ++n) {
        m_axes[n].deltas.resize(m_box.axis(n).cells);
        m_axes[n].toMiddles.resize(m_box.axis(n).cells);
    }
}

void FieldsOnSSFarZoneBox::placeCells(const Grid& grid) {
    if (!m_box.isValid()) return;
    for (std::size_t n = 0; n < numAxes; ++n) {
        const Grid::Axis& nodes = grid.axis(n);
        const FarZoneBox::Axis& span = m_box.axis(n);
        Axis& axis = m_axes[n];
        axis.toLowerFace = span.center - nodes.electricNode(span.lower);
        axis.toUpperFace = nodes.electricNode(span.upper) - span.center;
        for (std::uint32_t i = 0; i < span.cells; ++i) {
            axis.deltas[i] = nodes.electricDelta(span.lower + i);
            axis.toMiddles[i] = nodes.magneticNode(span.lower + i) - span.center;
        }
    }
}

// Returns an error message, which is empty on success.
QString FieldsOnSSFarZoneBox::load(const QString& path) {
    DataFileReader reader;
    if (!reader.open(path)) return QStringLiteral("Unable to open far zone field file:") + path;
    FileHeader header;
    if (!header.read(reader) || header != FileHeader(FileHeader::farZoneBoxFields, 0)) {
        return QStringLiteral("Unsupported file format for far zone box data in ") + path;
    }
    for (const FarZoneBox::Face face : facesInFileOrder) {
        if (!readFace(reader, face)) return QStringLiteral("Unexpected end of far zone box data in ") + path;
    }
    return {};
}

bool FieldsOnSSFarZoneBox::readFace(DataFileReader& reader, FarZoneBox::Face face) {
    auto& [e1, e2, h1, h2] = m_faces[face];
    std::vector<Record> records;
    for (std::uint64_t left = cellsOn(m_box, face); left > 0; left -= records.size()) {
        const auto count = static_cast<std::size_t>(std::min(left, recordsReadAtOnce));
        const bool isWhole = FieldsOnSteadyStateFarZoneBoxFile::readRecords(reader, count, records);
        for (const Record& record : records) {
            e1.push_back(record.e1);
            e2.push_back(record.e2);
            h1.push_back(record.h1);
            h2.push_back(record.h2);
        }
        if (!isWhole) return false;
    }
    return true;
}

bool FieldsOnSSFarZoneBox::setupImageFields(const Grid& grid) const {
    if (!m_box.isValid() || !m_box.useImage()) return true;
    if (!m_isComplete || !isIn(grid)) return false;
    const FarZoneBox::Face face = m_box.getImageFace();
    const Grid::Axis& nodes = grid.axis(face % numAxes);
    const FarZoneBox::Axis& span = m_box.axis(face % numAxes);
    const Axis& axis = m_axes[face % numAxes];
    return face < FarZoneBox::XUpper ? span.center - nodes.electricNode(span.lower) == axis.toLowerFace
                                     : nodes.electricNode(span.upper) - span.center == axis.toUpperFace;
}

}  // namespace quarn
