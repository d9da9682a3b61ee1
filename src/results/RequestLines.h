#pragma once

#include "blocktext/BlockDescription.h"

/// What the descriptions of requests share.
namespace quarn {

// The lines that bound a region of the grid have two blanks behind their keys.
template <class Access>
constexpr auto lowerBound(Access access) {
    return blocktext::value("lower_bound", access, blocktext::SpacedElements());
}
template <class Access>
constexpr auto upperBound(Access access) {
    return blocktext::value("upper_bound", access, blocktext::SpacedElements());
}

/// What a block without lines stands for.
template <class Request>
Request blankRequest() {
    QString nothing;
    QTextStream stream(&nothing);
    DelimManager delim(stream, QString());
    return Request(delim);
}

}  // namespace quarn
