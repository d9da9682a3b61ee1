#pragma once

#include <QStringList>

/// The subcommands. Each takes the arguments that follow its name and returns an ExitStatus; main() catches what they
/// throw: WrongUsage, FileProblem, and whatever the library throws.
namespace quarn::tool {

int runCheck(const QStringList& arguments);
int runShow(const QStringList& arguments);
int runRewrite(const QStringList& arguments);
int runFarZone(const QStringList& arguments);
int runExport(const QStringList& arguments);
int runSar(const QStringList& arguments);
int runDemo(const QStringList& arguments);

}  // namespace quarn::tool
