// Stores excluded cells as exceptions of the boxes in which they lie.

#include <algorithm>
#include <limits>

#include "geometry/CellsInBoxes.h"
#include "geometry/IndexBox.h"
#include "quarn/GridIndexBoxes.h"

namespace quarn {

namespace {

constexpr std::uint64_t largestInt = std::numeric_limits<std::int32_t>::max();

constexpr std::size_t unlimited = std::numeric_limits<std::size_t>::max();

// Boxes that do not overlap need each exclusion once; overlapping boxes may need it once for each box, so that a file
// of a few hundred kilobytes could require gigabytes.
std::size_t maximumStored(std::size_t numBoxes, std::size_t numExclusions) {
    constexpr std::size_t always = std::size_t{1} << 20;
    constexpr std::size_t forEach = 256;
    return std::max(always, forEach * (numBoxes + numExclusions));
}

// The number of different cells in the pairs.
std::size_t countCells(const std::vector<BoxAndCell>& pairs, std::size_t numCells) {
    std::vector<bool> isFound(numCells);
    for (const BoxAndCell& pair : pairs) isFound[pair.cell] = true;
    return static_cast<std::size_t>(std::count(isFound.begin(), isFound.end(), true));
}

// Which exclusions lie in a box is known only after the search, so the search itself has the wider limit.
std::vector<BoxAndCell> findWithinLimit(const std::vector<indexbox::Box>& boxes, const std::vector<ivec3>& exclusions) {
    auto pairs = findCellsInBoxes(boxes, exclusions, maximumStored(boxes.size(), exclusions.size()));
    const bool isWithin = pairs.size() <= maximumStored(boxes.size(), 0) ||
                          pairs.size() <= maximumStored(boxes.size(), countCells(pairs, exclusions.size()));
    if (!isWithin) throwTooMuchOverlap();
    return pairs;
}

}  // namespace

void GridIndexBoxes::setupBoxExclusions(const std::vector<ivec3>& exclusions, bool isLimited) {
    const std::vector<BoxAndCell> pairs =
        isLimited ? findWithinLimit(m_boxes, exclusions) : findCellsInBoxes(m_boxes, exclusions, unlimited);
    const std::vector<Box> boxes = std::move(m_boxes);
    m_boxes.clear();
    auto pair = pairs.begin();
    for (std::size_t b = 0; b < boxes.size(); ++b) {
        const auto isOfOtherBox = [&](const BoxAndCell& p) { return p.box != b; };
        const auto end = std::find_if(pair, pairs.end(), isOfOtherBox);
        const auto excluded = static_cast<std::uint64_t>(end - pair);
        if (excluded == indexbox::volume(boxes[b])) {
            pair = end;
            continue;
        }
        for (std::uint64_t rank = 0; pair != end; ++pair, ++rank) {
            const std::uint64_t preceding = indexbox::cellNumber(boxes[b], exclusions[pair->cell]) - rank;
            m_exceptions.push_back(static_cast<std::int32_t>(std::min(preceding, largestInt)));
            if (preceding >= largestInt) m_farExclusions.push_back(exclusions[pair->cell]);
        }
        m_boxes.push_back(boxes[b]);
        m_exceptionEnds.push_back(m_exceptions.size());
    }
    setupBoxStarts();
}

}  // namespace quarn
