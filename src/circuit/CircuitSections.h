#pragma once

#include <QLatin1String>
#include <memory>

#include "blocktext/NameTable.h"
#include "quarn/ComponentManager.h"
#include "quarn/StaticVoltageList.h"
#include "quarn/WaveGuidePort.h"

/// The sections of the project file that carry circuit components and waveguide ports: for each a writer of the whole
/// block, a reader of what follows the block's open line, and the block for the reference of the format. Writers return
/// whether the stream is in order. Readers return new objects, never null.
namespace quarn {

class DelimManager;
namespace blocktext {
class FormatBuilder;
}

/// The names of the blocks.
namespace sectionName {
using blocktext::operator""_key;
inline constexpr auto componentsPorts = "ComponentsPorts"_key;
inline constexpr auto waveGuidePorts = "WaveGuidePorts"_key;
}  // namespace sectionName

/// What a section holds. The caller owns the components that the manager lists.
struct ComponentsPorts {
    std::unique_ptr<ComponentManager> manager;
    std::unique_ptr<StaticVoltageList> staticVoltages;
};
/// Either may be null. Without a manager and without static voltages there is nothing to write, and the result is
/// false.
bool writeComponentsPorts(DelimManager& delim, const ComponentManager* manager,
                          const StaticVoltageList* staticVoltages);
ComponentsPorts readComponentsPorts(DelimManager& delim);
void describeComponentsPorts(blocktext::FormatBuilder& builder);

bool writeWaveGuidePorts(DelimManager& delim, const WaveGuidePortManager& manager);
std::unique_ptr<WaveGuidePortManager> readWaveGuidePorts(DelimManager& delim);
void describeWaveGuidePorts(blocktext::FormatBuilder& builder);

}  // namespace quarn
