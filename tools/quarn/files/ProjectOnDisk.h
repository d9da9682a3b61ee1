#pragma once

#include <QByteArray>
#include <QString>

#include "quarn/ProjectFile.h"
#include "quarn/v6ProjectFile.h"

namespace quarn::tool {

/// A project that owns the objects that it points to.
class OwnedProject : public v6ProjectFile {
public:
    OwnedProject() = default;
    ~OwnedProject() { deleteContents(*this); }
    OwnedProject(const OwnedProject&) = delete;
    OwnedProject& operator=(const OwnedProject&) = delete;
};

/// A loaded project file and its text.
struct LoadedProject {
    /// Throws a FileProblem when the content is not a project file or has an unsupported version.
    LoadedProject(const QString& path, const QByteArray& content);

    QString text;
    int invalidCharacters = 0;  ///< replaced by the UTF-8 decoding
    OwnedProject project;
};

/// The project as the library saves it. Throws std::runtime_error when the project cannot be saved.
QByteArray savedBytes(v6ProjectFile& project);

}  // namespace quarn::tool
