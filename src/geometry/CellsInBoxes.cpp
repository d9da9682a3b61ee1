// The cells are halved recursively along x, and each box descends into the halves that its ends cut. A box that covers
// all cells of a half along x descends no further along x: the recursion starts again along y with the cells of that
// half. Where a box covers a half along y too, its cells along z are found by binary search. A box covers at most two
// halves of each size, so that n boxes and n cells need n log^2 n steps, wherever they lie.

#include "geometry/CellsInBoxes.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

#include "geometry/IndexBox.h"

namespace quarn {

using indexbox::axes;
using indexbox::Box;

namespace {

// Boxes and cells are passed by value together with their positions in the lists: looking them up would cost more.
struct NumberedBox {
    Box box;
    std::uint32_t number;
};
struct NumberedCell {
    ivec3 cell;
    std::uint32_t number;
};
using NumberedBoxes = std::vector<NumberedBox>;
using NumberedCells = std::vector<NumberedCell>;

// Below this number of cells, testing each of them is faster.
constexpr std::ptrdiff_t linearSearchLimit = 16;

class Search {
public:
    explicit Search(std::size_t limit) : m_limit(limit) {}

    // `cells` may be in any order.
    void searchAlongAxis(std::size_t axis, const NumberedBoxes& boxes, NumberedCells cells) {
        const auto coordinate = axes[axis];
        std::sort(cells.begin(), cells.end(), [&](const NumberedCell& a, const NumberedCell& b) {
            return a.cell.*coordinate < b.cell.*coordinate;
        });
        if (axis + 1 < std::size(axes)) {
            descend(axis, boxes, cells.data(), cells.data() + cells.size());
        } else {
            for (const NumberedBox& box : boxes) addInterval(coordinate, box, cells);
        }
    }

    std::vector<BoxAndCell> takePairs() {
        std::sort(m_pairs.begin(), m_pairs.end(), [](const BoxAndCell& a, const BoxAndCell& b) {
            return a.box != b.box ? a.box < b.box : a.cell < b.cell;
        });
        return std::move(m_pairs);
    }

private:
    void add(const NumberedBox& box, const NumberedCell& cell) {
        if (m_pairs.size() == m_limit) throwTooMuchOverlap();
        m_pairs.push_back({box.number, cell.number});
    }

    // The cells from `begin` to `end` ascend along the axis. The depth of the recursion is the logarithm of their
    // number.
    void descend(std::size_t axis, const NumberedBoxes& boxes, const NumberedCell* begin, const NumberedCell* end) {
        if (boxes.empty()) return;
        if (end - begin <= linearSearchLimit) return addEach(boxes, begin, end);
        const NumberedCell* const middle = begin + (end - begin) / 2;
        const auto at = [&](const NumberedCell* cell) { return cell->cell.*axes[axis]; };
        const std::int32_t first = at(begin), last = at(end - 1), lastLow = at(middle - 1), firstHigh = at(middle);
        NumberedBoxes covering, low, high;
        for (const NumberedBox& box : boxes) {
            const std::int32_t lower = box.box.first.*axes[axis];
            const std::int32_t upper = box.box.second.*axes[axis];
            if (lower <= first && last <= upper) {
                covering.push_back(box);
            } else {
                if (lower <= lastLow && first <= upper) low.push_back(box);
                if (lower <= last && firstHigh <= upper) high.push_back(box);
            }
        }
        if (!covering.empty()) searchAlongAxis(axis + 1, covering, NumberedCells(begin, end));
        descend(axis, low, begin, middle);
        descend(axis, high, middle, end);
    }

    void addEach(const NumberedBoxes& boxes, const NumberedCell* begin, const NumberedCell* end) {
        for (const NumberedBox& box : boxes) {
            for (const NumberedCell* cell = begin; cell != end; ++cell) {
                if (indexbox::contains(box.box, cell->cell)) add(box, *cell);
            }
        }
    }

    void addInterval(std::int32_t ivec3::*axis, const NumberedBox& box, const NumberedCells& cells) {
        const auto isBelow = [&](const NumberedCell& cell, std::int32_t bound) { return cell.cell.*axis < bound; };
        auto cell = std::lower_bound(cells.begin(), cells.end(), box.box.first.*axis, isBelow);
        for (; cell != cells.end() && cell->cell.*axis <= box.box.second.*axis; ++cell) add(box, *cell);
    }

    std::size_t m_limit;
    std::vector<BoxAndCell> m_pairs;
};

}  // namespace

void throwTooMuchOverlap() {
    throw std::runtime_error("quarn::GridIndexBoxes::setupBoxExclusions: the boxes overlap too much");
}

std::vector<BoxAndCell> findCellsInBoxes(const std::vector<Box>& boxes, const std::vector<ivec3>& cells,
                                         std::size_t limit) {
    NumberedBoxes numberedBoxes;
    for (const Box& box : boxes) {
        const auto number = static_cast<std::uint32_t>(&box - boxes.data());
        if (!indexbox::isEmpty(box)) numberedBoxes.push_back({box, number});
    }
    NumberedCells numberedCells;
    numberedCells.reserve(cells.size());
    for (const ivec3& cell : cells) {
        numberedCells.push_back({cell, static_cast<std::uint32_t>(numberedCells.size())});
    }
    Search search(limit);
    search.searchAlongAxis(0, numberedBoxes, std::move(numberedCells));
    return search.takePairs();
}

}  // namespace quarn
