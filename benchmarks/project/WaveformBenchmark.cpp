// Loads and saves a project with a long user-defined waveform. The reference is an XML document with the same numbers
// in the same layout: an element for each block with one number per line. Both start from UTF-8 bytes in memory and end
// there. Compare the times of each pair.

#include <benchmark/benchmark.h>

#include <QBuffer>
#include <QTextStream>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>
#include <cmath>
#include <vector>

#include "SavedProject.h"
#include "quarn/quarn.h"

namespace {

constexpr unsigned samples = 200000;

struct Signal {
    std::vector<float> source;
    std::vector<float> derivative;
};

const Signal& signal() {
    static const Signal result = [] {
        Signal made;
        for (unsigned i = 0; i < samples; ++i) {
            const double t = (i - samples / 2.0) / (samples / 8.0);
            made.source.push_back(static_cast<float>(std::exp(-t * t) * std::sin(40 * t)));
            made.derivative.push_back(
                static_cast<float>(std::exp(-t * t) * (40 * std::cos(40 * t) - 2 * t * std::sin(40 * t))));
        }
        return made;
    }();
    return result;
}

class Project : public SavedProject {
public:
    Project() {
        m_project.setTerminationCriteria(new quarn::TerminationCriteria(0, samples - 1, 0));
        m_project.getWaveforms().push_back(
            new quarn::Waveform(quarn::Waveform::UserDefined, 0, 0, signal().source, signal().derivative));
    }
};

void writeXmlSamples(QXmlStreamWriter& xml, const QString& name, const std::vector<float>& values) {
    xml.writeStartElement(name);
    for (const float value : values) {
        xml.writeCharacters(QString::number(static_cast<double>(value), 'g', 17));
        xml.writeCharacters(QStringLiteral("\n"));
    }
    xml.writeEndElement();
}

QByteArray saveXml() {
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("UserDefined"));
    writeXmlSamples(xml, QStringLiteral("Source"), signal().source);
    writeXmlSamples(xml, QStringLiteral("Derivative"), signal().derivative);
    xml.writeEndElement();
    xml.writeEndDocument();
    return bytes;
}

std::vector<float> readXmlSamples(QXmlStreamReader& xml) {
    std::vector<float> values;
    const QString text = xml.readElementText();
    for (const QStringRef& number : text.splitRef(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        values.push_back(number.toFloat());
    }
    return values;
}

Signal loadXml(const QByteArray& bytes) {
    Signal loaded;
    QXmlStreamReader xml(bytes);
    xml.readNextStartElement();
    while (xml.readNextStartElement()) {
        (xml.name() == QLatin1String("Source") ? loaded.source : loaded.derivative) = readXmlSamples(xml);
    }
    return loaded;
}

bool isSignal(const Signal& loaded) {
    return loaded.source == signal().source && loaded.derivative == signal().derivative;
}

void loadWaveform(benchmark::State& state) {
    const QByteArray bytes = Project().save();
    for (auto _ : state) {
        quarn::v6ProjectFile project;
        QStringList errors;
        QTextStream stream(bytes);
        project.loadFromStream(stream, errors);
        state.PauseTiming();
        const auto& waveforms = project.getWaveforms();
        if (waveforms.size() != 1 ||
            !isSignal({waveforms[0]->getUserDefinedSource(), waveforms[0]->getUserDefinedDerivative()})) {
            state.SkipWithError("the waveform did not come back");
        }
        quarn::deleteContents(project);
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * 2 * samples);
}
BENCHMARK(loadWaveform)->Unit(benchmark::kMillisecond);

void loadWaveformXmlReference(benchmark::State& state) {
    const QByteArray bytes = saveXml();
    for (auto _ : state) {
        const Signal loaded = loadXml(bytes);
        state.PauseTiming();
        if (!isSignal(loaded)) state.SkipWithError("the reference did not read the numbers");
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * 2 * samples);
}
BENCHMARK(loadWaveformXmlReference)->Unit(benchmark::kMillisecond);

void saveWaveform(benchmark::State& state) {
    Project project;
    for (auto _ : state) benchmark::DoNotOptimize(project.save());
    state.SetItemsProcessed(state.iterations() * 2 * samples);
}
BENCHMARK(saveWaveform)->Unit(benchmark::kMillisecond);

void saveWaveformXmlReference(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(saveXml());
    state.SetItemsProcessed(state.iterations() * 2 * samples);
}
BENCHMARK(saveWaveformXmlReference)->Unit(benchmark::kMillisecond);

}  // namespace
