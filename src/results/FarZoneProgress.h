#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

#include "results/Progress.h"

namespace quarn::farzone {

/// What the system takes to hand out a byte of memory that is written to.
inline constexpr double nsPerNewByte = 0.4;

/// Gives the list `size` zeros in place of what it held, piece by piece, since a gibibyte takes half a second. False
/// when the work was stopped.
template <class Item>
bool fillWithZeros(std::vector<Item>& list, std::size_t size, Progress& progress) {
    constexpr std::size_t piece = (std::size_t{1} << 16) / sizeof(Item);
    list.clear();
    list.reserve(size);
    while (list.size() < size) {
        const std::size_t added = std::min(piece, size - list.size());
        list.resize(list.size() + added);
        if (!progress.advance(static_cast<double>(added * sizeof(Item)) * nsPerNewByte)) return false;
    }
    return true;
}

}  // namespace quarn::farzone
