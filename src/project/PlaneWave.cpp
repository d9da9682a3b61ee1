#include "quarn/PlaneWave.h"

#include <cmath>
#include <limits>

#include "blocktext/BlockDescription.h"
#include "project/ProjectContents.h"
#include "project/Sections.h"
#include "quarn/OwnedProject.h"

namespace quarn {

using namespace blocktext;

namespace {

constexpr NameTable<PlaneWave::Polarization, 2> polarizations{{
    {PlaneWave::Phi, "PhiPolarization"_key},
    {PlaneWave::Theta, "ThetaPolarization"_key},
}};

// What a block has not given.
constexpr float unread = std::numeric_limits<float>::quiet_NaN();
constexpr auto unreadPolarization = static_cast<PlaneWave::Polarization>(-1);

template <class... Numbers>
bool allRead(Numbers... numbers) {
    return !(std::isnan(numbers) || ...);
}

}  // namespace

/// The blocks of the three classes, and what each needs to come into being.
template <>
struct blocktext::Description<PlaneWave> {
    template <class Wave, class... More>
    static constexpr auto waveBlock(Key name, More... more) {
        using W = PlaneWave;
        return describe<Wave>(name,
                              Unknown::Stop,
                              Unreadable::KeepsValue,
                              unwritten(path(&W::m_type, &W::FixedType::value)),
                              value("Amplitude", &W::m_amplitude).in("V/m"),
                              value("IncidentTheta", &W::m_theta).in("deg"),
                              value("IncidentPhi", &W::m_phi).in("deg"),
                              oneKeyOf(polarizations, &W::m_polarization),
                              text("OutputFileName", &W::m_outputFileName),
                              more...);
    }
    static constexpr auto block(const PlaneWave*) { return waveBlock<PlaneWave>("ScatteredFieldPlaneWave"); }
    static constexpr auto block(const TFSFPlaneWave*) {
        using W = TFSFPlaneWave;
        return waveBlock<W>("TotalFieldScatteredFieldPlaneWave",
                            flag("XLower", &W::m_xLower),
                            flag("YLower", &W::m_yLower),
                            flag("ZLower", &W::m_zLower),
                            flag("XUpper", &W::m_xUpper),
                            flag("YUpper", &W::m_yUpper),
                            flag("ZUpper", &W::m_zUpper));
    }
    static constexpr auto block(const GaussianBeam*) {
        using W = GaussianBeam;
        return waveBlock<W>("GaussianBeam",
                            value("XFocus", &W::m_xFocus).in("m"),
                            value("YFocus", &W::m_yFocus).in("m"),
                            value("ZFocus", &W::m_zFocus).in("m"),
                            value("Radius", &W::m_radius).in("m"));
    }
};

namespace {

template <class Wave, class... More>
Wave makeBlank(More... more) {
    return Wave(unread, unread, unread, unreadPolarization, QString(), more...);
}
PlaneWave blank(const PlaneWave*) { return makeBlank<PlaneWave>(); }
TFSFPlaneWave blank(const TFSFPlaneWave*) { return makeBlank<TFSFPlaneWave>(false, false, false, false, false, false); }
GaussianBeam blank(const GaussianBeam*) { return makeBlank<GaussianBeam>(unread, unread, unread, unread); }

// A wave comes into being only when its block has given all of it; no line of a description can say so.
bool isComplete(const PlaneWave& wave) {
    return allRead(wave.getAmplitude(), wave.getTheta(), wave.getPhi()) &&
           wave.getPolarization() != unreadPolarization && !wave.getOutputFileName().isEmpty();
}
bool isComplete(const GaussianBeam& beam) {
    return isComplete(static_cast<const PlaneWave&>(beam)) &&
           allRead(beam.getXFocus(), beam.getYFocus(), beam.getZFocus(), beam.getRadius());
}

/// The block of the project's plane wave where it is of this class. Of several blocks the last complete one counts.
template <class Wave>
struct WaveLine : LineShape {
    static constexpr const Wave* ofClass = nullptr;
    static constexpr auto block = Description<PlaneWave>::block(ofClass);

