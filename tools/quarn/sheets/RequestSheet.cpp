#include "sheets/Sheets.h"

#include "Console.h"
#include "Quantity.h"
#include "quarn/quarn.h"

namespace quarn::tool {

namespace {

QString requests(std::size_t count) { return counted(count, "request"); }

template <class Request>
QString boundsText(const Request& r) {
    return text("cells %1 to %2")
        .arg(tripleText(r.getXLowerBound(), r.getYLowerBound(), r.getZLowerBound()),
             tripleText(r.getXUpperBound(), r.getYUpperBound(), r.getZUpperBound()));
}

QString fileText(const QString& name) { return name.isEmpty() ? text("no file") : text("file %1").arg(name); }

QString timestepsText(int first, int last, int distance) {
    const int unset = -1;
    if (first == unset && last == unset && distance == unset) return text("any timesteps");
    return text("timesteps %1 to %2 by %3").arg(first).arg(last).arg(distance);
}

QString joined(QStringList parts) {
    parts.removeAll(QString());
    return parts.join("; ");
}

/// The names of the groups of fields that `isAskedFor` tells, in the given order.
template <class IsAskedFor>
QString fieldsText(std::initializer_list<FieldGroup> order, IsAskedFor isAskedFor) {
    QStringList names;
    for (const FieldGroup group : order) {
        if (isAskedFor(group)) names << text(infoOf(group).name);
    }
    return names.join(text(", "));
}

QString fieldPointText(const NearZoneMultiFieldPoint& p) {
    using G = FieldGroup;
    return joined({fileText(p.filename()),
                   fieldsText({G::TotalE, G::ScatteredE, G::TotalH, G::ScatteredH, G::TotalB, G::ScatteredB, G::J},
                              [&](G group) { return p.collects(group); }),
                   timestepsText(p.getMinTimestep(), p.getMaxTimestep(), p.getDeltaTimestep())});
}

void addPoints(Sheet& sheet, const ProjectFile& project) {
    const auto& indexed = project.GetNearZoneMultiFieldIndexedPoints();
    const auto& interpolated = project.GetNearZoneMultiFieldInterpolatedPoints();
    if (indexed.empty() && interpolated.empty()) return;
    sheet.add("Near zone", counted(indexed.size() + interpolated.size(), "point"));
    sheet.addFirst(indexed, [&](std::size_t, const NearZoneMultiFieldIndexedPoint& p) {
        sheet.addDetail(text("cell ") + tripleText(p.getX(), p.getY(), p.getZ()), fieldPointText(p));
    });
    sheet.addFirst(interpolated, [&](std::size_t, const NearZoneMultiFieldInterpolatedPoint& p) {
        sheet.addDetail(pointText(p.getX(), p.getY(), p.getZ()), fieldPointText(p));
    });
}

QString multiPointText(const MultiPointFieldRequest& r) {
    using G = FieldGroup;
    const auto order = {G::TotalE, G::TotalH, G::TotalB, G::J, G::ScatteredE, G::ScatteredH, G::ScatteredB};
    const QString transient = fieldsText(order, [&](G group) { return r.collectsTransient(group); });
    const QString steady = fieldsText(order, [&](G group) { return r.collectsSteady(group); });
    const auto points = static_cast<std::size_t>(r.gridIndexBoxes.getNumPoints());
    QStringList parts{fileText(r.outputFile), counted(points, "point") + text(r.snapped ? ", snapped" : "")};
    if (!transient.isEmpty()) {
        parts << text("transient ") + transient << timestepsText(r.minTimestep, r.maxTimestep, r.deltaTimestep);
    }
    if (!steady.isEmpty()) parts << text("steady state ") + steady;
    return joined(parts);
}

void addMultiPoints(Sheet& sheet, const std::vector<MultiPointFieldRequest>& list) {
    if (list.empty()) return;
    sheet.add("Multi-point", requests(list.size()));
    sheet.addFirst(list, [&](std::size_t i, const MultiPointFieldRequest& request) {
        sheet.addDetail(text("request %1").arg(i), multiPointText(request));
    });
}

void addFarZone(Sheet& sheet, const ProjectFile& project) {
    const auto& steadyState = project.getSteadyStateFarZoneRequests();
    const auto& transient = project.getTransientFarZoneRequests();
    if (steadyState.empty() && transient.empty()) return;
    sheet.add("Far zone", requests(steadyState.size() + transient.size()));
    const auto addKind = [&](const char* kind, const std::vector<FarZoneRequest>& list) {
        sheet.addFirst(list, [&](std::size_t, const FarZoneRequest& request) {
            sheet.addDetail(
                text(kind),
                joined({fileText(request.getOutputFileName()), counted(request.getAngles().size(), "direction")}));
        });
    };
    addKind("steady state", steadyState);
    addKind("transient", transient);
}

void addSAR(Sheet& sheet, const ProjectFile& project) {
    const auto& planes = project.getSARPlaneRequests();
    if (!planes.empty()) {
        sheet.add("SAR planes", counted(planes.size(), "plane"));
        sheet.addFirst(planes, [&](std::size_t, const SARPlane& plane) {
            sheet.addDetail(planeName(plane.getPlane()), text("index %1").arg(plane.getIndex()));
        });
    }
    const SARAveragingRequest* r = project.getSARAveragingRequest();
    if (!r) return;
    const QString masses = listText({{r->compute1gAverage(), "1 g"}, {r->compute10gAverage(), "10 g"}});
    sheet.add("SAR averages",
              joined({masses.isEmpty() ? text("none") : masses, fileText(r->getOutputAveragedFileName())}));
    sheet.addDetail("Region",
                    r->useAutomaticSubregion()
                        ? text("found by a cutoff of %1 dB").arg(numberText(r->getSubregionCutoff()))
                        : boundsText(*r));
    if (r->treatDataOutsideAsAir()) sheet.addDetail("Outside", "treated as air");
    const auto planesText = [&](const char* label, bool xy, bool yz, bool zx) {
        const QString saved = listText({{xy, "XY"}, {yz, "YZ"}, {zx, "ZX"}});
        if (!saved.isEmpty()) sheet.addDetail(text(label), saved);
    };
    planesText("1 g planes", r->save1gXYPlanes(), r->save1gYZPlanes(), r->save1gZXPlanes());
    planesText("10 g planes", r->save10gXYPlanes(), r->save10gYZPlanes(), r->save10gZXPlanes());
    if (!r->getMaterialsToUse().empty()) {
        sheet.addDetail("Materials", text("%1 of them used").arg(r->getMaterialsToUse().size()));
    }
}

void addTemperatureRise(Sheet& sheet, const TemperatureRiseRequest* r) {
    if (!r) return;
    sheet.add("Temperature rise", joined({text("plane ") + planeName(r->getPlaneTypeIndicator()), boundsText(*r)}));
    sheet.addDetail("Input power", withPrefix(r->getRequestedInputPower(), "W"));
    sheet.addDetail("Steady state",
                    text("changes below %1 K, at most %2 timesteps")
                        .arg(numberText(r->getTemperatureChangeIndicatingSteadyState()))
                        .arg(r->getMaximumNumberOfTimesteps()));
    sheet.addDetail(
        "Media",
        text("immersive at %1 K, perfusive at %2 K")
            .arg(numberText(r->getImmersiveMediumTemperature()), numberText(r->getPerfusiveMediumTemperature())));
    if (r->overrideDeltaTime()) sheet.addDetail("Timestep", withPrefix(r->getRequestedDeltaTime(), "s"));
}

void addHAC(Sheet& sheet, const std::vector<const HACRequest*>& list) {
    if (list.empty()) return;
    sheet.add("HAC", counted(list.size(), "measurement"));
    sheet.addFirst(list, [&](std::size_t i, const HACRequest& r) {
        sheet.addDetail(text("measurement %1").arg(i), text("origin ") + pointText(r.origin.x, r.origin.y, r.origin.z));
    });
}

}  // namespace

void addRequests(Sheet& sheet, const ProjectFile& project) {
    addPoints(sheet, project);
    addMultiPoints(sheet, project.GetMultiPointFieldRequests());
    addFarZone(sheet, project);
    addSAR(sheet, project);
    addTemperatureRise(sheet, project.getTemperatureRiseRequest());
    addHAC(sheet, project.getHACRequests());
}

}  // namespace quarn::tool
