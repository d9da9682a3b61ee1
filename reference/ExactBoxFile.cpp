#include <functional>

#include "quarn/DataFileWriter.h"
#include "quarn/FarZoneBox.h"
#include "quarn/FarZoneFieldFiles.h"
#include "quarn/FileHeader.h"
#include "quarn/Grid.h"
#include "reference/ExactFields.h"

namespace quarn::reference {

namespace {

/// Where a box's cells and faces lie on one axis.
struct Axis {
    std::vector<double> middles;
    double lowerFace;
    double upperFace;
};

Axis axisOf(const Grid::Axis& nodes, const FarZoneBox::Axis& span) {
    Axis axis{{}, nodes.electricNode(span.lower), nodes.electricNode(span.upper)};
    for (std::uint32_t i = span.lower; i < span.upper; ++i) axis.middles.push_back(nodes.magneticNode(i));
    return axis;
}

std::complex<float> narrowed(Complex value) {
    return {static_cast<float>(value.real()), static_cast<float>(value.imag())};
}

/// The records of the face at `place` across an axis: those of the lower in-plane axis follow each other.
bool writeFace(DataFileWriter& writer, const std::array<Axis, 3>& axes, std::size_t normal, double place,
               const std::function<Field(const Vector&)>& fieldAt) {
    const std::size_t a = normal == 0 ? 1 : 0;
    const std::size_t b = normal == 2 ? 1 : 2;
    Vector point{};
    point[normal] = place;
    for (const double alongB : axes[b].middles) {
        for (const double alongA : axes[a].middles) {
            point[a] = alongA;
            point[b] = alongB;
            const Field field = fieldAt(point);
            const FieldsOnSteadyStateFarZoneBoxFile::Record record{
                narrowed(field.e[a]), narrowed(field.e[b]), narrowed(field.h[a]), narrowed(field.h[b])};
            if (!FieldsOnSteadyStateFarZoneBoxFile::writeRecord(writer, record)) return false;
        }
    }
    return true;
}

}  // namespace

bool writeBoxFields(const QString& path, const Grid& grid, const FarZoneBox& box, const Source& source,
                    double frequency) {
    std::array<Axis, 3> axes;
    for (std::size_t n = 0; n < axes.size(); ++n) axes[n] = axisOf(grid.axis(n), box.axis(n));
    const double waveNumber = waveNumberOf(frequency);
    const auto fieldAt = [&](const Vector& point) { return source.near(point, waveNumber); };

    DataFileWriter writer;
    bool isWritten =
        writer.open(path, QStringLiteral("wb")) && FileHeader(FileHeader::farZoneBoxFields, 0).write(writer);
    for (std::size_t normal = 0; normal < 3; ++normal) {
        for (const double place : {axes[normal].lowerFace, axes[normal].upperFace}) {
            isWritten = isWritten && writeFace(writer, axes, normal, place, fieldAt);
        }
    }
    return writer.close() && isWritten;
}

}  // namespace quarn::reference
