#include "commands/FarZonePlan.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "Console.h"
#include "files/FarZoneBoxFile.h"
#include "files/InputFile.h"
#include "quarn/LongPathUtil.h"

namespace quarn::tool {

namespace {

using Frequency = ProjectFile::SteadyStateFrequency;

constexpr float lowestFrequency = 1.0F;
constexpr float highestFrequency = 1e15F;

QString namesOf(const std::vector<Frequency>& frequencies) {
    QStringList texts;
    for (const Frequency& frequency : frequencies) texts << frequencyText(frequency.frequency);
    return texts.join(", ");
}

void refuseRepeated(const std::vector<Frequency>& frequencies, const QString& projectPath) {
    for (auto i = frequencies.begin(); i != frequencies.end(); ++i) {
        const bool isRepeated = std::any_of(
            frequencies.begin(), i, [i](const Frequency& earlier) { return earlier.frequency == i->frequency; });
        if (!isRepeated) continue;
        throw FileProblem(projectPath,
                          text("lists the steady-state frequency %1 twice; remove one of the two lines")
                              .arg(frequencyText(i->frequency)));
    }
}

void checkRange(const std::vector<Frequency>& frequencies, const QString& projectPath) {
    for (const auto& [frequency, folder] : frequencies) {
        if (frequency >= lowestFrequency && frequency <= highestFrequency) continue;
        throw FileProblem(projectPath,
                          text("lists a steady-state frequency of %1 Hz; it must be from 1 to 1e15 Hz")
                              .arg(static_cast<double>(frequency)));
    }
}

/// The frequency that is equal as a float, the type in the project; null when there is none.
const Frequency* find(const std::vector<Frequency>& frequencies, double hertz) {
    const auto isSame = [hertz](const Frequency& listed) { return listed.frequency == static_cast<float>(hertz); };
    const auto found = std::find_if(frequencies.begin(), frequencies.end(), isSame);
    return found == frequencies.end() ? nullptr : &*found;
}

[[noreturn]] void refuseFrequency(double hertz, const std::vector<Frequency>& listed, const QString& projectPath) {
    const QString given = frequencyText(static_cast<float>(hertz));
    throw FileProblem(projectPath,
                      listed.empty()
                          ? text("%1 is not one of its steady-state frequencies, as it lists none; add --force to "
                                 "compute at this frequency nevertheless")
                                .arg(given)
                          : text("%1 is not one of its steady-state frequencies, which are: %2; give one of them, or "
                                 "add --force to compute at this frequency nevertheless")
                                .arg(given, namesOf(listed)));
}

/// The frequencies to compute, and whether the names of the outputs hold them.
struct Choice {
    std::vector<Frequency> frequencies;
    bool hasFrequencyInNames;
};

Choice choose(const std::vector<Frequency>& listed, const QString& projectPath, const FarZoneOptions& options) {
    refuseRepeated(listed, projectPath);
    const bool hasSeveral = listed.size() > 1;
    if (!options.frequency) {
        checkRange(listed, projectPath);
        if (!listed.empty()) return {listed, hasSeveral};
        throw FileProblem(projectPath, "lists no steady-state frequency; give one with --frequency and --force");
    }
    if (const Frequency* found = find(listed, *options.frequency)) return {{*found}, hasSeveral};
    if (!options.takesAnyFrequency) refuseFrequency(*options.frequency, listed, projectPath);
    return {{{static_cast<float>(*options.frequency), QString()}}, true};
}

QStringList boxFilesFor(const std::vector<Frequency>& frequencies, const QString& projectPath,
                        const QStringList& given) {
    if (given.size() == 1 && QFileInfo(given.first()).isDir()) {
        QStringList found;
        for (const auto& [frequency, folder] : frequencies) {
            const QString shown = frequencyText(frequency);
            if (folder.isEmpty()) {
                throw FileProblem(projectPath,
                                  text("names no folder for %1; give its box file in place of the folder %2")
                                      .arg(shown, given.first()));
            }
            found << boxFileIn(given.first(), folder, shown);
        }
        if (found.removeDuplicates() == 0) return found;
        throw FileProblem(projectPath, "names the same folder for two of its frequencies");
    }
    if (static_cast<std::size_t>(given.size()) == frequencies.size()) return given;
    throw WrongUsage(text("The number of box files must be %1, in the order of the frequencies (%2), and not %3.")
                         .arg(frequencies.size())
                         .arg(namesOf(frequencies))
                         .arg(given.size()));
}

/// A list of directions and the name of the file for the records.
struct Pattern {
    QString file;
    FarZoneAngles directions;
};

Pattern patternOf(const FarZoneRequest& request, const QString& projectPath) {
    // The folder is dropped: a project from another source must not choose it.
    const QString file = QFileInfo(request.getUANOutputFileName()).fileName();
    const QString shown = printable(file);
    if (file != shown) {
        throw FileProblem(
            projectPath,
            text("the file name \"%1\" of a far-zone request has control characters; rename it").arg(shown));
    }
    return {file, request.getAngles()};
}

std::vector<Pattern> patternsFor(const ProjectFile& project, const QString& projectPath,
                                 const FarZoneOptions& options) {
    constexpr double defaultStep = 5.0;
    const QString defaultFile = text("farzone.uan");
    const auto& requests = project.getSteadyStateFarZoneRequests();
    if (options.step || requests.empty()) return {{defaultFile, sphereOf(options.step.value_or(defaultStep))}};
    std::vector<Pattern> patterns;
    QStringList names;
    for (const FarZoneRequest& request : requests) {
        patterns.push_back(patternOf(request, projectPath));
        if (patterns.back().file.isEmpty()) patterns.back().file = defaultFile;
        names << QFileInfo(patterns.back().file).completeBaseName();
    }
    if (names.removeDuplicates() == 0) return patterns;
    throw FileProblem(projectPath,
                      "several far-zone requests write to files of the same name; rename them, or use --step for a "
                      "sphere in their place");
}

/// Inserts the label before the ending of the file name.
QString labelled(const QString& path, const QString& label) {
    const QString ending = QFileInfo(path).suffix();
    const int nameEnd = ending.isEmpty() ? path.size() : path.size() - ending.size() - 1;
    return path.left(nameEnd) + label + path.mid(nameEnd);
}

FarZoneJob jobFor(float frequency, const QString& boxFile, const QString& label, const std::vector<Pattern>& patterns,
                  const FarZoneOptions& options) {
    const QDir folder(options.folder);
    const auto pathOf = [&folder](const QString& file) { return QDir::cleanPath(folder.filePath(file)); };
    FarZoneJob job{frequency, boxFile, {}, options.plot.isEmpty() ? QString() : labelled(options.plot, label)};
    for (const Pattern& pattern : patterns) {
        const QString table = QFileInfo(pattern.file).completeBaseName() + label + text(".csv");
        job.patterns.push_back({pathOf(labelled(pattern.file, label)), pathOf(table)});
    }
    return job;
}

/// Throws a FileProblem when an output with a frequency in its name is also an output of the project's only frequency,
/// which happens when one request is named like another one with the frequency added.
void refuseOutputsOf(const FarZoneJob& job, const FarZoneJob& onlyFrequency) {
    const QStringList kept = onlyFrequency.outputs();
    for (const QString& output : job.outputs()) {
        if (!kept.contains(output)) continue;
        throw FileProblem(output,
                          "is also an output of the project's only frequency; rename one of the far-zone requests, or "
                          "use --step");
    }
}

/// Throws a FileProblem when the file cannot be written. Its folder need not exist yet.
void checkPlace(const QString& output) {
    checkName(output);
    const QFileInfo file(output);
    if (file.isFile() && file.isWritable()) return;
    if (file.exists()) {
        throw FileProblem(output, "is not a file that can be written; use another --out or --plot");
    }
    QFileInfo folder(file.isSymLink() ? QFileInfo(file.symLinkTarget()).absolutePath() : file.absolutePath());
    while (!file.isSymLink() && !folder.exists() && !folder.isRoot()) folder = QFileInfo(folder.absolutePath());
    if (folder.isDir() && folder.isWritable()) return;
    throw FileProblem(output,
                      text("cannot be written, as %1 is not a folder that can be written to; use another --out or "
                           "--plot")
                          .arg(folder.filePath()));
}

}  // namespace

QStringList FarZoneJob::outputs() const {
    QStringList paths;
    for (const PatternFiles& files : patterns) paths << files.records << files.table;
    if (!plot.isEmpty()) paths << QDir::cleanPath(plot);
    return paths;
}

QString frequencyText(float hertz) {
    constexpr std::pair<double, const char*> units[] = {{1e12, "THz"}, {1e9, "GHz"}, {1e6, "MHz"}, {1e3, "kHz"}};
    constexpr int mostDigits = std::numeric_limits<float>::max_digits10;
    char shortest[32];
    const auto scientific = std::chars_format::scientific;
    const auto end = std::to_chars(std::begin(shortest), std::end(shortest), hertz, scientific).ptr;
    const double value = QByteArray(shortest, static_cast<int>(end - shortest)).toDouble();
    for (const auto& [factor, unit] : units) {
        if (value < factor) continue;
        return QString::number(value / factor, 'g', mostDigits) + u' ' + QLatin1String(unit);
    }
    return QString::number(value, 'g', mostDigits) + text(" Hz");
}

FarZonePlan planFarZone(const ProjectFile& project, const QString& projectPath, const QStringList& boxFiles,
                        const FarZoneOptions& options) {
    const auto& listed = project.getSteadyStateFrequencies();
    const auto [frequencies, hasFrequencyInNames] = choose(listed, projectPath, options);
    const QStringList files = boxFilesFor(frequencies, projectPath, boxFiles);
    const std::vector<Pattern> patterns = patternsFor(project, projectPath, options);
    FarZonePlan plan;
    for (const Pattern& pattern : patterns) plan.directions.push_back(pattern.directions);
    for (std::size_t i = 0; i < frequencies.size(); ++i) {
        const float frequency = frequencies[i].frequency;
        const QString label = hasFrequencyInNames ? u'-' + frequencyText(frequency).remove(u' ') : QString();
        plan.jobs.push_back(jobFor(frequency, files.at(static_cast<int>(i)), label, patterns, options));
    }
    if (hasFrequencyInNames && listed.size() == 1) {
        refuseOutputsOf(plan.jobs.front(), jobFor(0.0F, QString(), QString(), patterns, options));
    }
    return plan;
}

void checkOutputs(const FarZonePlan& plan, const QStringList& inputs) {
    QStringList outputs;
    for (const FarZoneJob& job : plan.jobs) outputs << job.outputs();
    for (const QString& output : outputs) {
        checkPlace(output);
        const QStringList others = outputs.mid(outputs.indexOf(output) + 1);
        const auto other = std::find_if(
            others.begin(), others.end(), [&output](const QString& path) { return isSameFile(path, output); });
        if (other != others.end()) {
            throw FileProblem(output, text("is the same file as %1, another output; remove the link").arg(*other));
        }
        const bool isInput = std::any_of(
            inputs.begin(), inputs.end(), [&output](const QString& input) { return isSameFile(input, output); });
        if (isInput) throw FileProblem(output, "is an input and would be overwritten; use another --out");
    }
}

}  // namespace quarn::tool
