#pragma once

#include <QByteArray>

#include "sheets/Sheet.h"

namespace quarn::tool {

/// Whether the content begins like that of a file of meshless vias.
bool isViaFile(const QByteArray& content);

/// What a file of meshless vias holds, and whether it is shorter than it says.
Sheet sheetOfVias(const QString& path, const QByteArray& content);

}  // namespace quarn::tool
