#include "findings/GeometryFindings.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "Quantity.h"
#include "Text.h"
#include "findings/LineForm.h"
#include "quarn/quarn.h"

namespace quarn::tool {

namespace {

void addUnusableSize(QStringList& errors, const Grid::Axis& axis, const QString& name) {
    for (std::uint32_t i = 0; i < axis.cells(); ++i) {
        const float size = axis.electricDelta(i);
        if (std::isfinite(size) && size > 0.0F) continue;
        errors << text("Cell %1 along %2 has the unusable size %3 m.")
                      .arg(i)
                      .arg(name, numberText(static_cast<double>(size)));
        return;
    }
}

void addMissingMaterials(QStringList& errors, const MaterialMap& map, const char* kind, std::size_t count,
                         std::initializer_list<std::int32_t> positions) {
    for (const std::int32_t position : positions) {
        if (position >= 0 && static_cast<std::size_t>(position) < count) continue;
        errors << text("The material map '%1' names %2 material %3, but there are %4, numbered from 0.")
                      .arg(map.getName(), QLatin1String(kind))
                      .arg(position)
                      .arg(count);
    }
}

// A component lies on a cell edge. Along its own direction it needs a cell; across this direction it may also lie on
// the far side of the last cell.
bool isWithin(const Grid& grid, const CircuitComponent& component) {
    const auto fits = [&component](unsigned index, std::uint32_t cells, auto axis) {
        return index < cells || (index == cells && component.getComponentDirection() != axis);
    };
    return fits(component.getXIndex(), grid.getNumberOfUserCellsInX(), CircuitComponent::X) &&
           fits(component.getYIndex(), grid.getNumberOfUserCellsInY(), CircuitComponent::Y) &&
           fits(component.getZIndex(), grid.getNumberOfUserCellsInZ(), CircuitComponent::Z);
}

void removeRepeatedSizes(std::vector<BlockLine>& lines, BlockNumbers& numbers) {
    const int deltas = numbers.of(0, text("Deltas"));
    const int axes[] = {
        numbers.of(deltas, text("DelX")), numbers.of(deltas, text("DelY")), numbers.of(deltas, text("DelZ"))};
    int block = 0;
    QString last;
    const auto isRepeated = [&](const BlockLine& line) {
        const auto words = wordsOf(line.text);
        const bool isSize = std::find(std::begin(axes), std::end(axes), line.block) != std::end(axes) &&
                            words.size() == 2 && isNumber(words[0]) && isNumber(words[1]);
        if (!isSize) {
            last.clear();
            return false;
        }
        const QString size = formOf(line.block, words[1], NumberForm::AllReals);
        const bool isSame = block == line.block && last == size;
        block = line.block;
        last = size;
        return isSame;
    };
    lines.erase(std::remove_if(lines.begin(), lines.end(), isRepeated), lines.end());
}

}  // namespace

QStringList errorsIn(const LoadedGeometry& loaded) {
    QStringList errors;
    for (std::size_t n = 0; n < 3; ++n) {
        const QString name(QLatin1Char("xyz"[n]));
        const Grid::Axis& axis = loaded.grid.axis(n);
        if (axis.cells() == 0) errors << text("The grid has no cells along %1.").arg(name);
        addUnusableSize(errors, axis, name);
    }
    const std::size_t electric = loaded.geometry.getElectricMaterials().size();
    const std::size_t magnetic = loaded.geometry.getMagneticMaterials().size();
    for (const MaterialMap* map : loaded.geometry.getMaterialMappings()) {
        addMissingMaterials(errors,
                            *map,
                            "electric",
                            electric,
                            {map->getXElectricMaterial(), map->getYElectricMaterial(), map->getZElectricMaterial()});
        addMissingMaterials(errors,
                            *map,
                            "magnetic",
                            magnetic,
                            {map->getXMagneticMaterial(), map->getYMagneticMaterial(), map->getZMagneticMaterial()});
    }
    errors.removeDuplicates();
    return errors;
}

QStringList misplacedComponents(const ProjectFile& project, const Grid& grid) {
    QStringList errors;
    if (!project.getComponentManager()) return errors;
    for (const CircuitComponent* component : project.getComponentManager()->getComponents()) {
        if (isWithin(grid, *component)) continue;
        errors << text("A component is outside the grid, at cell (%2, %3, %4): %1")
                      .arg(component->qstr_short())
                      .arg(component->getXIndex())
                      .arg(component->getYIndex())
                      .arg(component->getZIndex());
    }
    return errors;
}

void normalize(std::vector<BlockLine>& lines, BlockNumbers& numbers) {
    removeRepeatedSizes(lines, numbers);
    const QString definition = text("GridDefinition");
    const int adaptive = numbers.of(numbers.of(0, text("AdaptiveGridDefinition")), definition);
    for (BlockLine& line : lines) {
        if (line.block == adaptive) line.block = numbers.of(0, definition);
    }
}

}  // namespace quarn::tool
