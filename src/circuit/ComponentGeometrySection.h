#pragma once

#include <QLatin1String>

#include "quarn/CircuitComponent.h"

/// The blocks within a component's or a port's block that carry points and impedance lines.
namespace quarn {

class DelimManager;

void writePoint(DelimManager& delim, QLatin1String name, const tavrix::Cartesian3D& point);

/// Reads what follows the open line; coordinates that the block does not give are zero.
tavrix::Cartesian3D readPoint(DelimManager& delim);

void writeImpedanceLine(DelimManager& delim, const CircuitComponent::ImpedanceLine& line);
CircuitComponent::ImpedanceLine readImpedanceLine(DelimManager& delim);

}  // namespace quarn
