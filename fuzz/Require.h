#pragma once

#include <cstdlib>

namespace fuzz {

/// What a harness asserts: a finding when it does not hold.
inline void require(bool holds) {
    if (!holds) std::abort();
}

}  // namespace fuzz
