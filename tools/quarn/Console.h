#pragma once

#include <QString>
#include <QTextStream>
#include <functional>
#include <stdexcept>

#include "Text.h"

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

/// A command line that cannot be followed.
class WrongUsage : public std::runtime_error {
public:
    explicit WrongUsage(const QString& problem) : std::runtime_error(problem.toStdString()) {}
};

QTextStream& out();

/// Writes "quarn: TEXT" to standard error.
void printError(const QString& text);
void printError(const FileProblem& problem);

/// Calls `use` for each file, complains about those that it throws a FileProblem for, and returns the worst status.
int forEachFile(const QStringList& paths, const std::function<int(const QString& path)>& use);

}  // namespace quarn::tool
