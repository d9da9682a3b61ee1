#include "blocktext/BlockWalker.h"
#include "blocktext/BlockWriter.h"
#include "project/Sections.h"

namespace quarn {

using namespace blocktext;

namespace {

namespace key {
constexpr auto OuterBoundaries = "OuterBoundaries"_key;
constexpr QLatin1String sides[6] = {"LowerX"_key, "UpperX"_key, "LowerY"_key, "UpperY"_key, "LowerZ"_key, "UpperZ"_key};
constexpr auto NumberOfPMLLayers = "NumberOfPMLLayers"_key;
constexpr auto PeriodicParameters = "PeriodicParameters"_key;
constexpr auto UseScanAngle = "UseScanAngle"_key;
constexpr auto Phi = "Phi"_key;
constexpr auto Theta = "Theta"_key;
constexpr auto Frequency = "Frequency"_key;
constexpr auto UseWaveformFrequency = "UseWaveformFrequency"_key;
}  // namespace key

using Type = BoundaryConditions::BoundaryType;

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

struct PeriodicParameters {
    bool useScanAngle = false;
    bool useWaveformFrequency = false;
    float phi = 0.0F;
    float theta = 0.0F;
    float frequency = 0.0F;
};

void writePeriodicParameters(DelimManager& delim, const BoundaryConditions& conditions) {
    const WrittenBlock block(delim, key::PeriodicParameters);
    putLine(delim, key::UseScanAngle);
    putLine(delim, key::Phi, conditions.getPhi());
    putLine(delim, key::Theta, conditions.getTheta());
    putLine(delim, key::Frequency, conditions.getFrequency());
}

void readPeriodicParameters(DelimManager& delim, PeriodicParameters& periodic) {
    walkWords(delim,
              Unknown::DropWord,
              onFlag(key::UseScanAngle, periodic.useScanAngle),
              onValue(key::Phi, periodic.phi),
              onValue(key::Theta, periodic.theta),
              onValue(key::Frequency, periodic.frequency),
              onFlag(key::UseWaveformFrequency, periodic.useWaveformFrequency));
}

constexpr Type cpml = BoundaryConditions::CPML;

auto onType(QLatin1String word, Type& type) { return onName(word, typeNames, type, cpml); }

}  // namespace

QLatin1String boundaryTypeName(Type type) { return nameOf(typeNames, type, "UnknownType"_key); }

Type boundaryTypeOf(QStringView name) { return valueOf(typeNames, name, cpml); }

bool writeBoundaryConditions(DelimManager& delim, const BoundaryConditions& conditions) {
    const WrittenBlock block(delim, key::OuterBoundaries);
    for (int side = 0; side < 6; ++side) {
        const Type type = conditions.getBoundaryType(static_cast<BoundingBoxSide>(side));
        putLine(delim, key::sides[side], boundaryTypeName(type));
    }
    putLine(delim, key::NumberOfPMLLayers, conditions.getNumberOfPMLLayers());
    if (conditions.useScanAngle()) writePeriodicParameters(delim, conditions);
    return isOk(delim);
}

// A file that asks for the waveform's frequency gets it only where a waveform is known by then, and the waveforms of
// the same file come later.
std::unique_ptr<BoundaryConditions> readBoundaryConditions(DelimManager& delim,
                                                           const std::vector<Waveform*>& waveforms) {
    Type types[6] = {cpml, cpml, cpml, cpml, cpml, cpml};
    int numberOfPMLLayers = 0;
    PeriodicParameters periodic;
    walkBlock(delim,
              Unknown::DropLine,
              onBlock(key::PeriodicParameters, [&] { readPeriodicParameters(delim, periodic); }),
              onType(key::sides[0], types[0]),
              onType(key::sides[1], types[1]),
              onType(key::sides[2], types[2]),
              onType(key::sides[3], types[3]),
              onType(key::sides[4], types[4]),
              onType(key::sides[5], types[5]),
              onValue(key::NumberOfPMLLayers, numberOfPMLLayers));

    auto conditions = std::make_unique<BoundaryConditions>(
        types[0], types[1], types[2], types[3], types[4], types[5], numberOfPMLLayers);
    if (periodic.useScanAngle) {
        const bool fromWaveform = periodic.useWaveformFrequency && !waveforms.empty() && waveforms.front();
        conditions->addPeriodicScanAngleParameters(
            periodic.phi, periodic.theta, fromWaveform ? waveforms.front()->getFrequency() : periodic.frequency);
    }
    return conditions;
}

}  // namespace quarn
