#pragma once

#include <QByteArray>
#include <QTextStream>

#include "quarn/BoundaryConditions.h"
#include "quarn/OwnedProject.h"

/// A project that can be saved. Benchmarks add the objects that they measure; the project owns them.
class SavedProject {
public:
    SavedProject() {
        constexpr auto cpml = quarn::BoundaryConditions::CPML;
        m_project.setBoundaryConditions(new quarn::BoundaryConditions(cpml, cpml, cpml, cpml, cpml, cpml, 8));
    }

    QByteArray save() {
        QByteArray bytes;
        QTextStream stream(&bytes, QIODevice::WriteOnly);
        m_project.saveToStream(stream);
        return bytes;
    }

protected:
    quarn::OwnedProject m_project;
};
