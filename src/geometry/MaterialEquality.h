#pragma once

#include "blocktext/BlockDescription.h"
#include "quarn/Material.h"

namespace quarn {

/// Equality of a concrete material with any other: the same class, an equal base, and the members that count in the
/// description of the class.
template <class Kind>
bool isEqual(const Kind& material, const Material& other) {
    const auto* same = dynamic_cast<const Kind*>(&other);
    return same && material.Material::operator==(other) &&
           blocktext::Description<Kind>::block().areEqual(material, *same);
}

}  // namespace quarn
