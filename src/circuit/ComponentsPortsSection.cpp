#include "blocktext/BlockWalker.h"
#include "blocktext/BlockWriter.h"
#include "circuit/CircuitSections.h"
#include "circuit/ComponentKindSection.h"
#include "circuit/ImpedanceLineBlock.h"
#include "quarn/ComponentKinds.h"

namespace quarn {

using namespace blocktext;

namespace {

namespace key {
constexpr auto ComponentsPorts = "ComponentsPorts"_key;
constexpr auto PortType = "PortType"_key;
constexpr auto NumberOfFeeds = "NumberOfFeeds"_key;
constexpr auto NumberOfPorts = "NumberOfPorts"_key;
constexpr auto FeedData = "FeedData"_key;
constexpr auto ComponentName = "ComponentName"_key;
constexpr auto EndPoint = "EndPoint"_key;
constexpr auto ImpedanceLine = "ImpedanceLine"_key;
constexpr auto XLocation = "XLocation"_key;
constexpr auto YLocation = "YLocation"_key;
constexpr auto ZLocation = "ZLocation"_key;
constexpr auto CellEdgeDirection = "CellEdgeDirection"_key;
constexpr auto IsPort = "IsPort"_key;
constexpr auto FileName = "FileName"_key;
constexpr auto TermType = "TermType"_key;
constexpr auto Calibration = "Calibration"_key;
constexpr auto NonlinearCapacitor = "NonlinearCapacitor"_key;
constexpr auto StaticVoltageInfo = "StaticVoltageInfo"_key;
constexpr auto Residual = "Residual"_key;
constexpr auto ConductorThreshold = "ConductorThreshold"_key;
constexpr auto MaximumIterations = "MaximumIterations"_key;
constexpr auto StaticVoltagePoint = "StaticVoltagePoint"_key;
constexpr auto Voltage = "Voltage"_key;
}  // namespace key

using Components = std::vector<std::unique_ptr<CircuitComponent>>;

// The file counts cells from 1.
void writeLocation(DelimManager& delim, QLatin1String word, unsigned index) { putLine(delim, word, index + 1); }

auto onLocation(QLatin1String word, unsigned& index) {
    return onWord(word, [&index](QTextStream& in) {
        int number = 0;
        if (readValue(in, number)) index = static_cast<unsigned>(number) - 1;
    });
}

void writeComponent(DelimManager& delim, const CircuitComponent& component, int& nonlinearCapacitors) {
    const WrittenBlock block(delim, key::FeedData);
    putLine(delim, key::ComponentName, component.getComponentName());
    for (const auto& point : component.getEndPoints()) circuit::pointBlock("EndPoint").write(delim, point);
    for (const auto& line : component.getImpedanceLines()) circuit::impedanceLineBlock.write(delim, line);
    writeLocation(delim, key::XLocation, component.getXIndex());
    writeLocation(delim, key::YLocation, component.getYIndex());
    writeLocation(delim, key::ZLocation, component.getZIndex());
    const unsigned direction = component.getComponentDirection();
    if (direction <= CircuitComponent::Z) putLine(delim, key::CellEdgeDirection, direction);
    if (component.isPort()) putLine(delim, key::IsPort);
    putLine(delim, key::FileName, component.getOutputFilename());
    writeKind(delim, component, nonlinearCapacitors);
    putLine(delim, key::TermType, names::of(component.termType()));
    putLine(delim, key::Calibration, names::of(component.calibration()));
}

void writeComponents(DelimManager& delim, const ComponentManager& manager) {
    int nonlinearCapacitors = 0;
    for (const CircuitComponent* component : manager.getComponents()) {
        writeComponent(delim, *component, nonlinearCapacitors);
    }
    for (const CircuitComponent* component : manager.getComponents()) {
        if (const auto* capacitor = dynamic_cast<const NonlinearCapacitor*>(component)) {
            const WrittenBlock coefficients(delim, key::NonlinearCapacitor);
            writeCoefficients(delim, *capacitor);
        }
    }
}

// A block of a component as it was read; the coefficients of nonlinear capacitors come later in the file.
struct Record {
    QString name = QStringLiteral("noname");
    std::vector<tavrix::Cartesian3D> endPoints;
    std::vector<CircuitComponent::ImpedanceLine> impedanceLines;
    unsigned x = 0;
    unsigned y = 0;
    unsigned z = 0;
    int direction = CircuitComponent::UndefinedDirection;
    bool isPort = false;
    QString fileName;
    TermType termType = TermType::InputOutput;
    CircuitComponent::Calibration calibration = CircuitComponent::KeepSelfKeepMutual;
    KindRecord kind;
};

void readRecord(DelimManager& delim, Record& record) {
    walkKind(
        delim,
        record.kind,
        onText(key::ComponentName, record.name),
        onBlock(key::EndPoint, [&] { circuit::pointBlock("EndPoint").read(delim, record.endPoints.emplace_back()); }),
        onBlock(key::ImpedanceLine,
                [&] { circuit::impedanceLineBlock.read(delim, record.impedanceLines.emplace_back()); }),
        onLocation(key::XLocation, record.x),
        onLocation(key::YLocation, record.y),
        onLocation(key::ZLocation, record.z),
        onValue(key::CellEdgeDirection, record.direction),
        onFlag(key::IsPort, record.isPort),
        onText(key::FileName, record.fileName),
        onName(key::TermType, names::termTypes, record.termType),
        onName(key::Calibration, names::calibrations, record.calibration));
}

std::unique_ptr<CircuitComponent> componentOf(const Record& record,
                                              const std::vector<CapacitorCoefficients>& capacitors) {
    const bool hasDirection = record.direction >= 0 && record.direction <= 2;
    CircuitComponent base(record.name,
                          record.endPoints,
                          record.impedanceLines,
                          record.x,
                          record.y,
                          record.z,
                          hasDirection ? static_cast<CircuitComponent::ComponentDirection>(record.direction)
                                       : CircuitComponent::UndefinedDirection,
                          record.isPort);
    base.setTermType(record.termType);
    base.setCalibration(record.calibration);
    base.setOutputFilename(record.fileName);
    return makeComponent(base, record.kind, capacitors);
}

// The active port is the position of the last active record's component. A record without a component does not count.
std::unique_ptr<ComponentManager> managerOf(const std::vector<Record>& records,
                                            const std::vector<CapacitorCoefficients>& capacitors,
                                            bool computeSParameters) {
    Components components;
    int activePort = -1;
    for (const Record& record : records) {
        auto component = componentOf(record, capacitors);
        if (!component) continue;
        if (computeSParameters && record.kind.isActive) activePort = static_cast<int>(components.size());
        components.push_back(std::move(component));
    }
    std::vector<CircuitComponent*> pointers;
    for (const auto& component : components) pointers.push_back(component.get());
    auto manager = std::make_unique<ComponentManager>(pointers, computeSParameters, activePort);
    for (auto& component : components) static_cast<void>(component.release());
    return manager;
}

void writeStaticVoltages(DelimManager& delim, const StaticVoltageList& voltages) {
    {
        const WrittenBlock block(delim, key::StaticVoltageInfo);
        putLine(delim, key::Residual, voltages.getVoltageResidualThreshhold());
        putLine(delim, key::ConductorThreshold, voltages.getVoltageConductorThreshhold());
        putLine(delim, key::MaximumIterations, voltages.getMaximumIterations());
    }
    for (const auto& point : voltages.getPoints()) {
        const WrittenBlock block(delim, key::StaticVoltagePoint);
        putLine(delim, key::XLocation, point.x);
        putLine(delim, key::YLocation, point.y);
        putLine(delim, key::ZLocation, point.z);
        putLine(delim, key::Voltage, point.voltage);
    }
}

void readStaticVoltageInfo(DelimManager& delim, StaticVoltageList& voltages) {
    double residual = voltages.getVoltageResidualThreshhold();
    double conductor = voltages.getVoltageConductorThreshhold();
    unsigned iterations = voltages.getMaximumIterations();
    walkBlock(delim,
              Unknown::DropLine,
              onValue(key::Residual, residual),
              onValue(key::ConductorThreshold, conductor),
              onValue(key::MaximumIterations, iterations));
    voltages.setVoltageResidualThreshhold(residual);
    voltages.setVoltageConductorThreshhold(conductor);
    voltages.setMaximumIterations(iterations);
}

void readStaticVoltagePoint(DelimManager& delim, StaticVoltageList& voltages) {
    StaticVoltageList::VoltagePoint point;
    walkBlock(delim,
              Unknown::DropLine,
              onValue(key::XLocation, point.x),
              onValue(key::YLocation, point.y),
              onValue(key::ZLocation, point.z),
              onValue(key::Voltage, point.voltage));
    voltages.addPoint(point);
}

}  // namespace

bool writeComponentsPorts(DelimManager& delim, const ComponentManager* manager,
                          const StaticVoltageList* staticVoltages) {
    const bool hasStaticVoltages = staticVoltages && !staticVoltages->getPoints().empty();
    if (!manager && !hasStaticVoltages) return false;
    const WrittenBlock block(delim, key::ComponentsPorts);
    putLine(delim, key::PortType, manager && manager->computeSParameters() ? 1 : 0);
    if (manager) writeComponents(delim, *manager);
    if (hasStaticVoltages) writeStaticVoltages(delim, *staticVoltages);
    return isOk(delim);
}

ComponentsPorts readComponentsPorts(DelimManager& delim) {
    std::vector<Record> records;
    std::vector<CapacitorCoefficients> capacitors;
    int portType = 0;
    int countToIgnore = 0;
    auto voltages = std::make_unique<StaticVoltageList>();
    walkBlock(delim,
              Unknown::DropLine,
              onValue(key::PortType, portType),
              onValue(key::NumberOfFeeds, countToIgnore),
              onValue(key::NumberOfPorts, countToIgnore),
              onBlock(key::FeedData, [&] { readRecord(delim, records.emplace_back()); }),
              onBlock(key::NonlinearCapacitor, [&] { capacitors.push_back(readCoefficients(delim)); }),
              onBlock(key::StaticVoltageInfo, [&] { readStaticVoltageInfo(delim, *voltages); }),
              onBlock(key::StaticVoltagePoint, [&] { readStaticVoltagePoint(delim, *voltages); }));
    return {managerOf(records, capacitors, portType != 0), std::move(voltages)};
}

}  // namespace quarn
