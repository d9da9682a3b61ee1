#pragma once

#include <QString>

namespace quarn {

/// A file that is made beside the one it is to replace and takes its place once it is complete; until then, and for
/// good if it never is, the earlier file stays as it was. What cannot be replaced, such as a device, is itself the file
/// to write to.
class FileReplacement {
public:
    explicit FileReplacement(const QString& target);
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;

    /// Removes what did not take its place.
    ~FileReplacement();

    /// Of the file to write. There is none yet, unless it is the target itself.
    const QString& path() const { return m_path; }

    /// To be called when the file is closed. It gets the permissions of the one that it replaces.
    bool takePlace();

private:
    bool isBeside() const { return m_path != m_target; }

    QString m_target;
    QString m_path;
};

}  // namespace quarn
