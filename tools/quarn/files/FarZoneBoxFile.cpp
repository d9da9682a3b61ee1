#include "files/FarZoneBoxFile.h"

#include <QDir>
#include <QFileInfo>
#include <cmath>

#include "Console.h"
#include "FarZonePattern.h"
#include "Quantity.h"
#include "files/InputFile.h"
#include "files/ResultFile.h"
#include "quarn/DataFileReader.h"
#include "quarn/FarZoneFieldFiles.h"
#include "quarn/Grid.h"

namespace quarn::tool {

namespace {

constexpr std::uint64_t headerSize = 16;

void checkHeader(const QString& path) {
    checkName(path);
    const QFileInfo file(path);
    if (path == QLatin1String("-") || (file.exists() && !file.isFile())) {
        throw FileProblem(path, "is not a regular file; a box file is needed");
    }
    DataFileReader reader;
    openFarZoneBox(reader, InputFile(path));
}

void checkNumberOfRecords(const QString& path, const FarZoneBox& box) {
    constexpr std::uint64_t recordSize = FieldsOnSteadyStateFarZoneBoxFile::recordSize;
    const std::uint64_t x = box.getNumberInX(), y = box.getNumberInY(), z = box.getNumberInZ();
    const std::uint64_t needed = 2 * (y * z + x * z + x * y);
    const std::uint64_t bytes = static_cast<std::uint64_t>(QFileInfo(path).size()) - headerSize;
    if (bytes == needed * recordSize) return;
    QString found = counted(bytes / recordSize, "record");
    if (bytes % recordSize != 0) {
        found += text(" and %1 of another").arg(counted(bytes % recordSize, "byte"));
    }
    throw FileProblem(path,
                      text("holds %1, but the far-zone box of this geometry has %2; give the box file, the project and "
                           "the geometry of one run that has ended")
                          .arg(found, counted(needed, "record")));
}

void checkValues(const QString& path, const FieldsOnSSFarZoneBox& fields) {
    std::size_t notFinite = 0;
    bool areAllZero = true;
    for (std::uint32_t face = FarZoneBox::XLower; face < FarZoneBox::NoFace; ++face) {
        for (const auto& component : fields.getFields(static_cast<FarZoneBox::Face>(face))) {
            for (const std::complex<float>& value : component) {
                notFinite += std::isfinite(value.real()) ? 0 : 1;
                notFinite += std::isfinite(value.imag()) ? 0 : 1;
                areAllZero = areAllZero && value == std::complex<float>();
            }
        }
    }
    if (notFinite > 0) {
        throw FileProblem(
            path,
            text("holds %1 that %2; the run has probably diverged")
                .arg(counted(notFinite, "value"),
                     QLatin1String(notFinite == 1 ? "is not a finite number" : "are not finite numbers")));
    }
    if (!areAllZero) return;
    throw FileProblem(path, "all fields are zero; check that the run was excited at this frequency");
}

/// On larger cells the fields are undersampled, and the radiated power would need too many directions.
void checkCells(const QString& geometryPath, const FieldsOnSSFarZoneBox& fields, float frequency) {
    const double waveLength = waveLengthAt(frequency);
    for (std::size_t n = 0; n < 3; ++n) {
        for (const float size : fields.axis(n).deltas) {
            if (2.0 * std::abs(static_cast<double>(size)) <= waveLength) continue;
            throw FileProblem(
                geometryPath,
                text("has a cell of %1 on the far-zone box, more than half the wavelength of %2; use a finer grid")
                    .arg(withPrefix(static_cast<double>(size), "m"), withPrefix(waveLength, "m")));
        }
    }
}

}  // namespace

QString boxFileIn(const QString& base, const QString& folder, const QString& frequency) {
    const QString inside = QDir::cleanPath(folder);
    if (QDir::isAbsolutePath(inside) || inside == QLatin1String("..") || inside.startsWith(QLatin1String("../"))) {
        throw FileProblem(base,
                          text("the project's folder \"%1\" for %2 lies outside; give the box file in place of the "
                               "folder")
                              .arg(folder, frequency));
    }
    const QDir searched(QDir(base).filePath(inside));
    if (!searched.exists()) {
        throw FileProblem(searched.path(),
                          text("the folder does not exist; the project names it for its results at %1").arg(frequency));
    }
    QStringList found;
    for (const QString& name : searched.entryList(QDir::Files | QDir::Hidden, QDir::Name)) {
        const QFileInfo file(searched.filePath(name));
        if (file.isFile() && kindOf(InputFile(file.filePath()).beginning()) == FileKind::FarZoneBox) found << name;
    }
    if (found.size() == 1) return searched.filePath(found.first());
    throw FileProblem(
        searched.path(),
        found.isEmpty()
            ? text("holds no far-zone box file for %1; the run must save the fields on the far-zone box").arg(frequency)
            : text("holds several far-zone box files for %1: %2; give the right one in place of the folder")
                  .arg(frequency, found.join(", ")));
}

FieldsOnSSFarZoneBox loadBoxFields(const QString& path, const FarZoneBox& box, const Grid& grid,
                                   const QString& geometryPath, float frequency) {
    checkHeader(path);
    checkNumberOfRecords(path, box);
    QString problem;
    FieldsOnSSFarZoneBox fields(grid, path, box, problem);
    if (!fields.isComplete()) throw FileProblem(path, problem);
    if (!fields.setupImageFields(grid)) {
        throw FileProblem(geometryPath,
                          "its grid does not have the conducting plane where the far-zone box has it; give the "
                          "geometry of the same run");
    }
    checkValues(path, fields);
    checkCells(geometryPath, fields, frequency);
    return fields;
}

}  // namespace quarn::tool
