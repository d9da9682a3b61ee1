#pragma once

#include <QByteArray>
#include <QTextStream>

#include "quarn/BoundaryConditions.h"
#include "quarn/v6ProjectFile.h"

/// A project that can be saved. Benchmarks add the objects that they measure; the project owns them.
class SavedProject {
public:
    SavedProject() {
        constexpr auto cpml = quarn::BoundaryConditions::CPML;
        m_project.setBoundaryConditions(new quarn::BoundaryConditions(cpml, cpml, cpml, cpml, cpml, cpml, 8));
    }
    ~SavedProject() { quarn::deleteContents(m_project); }
    SavedProject(const SavedProject&) = delete;
    SavedProject& operator=(const SavedProject&) = delete;

    QByteArray save() {
        QByteArray bytes;
        QTextStream stream(&bytes, QIODevice::WriteOnly);
        m_project.saveToStream(stream);
        return bytes;
    }

protected:
    quarn::v6ProjectFile m_project;
};
