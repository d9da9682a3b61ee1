// Any bytes as a project file: loading, checking, copying and saving end, and leave nothing behind.

#include <QStringList>
#include <QTextStream>
#include <cstddef>
#include <cstdint>

#include "quarn/quarn.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<int>(size));
    QTextStream input(bytes);
    QStringList errors, warnings;
    quarn::v6ProjectFile project;
    project.loadFromStream(input, errors);
    project.checkValidity(errors, warnings);
    if (project.getBoundaryConditions()) {
        QString saved;
        QTextStream output(&saved);
        project.saveToStream(output);
    }
    quarn::deleteContents(project);
    return 0;
}
