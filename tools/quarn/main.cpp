#include <QCoreApplication>
#include <QTextCodec>
#include <new>

#include "Console.h"
#include "commands/Commands.h"

namespace {

using namespace quarn::tool;

int runReportingProblems(const QStringList& arguments) {
    try {
        return runTool(arguments);
    } catch (const FileProblem& problem) {
        printError(problem);
    } catch (const std::bad_alloc&) {
        printError("out of memory");
    } catch (const std::exception& problem) {
        printError(QString::fromUtf8(problem.what()));
    }
    return ExitUnusable;
}

}  // namespace

int main(int argc, char** argv) {
    // Names in arguments and of files are UTF-8 whatever the locale.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    const QCoreApplication application(argc, argv);
    const int status = runReportingProblems(QCoreApplication::arguments().mid(1));
    out().flush();
    if (out().status() != QTextStream::Ok) {
        printError("the results could not be written to standard output");
        return ExitUnusable;
    }
    return status;
}
