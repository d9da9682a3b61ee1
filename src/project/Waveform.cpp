#include "quarn/Waveform.h"

#include <tuple>
#include <utility>

#include "quarn/TerminationCriteria.h"

namespace quarn {

namespace {

// Shorter pulses excite frequencies that the grid does not carry.
constexpr float shortestPulse = 32.0F;

QString withNumber(const char* text, float number) {
    return QString::fromLatin1(text).arg(static_cast<double>(number), 0, 'g', 6);
}

}  // namespace

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
