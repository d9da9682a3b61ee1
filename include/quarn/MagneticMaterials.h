#pragma once

#include <array>
#include <vector>

#include "quarn/Material.h"

/// The magnetic materials. Magnetic conductivities are in ohm/m, permeabilities relative to vacuum, relaxation times in
/// seconds, frequencies in Hz.
namespace quarn {

class QUARN_EXPORT MagneticFreeSpace : public Material {
public:
    explicit MagneticFreeSpace(const QString& name);
    bool operator==(const Material& other) const override;

    float getConductivity() const { return 0.0F; }
    float getRelativePermeability() const { return 1.0F; }
};

class QUARN_EXPORT MagneticPerfectConductor : public Material {
public:
    explicit MagneticPerfectConductor(const QString& name);
    bool operator==(const Material& other) const override;
};

/// A lossy magnetic medium. Its losses may also be given as a loss tangent or as the imaginary part of the
/// permeability; the geometry file carries one of the two only, the loss tangent first.
class QUARN_EXPORT MagneticNormal : public Material {
public:
    MagneticNormal(const QString& name, float conductivity, float relativePermeability);
    bool operator==(const Material& other) const override;

    float getConductivity() const { return m_conductivity; }
    float getRelativePermeability() const { return m_relativePermeability; }

    bool useLossTangent() const { return m_useLossTangent; }
    void useLossTangent(bool use) { m_useLossTangent = use; }
    float getLossTangent() const { return m_lossTangent; }
    void setLossTangent(float lossTangent) { m_lossTangent = lossTangent; }

    bool useComplex() const { return m_useComplex; }
    void useComplex(bool use) { m_useComplex = use; }
    float getImaginary() const { return m_imaginary; }
    void setImaginary(float imaginary) { m_imaginary = imaginary; }

private:
    friend struct blocktext::Description<MagneticNormal>;

    float m_conductivity;
    float m_relativePermeability;
    bool m_useLossTangent = false;
    float m_lossTangent = 1.0F;
    bool m_useComplex = false;
    float m_imaginary = 0.0F;
};

/// A ferrite magnetised along the direction theta, phi.
class QUARN_EXPORT MagneticFerrite : public Material {
public:
    MagneticFerrite(const QString& name, float precessionalFrequency, float saturationMagnetization,
                    float dampingCoefficient, float theta, float phi);
    bool operator==(const Material& other) const override;

    float getPrecessionalFrequency() const { return m_precessionalFrequency; }
    float getSaturationMagnetization() const { return m_saturationMagnetization; }
    float getDampingCoefficient() const { return m_dampingCoefficient; }
    float getTheta() const { return m_theta; }
    float getPhi() const { return m_phi; }

private:
    friend struct blocktext::Description<MagneticFerrite>;

    float m_precessionalFrequency;
    float m_saturationMagnetization;
    float m_dampingCoefficient;
    float m_theta;
    float m_phi;
};

/// One Debye or Drude pole.
class QUARN_EXPORT MagneticDebye : public Material {
public:
    MagneticDebye(const QString& name, float conductivity, float relativePermeability, float staticRelativePermeability,
                  float relaxationTime);
    bool operator==(const Material& other) const override;

    float getConductivity() const { return m_conductivity; }

    /// At infinite frequency; the static value is that at zero frequency.
    float getRelativePermeability() const { return m_relativePermeability; }
    float getStaticRelativePermeability() const { return m_staticRelativePermeability; }
    float getRelaxationTime() const { return m_relaxationTime; }

private:
    friend struct blocktext::Description<MagneticDebye>;

    float m_conductivity;
    float m_relativePermeability;
    float m_staticRelativePermeability;
    float m_relaxationTime;
};

/// Seven Debye poles.
class QUARN_EXPORT Magnetic7PoleDebye : public Material {
public:
    Magnetic7PoleDebye(const QString& name, float relativePermeability, float staticRelativePermeability1,
                       float staticRelativePermeability2, float staticRelativePermeability3,
                       float staticRelativePermeability4, float staticRelativePermeability5,
                       float staticRelativePermeability6, float staticRelativePermeability7, float relaxationTime1,
                       float relaxationTime2, float relaxationTime3, float relaxationTime4, float relaxationTime5,
                       float relaxationTime6, float relaxationTime7, float conductivity);
    bool operator==(const Material& other) const override;

