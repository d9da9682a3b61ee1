#include "quarn/GridIndexBoxes.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <tuple>

#include "geometry/IndexBox.h"

namespace quarn {

using indexbox::cellAt;
using indexbox::contains;

namespace {

constexpr std::uint64_t largestInt = std::numeric_limits<std::int32_t>::max();

std::int32_t limitedCount(std::uint64_t count) { return static_cast<std::int32_t>(std::min(count, largestInt)); }

GridIndexBoxes::Box clipped(const GridIndexBoxes::Box& box, const GridIndexBoxes::Box& limits) {
    GridIndexBoxes::Box result;
    for (const auto axis : indexbox::axes) {
        result.first.*axis = std::max(box.first.*axis, limits.first.*axis);
        result.second.*axis = std::min(box.second.*axis, limits.second.*axis);
    }
    return result;
}

}  // namespace

GridIndexBoxes::GridIndexBoxes(std::vector<ivec3> points) {
    std::sort(points.begin(), points.end());
    points.erase(std::unique(points.begin(), points.end()), points.end());
    addUnboxedPoints(std::move(points));
}

GridIndexBoxes::GridIndexBoxes(std::vector<Box> boxes, const std::set<ivec3>& exclusions,
                               std::vector<ivec3> sparePoints)
    : m_boxes(std::move(boxes)), m_sparePoints(std::move(sparePoints)) {
    std::vector<ivec3> cells;
    // A constructor from iterators would traverse the set twice, which is the costliest part here.
    cells.reserve(exclusions.size());
    std::copy(exclusions.begin(), exclusions.end(), std::back_inserter(cells));
    setupBoxExclusions(cells, true);
}

// A start that was limited to the largest int is never found by a search for an index.
void GridIndexBoxes::setupBoxStarts() {
    m_boxStarts.assign(1, 0);
    m_boxStarts.reserve(m_boxes.size() + 1);
    std::size_t exceptionStart = 0;
    for (std::size_t b = 0; b < m_boxes.size(); ++b) {
        const std::uint64_t points = indexbox::volume(m_boxes[b]) - (m_exceptionEnds[b] - exceptionStart);
        m_boxStarts.push_back(limitedCount(m_boxStarts.back() + std::min(points, largestInt)));
        exceptionStart = m_exceptionEnds[b];
    }
}

int GridIndexBoxes::getNumPoints() const { return limitedCount(numBoxedPoints() + m_sparePoints.size()); }

ivec3 GridIndexBoxes::getPoint(int index) const {
    if (index < 0 || index >= getNumPoints()) return {-1, -1, -1};
    if (index >= numBoxedPoints()) return m_sparePoints[index - numBoxedPoints()];
    const auto next = std::upper_bound(m_boxStarts.begin(), m_boxStarts.end(), index);
    const std::size_t b = next - m_boxStarts.begin() - 1;
    const std::int32_t point = index - m_boxStarts[b];
    const auto exceptions = m_exceptions.begin() + (b == 0 ? 0 : m_exceptionEnds[b - 1]);
    const auto preceding = std::upper_bound(exceptions, m_exceptions.begin() + m_exceptionEnds[b], point) - exceptions;
    return cellAt(m_boxes[b], point + static_cast<std::uint64_t>(preceding));
}

float GridIndexBoxes::getCompressionRatio() const {
    const int points = getNumPoints();
    if (points == 0) return 0.0F;
    const std::size_t records = m_sparePoints.size() + 2 * m_boxes.size() + m_exceptions.size();
    return static_cast<float>(records) / static_cast<float>(points);
}

int GridIndexBoxes::getMaximumNumExceptionsInABox() const {
    std::size_t most = 0;
    std::size_t start = 0;
    for (const std::size_t end : m_exceptionEnds) {
        most = std::max(most, end - start);
        start = end;
    }
    return limitedCount(most);
}

std::vector<ivec3> GridIndexBoxes::excludedCells() const {
    std::vector<ivec3> cells = m_farExclusions;
    cells.reserve(cells.size() + m_exceptions.size());
    std::size_t start = 0;
    for (std::size_t b = 0; b < m_boxes.size(); ++b) {
        for (std::size_t e = start; e < m_exceptionEnds[b] && m_exceptions[e] < std::int64_t{largestInt}; ++e) {
            cells.push_back(cellAt(m_boxes[b], m_exceptions[e] + (e - start)));
        }
        start = m_exceptionEnds[b];
    }
    std::sort(cells.begin(), cells.end());
    cells.erase(std::unique(cells.begin(), cells.end()), cells.end());
    return cells;
}

std::set<ivec3> GridIndexBoxes::getPointsToRemoveFromBoxes() const {
    const std::vector<ivec3> cells = excludedCells();
    return {cells.begin(), cells.end()};
}

void GridIndexBoxes::intersectBoundingBox(const ivec3& lower, const ivec3& upper) {
    const Box limits(lower, upper);
    const auto cellsInside = [&](std::vector<ivec3> cells) {
        const auto isOutside = [&](const ivec3& cell) { return !contains(limits, cell); };
        cells.erase(std::remove_if(cells.begin(), cells.end(), isOutside), cells.end());
        return cells;
    };
    GridIndexBoxes kept;
    kept.m_boxes = m_boxes;
    // Empty boxes are dropped together with completely excluded ones.
    for (Box& box : kept.m_boxes) box = clipped(box, limits);
    kept.m_sparePoints = cellsInside(m_sparePoints);
    kept.setupBoxExclusions(cellsInside(excludedCells()), false);
    *this = std::move(kept);
}

bool operator==(const GridIndexBoxes& a, const GridIndexBoxes& b) {
    const auto members = [](const GridIndexBoxes& i) {
        return std::tie(i.m_boxes, i.m_exceptions, i.m_exceptionEnds, i.m_farExclusions, i.m_sparePoints);
    };
    return members(a) == members(b);
}

}  // namespace quarn
