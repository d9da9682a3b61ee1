#include <cmath>
#include <limits>
#include <optional>

#include "blocktext/BlockWalker.h"
#include "blocktext/BlockWriter.h"
#include "project/Sections.h"

namespace quarn {

using namespace blocktext;

namespace {

namespace key {
constexpr auto SourceType = "SourceType"_key;
constexpr auto ScatteredFieldPlaneWave = "ScatteredFieldPlaneWave"_key;
constexpr auto TotalFieldScatteredFieldPlaneWave = "TotalFieldScatteredFieldPlaneWave"_key;
constexpr auto GaussianBeam = "GaussianBeam"_key;
constexpr auto Amplitude = "Amplitude"_key;
constexpr auto IncidentTheta = "IncidentTheta"_key;
constexpr auto IncidentPhi = "IncidentPhi"_key;
constexpr auto PhiPolarization = "PhiPolarization"_key;
constexpr auto ThetaPolarization = "ThetaPolarization"_key;
constexpr auto OutputFileName = "OutputFileName"_key;
constexpr auto XLower = "XLower"_key;
constexpr auto YLower = "YLower"_key;
constexpr auto ZLower = "ZLower"_key;
constexpr auto XUpper = "XUpper"_key;
constexpr auto YUpper = "YUpper"_key;
constexpr auto ZUpper = "ZUpper"_key;
constexpr auto XFocus = "XFocus"_key;
constexpr auto YFocus = "YFocus"_key;
constexpr auto ZFocus = "ZFocus"_key;
constexpr auto Radius = "Radius"_key;
constexpr auto AreaSourceFile = "AreaSourceFile"_key;
}  // namespace key

constexpr float unread = std::numeric_limits<float>::quiet_NaN();

template <class... Numbers>
bool allRead(Numbers... numbers) {
    return !(std::isnan(numbers) || ...);
}

void writeCommonLines(DelimManager& delim, const PlaneWave& wave) {
    putLine(delim, key::Amplitude, wave.getAmplitude());
    putLine(delim, key::IncidentTheta, wave.getTheta());
    putLine(delim, key::IncidentPhi, wave.getPhi());
    putLine(delim, wave.getPolarization() == PlaneWave::Phi ? key::PhiPolarization : key::ThetaPolarization);
    putLine(delim, key::OutputFileName, wave.getOutputFileName());
}

// What every wave needs; a wave comes into being only when all of it was read.
struct CommonLines {
    float amplitude = unread;
    float theta = unread;
    float phi = unread;
    std::optional<PlaneWave::Polarization> polarization;
    QString outputFileName;

