#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

#include "FarZonePattern.h"
#include "quarn/ProjectFile.h"

/// What `quarn farzone` is to compute and where it goes to, worked out before anything is computed or written.
namespace quarn::tool {

struct FarZoneOptions {
    std::optional<double> frequency;  ///< Hz; those of the project otherwise
    bool takesAnyFrequency = false;
    std::optional<double> step;  ///< degrees, of a sphere in place of the project's requests
    QString folder;
    QString plot;  ///< empty for none
};

/// Where the far fields in one list of directions go.
struct PatternFiles {
    QString records;
    QString table;
};

/// One frequency: the box file with its fields, and the files to write.
struct FarZoneJob {
    float frequency;
    QString boxFile;
    std::vector<PatternFiles> patterns;  ///< one for each list of directions
    QString plot;                        ///< empty for none

    QStringList outputs() const;
};

struct FarZonePlan {
    std::vector<FarZoneAngles> directions;
    std::vector<FarZoneJob> jobs;
};

/// A frequency of 1 Hz or more with as many digits as tell it from every other float: "2.45 GHz".
QString frequencyText(float hertz);

/// Takes the arguments that stand for the box files as they are on the command line. Throws a FileProblem, or
/// WrongUsage when the number of box files is not that of the frequencies.
///
/// The names of outputs hold the frequency unless it is the only one of the project, so that no frequency overwrites
/// what another one gave.
FarZonePlan planFarZone(const ProjectFile& project, const QString& projectPath, const QStringList& boxFiles,
                        const FarZoneOptions& options);

/// Throws a FileProblem when an output is an input, which would be lost, or cannot be written where it is to be.
void checkOutputs(const FarZonePlan& plan, const QStringList& inputs);

}  // namespace quarn::tool
