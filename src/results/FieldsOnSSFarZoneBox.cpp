#include "quarn/FieldsOnSSFarZoneBox.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
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

/// A component of more cells takes half a tebibyte or more: not to be had, even where the system promises it.
constexpr std::uint64_t mostCellsOnFace = std::uint64_t{1} << 36;

/// How to ask the grid about an axis.
struct GridAxis {
    std::uint32_t (Grid::*cells)() const;
    float (Grid::*delta)(std::uint32_t) const;
    double (Grid::*electricNode)(std::uint32_t) const;
    double (Grid::*magneticNode)(std::uint32_t) const;
};

constexpr GridAxis gridAxes[] = {
    {&Grid::getNumberOfUserCellsInX,
     &Grid::getUserXElectricDelta,
     &Grid::getUserXElectricNodeLocation,
     &Grid::getUserXMagneticNodeLocation},
    {&Grid::getNumberOfUserCellsInY,
     &Grid::getUserYElectricDelta,
     &Grid::getUserYElectricNodeLocation,
     &Grid::getUserYMagneticNodeLocation},
    {&Grid::getNumberOfUserCellsInZ,
     &Grid::getUserZElectricDelta,
     &Grid::getUserZElectricNodeLocation,
     &Grid::getUserZMagneticNodeLocation},
};
constexpr std::size_t numAxes = std::size(gridAxes);

/// Where the box lies on an axis.
struct Span {
    std::uint32_t lower;
    std::uint32_t upper;
    double center;
};

std::array<Span, numAxes> spansOf(const FarZoneBox& box) {
    return {Span{box.getXLower(), box.getXUpper(), box.getXCenter()},
            Span{box.getYLower(), box.getYUpper(), box.getYCenter()},
            Span{box.getZLower(), box.getZUpper(), box.getZCenter()}};
}

std::uint64_t cellsOn(const FarZoneBox& box, FarZoneBox::Face face) {
    const std::uint64_t cells[numAxes] = {box.getNumberInX(), box.getNumberInY(), box.getNumberInZ()};
    return cells[(face + 1) % numAxes] * cells[(face + 2) % numAxes];
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

// By way of a third object, so that one that is assigned to itself stays as it is.
FieldsOnSSFarZoneBox& FieldsOnSSFarZoneBox::operator=(FieldsOnSSFarZoneBox&& other) noexcept {
    FieldsOnSSFarZoneBox taken(std::move(other));
    m_box = taken.m_box;
    m_axes.swap(taken.m_axes);
    m_faces.swap(taken.m_faces);
    m_isComplete = taken.m_isComplete;
    return *this;
}

// Returns what went wrong.
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
    const auto spans = spansOf(m_box);
    for (std::size_t axis = 0; axis < numAxes; ++axis) {
        if (spans[axis].upper >= (grid.*gridAxes[axis].cells)()) return false;
    }
    return true;
}

// The fields get room, but no sizes yet: a file may hold less than the box has cells, and room that is not written to
// takes no memory.
void FieldsOnSSFarZoneBox::allocate() {
    for (const FarZoneBox::Face face : facesInFileOrder) {
        if (cellsOn(m_box, face) > mostCellsOnFace) throw std::bad_alloc();
        for (Samples& component : m_faces[face]) component.reserve(cellsOn(m_box, face));
    }
    const std::uint32_t cells[numAxes] = {getNumberInX(), getNumberInY(), getNumberInZ()};
    for (std::size_t axis = 0; axis < numAxes; ++axis) {
        m_axes[axis].deltas.resize(cells[axis]);
        m_axes[axis].toMiddles.resize(cells[axis]);
    }
}

void FieldsOnSSFarZoneBox::placeCells(const Grid& grid) {
    if (!m_box.isValid()) return;
    const auto spans = spansOf(m_box);
    for (std::size_t axis = 0; axis < numAxes; ++axis) {
        const auto& [cells, delta, electricNode, magneticNode] = gridAxes[axis];
        const auto [lower, upper, center] = spans[axis];
        m_axes[axis].toLowerFace = center - (grid.*electricNode)(lower);
        m_axes[axis].toUpperFace = (grid.*electricNode)(upper)-center;
        for (std::uint32_t i = lower; i < upper; ++i) {
            m_axes[axis].deltas[i - lower] = (grid.*delta)(i);
            m_axes[axis].toMiddles[i - lower] = (grid.*magneticNode)(i)-center;
        }
    }
}

// Returns what went wrong.
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
        const bool areThere = FieldsOnSteadyStateFarZoneBoxFile::readRecords(reader, count, records);
        for (const Record& record : records) {
            e1.push_back(record.e1);
            e2.push_back(record.e2);
            h1.push_back(record.h1);
            h2.push_back(record.h2);
        }
        if (!areThere) return false;
    }
    return true;
}

bool FieldsOnSSFarZoneBox::setupImageFields(const Grid& grid) const {
    if (!m_box.isValid() || !m_box.useImage()) return true;
    if (!m_isComplete || !isIn(grid)) return false;
    const FarZoneBox::Face face = m_box.getImageFace();
    const auto [lower, upper, center] = spansOf(m_box)[face % numAxes];
    const auto electricNode = gridAxes[face % numAxes].electricNode;
    const Axis& axis = m_axes[face % numAxes];
    return face < FarZoneBox::XUpper ? center - (grid.*electricNode)(lower) == axis.toLowerFace
                                     : (grid.*electricNode)(upper)-center == axis.toUpperFace;
}

}  // namespace quarn
