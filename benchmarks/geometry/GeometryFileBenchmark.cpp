// Loads a geometry file with a separate size for each cell into a grid. The reference is an XML document with the same
// numbers in the same layout: an element for each axis with one index and one size per line. Both start from UTF-8
// bytes in memory and end with an initialised grid. Compare the times of the pair.

#include <benchmark/benchmark.h>

#include <QTextStream>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>
#include <array>

#include "quarn/quarn.h"

namespace {

constexpr int cells = 100000;

using Axes = std::array<quarn::Grid::Runs, 3>;

const Axes& axes() {
    static const Axes result = [] {
        Axes made;
        for (std::size_t axis = 0; axis < made.size(); ++axis) {
            for (int i = 0; i < cells; ++i) {
                made[axis].emplace_back(i, 1e-3F * (1.0F + static_cast<float>(i * 7919 % cells) / cells));
            }
        }
        return made;
    }();
    return result;
}

bool initialize(quarn::Grid& grid, const Axes& runs) {
    return grid.initialize(cells, cells, cells, 0, 0, 0, runs[0], runs[1], runs[2], true);
}

bool hasSizes(const quarn::Grid& grid) {
    for (std::size_t n = 0; n < 3; ++n) {
        if (grid.axis(n).cells() != cells) return false;
        for (std::uint32_t i = 0; i < cells; ++i) {
            if (grid.axis(n).electricDelta(i) != axes()[n][i].second) return false;
        }
    }
    return true;
}

QByteArray geometryText() {
    quarn::Grid grid;
    initialize(grid, axes());
    QByteArray bytes;
    QTextStream stream(&bytes, QIODevice::WriteOnly);
    quarn::v6GeometryFile().saveToStream(grid, stream);
    return bytes;
}

QByteArray xmlText() {
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("Deltas"));
    for (const auto& runs : axes()) {
        xml.writeStartElement(QStringLiteral("Del"));
        for (const auto& [index, size] : runs) {
            xml.writeCharacters(QString::number(index) + QLatin1Char(' ') +
                                QString::number(static_cast<double>(size), 'g', 17) + QLatin1Char('\n'));
        }
        xml.writeEndElement();
    }
    xml.writeEndElement();
    xml.writeEndDocument();
    return bytes;
}

quarn::Grid::Runs readXmlRuns(QXmlStreamReader& xml) {
    quarn::Grid::Runs runs;
    const QString text = xml.readElementText();
    for (const QStringRef& line : text.splitRef(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        const int blank = line.indexOf(QLatin1Char(' '));
        runs.emplace_back(line.left(blank).toInt(), line.mid(blank + 1).toFloat());
    }
    return runs;
}

void loadGeometry(benchmark::State& state) {
    const QByteArray bytes = geometryText();
    for (auto _ : state) {
        quarn::v6GeometryFile file;
        quarn::Grid grid;
        QStringList errors;
        QTextStream stream(bytes);
        file.loadFromStream(stream, &grid, errors);
        state.PauseTiming();
        if (!hasSizes(grid)) state.SkipWithError("the sizes did not come back");
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * 3 * cells);
}
BENCHMARK(loadGeometry)->Unit(benchmark::kMillisecond);

void loadGeometryXmlReference(benchmark::State& state) {
    const QByteArray bytes = xmlText();
    for (auto _ : state) {
        quarn::Grid grid;
        Axes runs;
        QXmlStreamReader xml(bytes);
        xml.readNextStartElement();
        for (auto& axis : runs) {
            xml.readNextStartElement();
            axis = readXmlRuns(xml);
        }
        initialize(grid, runs);
        state.PauseTiming();
        if (!hasSizes(grid)) state.SkipWithError("the reference did not read the sizes");
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * 3 * cells);
}
BENCHMARK(loadGeometryXmlReference)->Unit(benchmark::kMillisecond);

}  // namespace
