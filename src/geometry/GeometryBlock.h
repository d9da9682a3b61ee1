#pragma once

#include "blocktext/BlockDescription.h"

/// What the blocks of the geometry file have in common.
namespace quarn::blocktext {

/// A block of which unknown lines are dropped, and in which a number that cannot be read fails the load.
template <class Object, class... Lines>
constexpr auto geometryBlock(Key name, Lines... lines) {
    return describe<Object>(name, Unknown::DropLine, Unreadable::Fails, lines...);
}

/// The block of an entry of a list, which begins with the entry's position there. Readers count for themselves.
template <class Content>
constexpr auto atPosition(const Content& content, Key key, int position) {
    return content.behind(value(key, [position](const auto&) { return position; }).onlyWritten());
}

/// Adds the block, which stands for each entry of a list, to the block that is open in the reference of the format.
template <class Content, class Entry>
void describeEntries(FormatBuilder& builder, const Content& content, const Entry& blank) {
    builder.add({content.name, QStringLiteral("block"), {}, {}, {}, QStringLiteral("for each entry")});
    content.describeTo(builder, blank);
}

/// Where a normal material tells its losses by an imaginary part. The file has no place for a loss tangent beside it.
inline constexpr auto usesImaginaryPart = [](const auto& material) {
    return material.useComplex() && !material.useLossTangent();
};

}  // namespace quarn::blocktext
