#include "quarn/ComponentManager.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

#include "quarn/ComponentKinds.h"

namespace quarn {

namespace {

bool isFeedType(const CircuitComponent& component) {
    return component.getCircuitComponentType() == CircuitComponent::SeriesVoltage ||
           component.getCircuitComponentType() == CircuitComponent::ParallelCurrent;
}

// The findings of the comparison of the ports with the active feed.
struct PortFindings {
    bool reactive = false;
    bool mismatch = false;
    bool hasSwitch = false;
    bool hasNonlinearCapacitor = false;
    bool hasDiode = false;
};

// A passive load must agree with the active feed in all three values, another feed in one of them.
void comparePort(PortFindings& findings, const CircuitComponent& port, const CircuitComponent& activeFeed) {
    const bool sameR = port.getResistance() == activeFeed.getResistance();
    const bool sameL = port.getInductance() == activeFeed.getInductance();
    const bool sameC = port.getCapacitance() == activeFeed.getCapacitance();
    const bool reactive = port.getInductance() > 0.0F || port.getCapacitance() > 0.0F;
    switch (port.getCircuitComponentType()) {
        case CircuitComponent::PassiveLoad:
            findings.reactive |= reactive;
            findings.mismatch |= !(sameR && sameL && sameC);
            break;
        case CircuitComponent::SeriesVoltage:
        case CircuitComponent::ParallelCurrent:
            findings.reactive |= reactive;
            findings.mismatch |= !(sameR || sameL || sameC);
            break;
        case CircuitComponent::Switch:
            findings.hasSwitch = true;
            break;
        case CircuitComponent::NonLinearCapacitor:
            findings.hasNonlinearCapacitor = true;
            break;
        case CircuitComponent::Diode:
            findings.hasDiode = true;
            break;
        case CircuitComponent::LumpedComponent:
            findings.reactive = true;
            findings.mismatch = true;
            break;
        default:
            break;
    }
}

void appendWarnings(QStringList& warnings, const PortFindings& findings) {
    if (findings.reactive) {
        warnings << QStringLiteral(
            "The characteristic impedance of a Port possesses a nonzero reactance.  S-parameter calculations may not "
            "match experimental results.");
    }
    if (findings.mismatch) {
        warnings << QStringLiteral(
            "The characteristic impedance for the active Port does not match that of all passive Ports.  Sij "
            "calculations may not match experimental results.");
    }
    const auto warnAboutKind = [&warnings](bool found, const char* kind) {
        if (!found) return;
        warnings << QStringLiteral(
                        "A %1 circuit component is specified as a Port.  S-parameters for this Port may be invalid.")
                        .arg(QLatin1String(kind));
    };
    warnAboutKind(findings.hasSwitch, "Switch");
    warnAboutKind(findings.hasNonlinearCapacitor, "Nonlinear Capacitor");
    warnAboutKind(findings.hasDiode, "Diode");
}

// The position of an element after the null pointers are removed from the list; -1 for a null pointer.
std::int32_t positionWithoutNulls(const std::vector<CircuitComponent*>& components, std::int32_t position) {
    if (position < 0) return position;
    const auto end =
        components.begin() + std::min<std::ptrdiff_t>(position, static_cast<std::ptrdiff_t>(components.size()));
    if (end != components.end() && !*end) return -1;
    return position - static_cast<std::int32_t>(std::count(components.begin(), end, nullptr));
}

}  // namespace

ComponentManager::ComponentManager(const std::vector<CircuitComponent*>& components, bool computeSParameters,
                                   int activePort)
    : m_computeSParameters(computeSParameters),
      m_activePort(computeSParameters ? positionWithoutNulls(components, activePort) : -1) {
    std::copy_if(components.begin(), components.end(), std::back_inserter(m_components), [](const auto* component) {
        return component != nullptr;
    });
    for (std::size_t i = 0; computeSParameters && i < m_components.size(); ++i) {
        if (!isFeedType(*m_components[i]) || static_cast<std::int64_t>(i) == m_activePort) continue;
        if (auto* feed = dynamic_cast<Feed*>(m_components[i])) feed->setInactive();
    }
    cacheVariables();
}

ComponentManager::ComponentManager(const ComponentManager& other)
    : m_components(other.m_components),
      m_computeSParameters(other.m_computeSParameters),
      m_activePort(other.m_activePort) {
    cacheVariables();
}

ComponentManager& ComponentManager::operator=(const ComponentManager& other) = default;
ComponentManager::~ComponentManager() = default;

void ComponentManager::cacheVariables() {
    m_numberOfPorts = static_cast<std::uint32_t>(
        std::count_if(m_components.begin(), m_components.end(), [](const auto* c) { return c->isPort(); }));
    m_hasNonlinearCapacitor = hasAnyOfType(CircuitComponent::NonLinearCapacitor);
    cacheNames();
}

void ComponentManager::cacheNames() {
    m_names.clear();
    for (const CircuitComponent* component : m_components) m_names.insert(component->getComponentName());
}

void ComponentManager::clearComponents() {
    m_components.clear();
    m_numberOfPorts = 0;
    cacheNames();
}

void ComponentManager::insert(CircuitComponent* component, bool checkUniqueness) {
    if (!component) return;
    const QString& name = component->getComponentName();
    const auto hasName = [&name](const CircuitComponent* listed) { return listed->getComponentName() == name; };
    if (checkUniqueness && m_names.contains(name) && std::any_of(m_components.begin(), m_components.end(), hasName)) {
        throw std::runtime_error("Unable to insert new circuit component: name <" + name.toLatin1().toStdString() +
                                 "> is not unique");
    }
    if (!component->isPort()) {
        m_components.push_back(component);
    } else {
        const auto isPort = [](const CircuitComponent* listed) { return listed->isPort(); };
        const auto firstOther = std::find_if_not(m_components.begin(), m_components.end(), isPort);
        if (std::any_of(firstOther, m_components.end(), isPort)) {
            throw std::runtime_error("invalid order of quarn circuit components");
        }
        m_components.insert(firstOther, component);
        ++m_numberOfPorts;
    }
    m_names.insert(name);
}

bool ComponentManager::hasAnyOfType(CircuitComponent::CircuitComponentType type) const {
    return std::any_of(m_components.begin(), m_components.end(), [type](const auto* component) {
        return component->getCircuitComponentType() == type;
    });
}

void ComponentManager::checkValidity(QStringList& errors, QStringList& warnings, Engine engine) const {
    const bool sParameters = m_computeSParameters && engine == Engine::FDTD;
    if (m_components.size() < m_numberOfPorts) {
        errors << QStringLiteral("The number of ports is greater than the number of circuit components.");
    }
    if (m_components.empty()) {
        if (sParameters) {
            errors << QStringLiteral("S-Parameters are being computed, but there are no circuit components specified.");
        }
        return;
    }
    if (sParameters) checkSParameters(errors, warnings);
    for (const CircuitComponent* component : m_components) component->checkValidity(errors, warnings, engine);
}

// Without a valid active feed there is nothing to compare the ports with.
void ComponentManager::checkSParameters(QStringList& errors, QStringList& warnings) const {
    const bool portIsActive = m_activePort >= 0 && m_activePort < static_cast<std::int64_t>(m_numberOfPorts);
    if (m_numberOfPorts == 0) {
        errors << QStringLiteral("S-Parameters are being computed, but there are no ports specified.");
    } else if (!portIsActive) {
        errors << QStringLiteral("The active port must be between 0 and %1.").arg(m_numberOfPorts - 1);
    }
    if (m_activePort < 0 || static_cast<std::size_t>(m_activePort) >= m_components.size()) return;
    const auto* feed = dynamic_cast<const Feed*>(m_components[static_cast<std::size_t>(m_activePort)]);
    if (!feed) {
        errors << QStringLiteral("The active port must be a Feed.");
        return;
    }
    if (!feed->isActive()) {
        errors << QStringLiteral("The active port does not correspond to an active Feed.");
        return;
    }
    if (!portIsActive) return;
    PortFindings findings;
    for (const CircuitComponent* component : m_components) {
        if (component->isPort()) comparePort(findings, *component, *feed);
    }
    appendWarnings(warnings, findings);
}

}  // namespace quarn