    bool complete() const { return allRead(amplitude, theta, phi) && polarization && !outputFileName.isEmpty(); }
};

// Reads a wave's block with the keys that its kind adds. False when the block holds anything else or lacks something.
template <class... More>
bool readWave(DelimManager& delim, CommonLines& wave, More... more) {
    return walkBlock(delim,
                     Unknown::Stop,
                     onValue(key::Amplitude, wave.amplitude),
                     onValue(key::IncidentTheta, wave.theta),
                     onValue(key::IncidentPhi, wave.phi),
                     onChoice(key::PhiPolarization, wave.polarization, PlaneWave::Phi),
                     onChoice(key::ThetaPolarization, wave.polarization, PlaneWave::Theta),
                     onText(key::OutputFileName, wave.outputFileName),
                     more...) &&
           wave.complete();
}

PlaneWavePointer readScatteredFieldPlaneWave(DelimManager& delim) {
    CommonLines wave;
    if (!readWave(delim, wave)) return nullptr;
    return PlaneWavePointer(
        new PlaneWave(wave.theta, wave.phi, wave.amplitude, *wave.polarization, wave.outputFileName));
}

void writeFaces(DelimManager& delim, const TFSFPlaneWave& wave) {
    if (wave.getXLower()) putLine(delim, key::XLower);
    if (wave.getYLower()) putLine(delim, key::YLower);
    if (wave.getZLower()) putLine(delim, key::ZLower);
    if (wave.getXUpper()) putLine(delim, key::XUpper);
    if (wave.getYUpper()) putLine(delim, key::YUpper);
    if (wave.getZUpper()) putLine(delim, key::ZUpper);
}

PlaneWavePointer readTotalFieldScatteredFieldPlaneWave(DelimManager& delim) {
    CommonLines wave;
    bool xLower = false, yLower = false, zLower = false, xUpper = false, yUpper = false, zUpper = false;
    if (!readWave(delim,
                  wave,
                  onFlag(key::XLower, xLower),
                  onFlag(key::YLower, yLower),
                  onFlag(key::ZLower, zLower),
                  onFlag(key::XUpper, xUpper),
                  onFlag(key::YUpper, yUpper),
                  onFlag(key::ZUpper, zUpper))) {
        return nullptr;
    }
    return PlaneWavePointer(new TFSFPlaneWave(wave.theta,
                                              wave.phi,
                                              wave.amplitude,
                                              *wave.polarization,
                                              wave.outputFileName,
                                              xLower,
                                              xUpper,
                                              yLower,
                                              yUpper,
                                              zLower,
                                              zUpper));
}

void writeFocus(DelimManager& delim, const GaussianBeam& beam) {
    putLine(delim, key::XFocus, beam.getXFocus());
    putLine(delim, key::YFocus, beam.getYFocus());
    putLine(delim, key::ZFocus, beam.getZFocus());
    putLine(delim, key::Radius, beam.getRadius());
}

PlaneWavePointer readGaussianBeam(DelimManager& delim) {
    CommonLines wave;
    float xFocus = unread, yFocus = unread, zFocus = unread, radius = unread;
    if (!readWave(delim,
                  wave,
                  onValue(key::XFocus, xFocus),
                  onValue(key::YFocus, yFocus),
                  onValue(key::ZFocus, zFocus),
                  onValue(key::Radius, radius)) ||
        !allRead(xFocus, yFocus, zFocus, radius)) {
        return nullptr;
    }
    return PlaneWavePointer(new GaussianBeam(
        wave.theta, wave.phi, wave.amplitude, *wave.polarization, wave.outputFileName, xFocus, yFocus, zFocus, radius));
}

void writeWave(DelimManager& delim, const PlaneWave& wave) {
    switch (wave.getType()) {
        case PlaneWave::TotalFieldScatteredField: {
            const WrittenBlock block(delim, key::TotalFieldScatteredFieldPlaneWave);
            writeCommonLines(delim, wave);
            writeFaces(delim, static_cast<const TFSFPlaneWave&>(wave));
            break;
        }
        case PlaneWave::Beam: {
            const WrittenBlock block(delim, key::GaussianBeam);
            writeCommonLines(delim, wave);
            writeFocus(delim, static_cast<const GaussianBeam&>(wave));
            break;
        }
        default: {
            const WrittenBlock block(delim, key::ScatteredFieldPlaneWave);
            writeCommonLines(delim, wave);
        }
    }
}

}  // namespace

bool writeSourceType(DelimManager& delim, const PlaneWave& wave, const QString& areaSourceFile) {
    const WrittenBlock block(delim, key::SourceType);
    writeWave(delim, wave);
    if (!areaSourceFile.isEmpty()) putLine(delim, key::AreaSourceFile, areaSourceFile);
    return isOk(delim);
}

PlaneWavePointer readSourceType(DelimManager& delim, QString& areaSourceFile) {
    PlaneWavePointer wave;
    const auto onWave = [&](QLatin1String name, PlaneWavePointer (*read)(DelimManager&)) {
        return onBlock(name, [&delim, &wave, read] {
            if (auto found = read(delim)) wave = std::move(found);
        });
    };
    walkBlock(delim,
              Unknown::DropWord,
              onWave(key::ScatteredFieldPlaneWave, readScatteredFieldPlaneWave),
              onWave(key::TotalFieldScatteredFieldPlaneWave, readTotalFieldScatteredFieldPlaneWave),
              onWave(key::GaussianBeam, readGaussianBeam),
              onText(key::AreaSourceFile, areaSourceFile));
    return wave;
}

}  // namespace quarn
