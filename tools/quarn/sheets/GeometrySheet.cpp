#include "sheets/Sheets.h"

#include <algorithm>

#include "Console.h"
#include "Quantity.h"
#include "files/GeometryOnDisk.h"
#include "quarn/quarn.h"

namespace quarn::tool {

namespace {

// The grid's upper bound is the near side of the last cell; users expect the far side.
QString axisText(const Grid::Axis& axis) {
    if (axis.cells() == 0) return text("no cells");
    float smallest = axis.electricDelta(0);
    float largest = smallest;
    for (std::uint32_t i = 1; i < axis.cells(); ++i) {
        const float size = axis.electricDelta(i);
        smallest = std::min(smallest, size);
        largest = std::max(largest, size);
    }
    const double end = axis.upperBound() + static_cast<double>(axis.electricDelta(axis.cells() - 1));
    const QString sizes = smallest == largest ? withPrefix(smallest, "m") : rangeText(smallest, largest, "m");
    return text("%1, cells of %2").arg(rangeText(axis.origin(), end, "m"), sizes);
}

void addGrid(Sheet& sheet, const Grid& grid) {
    sheet.add("Grid",
              text("%1 x %2 x %3 cells").arg(grid.axis(0).cells()).arg(grid.axis(1).cells()).arg(grid.axis(2).cells()));
    for (std::size_t n = 0; n < 3; ++n) sheet.addDetail(QString(QLatin1Char("xyz"[n])), axisText(grid.axis(n)));
}

constexpr Named<Material::MaterialType> kinds[] = {
    {Material::ElectricFreeSpace, "free space"},
    {Material::MagneticFreeSpace, "free space"},
    {Material::ElectricPerfectConductor, "perfect conductor"},
    {Material::MagneticPerfectConductor, "perfect conductor"},
    {Material::ElectricNormal, "normal"},
    {Material::MagneticNormal, "normal"},
    {Material::ElectricSampled, "sampled"},
    {Material::MagneticSampled, "sampled"},
    {Material::ElectricDebye, "Debye"},
    {Material::MagneticDebye, "Debye"},
    {Material::ElectricLorentz, "Lorentz"},
    {Material::ElectricAnisotropic, "anisotropic"},
    {Material::ElectricNonlinear, "nonlinear"},
    {Material::MagneticNonlinear, "nonlinear"},
    {Material::ElectricThinWire, "thin wire"},
    {Material::Electric3PoleDebye, "Debye, 3 poles"},
    {Material::Electric7PoleDebye, "Debye, 7 poles"},
    {Material::Magnetic7PoleDebye, "Debye, 7 poles"},
    {Material::ElectricDjordjevic, "wideband Debye"},
    {Material::ElectricDebyeLorentzColeCole, "Debye, Lorentz and Cole-Cole terms"},
    {Material::MagneticFerrite, "ferrite"},
    {Material::ElectricSurfaceResistance, "surface resistance"},
};

QString valuesText(const Material& material) {
    if (const auto* normal = dynamic_cast<const ElectricNormal*>(&material)) {
        return text(", relative permittivity %1, %2")
            .arg(numberText((normal->getRelativePermittivity())), withPrefix((normal->getConductivity()), "S/m"));
    }
    if (const auto* normal = dynamic_cast<const MagneticNormal*>(&material)) {
        return text(", relative permeability %1, %2")
            .arg(numberText((normal->getRelativePermeability())), withPrefix((normal->getConductivity()), "Ω/m"));
    }
    return {};
}

void addMaterials(Sheet& sheet, const char* label, const std::vector<Material*>& materials) {
    sheet.add(text(label), counted(materials.size(), "material"));
    sheet.addFirst(materials, [&](std::size_t i, const Material& material) {
        sheet.addDetail(
            QString::number(i),
            text("%1: %2%3").arg(material.getName(), nameOf(material.getMaterialType(), kinds), valuesText(material)));
    });
}

}  // namespace

Sheet sheetOfGeometry(const QString& path, const QByteArray& content) {
    const LoadedGeometry loaded(path, content);
    const v6GeometryFile& geometry = loaded.geometry;
    Sheet sheet(text("%1: geometry, file version %2.%3")
                    .arg(path)
                    .arg(geometry.GetMajorFileVersionNumber())
                    .arg(geometry.GetMinorFileVersionNumber()));
    addGrid(sheet, loaded.grid);
    addMaterials(sheet, "Electric", geometry.getElectricMaterials());
    addMaterials(sheet, "Magnetic", geometry.getMagneticMaterials());
    sheet.add("Maps", counted(geometry.getMaterialMappings().size(), "material map"));
    return sheet;
}

}  // namespace quarn::tool
