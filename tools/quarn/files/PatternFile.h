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
    QString planeText;                ///< what PATCUT says; null where that is not given
    bool hasCount = false;            ///< whether NUPOIN gives the number of samples
    bool hasRange = false;            ///< whether FSTLST gives the first and the last angle
    int completedLines = 0;           ///< samples without a second value, which were given an empty one
    int leftOutLines = 0;             ///< samples behind the last one that the cut announces
    int missingSamples = 0;           ///< those that the cut announces and does not hold
    int coincidingSamples = 0;        ///< samples left out as one at the same angle with another gain came before
    std::optional<Refusal> refusal;
    NSMACutPlane plane;  ///< of a refused cut what was read before the refusal; has defaults for what is not given
};

/// Whether an NSMA keyword that belongs to a cut stands near the beginning of the content.
bool isPatternFile(const QByteArray& content);

/// All cuts of an NSMA file in UTF-8 or, after a byte-order mark, UTF-16. Header lines are passed over and a sample
/// that has an angle and a gain only is completed, as the reader of cuts refuses both. A cut that does not give the
/// number of its samples or their range has all samples that follow. What is there and is not a number is refused, and
/// so is a cut whose samples go on behind a keyword that does not belong in a cut. Of the samples at one angle, whole
/// turns left out, the first is kept.
/// Gains are taken for decibels and become power ratios. Throws a FileProblem when the file is larger, or has more
/// cuts, than any pattern.
std::vector<PatternCut> readPatternFile(const QString& path, const QByteArray& content);

}  // namespace quarn::tool
