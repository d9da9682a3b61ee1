#pragma once

#include <QStringList>

#include "Console.h"
#include "commands/Commands.h"

namespace quarn::tool {

inline void complain(const QString& problem) { printError(problem); }

/// `quarn farzone` with the arguments that follow its name.
inline int runFarZone(const QStringList& arguments) { return runTool(QStringList(text("farzone")) + arguments); }

}  // namespace quarn::tool
