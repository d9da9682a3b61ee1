#pragma once

#include <QByteArray>
#include <QString>

#include "quarn/OwnedProject.h"

namespace quarn::tool {

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
