#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "quarn/Export.h"

namespace quarn {

/// A line of a block as the library reads and writes it.
struct FormatLine {
    QString key;           ///< empty where the line has none
    QString kind;          ///< "number", "integer", "flag", "word", "text", "name", "block" ...
    QStringList names;     ///< of kind "name": what the value may be
    QString unit;          ///< empty for counts, words and ratios
    QString defaultValue;  ///< what a block without the line stands for; empty where that is nothing
    QString written;       ///< "always", "never", or when a save writes the line
};

/// A block of a file with its lines in the order in which they are written; a reader takes them in any order. An inner
/// block is a line of kind "block" here and has an entry of its own, behind this one.
struct FormatBlock {
    QString name;
    QString path;  ///< the names of the blocks around it and its own, joined by "/"
    std::vector<FormatLine> lines;
};

/// All blocks of the project file and of the geometry file, as the program that reads and writes them knows them.
QUARN_EXPORT std::vector<FormatBlock> projectFormat();
QUARN_EXPORT std::vector<FormatBlock> geometryFormat();

}  // namespace quarn
