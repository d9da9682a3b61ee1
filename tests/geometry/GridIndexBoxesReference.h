#pragma once

#include <cmath>
#include <cstdlib>
#include <set>
#include <vector>

#include "quarn/GridIndexBoxes.h"

namespace quarn::test {

inline std::vector<ivec3> cellsOf(const GridIndexBoxes::Box& box) {
    std::vector<ivec3> cells;
    for (int x = box.first.x; x <= box.second.x; ++x) {
        for (int y = box.first.y; y <= box.second.y; ++y) {
            for (int z = box.first.z; z <= box.second.z; ++z) cells.emplace_back(x, y, z);
        }
    }
    return cells;
}

/// A simple reference for index boxes: it recurses on copies, tests each cell for each box and keeps all points in a
/// list. For small numbers only.
class ReferenceBoxes {
public:
    explicit ReferenceBoxes(const std::set<ivec3>& cells) { bisect(cells); }

    ReferenceBoxes(const std::vector<GridIndexBoxes::Box>& from, const std::set<ivec3>& exclusions,
                   const std::vector<ivec3>& sparePoints)
        : spare(sparePoints) {
        for (const GridIndexBoxes::Box& box : from) addBox(box, [&](const ivec3& c) { return !exclusions.count(c); });
    }

    std::vector<ivec3> points() const {
        std::vector<ivec3> all = boxed;
        all.insert(all.end(), spare.begin(), spare.end());
        return all;
    }

    std::vector<GridIndexBoxes::Box> boxes;
    std::vector<ivec3> boxed;
    std::vector<ivec3> spare;
    std::set<ivec3> excluded;
    int exceptions = 0;
    int mostExceptions = 0;

private:
    template <class IsPoint>
    void addBox(const GridIndexBoxes::Box& box, IsPoint isPoint) {
        const std::vector<ivec3> cells = cellsOf(box);
        int missing = 0;
        for (const ivec3& cell : cells) missing += !isPoint(cell);
        if (missing == static_cast<int>(cells.size())) return;
        boxes.push_back(box);
        for (const ivec3& cell : cells) {
            if (isPoint(cell)) boxed.push_back(cell);
            if (!isPoint(cell)) excluded.insert(cell);
        }
        exceptions += missing;
        mostExceptions = std::max(mostExceptions, missing);
    }

    void bisect(const std::set<ivec3>& cells) {
        const int n = static_cast<int>(cells.size());
        GridIndexBoxes::Box box(n ? *cells.begin() : ivec3(), n ? *cells.begin() : ivec3());
        int extent[3];
        for (int a = 0; a < 3; ++a) {
            for (const ivec3& cell : cells) {
                box.first.*axes[a] = std::min(box.first.*axes[a], cell.*axes[a]);
                box.second.*axes[a] = std::max(box.second.*axes[a], cell.*axes[a]);
            }
            extent[a] = box.second.*axes[a] - box.first.*axes[a] + 1;
        }
        const int volume = extent[0] * extent[1] * extent[2];
        const bool isSmall = extent[0] < 3 && extent[1] < 3 && extent[2] < 3;
        if (n >= 3 && n >= 7 * volume / 8 && volume - n <= 16) {
            addBox(box, [&](const ivec3& cell) { return cells.count(cell) != 0; });
        } else if (n < 3 || isSmall) {
            spare.insert(spare.end(), cells.begin(), cells.end());
        } else {
            split(cells, box, extent);
        }
    }

    void split(const std::set<ivec3>& cells, const GridIndexBoxes::Box& box, const int (&extent)[3]) {
        float score[3];
        int middle[3];
        for (int a = 0; a < 3; ++a) {
            middle[a] = static_cast<int>(std::floor((box.first.*axes[a] + box.second.*axes[a]) * 0.5));
            int sum = 0, distances = 0;
            for (const ivec3& cell : cells) {
                int offset = cell.*axes[a] - middle[a];
                if (offset > 0) --offset;
                sum += offset;
                distances += std::abs(offset);
            }
            const auto n = static_cast<float>(cells.size());
            const auto e = static_cast<float>(extent[a]);
            score[a] = std::abs(static_cast<float>(sum) / n / e) + static_cast<float>(distances) / n / e;
        }
        const bool isX = score[0] >= score[1] && score[0] >= score[2];
        const int axis = isX ? 0 : score[1] >= score[2] && score[1] >= score[0] ? 1 : 2;
        std::set<ivec3> low, high;
        for (const ivec3& cell : cells) (cell.*axes[axis] <= middle[axis] ? low : high).insert(cell);
        bisect(low);
        bisect(high);
    }

    static constexpr std::int32_t ivec3::*axes[] = {&ivec3::x, &ivec3::y, &ivec3::z};
};

}  // namespace quarn::test
