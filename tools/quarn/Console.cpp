#include "Console.h"

#include <QStringList>
#include <algorithm>
#include <cstdio>
#include <memory>

namespace quarn::tool {

namespace {

std::unique_ptr<QTextStream> utf8Stream(FILE* file) {
    auto stream = std::make_unique<QTextStream>(file);
    stream->setCodec("UTF-8");
    return stream;
}

}  // namespace

QTextStream& out() {
    static const auto stream = utf8Stream(stdout);
    return *stream;
}

void printError(const QString& problem) {
    static const auto stream = utf8Stream(stderr);
    out().flush();
    *stream << "quarn: " << printable(problem) << Qt::endl;
}

void printError(const FileProblem& problem) {
    printError(problem.path() + text(": ") + QString::fromUtf8(problem.what()));
}

int forEachFile(const QStringList& paths, const std::function<int(const QString& path)>& use) {
    int worst = ExitFine;
    for (const QString& path : paths) {
        try {
            worst = std::max(worst, use(path));
        } catch (const FileProblem& problem) {
            printError(problem);
            worst = ExitUnusable;
        }
    }
    return worst;
}

}  // namespace quarn::tool
