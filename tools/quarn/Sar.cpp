#include "CommandLine.h"
#include "Console.h"
#include "Subcommands.h"
#include "quarn/SarResult.h"

namespace quarn::tool {

int runSar(const QStringList& arguments) {
    CommandLine commandLine(
        QStringLiteral("sar"),
        QStringLiteral(
            "'quarn sar combine OUT PART...' joins the files that several processes wrote of one SAR plane,\n"
            "in their order. Files that do not exist are passed over; PARTs stay. When anything fails, an\n"
            "earlier OUT stays as it was."));
    commandLine.addFile(QStringLiteral("combine"), QStringLiteral("What to do."));
    commandLine.addFile(QStringLiteral("OUT"), QStringLiteral("The file to write."));
    commandLine.addFiles(QStringLiteral("PART"), QStringLiteral("The files to join."));
    if (!commandLine.parse(arguments)) return ExitFine;

    const QStringList words = commandLine.files();
    if (words.at(0) != QLatin1String("combine")) {
        throw WrongUsage(QStringLiteral("'%1' is nothing that can be done.").arg(words.at(0)));
    }
    QString error;
    QString warning;
    if (SarResult::combineFiles(words.mid(2), words.at(1), error, warning)) return ExitFine;
    complain(error + u' ' + warning);
    return ExitUnusable;
}

}  // namespace quarn::tool
