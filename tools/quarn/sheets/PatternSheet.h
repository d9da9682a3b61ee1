#pragma once

#include <QByteArray>

#include "sheets/Sheet.h"

namespace quarn::tool {

/// What the cuts of an antenna pattern file hold, and which of them are refused and why. Throws a FileProblem.
Sheet sheetOfPattern(const QString& path, const QByteArray& content);

}  // namespace quarn::tool
