#include "blocktext/BlockWalker.h"
#include "blocktext/BlockWriter.h"
#include "project/Sections.h"

namespace quarn {

using namespace blocktext;

namespace {

namespace key {
constexpr auto AmbientConditions = "AmbientConditions"_key;
constexpr auto BackgroundMedium = "BackgroundMedium"_key;
constexpr auto Temperature = "Temperature"_key;
constexpr auto Top = "Top"_key;
constexpr auto Bottom = "Bottom"_key;
constexpr auto HeatTransferCoefficient = "HeatTransferCoefficient"_key;
}  // namespace key

constexpr float roomTemperature = 298.15F;

void writeBlockOfOne(DelimManager& delim, QLatin1String block, QLatin1String word, float value) {
    const WrittenBlock written(delim, block);
    putLine(delim, word, value);
}

auto onBlockOfOne(DelimManager& delim, QLatin1String block, QLatin1String word, float& value) {
    return onBlock(block, [&delim, &value, word] { walkWords(delim, Unknown::DropWord, onValue(word, value)); });
}

}  // namespace

bool writeAmbientConditions(DelimManager& delim, const AmbientConditions& conditions) {
    const WrittenBlock block(delim, key::AmbientConditions);
    writeBlockOfOne(delim, key::BackgroundMedium, key::Temperature, conditions.getBackgroundTemperature());
    writeBlockOfOne(
        delim, key::Top, key::HeatTransferCoefficient, conditions.getHeatTransferCoefficient(BoundingBoxSide::Top));
    writeBlockOfOne(delim,
                    key::Bottom,
                    key::HeatTransferCoefficient,
                    conditions.getHeatTransferCoefficient(BoundingBoxSide::Bottom));
    return isOk(delim);
}

std::unique_ptr<AmbientConditions> readAmbientConditions(DelimManager& delim) {
    float temperature = roomTemperature;
    float top = 0.0F;
    float bottom = 0.0F;
    walkBlock(delim,
              Unknown::DropWord,
              onBlockOfOne(delim, key::BackgroundMedium, key::Temperature, temperature),
              onBlockOfOne(delim, key::Top, key::HeatTransferCoefficient, top),
              onBlockOfOne(delim, key::Bottom, key::HeatTransferCoefficient, bottom));
    return std::make_unique<AmbientConditions>(
        temperature, AmbientConditions::HeatTransfer, bottom, AmbientConditions::HeatTransfer, top);
}

}  // namespace quarn
