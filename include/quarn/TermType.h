#pragma once

#include <cstdint>

namespace quarn {

/// The role of a terminal, of circuit components and waveguide ports alike.
enum class TermType : std::int32_t {
    Input = 0,
    Output = 1,
    InputOutput = 2,
    Switch = 3,
    Jumper = 4,
    Unused = 5,
    Tristate = 6,
};

}  // namespace quarn
