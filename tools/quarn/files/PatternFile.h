#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <vector>

#include "quarn/NSMACutPlane.h"

namespace quarn::tool {

/// One cut of an antenna pattern file, read or refused.
struct PatternCut {
    struct Refusal {
        int line;
        QString reason;
    };

    int line = 0;                     ///< where its keywords start, counted from 1
    std::optional<double> frequency;  ///< in Hz, when the header before the cut gives one
    QString planeText;                ///< the value of PATCUT; null when it is not given
    bool hasCount = false;            ///< whether NUPOIN gives the number of samples
    bool hasRange = false;            ///< whether FSTLST gives the first and the last angle
    int completedLines = 0;           ///< samples that got an empty second value
    int leftOutLines = 0;             ///< samples after the last one that the cut announces
    int missingSamples = 0;           ///< samples that the cut announces but lacks
    int coincidingSamples = 0;        ///< left out after one at the same angle with another gain
    std::optional<Refusal> refusal;
    NSMACutPlane plane;  ///< has defaults for what is not given; a refused cut is read up to the refusal
};

/// Whether the beginning of the content holds an NSMA keyword of a cut.
bool isPatternFile(const QByteArray& content);

/// All cuts of an NSMA file in UTF-8 or, after a byte-order mark, UTF-16. Skips header lines and completes samples that
/// have only an angle and a gain, since NSMACutPlane refuses both. A cut that does not give the number of its samples
/// or their range takes all samples that follow. Refuses a cut with a sample, count or range that is not a number, and
/// a cut whose samples continue after a keyword that does not belong in a cut. Keeps the first sample at each angle;
/// whole turns make no difference. Gains are in decibels in the file and become power ratios. Throws a FileProblem when
/// the file is larger or has more cuts than any pattern.
std::vector<PatternCut> readPatternFile(const QString& path, const QByteArray& content);

}  // namespace quarn::tool
