#pragma once

#include <QByteArray>
#include <QString>

#include "sheets/Sheet.h"

namespace quarn::tool {

/// What a project file holds. Throws a FileProblem.
Sheet sheetOfProject(const QString& path, const QByteArray& content);

}  // namespace quarn::tool
