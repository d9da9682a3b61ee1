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

void complain(const QString& text) {
    static const auto stream = utf8Stream(stderr);
    out().flush();
    *stream << "quarn: " << printable(text) << Qt::endl;
}

void complain(const FileProblem& problem) {
    complain(problem.path() + QStringLiteral(": ") + QString::fromUtf8(problem.what()));
}

QString printable(QString text) {
    const auto isControl = [](QChar c) { return c.category() == QChar::Other_Control && c != u'\t'; };
    std::replace_if(text.begin(), text.end(), isControl, QChar(QChar::ReplacementCharacter));
    return text;
}

QString counted(std::size_t count, const QString& noun) {
    return QStringLiteral("%1 %2%3").arg(count).arg(noun, QLatin1String(count == 1 ? "" : "s"));
}

int forEachFile(const QStringList& paths, const std::function<int(const QString& path)>& use) {
    int worst = ExitFine;
    for (const QString& path : paths) {
        try {
            worst = std::max(worst, use(path));
        } catch (const FileProblem& problem) {
            complain(problem);
            worst = ExitUnusable;
        }
    }
    return worst;
}

}  // namespace quarn::tool
