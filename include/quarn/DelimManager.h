#pragma once

#include <QString>
#include <deque>

#include "quarn/Export.h"

class QTextStream;

namespace quarn {

/// Reads and writes the block frame of the project and geometry text files:
///
///     begin_<Name> value
///     description free text        (optional)
///     ...                          (key lines and nested blocks)
///     end_<Name>
///
/// The key lines belong to the section code, which reads and writes them on GetStream(). A DelimManager keeps the names
/// of the blocks that are open; it lives for one load or one save. The stream is the caller's and must outlive it; a
/// copy shares the stream and has its own stack of names.
///
/// Every operation returns false when it failed or when there is nothing more to read, throws nothing, and resets the
/// status of a stream that it finds or leaves in error. No operation runs past the end of the stream or recurses.
///
/// The stream must be seekable. A stream over a string is read in place; on a stream over a device each line that is
/// only inspected costs a seek and a decoding of the text ahead, so large files are best read into a string first.
class QUARN_EXPORT DelimManager {
public:
    DelimManager(QTextStream& stream, const QString& filename);

    QTextStream& GetStream() const { return *m_stream; }

    /// The file name is kept for the caller and does not affect reading or writing.
    const QString& GetFilename() const { return m_filename; }
    void SetFilename(const QString& filename) { m_filename = filename; }

    static void skipWhiteSpace(QTextStream& stream);

    /// Writes the open line and, unless it is empty, the description line, in which each CR LF becomes a backslash, an
    /// "r" and the LF. Lone CRs and LFs are written as they are.
    bool BeginDelim(const QString& name, const QString& value, const QString& description);

    /// Writes the close line of the innermost open block; writes nothing when no block is open.
    bool EndDelim();

    /// Enters the block that the next line opens. An empty `name` accepts any block and receives its name; otherwise
    /// the block must bear that name. `value` is what follows the "> " of the open line, untrimmed; `description` is
    /// set only when a description line follows. When it returns false the line is left unread. At most 1000 characters
    /// of the open line are examined.
    bool IsDelim(QString& name, QString& value, QString& description);

    /// Whether the innermost open block has more content. False at its close line, which is consumed, and at the end of
    /// the stream. The close line of another block is consumed and ignored. At most 1000 characters of a line are
    /// examined at a time. The last line of a stream is never content.
    bool ContinueReading();

    /// Skips the rest of the innermost open block, its close line included. False when no block is open or when the
    /// stream ends first.
    bool SeekToEndOfDelim();

    /// Rewinds the stream, drops the innermost open block from the stack and moves to the first open line.
    bool GetFirstDelim(QString& name, QString& value, QString& description);

    /// Moves forward to the next open line and enters its block, leaving blocks that close on the way (of two close
    /// lines in a row only the first counts). False at a close line that does not match the innermost open block. The
    /// value is trimmed; of the description the first eleven characters are dropped and its escapes are undone.
    bool GetNextDelim(QString& name, QString& value, QString& description);

    /// Rewinds the stream and moves to the first block called `name`, ignoring case.
    bool FindFirstDelim(const QString& name, QString& value, QString& description);

    /// Moves forward to the next block called exactly `name`.
    bool FindNextDelim(const QString& name, QString& value, QString& description);

private:
    bool failed();
    void popBlock();
    bool readDescriptionAfterOpenLine(QString& description);

    QString m_filename;
    QTextStream* m_stream;
    std::deque<QString> m_openBlocks;
};

}  // namespace quarn
