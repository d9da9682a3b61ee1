#include "quarn/BoundaryConditions.h"

#include <algorithm>
#include <stdexcept>

#include "blocktext/BlockDescription.h"
#include "project/ProjectContents.h"
#include "project/Sections.h"
#include "quarn/Waveform.h"

namespace quarn {

using namespace blocktext;

namespace {

using Type = BoundaryConditions::BoundaryType;
constexpr auto cpml = BoundaryConditions::CPML;

constexpr NameTable<Type, 8> typeNames{{
    {BoundaryConditions::Liao, "ORBC_LIAO"_key},
    {BoundaryConditions::PEC, "ORBC_PEC"_key},
    {BoundaryConditions::PMC, "ORBC_PMC"_key},
    {BoundaryConditions::CPML, "ORBC_CPML"_key},
    {BoundaryConditions::CPML, "ORBC_PML"_key},
    {BoundaryConditions::Periodic, "ORBC_PERIODIC"_key},
    {BoundaryConditions::ESymmetry, "ORBC_ESYMMETRY"_key},
    {BoundaryConditions::MSymmetry, "ORBC_MSYMMETRY"_key},
}};
constexpr auto typeName = nameFrom(typeNames, "UnknownType"_key, cpml);

bool isSide(BoundingBoxSide side) { return side >= BoundingBoxSide::LowerX && side <= BoundingBoxSide::UpperZ; }

}  // namespace

template <>
struct blocktext::Description<BoundaryConditions> {
    using B = BoundaryConditions;
    static constexpr auto block() {
        return describe<B>(
            "OuterBoundaries",
            Unknown::DropLine,
            Unreadable::KeepsValue,
            value("LowerX", element(&B::m_types, 0), typeName),
            value("UpperX", element(&B::m_types, 1), typeName),
            value("LowerY", element(&B::m_types, 2), typeName),
            value("UpperY", element(&B::m_types, 3), typeName),
            value("LowerZ", element(&B::m_types, 4), typeName),
            value("UpperZ", element(&B::m_types, 5), typeName),
            value("NumberOfPMLLayers", &B::m_numberOfPMLLayers),
            group(describeWords<B>("PeriodicParameters",
                                   Unknown::DropWord,
                                   Unreadable::KeepsValue,
                                   flag("UseScanAngle", &B::m_useScanAngle),
                                   value("Phi", &B::m_phi).in("deg"),
                                   value("Theta", &B::m_theta).in("deg"),
                                   value("Frequency", &B::m_frequency).in("Hz"),
                                   flag("UseWaveformFrequency", &B::m_takesWaveformFrequency).onlyRead().notCompared()))
                .where(&B::m_useScanAngle, "where the scan angle is used"),
            unwritten(&B::m_numberOfPECBoundaries),
            unwritten(&B::m_cachedTypes));
    }

    // A file that asks for the waveform's frequency gets it only where a waveform is known by then, and the waveforms
    // of the same file come later.
    static void complete(B& conditions, const std::vector<Waveform*>& waveforms) {
        conditions.cacheVariables();
        if (!conditions.m_useScanAngle) {
            conditions.m_phi = conditions.m_theta = conditions.m_frequency = 0.0F;
        } else if (conditions.m_takesWaveformFrequency && !waveforms.empty() && waveforms.front()) {
            conditions.m_frequency = waveforms.front()->getFrequency();
        }
    }
};

namespace {

constexpr auto outerBoundaries = Description<BoundaryConditions>::block();

BoundaryConditions blank() { return {cpml, cpml, cpml, cpml, cpml, cpml, 0}; }

bool StreamOutBoundaryConditions(DelimManager& delim, const v6ProjectFile& project) {
    const BoundaryConditions* conditions = project.getBoundaryConditions();
    if (!conditions) {
        throw std::runtime_error(
            "quarn::v6ProjectFile::StreamOutBoundaryConditions: boundary condition have not been set");
    }
    return outerBoundaries.write(delim, *conditions);
}

bool StreamInBoundaryConditions(DelimManager& delim, v6ProjectFile& project) {
    auto conditions = std::make_unique<BoundaryConditions>(blank());
    outerBoundaries.read(delim, *conditions);
    Description<BoundaryConditions>::complete(*conditions, project.getWaveforms());
    ProjectContents::install(project, std::move(conditions));
    return isOk(delim);
}

}  // namespace

const Section boundaryConditionsSection{outerBoundaries.name,
                                        Unreadable::Fails,
                                        StreamOutBoundaryConditions,
                                        StreamInBoundaryConditions,
                                        [](FormatBuilder& builder) { outerBoundaries.describeTo(builder, blank()); }};

QLatin1String boundaryTypeName(Type type) { return typeName.nameIn(type); }

Type boundaryTypeOf(QStringView name) { return valueOf(typeNames, name, cpml); }

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

void BoundaryConditions::cacheVariables() {
    m_cachedTypes = 0;
    for (const BoundaryType type : m_types) {
        if (type >= Liao && type <= Periodic) m_cachedTypes |= 1U << type;
    }
    m_numberOfPECBoundaries = static_cast<std::int32_t>(std::count(m_types.begin(), m_types.end(), PEC));
}

// The engine that is not FDTD is the one whose absorbing layers are checked; the FDTD engine checks its own.
void BoundaryConditions::checkValidity(QStringList& errors, QStringList& warnings, Engine engine) const {
    if (engine == Engine::FDTD || !hasCPMLBoundary()) return;
    if (m_numberOfPMLLayers < 1) {
        errors << QStringLiteral("The number of CPML layers must be greater that zero.");
    }
    if (hasLiaoBoundary()) {
        errors << QStringLiteral("PML and Liao absorbing boundaries cannot both be specified.");
    }
    if (m_numberOfPMLLayers < 5) {
        warnings << QStringLiteral(
            "The number of PML layers is less that five.  Large reflections from the boundary may occur.");
    }
}

bool operator==(const BoundaryConditions& a, const BoundaryConditions& b) { return outerBoundaries.areEqual(a, b); }

}  // namespace quarn
