#pragma once

#include "quarn/Material.h"

namespace quarn {

/// Equality of a concrete material with any other: the same class, an equal base, and the members that the class lists.
template <class Kind, class... Members>
bool isEqual(const Kind& material, const Material& other, Members... members) {
    const auto* same = dynamic_cast<const Kind*>(&other);
    return same && material.Material::operator==(other) && ((material.*members == same->*members) && ...);
}

}  // namespace quarn
