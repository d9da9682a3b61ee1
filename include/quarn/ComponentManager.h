#pragma once

#include <QSet>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <vector>

#include "quarn/CircuitComponent.h"
#include "quarn/Engine.h"
#include "quarn/Export.h"

namespace quarn {

/// The circuit components of a project. Ports come before all other components, so that the position of a port is its
/// port number.
///
/// The manager does not own the components: a copy shares them, and whoever created them deletes them. Null pointers
/// are left out. Whoever assigns to a component that is listed calls cacheVariables() afterwards.
class QUARN_EXPORT ComponentManager {
public:
    /// With S-parameters, feeds other than the one at `activePort` are made inactive; without, no port is active (-1).
    ComponentManager(const std::vector<CircuitComponent*>& components, bool computeSParameters, int activePort);
    ComponentManager(const ComponentManager& other);
    ComponentManager& operator=(const ComponentManager& other);
    ~ComponentManager();

    /// Adds a port behind the last port, and any other component at the end. Throws a std::runtime_error, with the list
    /// as it was, when the name must be unique and is not, and when the list has a port behind another component. The
    /// cost does not grow with the list, save for moving the pointers behind a new port. hasNonlinearCapacitor()
    /// follows only with cacheVariables().
    void insert(CircuitComponent* component, bool checkUniqueness);

    /// Derives the number of ports and hasNonlinearCapacitor() from the list.
    void cacheVariables();

    /// Empties the list without deleting the components.
    void clearComponents();

    const std::vector<CircuitComponent*>& getComponents() const { return m_components; }

    /// The index is not checked.
    CircuitComponent* getComponent(int index) const { return m_components[static_cast<std::size_t>(index)]; }
    unsigned int getNumberOfComponents() const { return static_cast<unsigned int>(m_components.size()); }
    unsigned int getNumberOfPorts() const { return m_numberOfPorts; }
    int getActivePort() const { return m_activePort; }
    bool computeSParameters() const { return m_computeSParameters; }
    bool hasNonlinearCapacitor() const { return m_hasNonlinearCapacitor; }
    bool hasAnyOfType(CircuitComponent::CircuitComponentType type) const;

    /// Appends findings about the list as a whole, then those of each component.
    void checkValidity(QStringList& errors, QStringList& warnings, Engine engine) const;

private:
    void checkSParameters(QStringList& errors, QStringList& warnings) const;
    void noteListOrder();

    std::vector<CircuitComponent*> m_components;
    bool m_computeSParameters;
    std::int32_t m_activePort;
    std::uint32_t m_numberOfPorts = 0;
    bool m_hasNonlinearCapacitor = false;
    // What insert() would otherwise look up in the whole list each time: the names, where the first component that is
    // no port stands, and whether a port stands behind it.
    QSet<QString> m_names;
    std::size_t m_firstOther = 0;
    bool m_portsComeFirst = true;
};

}  // namespace quarn
