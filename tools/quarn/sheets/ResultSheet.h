#pragma once

#include "files/InputFile.h"
#include "sheets/Sheet.h"

namespace quarn::tool {

/// What a result file holds, with the range of its values and whether it is cut short. The file is read piece by piece.
/// Throws a FileProblem.
Sheet sheetOfResult(const InputFile& file, FileKind kind);

}  // namespace quarn::tool
