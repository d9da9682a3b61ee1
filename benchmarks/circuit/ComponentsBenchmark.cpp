// Loads and saves a project with 100 000 circuit components. The reference is an XML document of the same content: an
// element for each block and for each key. The XML reader fills a plain record for each component. Compare the times of
// each pair; the rate is in components.

#include <benchmark/benchmark.h>

#include <QTextStream>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>
#include <vector>

#include "SavedProject.h"
#include "quarn/quarn.h"

namespace {

using quarn::CircuitComponent;

constexpr int components = 100000;

std::vector<CircuitComponent*> makeComponents() {
    std::vector<CircuitComponent*> made;
    for (int i = 0; i < components; ++i) {
        const auto cell = static_cast<unsigned>(i);
        const double x = 1e-3 * i;
        CircuitComponent::ImpedanceLine line;
        line.nodes = {0, 1};
        line.type = CircuitComponent::ImpedanceLine::Cylindrical;
        line.radius = 1.25e-4;
        const CircuitComponent base(QStringLiteral("R%1").arg(i),
                                    {{x, 0.1, 0.2}, {x, 0.1, 0.3}},
                                    {line},
                                    cell,
                                    cell / 2,
                                    cell / 3,
                                    CircuitComponent::Z,
                                    false);
        made.push_back(new quarn::PassiveLoad(
            base, 50.0F, 1e-12F, 1e-9F * static_cast<float>(i), CircuitComponent::Series, CircuitComponent::Positive));
    }
    return made;
}

class Project : public SavedProject {
public:
    Project() { m_project.setComponentManager(new quarn::ComponentManager(makeComponents(), false, -1)); }
};

// Each block of the project text as an element, each key line as an element with its value as text.
QByteArray xmlOf(const QByteArray& projectText) {
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.writeStartDocument();
    for (const QByteArray& line : projectText.split('\n').mid(1)) {
        if (line.startsWith("begin_<")) {
            xml.writeStartElement(QString::fromUtf8(line.mid(7, line.indexOf('>') - 7)));
        } else if (line.startsWith("end_<")) {
            xml.writeEndElement();
        } else if (!line.isEmpty()) {
            const QString text = QString::fromUtf8(line);
            xml.writeTextElement(text.section(QLatin1Char(' '), 0, 0), text.section(QLatin1Char(' '), 1));
        }
    }
    xml.writeEndDocument();
    return bytes;
}

struct XmlLine {
    int pins[2] = {-1, -1};
    QString type;
    double radius = 0;
};

struct XmlComponent {
    QString name, fileName, termType, calibration;
    std::vector<tavrix::Cartesian3D> endPoints;
    std::vector<XmlLine> lines;
    int x = 0, y = 0, z = 0, direction = 0, source = 0, polarity = 0, type = 0;
    float resistance = 0, inductance = 0, capacitance = 0;
};

tavrix::Cartesian3D readXmlPoint(QXmlStreamReader& xml) {
    tavrix::Cartesian3D point;
    while (xml.readNextStartElement()) {
        double& coordinate = xml.name() == QLatin1String("X")   ? point.x
                             : xml.name() == QLatin1String("Y") ? point.y
                                                                : point.z;
        coordinate = xml.readElementText().toDouble();
    }
    return point;
}

XmlLine readXmlLine(QXmlStreamReader& xml) {
    XmlLine line;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("Pin0")) {
            line.pins[0] = xml.readElementText().toInt();
        } else if (xml.name() == QLatin1String("Pin1")) {
            line.pins[1] = xml.readElementText().toInt();
        } else if (xml.name() == QLatin1String("LineType")) {
            line.type = xml.readElementText();
        } else {
            line.radius = xml.readElementText().toDouble();
        }
    }
    return line;
}

XmlComponent readXmlComponent(QXmlStreamReader& xml) {
    XmlComponent c;
    const std::pair<const char*, QString*> texts[] = {{"ComponentName", &c.name},
                                                      {"FileName", &c.fileName},
                                                      {"TermType", &c.termType},
                                                      {"Calibration", &c.calibration}};
    const std::pair<const char*, int*> numbers[] = {{"XLocation", &c.x},
                                                    {"YLocation", &c.y},
                                                    {"ZLocation", &c.z},
                                                    {"CellEdgeDirection", &c.direction},
                                                    {"Source", &c.source},
                                                    {"Polarity", &c.polarity},
                                                    {"Type", &c.type}};
    const std::pair<const char*, float*> values[] = {
        {"Resistance", &c.resistance}, {"Inductance", &c.inductance}, {"Capacitance", &c.capacitance}};
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("EndPoint")) {
            c.endPoints.push_back(readXmlPoint(xml));
            continue;
        }
        if (xml.name() == QLatin1String("ImpedanceLine")) {
            c.lines.push_back(readXmlLine(xml));
            continue;
        }
        for (const auto& [key, text] : texts) {
            if (xml.name() == QLatin1String(key)) *text = xml.readElementText();
        }
        for (const auto& [key, number] : numbers) {
            if (xml.name() == QLatin1String(key)) *number = xml.readElementText().toInt();
        }
        for (const auto& [key, value] : values) {
            if (xml.name() == QLatin1String(key)) *value = xml.readElementText().toFloat();
        }
    }
    return c;
}

std::vector<XmlComponent> loadXml(const QByteArray& bytes) {
    std::vector<XmlComponent> loaded;
    QXmlStreamReader xml(bytes);
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QLatin1String("FeedData")) {
            loaded.push_back(readXmlComponent(xml));
        }
    }
    return loaded;
}

void loadComponents(benchmark::State& state) {
    Project original;
    const QByteArray bytes = original.save();
    for (auto _ : state) {
        quarn::v6ProjectFile project;
        QStringList errors;
        QTextStream stream(bytes);
        project.loadFromStream(stream, errors);
        state.PauseTiming();
        QByteArray again;
        QTextStream output(&again, QIODevice::WriteOnly);
        project.saveToStream(output);
        if (again != bytes) {
            state.SkipWithError("the components did not come back");
        }
        quarn::deleteContents(project);
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * components);
}
BENCHMARK(loadComponents)->Unit(benchmark::kMillisecond);

void loadComponentsXmlReference(benchmark::State& state) {
    Project original;
    const QByteArray bytes = xmlOf(original.save());
    for (auto _ : state) {
        const auto loaded = loadXml(bytes);
        state.PauseTiming();
        const XmlComponent& last = loaded.back();
        if (loaded.size() != components || last.name != QLatin1String("R99999") || last.x != components ||
            last.resistance != 50.0F || last.endPoints.size() != 2 || last.lines.front().radius != 1.25e-4) {
            state.SkipWithError("the reference did not read the components");
        }
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * components);
}
BENCHMARK(loadComponentsXmlReference)->Unit(benchmark::kMillisecond);

void saveComponents(benchmark::State& state) {
    Project project;
    for (auto _ : state) benchmark::DoNotOptimize(project.save());
    state.SetItemsProcessed(state.iterations() * components);
}
BENCHMARK(saveComponents)->Unit(benchmark::kMillisecond);

void insertComponents(benchmark::State& state) {
    const auto made = makeComponents();
    for (auto _ : state) {
        quarn::ComponentManager manager({}, false, -1);
        for (CircuitComponent* component : made) manager.insert(component, true);
        if (manager.getNumberOfComponents() != components) state.SkipWithError("components are missing");
    }
    for (CircuitComponent* component : made) delete component;
    state.SetItemsProcessed(state.iterations() * components);
}
BENCHMARK(insertComponents)->Unit(benchmark::kMillisecond);

}  // namespace
