#pragma once

#include <QByteArray>

#include "sheets/Sheet.h"

namespace quarn::tool {

/// The grid, the materials and the number of maps of a geometry file. Long lists are cut.
Sheet sheetOfGeometry(const QString& path, const QByteArray& content);

}  // namespace quarn::tool
