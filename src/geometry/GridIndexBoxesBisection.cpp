// Builds boxes from points by bisection. The list is halved in place; the halves still to be processed are kept on a
// stack, the lower one on top, so that boxes and spare points follow the order of the points.

#include <algorithm>
#include <cmath>
#include <limits>

#include "geometry/IndexBox.h"
#include "quarn/GridIndexBoxes.h"

namespace quarn {

using indexbox::axes;
using indexbox::Box;

namespace {

using Cells = std::vector<ivec3>::iterator;
using Axis = std::int32_t ivec3::*;

// A box may have a short list of exceptions, and at most one cell in eight may be missing.
constexpr std::uint64_t maximumExceptions = 16;

// Cells in ascending order.
struct Range {
    Cells begin;
    Cells end;
    std::size_t size() const { return static_cast<std::size_t>(end - begin); }
};

Box boundingBox(const Range& cells) {
    ivec3 lower = *cells.begin;  // with the cells in order, x ascends
    ivec3 upper = *(cells.end - 1);
    for (Cells cell = cells.begin; cell != cells.end; ++cell) {
        lower.y = std::min(lower.y, cell->y);
        lower.z = std::min(lower.z, cell->z);
        upper.y = std::max(upper.y, cell->y);
        upper.z = std::max(upper.z, cell->z);
    }
    return {lower, upper};
}

// The second condition bounds the volume, so that the first cannot overflow.
bool isDense(std::uint64_t volume, std::uint64_t cells) {
    return volume <= std::numeric_limits<std::int32_t>::max() && volume - cells <= maximumExceptions &&
           cells >= 7 * volume / 8;
}

bool isSmall(const Box& box) {
    return std::all_of(std::begin(axes), std::end(axes), [&](Axis axis) { return indexbox::extent(box, axis) < 3; });
}

std::int32_t middle(const Box& box, Axis axis) {
    return static_cast<std::int32_t>(std::floor((static_cast<double>(box.first.*axis) + box.second.*axis) * 0.5));
}

// How far the cells lie from the middle of an axis.
class Spread {
public:
    explicit Spread(std::int32_t middle) : m_middle(middle) {}

    void add(std::int32_t index) {
        std::int64_t offset = std::int64_t{index} - m_middle;
        offset -= offset > 0;  // the planes next to the middle are equally near
        m_sum += offset;
        m_distances += std::abs(offset);
    }

    // High when the cells are concentrated at one end or at both ends of the axis.
    float score(std::size_t cells, std::uint64_t extent) const {
        const auto relative = [&](std::int64_t sum) {
            return static_cast<float>(sum) / static_cast<float>(cells) / static_cast<float>(extent);
        };
        return std::abs(relative(m_sum)) + relative(m_distances);
    }

private:
    std::int64_t m_middle;
    std::int64_t m_sum = 0;
    std::int64_t m_distances = 0;
};

Axis splitAxis(const Range& cells, const Box& box) {
    Spread xs(middle(box, &ivec3::x));
    Spread ys(middle(box, &ivec3::y));
    Spread zs(middle(box, &ivec3::z));
    for (Cells cell = cells.begin; cell != cells.end; ++cell) {
        xs.add(cell->x);
        ys.add(cell->y);
        zs.add(cell->z);
    }
    const float x = xs.score(cells.size(), indexbox::extent(box, &ivec3::x));
    const float y = ys.score(cells.size(), indexbox::extent(box, &ivec3::y));
    const float z = zs.score(cells.size(), indexbox::extent(box, &ivec3::z));
    if (x >= y && x >= z) return &ivec3::x;
    return y >= z ? &ivec3::y : &ivec3::z;
}

// Moves the cells up to the middle to the front and returns where the others begin. Both keep their order.
Cells split(const Range& cells, Axis axis, std::int32_t middle, std::vector<ivec3>& buffer) {
    const auto isLow = [&](const ivec3& cell) { return cell.*axis <= middle; };
    if (axis == &ivec3::x) return std::partition_point(cells.begin, cells.end, isLow);  // x sorts first
    buffer.clear();
    Cells low = cells.begin;
    for (Cells cell = cells.begin; cell != cells.end; ++cell) {
        if (isLow(*cell)) {
            *low++ = *cell;
        } else {
            buffer.push_back(*cell);
        }
    }
    std::copy(buffer.begin(), buffer.end(), low);
    return low;
}

// Appends how many cells precede each of the box's cells that are not among the given ones.
void appendMissing(const Box& box, const Range& cells, std::vector<std::int32_t>& exceptions) {
    std::uint64_t expected = 0;
    std::int32_t preceding = 0;
    const auto missingUpTo = [&](std::uint64_t number) {
        exceptions.insert(exceptions.end(), number - expected, preceding);
        expected = number + 1;
    };
    for (Cells cell = cells.begin; cell != cells.end; ++cell, ++preceding) {
        missingUpTo(indexbox::cellNumber(box, *cell));
    }
    missingUpTo(indexbox::volume(box));
}

}  // namespace

void GridIndexBoxes::addUnboxedPoints(std::vector<ivec3> points) {
    std::vector<ivec3> buffer;
    std::vector<Range> waiting{{points.begin(), points.end()}};
    while (!waiting.empty()) {
        const Range cells = waiting.back();
        waiting.pop_back();
        const bool isFew = cells.size() < 3;
        const Box box = isFew ? Box() : boundingBox(cells);
        if (!isFew && isDense(indexbox::volume(box), cells.size())) {
            m_boxes.push_back(box);
            appendMissing(box, cells, m_exceptions);
            m_exceptionEnds.push_back(m_exceptions.size());
        } else if (isFew || isSmall(box)) {
            m_sparePoints.insert(m_sparePoints.end(), cells.begin, cells.end);
        } else {
            const Axis axis = splitAxis(cells, box);
            const Cells high = split(cells, axis, middle(box, axis), buffer);
            waiting.push_back({high, cells.end});
            waiting.push_back({cells.begin, high});
        }
    }
    setupBoxStarts();
}

}  // namespace quarn
