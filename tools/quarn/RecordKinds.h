#pragma once

#include <QString>
#include <QStringList>

#include "CsvWriter.h"

namespace quarn::tool {

/// A kind of file that is a row of records and mostly does not say so itself.
struct RecordKind {
    const char* name;     ///< as on the command line
    const char* columns;  ///< separated by commas

    /// Writes a row for each record and returns how many bytes at the end of the file make no whole record. Throws a
    /// FileProblem.
    std::size_t (*exportRows)(const RecordKind& kind, const QString& path, CsvWriter& csv);
};

/// Null when there is no such kind.
const RecordKind* recordKind(const QString& name);
QStringList recordKindNames();

}  // namespace quarn::tool
