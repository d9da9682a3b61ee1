#include "quarn/BoundaryConditions.h"

#include <algorithm>
#include <iterator>
#include <tuple>

namespace quarn {

namespace {

bool isSide(BoundingBoxSide side) { return side >= BoundingBoxSide::LowerX && side <= BoundingBoxSide::UpperZ; }

}  // namespace

BoundaryConditions::BoundaryConditions(BoundaryType lowerX, BoundaryType upperX, BoundaryType lowerY,
                                       BoundaryType upperY, BoundaryType lowerZ, BoundaryType upperZ,
                                       int numberOfPMLLayers)
    : m_types{lowerX, upperX, lowerY, upperY, lowerZ, upperZ}, m_numberOfPMLLayers(numberOfPMLLayers) {
    cacheVariables();
}

BoundaryConditions::BoundaryType BoundaryConditions::getBoundaryType(BoundingBoxSide side) const {
    return isSide(side) ? m_types[static_cast<int>(side)] : m_types[0];
}

void BoundaryConditions::setBoundaryType(BoundingBoxSide side, BoundaryType type) {
    if (isSide(side)) m_types[static_cast<int>(side)] = type;
}

void BoundaryConditions::addPeriodicScanAngleParameters(float phi, float theta, float frequency) {
    m_phi = phi;
    m_theta = theta;
    m_frequency = frequency;
    m_useScanAngle = true;
}

bool BoundaryConditions::hasSideOfType(BoundaryType type) const {
    return std::find(std::begin(m_types), std::end(m_types), type) != std::end(m_types);
}

void BoundaryConditions::cacheVariables() {
    m_hasLiao = hasSideOfType(Liao);
    m_hasCPML = hasSideOfType(CPML);
    m_hasPEC = hasSideOfType(PEC);
    m_hasPMC = hasSideOfType(PMC);
    m_hasPeriodic = hasSideOfType(Periodic);
    m_numberOfPECBoundaries = static_cast<std::int32_t>(std::count(std::begin(m_types), std::end(m_types), PEC));
}

// The engine that is not FDTD is the one whose absorbing layers are checked; the FDTD engine checks its own.
void BoundaryConditions::checkValidity(QStringList& errors, QStringList& warnings, Engine engine) const {
    if (engine == Engine::FDTD || !m_hasCPML) return;
    if (m_numberOfPMLLayers < 1) {
        errors << QStringLiteral("The number of CPML layers must be greater that zero.");
    }
    if (m_hasLiao) {
        errors << QStringLiteral("PML and Liao absorbing boundaries cannot both be specified.");
    }
    if (m_numberOfPMLLayers < 5) {
        warnings << QStringLiteral(
            "The number of PML layers is less that five.  Large reflections from the boundary may occur.");
    }
}

bool operator==(const BoundaryConditions& a, const BoundaryConditions& b) {
    const auto members = [](const BoundaryConditions& c) {
        return std::tie(c.m_numberOfPMLLayers,
                        c.m_pmlM,
                        c.m_pmlKappaMax,
                        c.m_pmlAlphaMax,
                        c.m_pmlMa,
                        c.m_useScanAngle,
                        c.m_phi,
                        c.m_theta,
                        c.m_frequency,
                        c.m_numberOfPECBoundaries,
                        c.m_hasLiao,
                        c.m_hasCPML,
                        c.m_hasPEC,
                        c.m_hasPMC,
                        c.m_hasPeriodic);
    };
    return std::equal(std::begin(a.m_types), std::end(a.m_types), std::begin(b.m_types)) && members(a) == members(b);
}

}  // namespace quarn
