#pragma once

#include <QString>
#include <vector>

#include "findings/BlockScan.h"

namespace quarn::tool {

/// A line of a file that is not kept when the file is loaded and saved.
struct LostLine {
    int number;
    QString text;
    QString becomes;  ///< the saved line with the same key; null when there is none
};

/// Compares the lines of a file with the lines that were saved after loading it, block by block and in any order. Lines
/// are equal when their words are equal; numbers are equal when they round to the same float, however they are written.
/// Each line matches one line of the other side, so that a value that occurs twice must be saved twice. An input line
/// with several entries matches several lines. The cost is linear in the number of lines.
std::vector<LostLine> linesLost(const std::vector<BlockLine>& input, const std::vector<BlockLine>& saved);

}  // namespace quarn::tool
