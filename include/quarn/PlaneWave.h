#pragma once

#include <QString>
#include <cstdint>

#include "quarn/Description.h"
#include "quarn/Export.h"

namespace quarn {

/// An incident field. The base is a plane wave applied as a scattered field; the subclasses say by getType() which of
/// them an object is, since the family has no virtual operations. Delete objects through their own class, or through
/// deleteContents().
///
/// The type of an object never changes: a PlaneWave made from an object of a subclass, or assigned from one, is a plain
/// plane wave with the members of this class.
class QUARN_EXPORT PlaneWave {
public:
    enum Type : std::int32_t { ScatteredField = 0, TotalFieldScatteredField = 1, Beam = 2 };
    enum Polarization : std::int32_t { Phi = 0, Theta = 1 };

    /// The angles of incidence are in degrees, the amplitude in V/m.
    PlaneWave(float theta, float phi, float amplitude, Polarization polarization, const QString& outputFileName);
    PlaneWave(const PlaneWave& other);
    PlaneWave& operator=(const PlaneWave& other) = default;

    int getType() const { return m_type.value; }
    float getTheta() const { return m_theta; }
    float getPhi() const { return m_phi; }
    float getAmplitude() const { return m_amplitude; }
    Polarization getPolarization() const { return m_polarization; }
    const QString& getOutputFileName() const { return m_outputFileName; }

    /// Compares the type and the members of this class only.
    QUARN_EXPORT friend bool operator==(const PlaneWave& a, const PlaneWave& b);
    friend bool operator!=(const PlaneWave& a, const PlaneWave& b) { return !(a == b); }

protected:
    PlaneWave(Type type, float theta, float phi, float amplitude, Polarization polarization,
              const QString& outputFileName);
    PlaneWave(Type type, const PlaneWave& other);

private:
    friend struct blocktext::Description<PlaneWave>;

    /// Assignment leaves it, since an object never changes its class.
    struct FixedType {
        std::int32_t value;

        explicit FixedType(Type type) : value(type) {}
        FixedType(const FixedType&) = default;
        FixedType& operator=(const FixedType&) { return *this; }
    };

    FixedType m_type;
    float m_theta = 0.0F;
    float m_phi = 0.0F;
    float m_amplitude = 0.0F;
    Polarization m_polarization = Phi;
    QString m_outputFileName;
};

/// A plane wave that is injected through the active faces of a total-field/scattered-field box.
class QUARN_EXPORT TFSFPlaneWave : public PlaneWave {
public:
    TFSFPlaneWave(float theta, float phi, float amplitude, Polarization polarization, const QString& outputFileName,
                  bool xLower, bool xUpper, bool yLower, bool yUpper, bool zLower, bool zUpper);
    TFSFPlaneWave(const TFSFPlaneWave& other);
    TFSFPlaneWave& operator=(const TFSFPlaneWave& other) = default;

    bool getXLower() const { return m_xLower; }
    bool getYLower() const { return m_yLower; }
    bool getZLower() const { return m_zLower; }
    bool getXUpper() const { return m_xUpper; }
    bool getYUpper() const { return m_yUpper; }
    bool getZUpper() const { return m_zUpper; }

    QUARN_EXPORT friend bool operator==(const TFSFPlaneWave& a, const TFSFPlaneWave& b);
    friend bool operator!=(const TFSFPlaneWave& a, const TFSFPlaneWave& b) { return !(a == b); }

private:
    friend struct blocktext::Description<PlaneWave>;

    bool m_xLower = false;
    bool m_yLower = false;
    bool m_zLower = false;
    bool m_xUpper = false;
    bool m_yUpper = false;
    bool m_zUpper = false;
};

/// A Gaussian beam with its focus and its radius there, in metres.
class QUARN_EXPORT GaussianBeam : public PlaneWave {
public:
    GaussianBeam(float theta, float phi, float amplitude, Polarization polarization, const QString& outputFileName,
                 float xFocus, float yFocus, float zFocus, float radius);
    GaussianBeam(const GaussianBeam& other);
    GaussianBeam& operator=(const GaussianBeam& other) = default;

    float getXFocus() const { return m_xFocus; }
    float getYFocus() const { return m_yFocus; }
    float getZFocus() const { return m_zFocus; }
    float getRadius() const { return m_radius; }
    void setXFocus(float xFocus) { m_xFocus = xFocus; }
    void setYFocus(float yFocus) { m_yFocus = yFocus; }
    void setZFocus(float zFocus) { m_zFocus = zFocus; }

    QUARN_EXPORT friend bool operator==(const GaussianBeam& a, const GaussianBeam& b);
    friend bool operator!=(const GaussianBeam& a, const GaussianBeam& b) { return !(a == b); }

private:
    friend struct blocktext::Description<PlaneWave>;

    float m_xFocus = 0.0F;
    float m_yFocus = 0.0F;
    float m_zFocus = 0.0F;
    float m_radius = 0.0F;
};

}  // namespace quarn
