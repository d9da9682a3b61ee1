#pragma once

#include <QString>
#include <cstdio>

#include "quarn/Export.h"

namespace quarn {

/// Writes numbers to a binary file, in the byte order of the machine (quarn/BinaryFile.h). Owns its stream; flushes and
/// closes it when it is destroyed. Output is buffered: a full disk may be detected only when the file is flushed or
/// closed.
class QUARN_EXPORT DataFileWriter {
public:
    DataFileWriter() = default;
    DataFileWriter(const DataFileWriter&) = delete;
    DataFileWriter& operator=(const DataFileWriter&) = delete;
    virtual ~DataFileWriter();

    /// Flushes and closes the open file, if any, then opens the file at `path` in a mode of C stdio, such as "wb".
    bool open(const QString& path, const QString& mode);

    /// Like open, but tries again for up to `maximumWait` milliseconds; `waited`, if given, receives the milliseconds
    /// waited.
    bool openWithRetries(const QString& path, const QString& mode, int maximumWait, int* waited = nullptr);

    bool isOpen() const { return m_file != nullptr; }

    /// False when the number could not be written or no file is open.
    bool write(const signed char& value);
    bool write(const short& value);
    bool write(const int& value);
    bool write(const long long& value);
    bool write(const float& value);
    bool write(const double& value);

    /// Moves to `offset` bytes from the start of the file. False when that is below 0 or no file is open. A gap behind
    /// the end of the file is filled with zeros once something is written there.
    bool seek(long offset);

    /// Moves `count` bytes forward from the current position, or back when negative; otherwise like seek.
    bool skip(int count);

    /// False when not everything could be written or no file is open.
    bool flush();

    /// Flushes and closes. False when something could not be written since the file was opened, when closing fails, and
    /// when no file is open; the file is closed in any case.
    bool close();

private:
    std::FILE* m_file = nullptr;
};

}  // namespace quarn
