#include <QJsonArray>
#include <QJsonDocument>

#include "CommandLine.h"
#include "Console.h"
#include "Findings.h"
#include "InputFile.h"
#include "ProjectOnDisk.h"
#include "Subcommands.h"

namespace quarn::tool {

namespace {

Findings findingsIn(const QString& path) {
    LoadedProject loaded(path, readFile(path));
    return examine(loaded);
}

int statusOf(const Findings& findings) { return findings.none() ? ExitFine : ExitFindings; }

int checkAsText(const QString& path) {
    const Findings findings = findingsIn(path);
    findings.print(path);
    return statusOf(findings);
}

int checkAsJson(const QStringList& paths) {
    QJsonArray files;
    const int status = forEachFile(paths, [&files](const QString& path) {
        QJsonObject file{{QStringLiteral("file"), path}};
        try {
            const Findings findings = findingsIn(path);
            const QJsonObject members = findings.toJson();
            for (auto member = members.begin(); member != members.end(); ++member) {
                file.insert(member.key(), member.value());
            }
            files << file;
            return statusOf(findings);
        } catch (const FileProblem& problem) {
            file.insert(QStringLiteral("unusable"), QString::fromUtf8(problem.what()));
            files << file;
            throw;
        }
    });
    out() << QString::fromUtf8(QJsonDocument(files).toJson());
    return status;
}

}  // namespace

int runCheck(const QStringList& arguments) {
    CommandLine commandLine(
        QStringLiteral("check"),
        QStringLiteral("Loads project files and prints what is wrong or doubtful with the runs that they describe.\n"
                       "Names too, with its number, each line that loading and saving the file does not keep: unknown\n"
                       "keys and blocks, misspelt ones among them, are ignored by the reader without a word. Lines\n"
                       "that only move within their block or write a number differently are kept.\n"
                       "Exit status: 0 no findings, 1 findings (warnings count), 2 a file cannot be used."));
    commandLine.addOption(QStringLiteral("json"), QStringLiteral("Prints one JSON document: an array of files."));
    commandLine.addFiles(QStringLiteral("PROJECT"), QStringLiteral("The project files to check."));
    if (!commandLine.parse(arguments)) return ExitFine;

    const QStringList paths = commandLine.files();
    return commandLine.isSet(QStringLiteral("json")) ? checkAsJson(paths) : forEachFile(paths, checkAsText);
}

}  // namespace quarn::tool
