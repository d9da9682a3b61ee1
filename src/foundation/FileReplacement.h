#pragma once

#include <filesystem>

class QString;

namespace quarn {

/// Between the names of files in Qt and those of the system.
std::filesystem::path toSystemPath(const QString& path);
QString toQtPath(const std::filesystem::path& path);

/// A file that is made beside the one it is to replace and takes its place once it is complete; until then, and for
/// good if it never is, the earlier file stays as it was. What cannot be replaced is itself the file to write to: a
/// device, a link to nothing, and a file that may not be written, where opening fails then.
class FileReplacement {
public:
    explicit FileReplacement(std::filesystem::path target);
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;

    /// Removes what did not take its place.
    ~FileReplacement();

    /// Of the file to write. It is there and empty, unless it is the target itself or could not be made.
    const std::filesystem::path& path() const { return m_path; }

    /// To be called when the file is closed. It gets the permissions of the one that it replaces.
    bool takePlace();

private:
    bool isBeside() const { return m_path != m_target; }

    std::filesystem::path m_target;
    std::filesystem::path m_path;
};

}  // namespace quarn
