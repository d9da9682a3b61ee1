// A sample of each text format and of the via file, cut off at each length, and a small one with each byte changed to
// every other: reading ends in a refusal or in an object that is saved, read and saved again as it is.

#include <gtest/gtest.h>

#include <functional>
#include <sstream>

#include "TestSupport.h"
#include "project/GoldenProject.h"
#include "quarn/quarn.h"

namespace quarn::test {
namespace {

/// What is saved after reading, or what was read where nothing can be saved; null when the text is refused.
using Rewrite = QByteArray (*)(const QByteArray& bytes);

QByteArray rewrittenProject(const QByteArray& bytes) {
    QTextStream input(bytes);
    QStringList errors;
    OwnedProject project;
    if (!project.loadFromStream(input, errors)) return {};
    if (!project.getBoundaryConditions()) {
        constexpr auto any = BoundaryConditions::PEC;
        project.setBoundaryConditions(new BoundaryConditions(any, any, any, any, any, any, 0));
    }
    project.setModelingUnits({"m", 1.0});  // not read from a file as it is written
    QByteArray saved;
    QTextStream output(&saved, QIODevice::WriteOnly);
    EXPECT_FALSE(project.saveToStream(output));
    return saved;
}

QByteArray rewrittenGeometry(const QByteArray& bytes) {
    QTextStream input(bytes);
    QStringList errors;
    v6GeometryFile geometry;
    Grid grid;
    if (!geometry.loadFromStream(input, &grid, errors)) return {};
    QByteArray saved;
    QTextStream output(&saved, QIODevice::WriteOnly);
    EXPECT_TRUE(geometry.saveToStream(grid, output));
    return saved;
}

QByteArray rewrittenVias(const QByteArray& bytes) {
    std::istringstream input(bytes.toStdString());
    std::ostringstream output;
    std::vector<MeshlessVia> vias;
    try {
        MeshlessVia::read_binary_stream(vias, input);
    } catch (const std::runtime_error&) {
        EXPECT_TRUE(vias.empty());
        return {};
    }
    MeshlessVia::write_binary_stream(vias, output);
    return QByteArray::fromStdString(output.str());
}

// The lines that say what the cut has.
QByteArray rewrittenCut(const QByteArray& bytes) {
    QTextStream input(bytes);
    NSMACutPlane cut;
    if (!cut.StreamIn(input, 0, NSMACutPlane::AsRead)) return {};
    EXPECT_LE(cut.GetSamples().size(), static_cast<std::size_t>(std::max(cut.GetNumberOfPoints(), 0)));
    QByteArray text = "NUPOIN:," + QByteArray::number(cut.GetNumberOfPoints()) + "\nFSTLST:,0,1\n";
    for (const auto& [angle, values] : cut.GetSamples()) {
        text += QByteArray::number(static_cast<double>(angle), 'g', 17) + ',' +
                QByteArray::number(values.first, 'g', 17) + ',' + QByteArray::number(values.second, 'g', 17) + '\n';
    }
    return text;
}

struct Format {
    const char* name;
    std::function<QByteArray()> sample, smallSample;
    Rewrite rewritten;
};

void PrintTo(const Format& format, std::ostream* out) { *out << format.name; }

QByteArray geometrySample() {
    v6GeometryFile geometry;
    auto* tissue = new ElectricNormal("Gewebe", 0.5F, 0.25F, 40);
    const PhysicalParameters thermal(1000, 3500, 0.5F, 0.01F, 100);
    auto* sampled = new ElectricSampled("sampled", {{1e9F, 0.1F, 2}, {2e9F, 0.2F, 3}});
    geometry.setElectricMaterials({new ElectricFreeSpace("ElectricFreeSpace"),
                                   new ElectricPerfectConductor("ElectricPerfectConductor"),
                                   tissue,
                                   sampled});
    geometry.setMagneticMaterials(
        {new MagneticFreeSpace("MagneticFreeSpace"), new MagneticPerfectConductor("MagneticPerfectConductor")});
    geometry.setMaterialMappings({new MaterialMap("map", 2, 3, 0, 0, 0, 0)});
    tissue->addPhysicalParameters(&thermal);
    const std::unique_ptr<PhysicalParameters> added(tissue->getPhysicalParameters());
    Grid grid;
    grid.initialize(3, 2, 1, -0.5F, 0, 0, {{0, 0.5F}, {2, 0.25F}}, {{0, 1}}, {{0, 1}}, true);
    QByteArray saved;
    QTextStream output(&saved, QIODevice::WriteOnly);
    geometry.saveToStream(grid, output);
    return saved;
}

QByteArray smallProject() {
    const QString text =
        "Version 8; FDTDProject{ Units{ Display{ Name m; Conversion 1; } } RunParameters{ Waveform{ Step{ riseTime 2; "
        "} }"
        "UseUsersCFL 0.5; } RequestResults{ DFTParameters{ DataSampling 2; } } }";
    return expanded(text).toUtf8();
}

QByteArray smallGeometry() {
    const QString text =
        "Geometry file version 3.20;;mesh_defined;0 0 0;0 0 0;0 0 0;0 0 0;0 0 0;0;"
        "materials{ electric{ } } GridDefinition{ NumberOfCellsInX 1; NumberOfCellsInY 1; NumberOfCellsInZ 1; }"
        "Deltas{ DelX{ 0 1; } DelY{ 0 1; } DelZ{ 0 1; } } ";
    return expanded(text).toUtf8();
}

QByteArray cutSample() { return "NUPOIN:,2\nFSTLST:,0,1\n0,0.5,10\n1,-7,0\n"; }

QByteArray viaSample() {
    const QualifiedPoint bottom(0, 0, -1e-3, QualifiedPoint::OnVertex, 1);
    const QualifiedPoint top(0, 2e-3, 1e-3, QualifiedPoint::InElement, 2);
    std::ostringstream output;
    MeshlessVia::write_binary_stream({{bottom, top, 1e-4, 1.7e-8, 1.0}}, output);
    return QByteArray::fromStdString(output.str());
}

const Format formats[] = {
    {"project", [] { return golden.toUtf8(); }, smallProject, rewrittenProject},
    {"geometry", geometrySample, smallGeometry, rewrittenGeometry},
    {"cut", cutSample, cutSample, rewrittenCut},
    {"vias", viaSample, viaSample, rewrittenVias},
};

class DamagedText : public testing::TestWithParam<Format> {
protected:
    void expectStable(const QByteArray& bytes) {
        const QByteArray once = GetParam().rewritten(bytes);
        if (once.isNull()) return;
        EXPECT_EQ(GetParam().rewritten(once), once) << bytes.toStdString();
    }
};

TEST_P(DamagedText, of_any_length_is_refused_or_stable) {
    const QByteArray whole = GetParam().sample();
    EXPECT_EQ(GetParam().rewritten(whole), whole);
    for (int length = 0; length < whole.size(); ++length) expectStable(whole.left(length));
}

TEST_P(DamagedText, with_any_byte_changed_is_refused_or_stable) {
    const QByteArray whole = GetParam().smallSample();
    EXPECT_FALSE(GetParam().rewritten(whole).isNull());
    for (int i = 0; i < whole.size(); ++i) {
        for (int change = 1; change < 256; ++change) {
            QByteArray damaged = whole;
            damaged[i] = static_cast<char>(damaged[i] ^ change);
            expectStable(damaged);
            if (HasFailure()) return;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, DamagedText, testing::ValuesIn(formats), rowName<Format>);

}  // namespace
}  // namespace quarn::test
