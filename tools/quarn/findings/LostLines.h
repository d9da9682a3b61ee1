#pragma once

#include <QString>
#include <vector>

#include "findings/BlockText.h"

namespace quarn::tool {

/// A line of an input that loading and saving it does not keep.
struct LostLine {
    int number;
    QString text;
    QString becomes;  ///< what stands in the saved text under the same key; null where nothing does
};

/// Compares the lines of an input with those of what was saved after loading it, block by block and whatever their
/// order. Lines are the same when their words are, and numbers are the same when they are written differently or round
/// to the same float: most numbers of a project are floats. Each line accounts for one line of the other side, so that
/// a value that is there twice must be saved twice; an input line that holds several entries accounts for several.
///
/// The cost is linear in the number of lines.
std::vector<LostLine> linesLost(const std::vector<BlockLine>& input, const std::vector<BlockLine>& saved);

}  // namespace quarn::tool
