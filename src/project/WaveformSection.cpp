#include <algorithm>

#include "blocktext/BlockWalker.h"
#include "blocktext/BlockWriter.h"
#include "project/Sections.h"

namespace quarn {

using namespace blocktext;

namespace {

namespace key {
constexpr auto Waveform = "Waveform"_key;
constexpr QLatin1String shapes[] = {"Gaussian"_key,
                                    "GaussianDerivative"_key,
                                    "ModulatedGaussian"_key,
                                    "Sinusoid"_key,
                                    "Step"_key,
                                    "IEC_61000_4_2"_key,
                                    "UserDefined"_key};
constexpr auto pulseWidth = "pulseWidth"_key;
constexpr auto frequency = "frequency"_key;
constexpr auto Source = "Source"_key;
constexpr auto Derivative = "Derivative"_key;
constexpr auto UseDFT = "UseDFT"_key;
constexpr auto DFTParameters = "DFTParameters"_key;
}  // namespace key

using Samples = std::vector<float>;

bool hasPulseWidth(Waveform::WaveformShape shape) {
    return shape != Waveform::Sinusoid && shape != Waveform::IEC_61000_4_2 && shape != Waveform::UserDefined;
}

bool hasFrequency(Waveform::WaveformShape shape) {
    return shape == Waveform::ModulatedGaussian || shape == Waveform::Sinusoid;
}

// The engine takes the samples of timesteps 0 to the maximum; what the waveform lacks of them cannot be written.
template <class Sample>
void writeSamples(DelimManager& delim, QLatin1String name, std::size_t count, const TerminationCriteria* criteria,
                  Sample sample) {
    const WrittenBlock block(delim, name);
    if (criteria) count = std::min(count, std::size_t{criteria->getMaximumTimesteps()} + 1);
    QTextStream& out = delim.GetStream();
    for (std::size_t i = 0; i < count; ++i) out << sample(static_cast<unsigned>(i)) << '\n';
}

void writeWaveform(DelimManager& delim, const Waveform& waveform, const TerminationCriteria* criteria) {
    const auto shape = waveform.getShape();
    if (shape < Waveform::Gaussian || shape > Waveform::UserDefined) return;
    const WrittenBlock block(delim, key::shapes[shape]);
    if (hasPulseWidth(shape)) putLine(delim, key::pulseWidth, waveform.getPulseWidth());
    if (hasFrequency(shape)) putLine(delim, key::frequency, waveform.getFrequency());
    if (shape == Waveform::UserDefined) {
        writeSamples(delim, key::Source, waveform.getNumberOfSourceSamples(), criteria, [&](unsigned i) {
            return waveform.getUserDefinedSource(i);
        });
        writeSamples(delim, key::Derivative, waveform.getNumberOfDerivativeSamples(), criteria, [&](unsigned i) {
            return waveform.getUserDefinedDerivative(i);
        });
    }
}

void appendSamples(DelimManager& delim, Samples& samples) {
    walkList(delim, [&](QTextStream& in) {
        float sample = 0.0F;
        if (readValue(in, sample)) samples.push_back(sample);
    });
}

Waveform* readPulse(DelimManager& delim, Waveform::WaveformShape shape) {
    float pulseWidth = 0.0F;
    walkWords(delim, Unknown::DropWord, onValue(key::pulseWidth, pulseWidth));
    return new Waveform(shape, pulseWidth, 0.0F, Samples(), Samples());
}

Waveform* readModulatedGaussian(DelimManager& delim) {
    float pulseWidth = 0.0F;
    float frequency = 0.0F;
    walkWords(delim, Unknown::DropWord, onValue(key::pulseWidth, pulseWidth), onValue(key::frequency, frequency));
    return new Waveform(Waveform::ModulatedGaussian, pulseWidth, frequency, Samples(), Samples());
}

Waveform* readSinusoid(DelimManager& delim) {
    float frequency = 0.0F;
    walkWords(delim, Unknown::DropWord, onValue(key::frequency, frequency));
    return new Waveform(Waveform::Sinusoid, 0.0F, frequency, Samples(), Samples());
}

Waveform* readUserDefined(DelimManager& delim) {
    Samples source;
    Samples derivative;
    walkBlock(delim,
              Unknown::DropWord,
              onBlock(key::Source, [&] { appendSamples(delim, source); }),
              onBlock(key::Derivative, [&] { appendSamples(delim, derivative); }));
    return new Waveform(Waveform::UserDefined, 0.0F, 0.0F, std::move(source), std::move(derivative));
}

}  // namespace

bool writeWaveforms(DelimManager& delim, const std::vector<Waveform*>& waveforms, const TerminationCriteria* criteria) {
    const WrittenBlock block(delim, key::Waveform);
    for (const Waveform* waveform : waveforms) {
        if (waveform) writeWaveform(delim, *waveform, criteria);
    }
    return isOk(delim);
}

// The block of the IEC pulse is not read to its close line. That line therefore ends the section, and waveforms behind
// it are lost; the engine's own files are read in this way.
bool readWaveforms(DelimManager& delim, std::vector<Waveform*>& waveforms,
                   std::unique_ptr<DFTParameters>& dftParameters, SteadyStateFrequencies& frequencies) {
    bool useDFT = false;
    const auto onShape = [&](Waveform::WaveformShape shape, auto read) {
        return onBlock(key::shapes[shape], [&waveforms, read] { waveforms.push_back(read()); });
    };
    const auto onPulse = [&](Waveform::WaveformShape shape) {
        return onShape(shape, [&delim, shape] { return readPulse(delim, shape); });
    };
    const auto readDFT = [&] {
        if (!useDFT) {
            delim.SeekToEndOfDelim();
            return true;
        }
        dftParameters = readV6DFTParameters(delim, frequencies);
        return isOk(delim);
    };
    const bool completed =
        walkBlock(delim,
                  Unknown::DropWord,
                  onPulse(Waveform::Gaussian),
                  onPulse(Waveform::GaussianDerivative),
                  onPulse(Waveform::Step),
                  onShape(Waveform::ModulatedGaussian, [&] { return readModulatedGaussian(delim); }),
                  onShape(Waveform::Sinusoid, [&] { return readSinusoid(delim); }),
                  onShape(Waveform::IEC_61000_4_2,
                          [] { return new Waveform(Waveform::IEC_61000_4_2, 0.0F, 0.0F, Samples(), Samples()); }),
                  onShape(Waveform::UserDefined, [&] { return readUserDefined(delim); }),
                  onBlock(key::DFTParameters, readDFT),
                  onFlag(key::UseDFT, useDFT));
    return completed && isOk(delim);
}

}  // namespace quarn
