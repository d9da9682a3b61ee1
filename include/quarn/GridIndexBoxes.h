#pragma once

#include <cstddef>
#include <cstdint>
#include <set>
#include <utility>
#include <vector>

#include "quarn/Export.h"
#include "quarn/ivec3.h"

namespace quarn {

/// A set of grid cells, kept small: boxes of cells, the cells in each box that do not belong to the set, and spare
/// points that lie in no box. It numbers its cells, so that arrays of results can be indexed by them: first the cells
/// of each box in turn, z fastest and x slowest, then the spare points in their order.
///
/// Boxes and exclusions may come from files, so any values are accepted. A box whose lower corner lies above its upper
/// one on some axis holds no cells and is dropped. A cell in two boxes has two numbers. Sizes may exceed the range of
/// int: counts then stop at the largest int, and cells beyond it have no number, but still belong to the set.
class QUARN_EXPORT GridIndexBoxes {
public:
    /// Lower and upper corner, both inclusive.
    using Box = std::pair<ivec3, ivec3>;

    GridIndexBoxes() = default;

    /// The set of these points, in any order; repeated points are taken once. Points that fill their bounding box well
    /// become one box, others are split along an axis and each half is treated again. The cost is that of sorting the
    /// list and of one pass over it for each doubling of its extents.
    explicit GridIndexBoxes(std::vector<ivec3> points);

    /// The cells of the boxes without the exclusions, and the spare points as they are. Boxes may overlap; an exclusion
    /// counts for each box in which it lies. Boxes that are excluded completely are dropped. With n boxes and
    /// exclusions the cost is of order n log^3 n at worst, plus that of the resulting exceptions. Throws a
    /// std::runtime_error if boxes overlap so much that exclusions had to be stored more than 2^20 times and more than
    /// 256 times for each box and each exclusion that lies in a box.
    GridIndexBoxes(std::vector<Box> boxes, const std::set<ivec3>& exclusions, std::vector<ivec3> sparePoints);

    const std::vector<Box>& getBoxes() const { return m_boxes; }
    const std::vector<ivec3>& getSparePointIndices() const { return m_sparePoints; }

    /// Cells of the boxes and spare points, at most the largest int.
    int getNumPoints() const;

    /// The cell with the number `index`; (-1, -1, -1) when there is none. Costs two binary searches: over the boxes and
    /// over the exceptions of one box.
    ivec3 getPoint(int index) const;

    /// Stored records for each point of the set: spare points, two corners a box, and exceptions. 0 for the empty set.
    float getCompressionRatio() const;

    int getMaximumNumExceptionsInABox() const;

    /// The cells of boxes that do not belong to the set.
    std::set<ivec3> getPointsToRemoveFromBoxes() const;

    /// Keeps only the cells between two corners, both inclusive. Boxes are clipped and keep their order. Never throws
    /// for overlapping boxes, as it stores no exclusion more often than before.
    void intersectBoundingBox(const ivec3& lower, const ivec3& upper);

    /// The same cells with the same numbers, in the same boxes.
    QUARN_EXPORT friend bool operator==(const GridIndexBoxes& a, const GridIndexBoxes& b);
    friend bool operator!=(const GridIndexBoxes& a, const GridIndexBoxes& b) { return !(a == b); }

private:
    void addUnboxedPoints(std::vector<ivec3> points);
    void setupBoxExclusions(const std::vector<ivec3>& exclusions, bool isLimited);
    void setupBoxStarts();
    std::vector<ivec3> excludedCells() const;
    int numBoxedPoints() const { return m_boxStarts.empty() ? 0 : m_boxStarts.back(); }

    std::vector<Box> m_boxes;

    /// The excluded cells of all boxes, box after box, in ascending order. For each cell the number of points of its
    /// box that precede it: adjacent excluded cells share one value, and a box's values do not descend. Stops at the
    /// largest int; m_farExclusions then holds the cell itself.
    std::vector<std::int32_t> m_exceptions;
    std::vector<std::size_t> m_exceptionEnds;  ///< for each box, the end of its values in m_exceptions
    std::vector<ivec3> m_farExclusions;

    std::vector<ivec3> m_sparePoints;
    std::vector<std::int32_t> m_boxStarts;  ///< for each box, the number of its first point; then the end of the last
};

}  // namespace quarn
