#include <QJsonArray>
#include <QJsonDocument>
#include <optional>

#include "Console.h"
#include "commands/Commands.h"
#include "files/InputFile.h"
#include "files/ProjectOnDisk.h"
#include "findings/Findings.h"
#include "findings/GeometryFindings.h"

namespace quarn::tool {

namespace {

/// Checks files; project files also against the geometry of the run.
class Examiner {
public:
    /// The path of the geometry may be null. An unusable geometry is reported when it is checked itself.
    explicit Examiner(const QString& geometryPath) : m_geometryPath(geometryPath) {
        if (geometryPath.isNull()) return;
        try {
            m_geometry.emplace(geometryPath, readFile(geometryPath));
        } catch (const FileProblem&) {  // projects are then checked alone
        }
    }

    Findings findingsIn(const QString& path) const {
        const QByteArray content = readFile(path);
        const bool isGeometry = path == m_geometryPath || kindOf(content) == FileKind::Geometry;
        if (isGeometry) return examine(LoadedGeometry(path, content));
        LoadedProject loaded(path, content);
        Findings findings = examine(loaded);
        if (m_geometry) findings.errors << misplacedComponents(loaded.project, m_geometry->grid);
        return findings;
    }

private:
    QString m_geometryPath;
    std::optional<LoadedGeometry> m_geometry;
};

int statusOf(const Findings& findings) { return findings.none() ? ExitFine : ExitFindings; }

int checkAsText(const QStringList& paths, const Examiner& examiner) {
    return forEachFile(paths, [&examiner](const QString& path) {
        const Findings findings = examiner.findingsIn(path);
        findings.print(path);
        return statusOf(findings);
    });
}

int checkAsJson(const QStringList& paths, const Examiner& examiner) {
    QJsonArray files;
    const int status = forEachFile(paths, [&](const QString& path) {
        try {
            const Findings findings = examiner.findingsIn(path);
            files << findings.toJson(path);
            return statusOf(findings);
        } catch (const FileProblem& problem) {
            files << QJsonObject{{"file", path}, {"unusable", problem.what()}};
            throw;
        }
    });
    out() << QString::fromUtf8(QJsonDocument(files).toJson());
    return status;
}

}  // namespace

void addCheck(CLI::App& quarn, int& status) {
    struct Options {
        QStringList paths;
        QString geometry;
        bool json = false;
    };
    const auto options = std::make_shared<Options>();
    CLI::App& command =
        addCommand(quarn,
                   "check",
                   "Checks project and geometry files and names each line that would be lost",
                   text("Loads project files and prints what is wrong or doubtful with the runs that they describe.\n"
                        "It also prints, with its number, each line that loading and saving the file does not keep:\n"
                        "the reader ignores unknown keys and blocks, misspelt ones among them, without a message.\n"
                        "Lines that only move within their block or write a number differently are kept.\n"
                        "Geometry files are checked in the same way.\n"
                        "Exit status: 0 no findings, 1 findings (warnings count), 2 a file cannot be used."));
    addFlag(command, "--json", options->json, "Prints one JSON document: an array of files.");
    addOption(command,
              "--geometry",
              "FILE",
              options->geometry,
              "Checks this geometry file too, and the projects against its grid.");
    addArguments(command, "PROJECT", options->paths, "The project or geometry files to check.");
    command.callback([options, &status] {
        QStringList paths = options->paths;
        if (!options->geometry.isNull()) paths << options->geometry;
        const Examiner examiner(options->geometry);
        status = options->json ? checkAsJson(paths, examiner) : checkAsText(paths, examiner);
    });
}

}  // namespace quarn::tool
