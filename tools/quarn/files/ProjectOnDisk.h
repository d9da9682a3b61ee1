#pragma once

#include <QByteArray>
#include <QString>

#include "quarn/OwnedProject.h"

namespace quarn::tool {

using quarn::OwnedProject;

/// A project and the text that it was loaded from.
struct LoadedProject {
    /// Throws a FileProblem when the content is not that of a project file, or of one with an unsupported version.
    LoadedProject(const QString& path, const QByteArray& content);

    QString text;
    int invalidCharacters = 0;  ///< that the UTF-8 decoding had to replace
    OwnedProject project;
};

/// What the library saves. Throws std::runtime_error when the project cannot be saved.
QByteArray savedBytes(v6ProjectFile& project);

}  // namespace quarn::tool
