#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <filesystem>

#include "CommandLine.h"
#include "Console.h"
#include "Quantity.h"
#include "Subcommands.h"
#include "files/DeferredSignals.h"
#include "files/InputFile.h"
#include "quarn/FileReplacement.h"
#include "quarn/LongPathUtil.h"
#include "quarn/SarResult.h"

namespace quarn::tool {

namespace {

const QString action = QStringLiteral("combine");

// Before anything is missed that only a known action needs.
void checkAction(const QStringList& arguments) {
    const auto isOption = [](const QString& argument) { return argument.startsWith(u'-'); };
    const auto given = std::find_if_not(arguments.begin(), arguments.end(), isOption);
    if (given == arguments.end() || *given == action) return;
    throw WrongUsage(QStringLiteral("Unknown action '%1'; the only one is '%2'.").arg(*given, action));
}

// The library reads and writes files by name.
QString withStandardStreams(const QString& name, const QString& stream) {
    return name == QLatin1String("-") ? stream : name;
}

bool isFile(const QString& path) { return QFileInfo(resolveLongPath(path, true)).isFile(); }

// Throws a FileProblem when it cannot be told whether there is such a file.
bool exists(const QString& path) {
    std::error_code failure;
    const auto status = std::filesystem::status(QFile::encodeName(resolveLongPath(path, true)).toStdString(), failure);
    if (status.type() == std::filesystem::file_type::not_found) return false;
    if (status_known(status)) return true;
    throw FileProblem(path, QStringLiteral("cannot be opened: ") + QString::fromStdString(failure.message()));
}

// Names each part that does not exist, was given before or holds more than is joined of it. Throws a FileProblem when
// none exists.
ExitStatus checkParts(const QStringList& parts, const QString& output) {
    ExitStatus status = ExitFine;
    QStringList found;
    const auto name = [&](const QString& part, const QString& problem) {
        complain(FileProblem(part, problem));
        status = ExitFindings;
    };
    for (const QString& part : parts) {
        if (!exists(part)) {
            name(part, QStringLiteral("does not exist; its records are not in the output"));
            continue;
        }
        SarResultReader reader;
        if (isFile(part) && reader.beginResultReading(part)) {
            const std::int64_t held = reader.getNumberOfRecordsLeft();
            const QString text = QStringLiteral("holds %1 records, but its header says %2; only these are joined");
            if (held > reader.getNumberOfRecords()) name(part, text.arg(held).arg(reader.getNumberOfRecords()));
        }
        const auto same = [&](const QString& other) { return isSameFile(other, part); };
        const auto earlier = std::find_if(found.begin(), found.end(), same);
        if (earlier != found.end()) {
            name(part,
                 QStringLiteral("is the same file as '%1'; its records are in the output once for each time it was "
                                "given. Name each part once.")
                     .arg(*earlier));
        }
        found << part;
    }
    if (found.isEmpty()) throw FileProblem(output, QStringLiteral("not written, as none of the parts exists"));
    return status;
}

// What the library does not say of a failure. Empty where nothing more is known.
QString cureFor(const QStringList& parts, const QString& output) {
    for (const QString& path : QStringList(output) + parts) {
        if (!isPathTooLong(path)) continue;
        return QStringLiteral(
                   " The path '%1' has %2 characters: to use paths of 259 and more, set the environment "
                   "variable KIVEN_LONGPATHSUPPORT.")
            .arg(path, QString::number(path.size()));
    }
    for (const QString& part : parts) {
        SarResultReader reader;
        if (!exists(part) || (isFile(part) && reader.beginResultReading(part))) continue;
        if (!isFile(part)) {
            return QStringLiteral(" '%1' is not a regular file: copy what it holds into one.").arg(part);
        }
        const FileKind kind = kindOf(InputFile(part).beginning());
        return QStringLiteral(" '%1' is %2%3.")
            .arg(part,
                 description(kind),
                 QLatin1String(kind == FileKind::SarPlane ? " whose header is damaged" : ", not a SAR plane"));
    }
    if (QFileInfo(output).isDir()) return QStringLiteral(" '%1' is a folder.").arg(output);
    const QString reason = FileReplacement(output).errorString();
    return reason.isEmpty() ? QString() : QStringLiteral(" '%1': %2.").arg(output, reason);
}

void combine(const QStringList& parts, const QString& output) {
    const DeferredSignals deferred(output);
    QString error;
    QString warning;
    const auto goOn = [&](std::size_t, std::size_t) { return !deferred.isPending(); };
    if (SarResult::combineFiles(parts, output, error, warning, goOn)) return;
    throw std::runtime_error((error + u' ' + warning + cureFor(parts, output)).toStdString());
}

// Nothing of a device or a pipe, which may be standard output itself.
void printWhatWasWritten(const QString& output) {
    SarResultReader reader;
    if (!isFile(output) || !reader.beginResultReading(output)) return;
    const QString records = counted(static_cast<std::size_t>(reader.getNumberOfRecords()), QStringLiteral("record"));
    const QString index = QString::number(reader.getPlaneIndex());
    const QString text = QStringLiteral("%1: SAR plane %2, index %3, %4");
    out() << printable(text.arg(output, planeName(reader.getPlane()), index, records)) << '\n';
}

}  // namespace

int runSar(const QStringList& arguments) {
    CommandLine commandLine(
        QStringLiteral("sar"),
        QStringLiteral(
            "'quarn sar combine OUT PART...' joins the files that several processes wrote of one SAR plane,\n"
            "in their order. PARTs stay. A PART that does not exist is named and passed over; one that is\n"
            "given twice is named, and its records are joined each time. In both cases OUT is written and\n"
            "the exit status is 1. When a PART holds fewer records than it says or the disk is full, OUT\n"
            "holds the records joined so far, unless it is one of the PARTs; on any other failure, or when\n"
            "interrupted, an earlier OUT stays as it was."));
    commandLine.addFile(action, QStringLiteral("What to do."));
    commandLine.addFile(QStringLiteral("OUT"), QStringLiteral("The file to write."));
    commandLine.addFiles(QStringLiteral("PART"), QStringLiteral("The files to join."));
    checkAction(arguments);
    if (!commandLine.parse(arguments)) return ExitFine;

    const QString output = withStandardStreams(commandLine.files().at(1), QStringLiteral("/dev/stdout"));
    QStringList parts;
    for (const QString& part : commandLine.files().mid(2)) {
        parts << withStandardStreams(part, QStringLiteral("/dev/stdin"));
    }
    checkName(output);
    const ExitStatus status = checkParts(parts, output);
    combine(parts, output);
    printWhatWasWritten(output);
    return status;
}

}  // namespace quarn::tool
