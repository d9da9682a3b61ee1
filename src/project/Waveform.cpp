#include "quarn/Waveform.h"

#include <limits>
#include <tuple>
#include <utility>

#include "blocktext/BlockDescription.h"
#include "project/ProjectContents.h"
#include "project/Sections.h"
#include "quarn/TerminationCriteria.h"

namespace quarn {

using namespace blocktext;

namespace {

template <class Block>
struct ShapeBlock {
    Waveform::WaveformShape shape;
    Block block;
};

}  // namespace

/// The blocks of the shapes.
template <>
struct blocktext::Description<Waveform> {
    using W = Waveform;

    template <class... Lines>
    static constexpr auto shapeOf(W::WaveformShape shape, Key name, Lines... lines) {
        const auto block = describeWords<W>(name, Unknown::DropWord, Unreadable::KeepsValue, lines...);
        return ShapeBlock<decltype(block)>{shape, block};
    }
    static constexpr auto userDefined() {
        using Samples = std::vector<float>;
        const auto block = describe<W>(
            "UserDefined",
            Unknown::DropWord,
            Unreadable::KeepsValue,
            innerBlock(&W::m_userDefinedSource, bareValues<Samples>("Source", Unreadable::KeepsValue)),
            innerBlock(&W::m_userDefinedDerivative, bareValues<Samples>("Derivative", Unreadable::KeepsValue)));
        return ShapeBlock<decltype(block)>{W::UserDefined, block};
    }
    static constexpr auto shapes() {
        constexpr auto pulseWidth = value("pulseWidth", &W::m_pulseWidth);
        constexpr auto frequency = value("frequency", &W::m_frequency).in("Hz");
        return std::tuple(shapeOf(W::Gaussian, "Gaussian", pulseWidth),
                          shapeOf(W::GaussianDerivative, "GaussianDerivative", pulseWidth),
                          shapeOf(W::ModulatedGaussian, "ModulatedGaussian", pulseWidth, frequency),
                          shapeOf(W::Sinusoid, "Sinusoid", frequency),
                          shapeOf(W::Step, "Step", pulseWidth),
                          shapeOf(W::IEC_61000_4_2, "IEC_61000_4_2"),
                          userDefined());
    }

