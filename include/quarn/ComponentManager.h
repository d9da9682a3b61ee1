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
/// are left out. Whoever assigns to a component that is listed calls cacheVariables() afterwards: the counts and the
/// names that must be unique are not looked up again otherwise.
class QUARN_EXPORT ComponentManager {
public:
    /// `activePort` is a position in `components`, null pointers included; getActivePort() is the position of the same
    /// component in the list, and -1 when it is a null pointer. With S-parameters, feeds other than that one are made
    /// inactive; without, no port is active (-1).
    ComponentManager(const std::vector<CircuitComponent*>& components, bool computeSParameters, int activePort);
    ComponentManager(const ComponentManager& other);
    ComponentManager& operator=(const ComponentManager& other);
    ~ComponentManager();

    /// Adds a port behind the last port, and any other component at the end. Throws a std::runtime_error, with the list
    /// as it was, when the name must be unique and is not, and when a port is to be added to a list that has a port
    /// behind another component. A port costs a walk over the list; the cost of any other component does not grow with
    /// the list. hasNonlinearCapacitor() is updated only by cacheVariables().
    void insert(CircuitComponent* component, bool checkUniqueness);

    /// Updates the number of ports and hasNonlinearCapacitor() from the list.
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
    void cacheNames();

    std::vector<CircuitComponent*> m_components;
    bool m_computeSParameters;
    std::int32_t m_activePort;
    std::uint32_t m_numberOfPorts = 0;
    bool m_hasNonlinearCapacitor = false;
    QSet<QString> m_names;  // so that insert() need not compare a name with those of the whole list
};

}  // namespace quarn