    float getRelativePermeability() const { return m_relativePermeability; }
    float getStaticRelativePermeability1() const { return m_staticRelativePermeabilities[0]; }
    float getStaticRelativePermeability2() const { return m_staticRelativePermeabilities[1]; }
    float getStaticRelativePermeability3() const { return m_staticRelativePermeabilities[2]; }
    float getStaticRelativePermeability4() const { return m_staticRelativePermeabilities[3]; }
    float getStaticRelativePermeability5() const { return m_staticRelativePermeabilities[4]; }
    float getStaticRelativePermeability6() const { return m_staticRelativePermeabilities[5]; }
    float getStaticRelativePermeability7() const { return m_staticRelativePermeabilities[6]; }
    float getRelaxationTime1() const { return m_relaxationTimes[0]; }
    float getRelaxationTime2() const { return m_relaxationTimes[1]; }
    float getRelaxationTime3() const { return m_relaxationTimes[2]; }
    float getRelaxationTime4() const { return m_relaxationTimes[3]; }
    float getRelaxationTime5() const { return m_relaxationTimes[4]; }
    float getRelaxationTime6() const { return m_relaxationTimes[5]; }
    float getRelaxationTime7() const { return m_relaxationTimes[6]; }
    float getConductivity() const { return m_conductivity; }

private:
    friend struct blocktext::Description<Magnetic7PoleDebye>;

    float m_relativePermeability;
    std::array<float, 7> m_staticRelativePermeabilities;
    std::array<float, 7> m_relaxationTimes;
    float m_conductivity;
};

/// A medium with a nonlinear magnetisation curve, described by its closure point, break point and fit coefficients.
class QUARN_EXPORT MagneticNonlinear : public Material {
public:
    MagneticNonlinear(const QString& name, float bClosure, float bBreakPoint, float hClosure,
                      float saturatedRelativePermeability, float a1, float a2, float a3, float a4, float alpha,
                      float c1, float c2, float c3, float b1Dot, float b2Dot);
    bool operator==(const Material& other) const override;

    float getBClosure() const { return m_bClosure; }
    float getBBreakPoint() const { return m_bBreakPoint; }
    float getHClosure() const { return m_hClosure; }
    float getSaturatedRelativePermeability() const { return m_saturatedRelativePermeability; }
    float getA1() const { return m_a1; }
    float getA2() const { return m_a2; }
    float getA3() const { return m_a3; }
    float getA4() const { return m_a4; }
    float getAlpha() const { return m_alpha; }
    float getC1() const { return m_c1; }
    float getC2() const { return m_c2; }
    float getC3() const { return m_c3; }
    float getB1Dot() const { return m_b1Dot; }
    float getB2Dot() const { return m_b2Dot; }

private:
    friend struct blocktext::Description<MagneticNonlinear>;

    float m_bClosure;
    float m_bBreakPoint;
    float m_hClosure;
    float m_saturatedRelativePermeability;
    float m_a1;
    float m_a2;
    float m_a3;
    float m_a4;
    float m_alpha;
    float m_c1;
    float m_c2;
    float m_c3;
    float m_b1Dot;
    float m_b2Dot;
};

/// A medium described by samples, each at one frequency.
class QUARN_EXPORT MagneticSampled : public Material {
public:
    struct Parameters {
        float frequency = 0.0F;
        float conductivity = 0.0F;
        float permeability = 0.0F;

        friend bool operator==(const Parameters& a, const Parameters& b) {
            return a.frequency == b.frequency && a.conductivity == b.conductivity && a.permeability == b.permeability;
        }
        friend bool operator!=(const Parameters& a, const Parameters& b) { return !(a == b); }
    };

    MagneticSampled(const QString& name, const std::vector<Parameters>& parameters, bool useLossTangent = false,
                    bool useComplex = false);

    /// Leaves out the samples and the flags.
    bool operator==(const Material& other) const override;

    const std::vector<Parameters>& getParameters() const { return m_parameters; }

    /// The index is not checked.
    Parameters getParameters(unsigned int index) const { return m_parameters[index]; }

    /// The geometry file does not carry the flags.
    bool useLossTangent() const { return m_useLossTangent; }
    void useLossTangent(bool use) { m_useLossTangent = use; }
    bool useComplex() const { return m_useComplex; }
    void useComplex(bool use) { m_useComplex = use; }

private:
    friend struct blocktext::Description<MagneticSampled>;

    std::vector<Parameters> m_parameters;
    bool m_useLossTangent = false;
    bool m_useComplex = false;
};

}  // namespace quarn
