#pragma once

#include <QString>
#include <QTextStream>
#include <functional>
#include <stdexcept>

/// How the tool talks to its user: results on standard output, messages on standard error, both UTF-8.
namespace quarn::tool {

enum ExitStatus : int {
    ExitFine = 0,
    ExitFindings = 1,
    ExitUnusable = 2,  ///< a file that cannot be used, or a wrong command line
};

/// A file that cannot be read, understood or written.
class FileProblem : public std::runtime_error {
public:
    FileProblem(const QString& path, const QString& problem)
        : std::runtime_error(problem.toStdString()), m_path(path) {}
    const QString& path() const { return m_path; }

private:
    QString m_path;
};

QTextStream& out();

/// Writes "quarn: TEXT" to standard error.
void complain(const QString& text);
void complain(const FileProblem& problem);

/// The text with control characters replaced, so that a file's content cannot drive the terminal.
QString printable(QString text);

/// "1 error", "2 errors"; the plural is the noun with an s.
QString counted(std::size_t count, const QString& noun);

/// Calls `use` for each file, complains about those that it throws a FileProblem for, and returns the worst status.
int forEachFile(const QStringList& paths, const std::function<int(const QString& path)>& use);

}  // namespace quarn::tool
