#include "quarn/PlaneWave.h"

#include <tuple>

namespace quarn {

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

PlaneWave::PlaneWave(Type type, const PlaneWave& other)
    : PlaneWave(type, other.m_theta, other.m_phi, other.m_amplitude, other.m_polarization, other.m_outputFileName) {}

// The type stays: an object never changes its class.
// cppcheck-suppress operatorEqVarError
PlaneWave& PlaneWave::operator=(const PlaneWave& other) {
    m_theta = other.m_theta;
    m_phi = other.m_phi;
    m_amplitude = other.m_amplitude;
    m_polarization = other.m_polarization;
    m_outputFileName = other.m_outputFileName;
    return *this;
}

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

bool operator==(const PlaneWave& a, const PlaneWave& b) {
    const auto members = [](const PlaneWave& w) {
        return std::tie(w.m_type, w.m_theta, w.m_phi, w.m_amplitude, w.m_polarization, w.m_outputFileName);
    };
    return members(a) == members(b);
}

bool operator==(const TFSFPlaneWave& a, const TFSFPlaneWave& b) {
    const auto faces = [](const TFSFPlaneWave& w) {
        return std::tie(w.m_xLower, w.m_yLower, w.m_zLower, w.m_xUpper, w.m_yUpper, w.m_zUpper);
    };
    return static_cast<const PlaneWave&>(a) == static_cast<const PlaneWave&>(b) && faces(a) == faces(b);
}

bool operator==(const GaussianBeam& a, const GaussianBeam& b) {
    const auto focus = [](const GaussianBeam& w) { return std::tie(w.m_xFocus, w.m_yFocus, w.m_zFocus, w.m_radius); };
    return static_cast<const PlaneWave&>(a) == static_cast<const PlaneWave&>(b) && focus(a) == focus(b);
}

}  // namespace quarn
