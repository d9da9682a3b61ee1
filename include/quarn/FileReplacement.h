#pragma once

#include <QString>
#include <filesystem>

#include "quarn/Export.h"

namespace quarn {

/// Writes a file so that an earlier one at the same place stays as it was until the new one is complete:
///
///     FileReplacement replacement(target);
///     const bool isComplete = writeTo(replacement.path());  // opens, writes and closes the file
///     const bool isWritten = isComplete && replacement.takePlace();
///
/// The file to write is a temporary one beside the target. Its name is that of the target followed by ".new" and a
/// number. It takes the place of the target by renaming and gets the permissions of the earlier file.
///
/// A file that must not or cannot be replaced by another keeps its place, its owner and its hard links, and the
/// complete content is copied into it: a file with several hard links or of another owner or group, a mount point, a
/// file in a closed or read-only folder. In the last case the temporary file is in the system's folder for such files.
///
/// The target itself is the file to write, without a temporary file, when it is a device or a pipe, when the temporary
/// name would be too long for the system or for openFile, and when no temporary file can be made in either folder.
///
/// Symbolic links are followed, also to a file that does not exist yet. A file that may not be written is not replaced:
/// opening path() fails as opening the target does.
class QUARN_EXPORT FileReplacement {
public:
    /// Resolves the path as openFile does and makes the temporary file, which is empty.
    explicit FileReplacement(const QString& target);

    /// The same for a path in the encoding of the system, which is taken as it is.
    explicit FileReplacement(const std::filesystem::path& target);

    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;

    /// Removes a temporary file that did not take its place.
    ~FileReplacement();

    /// The file to write. Empty when there is none because symbolic links lead back to themselves, the folder is
    /// missing, or a temporary file cannot be made for another reason than those above; errorString() says why.
    QString path() const;
    const std::filesystem::path& systemPath() const { return m_path; }

    /// Whether the target itself is the file to write, so that its earlier content is lost with the first byte.
    bool isTarget() const { return m_path == m_target; }

    /// Puts the new content in the place of the target. Call it after closing the file. False when that is not
    /// possible; the earlier file then stays as it was unless the disk filled up or failed while the content was copied
    /// into it.
    bool takePlace();

    /// The reason for an empty path() or for the last failure of takePlace(), without a full stop.
    const QString& errorString() const { return m_errorString; }

private:
    void makeTemporaryFile(bool targetExists);
    bool fail(const QString& reason);

    std::filesystem::path m_target;
    std::filesystem::path m_path;
    QString m_errorString;
};

}  // namespace quarn
