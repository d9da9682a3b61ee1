#pragma once

#include <CLI/CLI.hpp>
#include <QStringList>
#include <optional>

namespace quarn::tool {

/// Runs the tool with the arguments that follow its name and returns its exit status. Reports wrong usage; other
/// exceptions of the commands pass through.
int runTool(const QStringList& arguments);

/// The subcommands. Each function adds one with its help and its options; when it has run, `status` is an ExitStatus.
void addCheck(CLI::App& quarn, int& status);
void addShow(CLI::App& quarn, int& status);
void addRewrite(CLI::App& quarn, int& status);
void addExport(CLI::App& quarn, int& status);
void addSar(CLI::App& quarn, int& status);
void addFarZone(CLI::App& quarn, int& status);
void addFormat(CLI::App& quarn, int& status);
void addDemo(CLI::App& quarn, int& status);

/// Adds a subcommand with its line in the list of subcommands and the text of its own help.
CLI::App& addCommand(CLI::App& quarn, const char* name, const char* summary, const QString& help);

/// Adds one required positional argument.
void addArgument(CLI::App& command, const char* name, QString& value, const char* help);

/// Adds one positional argument that may be left out; the value then stays null.
void addOptionalArgument(CLI::App& command, const char* name, QString& value, const char* help);

/// Adds a positional argument that is given once or more; it must be the last one.
void addArguments(CLI::App& command, const char* name, QStringList& values, const char* help);

/// Adds an option with a text; the value stays null when the option is not given.
void addOption(CLI::App& command, const char* name, const char* valueName, QString& value, const char* help);

/// Adds an option with a number, whatever the locale; numbers out of the range are wrong usage.
struct NumberRange {
    double least;
    double most;
};
void addOption(CLI::App& command, const char* name, const char* valueName, std::optional<double>& value,
               NumberRange range, const char* help);

/// An argument in the form in which CLI11 passes it to a callback.
QString argumentText(const std::string& argument);

/// Adds an option without a value.
void addFlag(CLI::App& command, const char* name, bool& isSet, const char* help);

}  // namespace quarn::tool
