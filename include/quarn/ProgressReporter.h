#pragma once

#include <cstddef>
#include <functional>

namespace quarn {

/// Hears how much of a work is done, in units of the work's own, and says whether to go on with it. Called from the
/// thread that works, at a bounded rate; `done` never falls.
using ProgressReporter = std::function<bool(std::size_t done, std::size_t total)>;

}  // namespace quarn
