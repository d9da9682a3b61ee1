#pragma once

#include "ResultFile.h"
#include "Sheet.h"

namespace quarn::tool {

/// What a result file holds, with the range of its values and whether it is cut short. The file is read piece by piece.
/// Throws a FileProblem.
Sheet sheetOfResult(const QString& path, ResultKind kind);

}  // namespace quarn::tool