    static W withSamplesUpTo(std::size_t count, W waveform) {
        for (auto* samples : {&waveform.m_userDefinedSource, &waveform.m_userDefinedDerivative}) {
            if (samples->size() > count) samples->resize(count);
        }
        return waveform;
    }
};

namespace {

constexpr auto shapes = Description<Waveform>::shapes();
constexpr auto sectionName = "Waveform"_key;
constexpr auto useDFTKey = "UseDFT"_key;

Waveform blank(Waveform::WaveformShape shape) { return {shape, 0.0F, 0.0F, {}, {}}; }

// The waveforms of all shapes stand in the order of the project's list, which the lines of a description cannot do. The
// engine takes the samples of timesteps 0 to the maximum; what a waveform lacks of them cannot be written.
bool StreamOutWaveform(DelimManager& delim, const v6ProjectFile& project) {
    if (project.getWaveforms().empty()) return false;
    const TerminationCriteria* criteria = project.getTerminationCriteria();
    const std::size_t samples =
        criteria ? std::size_t{criteria->getMaximumTimesteps()} + 1 : std::numeric_limits<std::size_t>::max();
    WrittenBlock section(delim, sectionName);
    for (const Waveform* waveform : project.getWaveforms()) {
        if (!waveform) continue;
        const Waveform written = Description<Waveform>::withSamplesUpTo(samples, *waveform);
        const auto write = [&](const auto& each) {
            if (each.shape == written.getShape()) each.block.write(delim, written);
        };
        std::apply([&](const auto&... each) { (write(each), ...); }, shapes);
    }
    return section.end();
}

// The block of the IEC pulse is not read to its close line. That line therefore ends the section, and waveforms behind
// it are lost; the engine's own files are read in this way. Settings of older files are skipped unless a line before
// them asks for them.
bool StreamInWaveform(DelimManager& delim, v6ProjectFile& project) {
    bool useDFT = false;
    const auto onShape = [&](const auto& each) {
        return onBlock(each.block.name, [&delim, &project, &each] {
            auto waveform = std::make_unique<Waveform>(blank(each.shape));
            if (each.shape != Waveform::IEC_61000_4_2) each.block.read(delim, *waveform);
            project.getWaveforms().push_back(waveform.get());
            static_cast<void>(waveform.release());
        });
    };
    const auto readDFT = [&] {
        if (useDFT) return StreamInV6DFTParameters(delim, project);
        delim.SeekToEndOfDelim();
        return true;
    };
    const auto walk = [&](const auto&... each) {
        return walkBlock(delim,
                         Unknown::DropWord,
                         onShape(each)...,
                         onBlock(dftParametersSection.name, readDFT),
                         onFlag(useDFTKey, useDFT));
    };
    return std::apply(walk, shapes) && isOk(delim);
}

void describeWaveform(FormatBuilder& builder) {
    builder.begin(sectionName);
    const auto describe = [&](const auto& each) {
        builder.addBlock(each.block.name, QStringLiteral("for each waveform"));
        each.block.describeTo(builder, blank(each.shape));
    };
    std::apply([&](const auto&... each) { (describe(each), ...); }, shapes);
    builder.add({useDFTKey, QStringLiteral("flag"), {}, {}, {}, QStringLiteral("never")});
    builder.addBlock(dftParametersSection.name, QStringLiteral("never"));
    describeV6DFTParameters(builder);
    builder.end();
}

// Shorter pulses excite frequencies that the grid does not carry.
constexpr float shortestPulse = 32.0F;

QString withNumber(const char* text, float number) {
    return QString::fromLatin1(text).arg(static_cast<double>(number), 0, 'g', 6);
}

}  // namespace

const Section waveformSection{sectionName, Unreadable::Fails, StreamOutWaveform, StreamInWaveform, describeWaveform};

Waveform::Waveform(WaveformShape shape, float pulseWidth, float frequency, std::vector<float> userDefinedSource,
                   std::vector<float> userDefinedDerivative)
    : m_shape(shape),
      m_pulseWidth(pulseWidth),
      m_frequency(frequency),
      m_userDefinedSource(std::move(userDefinedSource)),
      m_userDefinedDerivative(std::move(userDefinedDerivative)) {}

void Waveform::checkValidity(QStringList& errors, QStringList& warnings, const TerminationCriteria& criteria,
                             Engine engine) const {
    if (engine != Engine::FDTD) return;

    const bool isPulse = m_shape == Gaussian || m_shape == GaussianDerivative || m_shape == ModulatedGaussian;
    if (isPulse && m_pulseWidth < shortestPulse) {
        warnings << withNumber(
            "The pulse width must be greater than 32 (currently %1) timesteps in order to prevent high frequencies "
            "from being introduced into the simulation.",
            m_pulseWidth);
    }
    const bool hasCarrier = m_shape == ModulatedGaussian || m_shape == Sinusoid;
    if (hasCarrier && m_frequency <= 0.0F) {
        warnings << withNumber("The frequency must be greater than 0 (currently %1)", m_frequency);
    }
    if (m_shape == Step) {
        if (m_pulseWidth < shortestPulse) {
            warnings << withNumber(
                "The rise time must be greater than 32 (currently %1) timesteps in order to prevent high frequencies "
                "from being introduced into the simulation.",
                m_pulseWidth);
        }
        if (criteria.convergenceEnabled()) {
            warnings << QStringLiteral(
                "Termination criterion to detect convergence of simulation is activated, simulation with Step "
                "waveform excitation may not converge.");
        }
    }
    if (m_shape == UserDefined) {
        if (m_userDefinedSource.size() != m_userDefinedDerivative.size()) {
            errors << QStringLiteral("The user defined waveform is incorrectly specified.");
        }
        if (m_userDefinedSource.size() <= criteria.getMaximumTimesteps()) {
            errors << QStringLiteral("There are not enough points specified in the user defined waveform.");
        }
    }
}

bool operator==(const Waveform& a, const Waveform& b) {
    const auto members = [](const Waveform& w) {
        return std::tie(w.m_shape, w.m_pulseWidth, w.m_frequency, w.m_userDefinedSource, w.m_userDefinedDerivative);
    };
    return members(a) == members(b);
}

}  // namespace quarn
