#pragma once

#include <QString>
#include <QTextStream>
#include <functional>
#include <stdexcept>

#include "Text.h"

/// Results go to standard output, messages to standard error, both in UTF-8.
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

/// An error in the command line.
class WrongUsage : public std::runtime_error {
public:
    explicit WrongUsage(const QString& problem) : std::runtime_error(problem.toStdString()) {}
};

QTextStream& out();

/// Writes "quarn: TEXT" to standard error.
void printError(const QString& problem);
void printError(const FileProblem& problem);

/// Calls `use` for each file, prints the FileProblems that it throws, and returns the worst status.
int forEachFile(const QStringList& paths, const std::function<int(const QString& path)>& use);

}  // namespace quarn::tool
