#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

#include "FarZonePattern.h"
#include "quarn/ProjectFile.h"

/// The computations of `quarn farzone` and their outputs, planned before anything is computed or written.
namespace quarn::tool {

struct FarZoneOptions {
    std::optional<double> frequency;  ///< in Hz; if not given, all frequencies of the project
    bool takesAnyFrequency = false;
    std::optional<double> step;  ///< in degrees, for a sphere in place of the project's requests
    QString folder;
    QString plot;  ///< empty when no plot is wanted
};

/// The files for the far fields in one list of directions.
struct PatternFiles {
    QString records;
    QString table;
};

/// One frequency with the box file to read and the files to write.
struct FarZoneJob {
    float frequency;
    QString boxFile;
    std::vector<PatternFiles> patterns;  ///< one for each list of directions
    QString plot;                        ///< empty when no plot is wanted

    QStringList outputs() const;
};

struct FarZonePlan {
    std::vector<FarZoneAngles> directions;
    std::vector<FarZoneJob> jobs;
};

/// A frequency of 1 Hz or more with enough digits to distinguish it from every other float: "2.45 GHz".
QString frequencyText(float hertz);

/// `boxFiles` holds files or one folder, as given on the command line. Throws a FileProblem, or WrongUsage when the
/// number of box files differs from that of the frequencies.
///
/// The names of outputs hold the frequency unless it is the only one of the project, so that no frequency overwrites
/// the files of another one.
FarZonePlan planFarZone(const ProjectFile& project, const QString& projectPath, const QStringList& boxFiles,
                        const FarZoneOptions& options);

/// Throws a FileProblem when an output is also an input or cannot be written.
void checkOutputs(const FarZonePlan& plan, const QStringList& inputs);

}  // namespace quarn::tool
