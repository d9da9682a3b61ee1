// Loads and saves a project whose multi-point request lists a million points. The reference is an XML document with the
// same integers in one element, which the XML reader stores in a list of points. Compare the times of each pair; the
// rate is in points.

#include <benchmark/benchmark.h>

#include <QTextStream>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>
#include <vector>

#include "SavedProject.h"
#include "quarn/quarn.h"

namespace {

using quarn::ivec3;

constexpr int numberOfPoints = 1000000;

// Random points in a grid of 1000 cells in each direction.
std::vector<ivec3> makePoints() {
    std::vector<ivec3> points;
    for (int i = 0; i < numberOfPoints; ++i) points.emplace_back(i * 7 % 1000, i / 1000, i * 13 % 997);
    return points;
}

class Project : public SavedProject {
public:
    Project() {
        quarn::MultiPointFieldRequest request;
        request.gridIndexBoxes = quarn::GridIndexBoxes({}, {}, makePoints());
        m_project.GetMultiPointFieldRequests().push_back(request);
    }
};

void loadMillionPoints(benchmark::State& state) {
    const auto points = makePoints();
    const QByteArray bytes = Project().save();
    for (auto _ : state) {
        quarn::v6ProjectFile project;
        QStringList errors;
        QTextStream stream(bytes);
        project.loadFromStream(stream, errors);
        state.PauseTiming();
        const auto& requests = project.GetMultiPointFieldRequests();
        if (requests.size() != 1 || requests.front().gridIndexBoxes.getSparePointIndices() != points) {
            state.SkipWithError("the points did not come back");
        }
        quarn::deleteContents(project);
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * numberOfPoints);
}
BENCHMARK(loadMillionPoints)->Unit(benchmark::kMillisecond);

QByteArray xmlOf(const std::vector<ivec3>& points) {
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.writeStartDocument();
    QString text = QString::number(points.size());
    for (const ivec3& p : points) text += QStringLiteral(" %1 %2 %3").arg(p.x).arg(p.y).arg(p.z);
    xml.writeTextElement(QStringLiteral("AdditionalPoints"), text);
    xml.writeEndDocument();
    return bytes;
}

std::vector<ivec3> loadXml(const QByteArray& bytes) {
    QXmlStreamReader xml(bytes);
    xml.readNextStartElement();
    const QString text = xml.readElementText();
    const auto words = text.splitRef(QLatin1Char(' '));
    std::vector<ivec3> points;
    points.reserve(words[0].toUInt());
    for (int i = 1; i + 2 < words.size(); i += 3) {
        points.emplace_back(words[i].toInt(), words[i + 1].toInt(), words[i + 2].toInt());
    }
    return points;
}

void loadMillionPointsXmlReference(benchmark::State& state) {
    const auto points = makePoints();
    const QByteArray bytes = xmlOf(points);
    for (auto _ : state) {
        const auto loaded = loadXml(bytes);
        state.PauseTiming();
        if (loaded != points) state.SkipWithError("the reference did not read the points");
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * numberOfPoints);
}
BENCHMARK(loadMillionPointsXmlReference)->Unit(benchmark::kMillisecond);

void saveMillionPoints(benchmark::State& state) {
    Project project;
    for (auto _ : state) benchmark::DoNotOptimize(project.save());
    state.SetItemsProcessed(state.iterations() * numberOfPoints);
}
BENCHMARK(saveMillionPoints)->Unit(benchmark::kMillisecond);

}  // namespace
