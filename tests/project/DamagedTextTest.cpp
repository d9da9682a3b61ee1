// A sample of each text format and of the via file is truncated at each length, and each byte of a smaller sample is
// changed to every other value. Reading must end in a refusal or in an object whose saved form is stable: read and
// saved again, it does not change.

#include <gtest/gtest.h>

#include <functional>
#include <sstream>

#include "Rewriting.h"
#include "geometry/GeometrySupport.h"
#include "project/GoldenProject.h"
#include "quarn/quarn.h"

namespace quarn::test {
namespace {

/// The saved form of the object that was read, or its values where it cannot be saved; null for a refused text.
using Rewrite = QByteArray (*)(const QByteArray& bytes);

template <QString (*rewritten)(QTextStream&, QStringList&)>
QByteArray rewrittenText(const QByteArray& bytes) {
    QTextStream input(bytes);
    QStringList errors;
    return rewritten(input, errors).toUtf8();
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

// The number of points, a range and the samples of the cut, as lines of its format.
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
    const QString materials = expanded(
        "normal_electric{ conductivity 0.5; permittivity 40; density 1000; TemperatureRiseMaterialParameters{ "
        "heat_capacity 3500; perfusion_rate 0.01; } } electric_sampled{ SampledParameters{ frequency 1e9; conductivity "
        "0.1; permittivity 2; } SampledParameters{ frequency 2e9; conductivity 0.2; permittivity 3; } } ");
    const QString grid = expanded(
        "materialMaps{ materialMap{ xElectricMaterial 2; yElectricMaterial 3; } } GridDefinition{ GridOriginInMeters "
        "-0.5 "
        "0 0; NumberOfCellsInX 3; NumberOfCellsInY 2; NumberOfCellsInZ 1; } Deltas{ DelX{ 0 0.5; 2 0.25; } DelY{ 0 1; "
        "} "
        "DelZ{ 0 1; } } ");
    const QString wire = "begin_<thin_wire> Größe\nradius 5\nend_<thin_wire>\n";
    return rewrittenText<rewrittenGeometry<>>(withMaterials(materials + wire).toUtf8() + grid.toUtf8());
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
    {"Project", [] { return golden.toUtf8(); }, smallProject, rewrittenText<rewrittenProject>},
    {"Geometry", geometrySample, smallGeometry, rewrittenText<rewrittenGeometry<>>},
    {"Cut", cutSample, cutSample, rewrittenCut},
    {"Vias", viaSample, viaSample, rewrittenVias},
};

class DamagedText : public testing::TestWithParam<Format> {
protected:
    void expectStable(const QByteArray& bytes) {
        const QByteArray once = GetParam().rewritten(bytes);
        if (once.isNull()) return;
        EXPECT_EQ(GetParam().rewritten(once), once) << bytes.toStdString();
    }
};

TEST_P(DamagedText, IsRefusedOrStableAtAnyLength) {
    const QByteArray whole = GetParam().sample();
    EXPECT_EQ(GetParam().rewritten(whole), whole);
    for (int length = 0; length < whole.size(); ++length) expectStable(whole.left(length));
}

TEST_P(DamagedText, IsRefusedOrStableWithAnyByteChanged) {
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
