#include "commands/Commands.h"

#include <algorithm>
#include <string_view>

#include "Console.h"
#include "Quantity.h"
#include "quarn/Version.h"

namespace quarn::tool {

namespace {

/// Prints the usage first and each option with the name of its value.
class HelpFormatter : public CLI::Formatter {
public:
    HelpFormatter() {
        constexpr std::size_t width = 20;
        column_width(width);
        label("OPTIONS", "options");
        label("Positionals", "Arguments");
    }

    std::string make_help(const CLI::App* app, std::string name, CLI::AppFormatMode mode) const override {
        return make_usage(app, name) + make_footer(app) + make_subcommands(app, mode) + make_groups(app, mode) +
               make_positionals(app);
    }

    std::string make_option_opts(const CLI::Option* option) const override {
        return option->get_type_name().empty() ? std::string() : ' ' + option->get_type_name();
    }
};

constexpr char protection = '\0';  // which no argument can hold

/// The arguments as CLI11 takes them, the last one first. It would split a text in brackets, take the next argument for
/// an option's empty value and end the list of files at "--".
std::vector<std::string> protectedArguments(const QStringList& arguments) {
    std::vector<std::string> result;
    bool isOption = true;
    for (const QString& argument : arguments) {
        if (isOption && argument == QLatin1String("--")) {
            isOption = false;
            continue;
        }
        std::string word = argument.toStdString();
        const bool isSpecial = !word.empty() && std::string_view("[{+").find(word.front()) != std::string_view::npos;
        if (!isOption || isSpecial) word.insert(0, 1, protection);
        if (argument.startsWith(QLatin1String("--")) && word.back() == '=') word += protection;
        result.push_back(word);
    }
    std::reverse(result.begin(), result.end());
    return result;
}

/// What is wrong, in plainer words than those of CLI11 where the fault is an unknown, repeated or incomplete argument.
QString problemText(const CLI::App& command, const CLI::ParseError& error) {
    if (const auto unexpected = command.remaining(); !unexpected.empty()) {
        const QString first = argumentText(unexpected.front());
        if (first.startsWith(u'-')) return text("Unknown option '%1'.").arg(first);
        return (command.get_parent() ? text("Unexpected argument '%1'.") : text("There is no subcommand '%1'."))
            .arg(first);
    }
    const QString problem = QString::fromUtf8(error.what());
    const QString flag = problem.section(text(" was given a disallowed flag override"), 0, 0);
    if (flag != problem) return text("--%1 takes no value.").arg(flag);
    const auto* option = command.get_option_no_throw(problem.section(u':', 0, 0).toStdString());
    if (!option) return problem + u'.';
    return QString::fromStdString(option->get_name()) +
           QLatin1String(option->count() > 1 ? " is given more than once." : " needs a value.");
}

int reportWrongUsage(const CLI::App& command, const QString& problem) {
    const QString name = QString::fromStdString(command.get_name());
    printError(command.get_parent() ? text("%1: %2 See 'quarn %1 --help'.").arg(name, problem)
                                    : text("%1 See 'quarn --help'.").arg(problem));
    return ExitUnusable;
}

}  // namespace

int runTool(const QStringList& arguments) {
    int status = ExitFine;
    CLI::App quarn(std::string(), "quarn");
    quarn.set_help_flag("-h,--help", "Shows this help; with a subcommand, its help.");
    quarn.set_version_flag("-v,--version", "quarn " QUARN_VERSION, "Shows the version.");
    quarn.footer(
        "Works with the files of field simulations.\n"
        "Exit status: 0 all fine, 1 findings, 2 unusable input or wrong usage.");
    quarn.formatter(std::make_shared<HelpFormatter>());
    quarn.require_subcommand(1);
    for (const auto add : {addCheck, addShow, addRewrite, addExport, addSar, addFarZone, addFormat, addDemo})
        add(quarn, status);

    const auto command = [&quarn]() -> const CLI::App& {
        return quarn.get_subcommands().empty() ? quarn : *quarn.get_subcommands().front();
    };
    try {
        quarn.parse(protectedArguments(arguments));
    } catch (const CLI::CallForHelp&) {
        out() << QString::fromStdString(quarn.help());
    } catch (const CLI::CallForVersion& version) {
        out() << version.what() << '\n';
    } catch (const CLI::ParseError& error) {
        return reportWrongUsage(command(), problemText(command(), error));
    } catch (const WrongUsage& error) {
        return reportWrongUsage(command(), QString::fromUtf8(error.what()));
    }
    return status;
}

QString argumentText(const std::string& argument) { return QString::fromStdString(argument).remove(QChar(protection)); }

CLI::App& addCommand(CLI::App& quarn, const char* name, const char* summary, const QString& help) {
    CLI::App& command = *quarn.add_subcommand(name, summary);
    command.set_help_flag("-h,--help", "Shows this help.");
    command.footer(help.toStdString());
    return command;
}

void addOptionalArgument(CLI::App& command, const char* name, QString& value, const char* help) {
    addOption(command, name, "", value, help);
}

void addArgument(CLI::App& command, const char* name, QString& value, const char* help) {
    addOptionalArgument(command, name, value, help);
    command.get_option(name)->required();
}

void addArguments(CLI::App& command, const char* name, QStringList& values, const char* help) {
    const auto take = [&values](const CLI::results_t& given) {
        for (const std::string& argument : given) values << argumentText(argument);
        return true;
    };
    command.add_option(name, take, help)->expected(CLI::detail::expected_max_vector_size)->required();
}

void addOption(CLI::App& command, const char* name, const char* valueName, QString& value, const char* help) {
    const auto take = [&value](const CLI::results_t& given) {
        value = argumentText(given.front());
        return true;
    };
    command.add_option(name, take, help)->type_name(valueName);
}

void addOption(CLI::App& command, const char* name, const char* valueName, std::optional<double>& value,
               NumberRange range, const char* help) {
    const auto take = [&value, name, range](const CLI::results_t& given) {
        bool isNumber = false;
        value = argumentText(given.front()).toDouble(&isNumber);
        if (isNumber && *value >= range.least && *value <= range.most) return true;
        throw WrongUsage(text("%1 needs a number from %2 to %3.")
                             .arg(QLatin1String(name), numberText(range.least), numberText(range.most)));
    };
    command.add_option(name, take, help)->type_name(valueName);
}

void addFlag(CLI::App& command, const char* name, bool& isSet, const char* help) {
    command.add_flag(name, isSet, help)->disable_flag_override();
}

}  // namespace quarn::tool
