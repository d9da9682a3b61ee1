#pragma once

#include <cstddef>
#include <functional>

namespace quarn {

/// Receives how much of a computation is done, in the computation's own units, and returns whether to continue. Called
/// from the computing thread, at a bounded rate; `done` never decreases.
using ProgressReporter = std::function<bool(std::size_t done, std::size_t total)>;

}  // namespace quarn
