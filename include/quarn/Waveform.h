#pragma once

#include <QStringList>
#include <cstdint>
#include <vector>

#include "quarn/Description.h"
#include "quarn/Engine.h"
#include "quarn/Export.h"

namespace quarn {

class TerminationCriteria;

/// The time signal that drives an excitation. Feeds refer to a waveform by its index in the project's list.
class QUARN_EXPORT Waveform {
public:
    /// Named as in the project file.
    enum WaveformShape : std::int32_t {
        Gaussian = 0,
        GaussianDerivative = 1,
        ModulatedGaussian = 2,
        Sinusoid = 3,
        Step = 4,           ///< the pulse width is the rise time
        IEC_61000_4_2 = 5,  ///< electrostatic discharge current of that standard
        UserDefined = 6,    ///< given by samples of the source and of its derivative
    };

    /// The pulse width is in timesteps and the frequency in Hz; a shape uses one of them, both or neither. The samples
    /// of a user-defined waveform are one per timestep, from timestep 0 on.
    Waveform(WaveformShape shape, float pulseWidth, float frequency, std::vector<float> userDefinedSource,
             std::vector<float> userDefinedDerivative);

    WaveformShape getShape() const { return m_shape; }
    float getPulseWidth() const { return m_pulseWidth; }
    float getFrequency() const { return m_frequency; }

    /// Copies of the samples.
    std::vector<float> getUserDefinedSource() const { return m_userDefinedSource; }
    std::vector<float> getUserDefinedDerivative() const { return m_userDefinedDerivative; }

    /// One sample; the index must be below the number of samples and is not checked.
    float getUserDefinedSource(unsigned int index) const { return m_userDefinedSource[index]; }
    float getUserDefinedDerivative(unsigned int index) const { return m_userDefinedDerivative[index]; }

    std::size_t getNumberOfSourceSamples() const { return m_userDefinedSource.size(); }
    std::size_t getNumberOfDerivativeSamples() const { return m_userDefinedDerivative.size(); }

    /// Appends findings for the FDTD engine; there are none for others. A user-defined waveform needs one sample more
    /// than the criteria's maximum number of timesteps, since timestep 0 has a sample too.
    void checkValidity(QStringList& errors, QStringList& warnings, const TerminationCriteria& criteria,
                       Engine engine) const;

    QUARN_EXPORT friend bool operator==(const Waveform& a, const Waveform& b);
    friend bool operator!=(const Waveform& a, const Waveform& b) { return !(a == b); }

private:
    friend struct blocktext::Description<Waveform>;

    WaveformShape m_shape;
    float m_pulseWidth;
    float m_frequency;
    std::vector<float> m_userDefinedSource;
    std::vector<float> m_userDefinedDerivative;
};

}  // namespace quarn
