#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <filesystem>

#include "Console.h"
#include "Quantity.h"
#include "commands/Commands.h"
#include "files/DeferredSignals.h"
#include "files/InputFile.h"
#include "quarn/FileReplacement.h"
#include "quarn/LongPathUtil.h"
#include "quarn/SarResult.h"

namespace quarn::tool {

namespace {

bool isFile(const QString& path) { return QFileInfo(resolveLongPath(path, true)).isFile(); }

// Throws a FileProblem when the system does not tell whether the file exists.
bool exists(const QString& path) {
    std::error_code failure;
    const auto status = std::filesystem::status(QFile::encodeName(resolveLongPath(path, true)).toStdString(), failure);
    if (status.type() == std::filesystem::file_type::not_found) return false;
    if (status_known(status)) return true;
    throw FileProblem(path, text("cannot be opened: ") + QString::fromStdString(failure.message()));
}

// What is odd about a part, given the parts before it; null when nothing is.
QStringList oddities(const QString& part, const QStringList& earlier) {
    if (!exists(part)) return {text("does not exist; its records are not in the output")};
    QStringList result;
    SarResultReader reader;
    if (isFile(part) && reader.beginResultReading(part) &&
        reader.getNumberOfRecordsLeft() > reader.getNumberOfRecords())
        result << text("holds %1 records, but its header says %2; only these are joined")
                      .arg(reader.getNumberOfRecordsLeft())
                      .arg(reader.getNumberOfRecords());
    const auto isSame = [&](const QString& other) { return isSameFile(other, part); };
    const auto same = std::find_if(earlier.begin(), earlier.end(), isSame);
    if (same != earlier.end()) {
        result << text(
                      "is the same file as '%1'; its records are in the output once for each time it was given. Name "
                      "each part once.")
                      .arg(*same);
    }
    return result;
}

// Prints what is odd about the parts. Throws a FileProblem when no part exists.
ExitStatus checkParts(const QStringList& parts, const QString& output) {
    ExitStatus status = ExitFine;
    QStringList found;
    for (const QString& part : parts) {
        for (const QString& oddity : oddities(part, found)) {
            printError(FileProblem(part, oddity));
            status = ExitFindings;
        }
        if (exists(part)) found << part;
    }
    if (found.isEmpty()) throw FileProblem(output, "not written, as none of the parts exists");
    return status;
}

// What the library does not say about a failure; null when nothing more is known.
QString cureFor(const QStringList& parts, const QString& output) {
    for (const QString& path : QStringList(output) + parts) {
        if (!isPathTooLong(path)) continue;
        return text(
                   " The path '%1' has %2 characters: to use paths of 259 and more, set the environment variable "
                   "KIVEN_LONGPATHSUPPORT.")
            .arg(path, QString::number(path.size()));
    }
    for (const QString& part : parts) {
        SarResultReader reader;
        if (!exists(part) || (isFile(part) && reader.beginResultReading(part))) continue;
        if (!isFile(part)) return text(" '%1' is not a regular file: copy what it holds into one.").arg(part);
        const FileKind kind = kindOf(InputFile(part).beginning());
        return text(kind == FileKind::SarPlane ? " '%1' is %2 whose header is damaged."
                                               : " '%1' is %2, not a SAR plane.")
            .arg(part, description(kind));
    }
    if (QFileInfo(output).isDir()) return text(" '%1' is a folder.").arg(output);
    const QString reason = FileReplacement(output).errorString();
    return reason.isEmpty() ? QString() : text(" '%1': %2.").arg(output, reason);
}

void join(const QStringList& parts, const QString& output) {
    const DeferredSignals deferred(output);
    QString error;
    QString warning;
    const auto report = [&](std::size_t, std::size_t) { return !deferred.isPending(); };
    if (SarResult::combineFiles(parts, output, error, warning, report)) return;
    throw std::runtime_error((error + u' ' + warning + cureFor(parts, output)).toStdString());
}

// Prints nothing for a device or a pipe, which may be standard output itself.
void printPlane(const QString& path) {
    SarResultReader reader;
    if (!isFile(path) || !reader.beginResultReading(path)) return;
    out() << printable(text("%1: SAR plane %2, index %3, %4")
                           .arg(path, planeName(reader.getPlane()), QString::number(reader.getPlaneIndex()))
                           .arg(counted(reader.getNumberOfRecords(), "record")))
          << '\n';
}

// The library reads and writes files by name.
ExitStatus combine(QStringList parts, QString output) {
    output = withoutDash(output, "/dev/stdout");
    for (QString& part : parts) part = withoutDash(part, "/dev/stdin");
    checkName(output);
    const ExitStatus status = checkParts(parts, output);
    join(parts, output);
    printPlane(output);
    return status;
}

}  // namespace

void addSar(CLI::App& quarn, int& status) {
    struct Options {
        QString output;
        QStringList parts;
    };
    const auto options = std::make_shared<Options>();
    CLI::App& command = addCommand(
        quarn,
        "sar",
        "Joins partial files of a SAR plane",
        text("'quarn sar combine OUT PART...' joins the files that several processes wrote of one SAR plane,\n"
             "in their order. The PARTs stay. A PART that does not exist is named and left out; one that is\n"
             "given twice is named, and its records are joined each time. In both cases OUT is written and\n"
             "the exit status is 1. When a PART holds fewer records than it says or the disk is full, OUT\n"
             "holds the records joined so far, unless it is one of the PARTs; on any other failure, or when\n"
             "interrupted, an earlier OUT stays as it was."));
    const auto checkAction = [](const CLI::results_t& given) {
        if (given.front() == "combine") return true;
        throw WrongUsage(text("Unknown action '%1'; the only one is 'combine'.").arg(argumentText(given.front())));
    };
    command.add_option("combine", checkAction, "What to do.")->required();
    addArgument(command, "OUT", options->output, "The file to write.");
    addArguments(command, "PART", options->parts, "The files to join.");
    command.callback([options, &status] { status = combine(options->parts, options->output); });
}

}  // namespace quarn::tool
