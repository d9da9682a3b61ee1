#include <QCoreApplication>
#include <QTextCodec>
#include <new>

#include "CommandLine.h"
#include "Console.h"
#include "Subcommands.h"
#include "quarn/Version.h"

namespace quarn::tool {

namespace {

struct Subcommand {
    const char* name;
    const char* summary;
    int (*run)(const QStringList& arguments);
};

constexpr Subcommand subcommands[] = {
    {"check", "Checks project and geometry files and names each line that would be lost", runCheck},
    {"show", "Says what files are and what they hold", runShow},
    {"rewrite", "Loads a file and saves it in its canonical form", runRewrite},
    {"export", "Writes what a result file holds as CSV", runExport},
    {"sar", "Joins partial files of a SAR plane", runSar},
    {"farzone", "Computes far fields from the fields on a far-zone box", runFarZone},
    {"demo", "Takes example runs through the whole path, one to its far field", runDemo},
};

void printHelp() {
    out() << "Usage: quarn SUBCOMMAND [options] FILE...\n"
             "Works with the files of field simulations.\n\nSubcommands:\n";
    for (const Subcommand& subcommand : subcommands) {
        out() << "  " << QString::fromLatin1(subcommand.name).leftJustified(10) << subcommand.summary << '\n';
    }
    out() << "\nOptions:\n"
             "  -h, --help     Shows this help; with a subcommand, its help\n"
             "  -v, --version  Shows the version\n\n"
             "Exit status: 0 all fine, 1 findings, 2 unusable input or wrong usage\n";
}

int runSubcommand(const QString& name, const QStringList& arguments) {
    for (const Subcommand& subcommand : subcommands) {
        if (name != QLatin1String(subcommand.name)) continue;
        try {
            return subcommand.run(arguments);
        } catch (const WrongUsage& problem) {
            complain(QStringLiteral("%1: %2 See 'quarn %1 --help'.").arg(name, QString::fromUtf8(problem.what())));
            return ExitUnusable;
        }
    }
    throw WrongUsage(QStringLiteral("There is no subcommand '%1'.").arg(name));
}

int run(const QStringList& arguments) {
    const QString first = arguments.value(1);
    if (first.isEmpty()) throw WrongUsage(QStringLiteral("A subcommand is missing."));
    if (first == QLatin1String("-h") || first == QLatin1String("--help")) {
        printHelp();
        return ExitFine;
    }
    if (first == QLatin1String("-v") || first == QLatin1String("--version")) {
        out() << "quarn " << QUARN_VERSION << '\n';
        return ExitFine;
    }
    return runSubcommand(first, arguments.mid(2));
}

int runReportingProblems(const QStringList& arguments) {
    try {
        return run(arguments);
    } catch (const WrongUsage& problem) {
        complain(QString::fromUtf8(problem.what()) + QStringLiteral(" See 'quarn --help'."));
    } catch (const FileProblem& problem) {
        complain(problem);
    } catch (const std::bad_alloc&) {
        complain(QStringLiteral("out of memory"));
    } catch (const std::exception& problem) {
        complain(QString::fromUtf8(problem.what()));
    }
    return ExitUnusable;
}

}  // namespace

}  // namespace quarn::tool

int main(int argc, char** argv) {
    using namespace quarn::tool;
    // Names in arguments and of files are UTF-8 whatever the locale.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    const QCoreApplication application(argc, argv);
    const int status = runReportingProblems(QCoreApplication::arguments());
    out().flush();
    if (out().status() != QTextStream::Ok) {
        complain(QStringLiteral("the results could not be written to standard output"));
        return ExitUnusable;
    }
    return status;
}
