#pragma once

#include <QString>

#include "files/CsvWriter.h"
#include "files/InputFile.h"

namespace quarn::tool {

/// A kind of file that holds records one after the other. Most of these files do not say what they hold.
struct RecordKind {
    const char* name;     ///< as on the command line
    const char* columns;  ///< separated by commas

    /// Writes a row for each record and returns the number of bytes behind the last whole record. Throws a FileProblem.
    std::size_t (*exportRows)(const RecordKind& kind, const InputFile& file, CsvWriter& csv);

    FileKind fileKind = FileKind::Unknown;  ///< that of a file which says what it is
};

/// Throws WrongUsage with the names of all kinds when there is no such kind.
const RecordKind& recordKindNamed(const QString& name);

/// The kind of the records in such a file; null when it does not tell.
const RecordKind* recordKindOf(FileKind fileKind);

/// All kinds with their columns, for the help.
QString recordKindsText();

}  // namespace quarn::tool
