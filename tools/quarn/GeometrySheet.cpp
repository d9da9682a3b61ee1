#include "GeometrySheet.h"

#include <algorithm>

#include "Console.h"
#include "GeometryOnDisk.h"
#include "Quantity.h"
#include "quarn/quarn.h"

namespace quarn::tool {

namespace {

QString text(const char* utf8) { return QString::fromUtf8(utf8); }
QString lengthText(double metres) { return withPrefix(metres, text("m")); }

// The grid's upper bound is the near side of the last cell; a user thinks of the far one.
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
    const QString sizes =
        smallest == largest
            ? lengthText(static_cast<double>(smallest))
            : text("%1 to %2").arg(lengthText(static_cast<double>(smallest)), lengthText(static_cast<double>(largest)));
    return text("%1 to %2, cells of %3").arg(lengthText(axis.origin()), lengthText(end), sizes);
}

void addGrid(Sheet& sheet, const Grid& grid) {
    sheet.add(text("Grid"),
              text("%1 x %2 x %3 cells").arg(grid.axis(0).cells()).arg(grid.axis(1).cells()).arg(grid.axis(2).cells()));
    for (std::size_t n = 0; n < 3; ++n) sheet.addDetail(QString(QLatin1Char("xyz"[n])), axisText(grid.axis(n)));
}

QString kindText(Material::MaterialType type) {
    switch (type) {
        case Material::ElectricFreeSpace:
        case Material::MagneticFreeSpace:
            return text("free space");
        case Material::ElectricPerfectConductor:
        case Material::MagneticPerfectConductor:
            return text("perfect conductor");
        case Material::ElectricNormal:
        case Material::MagneticNormal:
            return text("normal");
        case Material::ElectricSampled:
        case Material::MagneticSampled:
            return text("sampled");
        case Material::ElectricDebye:
        case Material::MagneticDebye:
            return text("Debye");
        case Material::ElectricLorentz:
            return text("Lorentz");
        case Material::ElectricAnisotropic:
            return text("anisotropic");
        case Material::ElectricNonlinear:
        case Material::MagneticNonlinear:
            return text("nonlinear");
        case Material::ElectricThinWire:
            return text("thin wire");
        case Material::Electric3PoleDebye:
            return text("Debye, 3 poles");
        case Material::Electric7PoleDebye:
        case Material::Magnetic7PoleDebye:
            return text("Debye, 7 poles");
        case Material::ElectricDjordjevic:
            return text("wideband Debye");
        case Material::ElectricDebyeLorentzColeCole:
            return text("Debye, Lorentz and Cole-Cole terms");
        case Material::MagneticFerrite:
            return text("ferrite");
        case Material::ElectricSurfaceResistance:
            return text("surface resistance");
    }
    return text("unknown");
}

QString valuesText(const Material& material) {
    if (const auto* normal = dynamic_cast<const ElectricNormal*>(&material)) {
        return text(", relative permittivity %1, %2")
            .arg(numberText(static_cast<double>(normal->getRelativePermittivity())),
                 withPrefix(static_cast<double>(normal->getConductivity()), text("S/m")));
    }
    if (const auto* normal = dynamic_cast<const MagneticNormal*>(&material)) {
        return text(", relative permeability %1, %2")
            .arg(numberText(static_cast<double>(normal->getRelativePermeability())),
                 withPrefix(static_cast<double>(normal->getConductivity()), text("Ω/m")));
    }
    return {};
}

void addMaterials(Sheet& sheet, const char* label, const std::vector<Material*>& materials) {
    sheet.add(text(label), counted(materials.size(), text("material")));
    sheet.addFirst(materials, [&](std::size_t i, const Material& material) {
        sheet.addDetail(
            QString::number(i),
            text("%1: %2%3").arg(material.getName(), kindText(material.getMaterialType()), valuesText(material)));
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
    sheet.add(text("Maps"), counted(geometry.getMaterialMappings().size(), text("material map")));
    return sheet;
}

}  // namespace quarn::tool
