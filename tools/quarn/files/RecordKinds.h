#pragma once

#include <QString>
#include <QStringList>

#include "files/CsvWriter.h"
#include "files/InputFile.h"

namespace quarn::tool {

/// A kind of file that is a row of records and mostly does not say so itself.
struct RecordKind {
    const char* name;     ///< as on the command line
    const char* columns;  ///< separated by commas

    /// Writes a row for each record and returns how many bytes at the end of the file make no whole record. Throws a
    /// FileProblem.
    std::size_t (*exportRows)(const RecordKind& kind, const InputFile& file, CsvWriter& csv);

    FileKind fileKind = FileKind::Unknown;  ///< what the content of such a file says it is
};

/// Throws WrongUsage, with all names, when there is no such kind.
const RecordKind& recordKindNamed(const QString& name);

/// The kind of records that a file says it holds; null when it does not say so.
const RecordKind* recordKindOf(FileKind fileKind);

/// All kinds with their columns, for the help.
QString recordKindsText();

}  // namespace quarn::tool
