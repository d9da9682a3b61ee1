#pragma once

#include <cstdint>

namespace quarn {

/// The calculation engine that a project is written for. It names the outer block of the project file, and many
/// validity checks apply to one engine only.
enum class Engine : std::int32_t { FDTD = 0, FEM = 1 };

}  // namespace quarn
