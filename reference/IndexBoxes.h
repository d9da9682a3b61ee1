#pragma once

#include <set>
#include <vector>

#include "quarn/GridIndexBoxes.h"

namespace quarn::reference {

/// All cells of a box, both corners included; z runs fastest, x slowest.
std::vector<ivec3> cellsOf(const GridIndexBoxes::Box& box);

/// Index boxes in the plainest way: recursion on copies, each cell tried for each box, the points in a list. For small
/// numbers only.
class IndexBoxes {
public:
    /// The boxes that bisecting a set of cells gives.
    explicit IndexBoxes(const std::set<ivec3>& cells) { bisect(cells); }

    /// The given boxes without the excluded cells; a box that is excluded completely is left out.
    IndexBoxes(const std::vector<GridIndexBoxes::Box>& from, const std::set<ivec3>& exclusions,
               const std::vector<ivec3>& sparePoints);

    /// In the order of their numbers: those in boxes, then the spare ones.
    std::vector<ivec3> points() const;

    std::vector<GridIndexBoxes::Box> boxes;
    std::vector<ivec3> boxed;
    std::vector<ivec3> spare;
    std::set<ivec3> excluded;
    int exceptions = 0;      ///< excluded cells, counted once for each box that they lie in
    int mostExceptions = 0;  ///< of a box

private:
    template <class IsPoint>
    void addBox(const GridIndexBoxes::Box& box, IsPoint isPoint);
    void bisect(const std::set<ivec3>& cells);
    void split(const std::set<ivec3>& cells, const GridIndexBoxes::Box& box, const int (&extent)[3]);
};

}  // namespace quarn::reference