    static void write(DelimManager& delim, const v6ProjectFile& project) {
        const PlaneWave* wave = project.getPlaneWave();
        if (wave->getType() == blank(ofClass).getType()) block.write(delim, static_cast<const Wave&>(*wave));
    }
    static Offer readBlock(const QString& name, const QString&, DelimManager& delim, v6ProjectFile& project) {
        if (name != block.name) return Offer::Unknown;
        Wave wave = blank(ofClass);
        if (block.read(delim, wave) && isComplete(wave)) {
            ProjectContents::install<Wave, PlaneWave>(project, std::make_unique<Wave>(wave));
        }
        return Offer::Continue;
    }
    static void describeTo(FormatBuilder& builder, const v6ProjectFile&, const FormatLine& line) {
        builder.addBlock(block.name, line.written);
        block.describeTo(builder, blank(ofClass));
    }
    static QString usuallyWritten() { return QStringLiteral("where chosen"); }
};

constexpr auto sourceType = [] {
    using P = v6ProjectFile;
    constexpr auto areaSourceFile = property([](const P& p) { return p.AreaSourceFile(); },
                                             [](P& p, const QString& name) { p.AreaSourceFile(name); });
    return describe<P>("SourceType",
                       Unknown::DropWord,
                       Unreadable::KeepsValue,
                       lineOf(WaveLine<PlaneWave>()),
                       lineOf(WaveLine<TFSFPlaneWave>()),
                       lineOf(WaveLine<GaussianBeam>()),
                       text("AreaSourceFile", areaSourceFile).unlessEmpty());
}();

bool StreamOutSourceType(DelimManager& delim, const v6ProjectFile& project) {
    return project.getPlaneWave() && sourceType.write(delim, project);
}

bool StreamInSourceType(DelimManager& delim, v6ProjectFile& project) {
    sourceType.read(delim, project);
    return isOk(delim);
}

}  // namespace

const Section sourceTypeSection{
    sourceType.name, Unreadable::Fails, StreamOutSourceType, StreamInSourceType, [](FormatBuilder& builder) {
        sourceType.describeTo(builder, OwnedProject());
    }};

PlaneWave::PlaneWave(float theta, float phi, float amplitude, Polarization polarization, const QString& outputFileName)
    : PlaneWave(ScatteredField, theta, phi, amplitude, polarization, outputFileName) {}

PlaneWave::PlaneWave(Type type, float theta, float phi, float amplitude, Polarization polarization,
                     const QString& outputFileName)
    : m_type(type),
      m_theta(theta),
      m_phi(phi),
      m_amplitude(amplitude),
      m_polarization(polarization),
      m_outputFileName(outputFileName) {}

PlaneWave::PlaneWave(const PlaneWave& other) : PlaneWave(ScatteredField, other) {}

PlaneWave::PlaneWave(Type type, const PlaneWave& other) : m_type(type) { *this = other; }

TFSFPlaneWave::TFSFPlaneWave(const TFSFPlaneWave& other) : PlaneWave(TotalFieldScatteredField, other) { *this = other; }

GaussianBeam::GaussianBeam(const GaussianBeam& other) : PlaneWave(Beam, other) { *this = other; }

TFSFPlaneWave::TFSFPlaneWave(float theta, float phi, float amplitude, Polarization polarization,
                             const QString& outputFileName, bool xLower, bool xUpper, bool yLower, bool yUpper,
                             bool zLower, bool zUpper)
    : PlaneWave(TotalFieldScatteredField, theta, phi, amplitude, polarization, outputFileName),
      m_xLower(xLower),
      m_yLower(yLower),
      m_zLower(zLower),
      m_xUpper(xUpper),
      m_yUpper(yUpper),
      m_zUpper(zUpper) {}

GaussianBeam::GaussianBeam(float theta, float phi, float amplitude, Polarization polarization,
                           const QString& outputFileName, float xFocus, float yFocus, float zFocus, float radius)
    : PlaneWave(Beam, theta, phi, amplitude, polarization, outputFileName),
      m_xFocus(xFocus),
      m_yFocus(yFocus),
      m_zFocus(zFocus),
      m_radius(radius) {}

bool operator==(const PlaneWave& a, const PlaneWave& b) { return WaveLine<PlaneWave>::block.areEqual(a, b); }

bool operator==(const TFSFPlaneWave& a, const TFSFPlaneWave& b) {
    return WaveLine<TFSFPlaneWave>::block.areEqual(a, b);
}

bool operator==(const GaussianBeam& a, const GaussianBeam& b) { return WaveLine<GaussianBeam>::block.areEqual(a, b); }

}  // namespace quarn
