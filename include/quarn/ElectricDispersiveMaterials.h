#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "quarn/Material.h"

/// The electric materials whose permittivity depends on the frequency through poles. Conductivities are in S/m,
/// permittivities relative to vacuum, relaxation times in seconds, frequencies in Hz.
namespace quarn {

/// Base class of the materials with poles: a list of effective conductivities, copied at construction.
class QUARN_EXPORT ElectricDispersive : public Material {
public:
    const std::vector<float>& getEffectiveConductivities() const { return m_effectiveConductivities; }

    /// The index is not checked.
    float getEffectiveConductivity(unsigned int index) const { return m_effectiveConductivities[index]; }

protected:
    ElectricDispersive(const QString& name, MaterialType type, const std::vector<float>& effectiveConductivities);

    std::vector<float> m_effectiveConductivities;
};

/// One Debye pole.
class QUARN_EXPORT ElectricDebye : public ElectricDispersive {
public:
    ElectricDebye(const QString& name, float conductivity, float relativePermittivity, float staticRelativePermittivity,
                  float relaxationTime, const std::vector<float>& effectiveConductivities);
    bool operator==(const Material& other) const override;

    float getConductivity() const { return m_conductivity; }

    /// At infinite frequency; the static value is that at zero frequency.
    float getRelativePermittivity() const { return m_relativePermittivity; }
    float getStaticRelativePermittivity() const { return m_staticRelativePermittivity; }
    float getRelaxationTime() const { return m_relaxationTime; }

private:
    friend struct blocktext::Description<ElectricDebye>;

    float m_conductivity;
    float m_relativePermittivity;
    float m_staticRelativePermittivity;
    float m_relaxationTime;
};

/// One Lorentz pole.
class QUARN_EXPORT ElectricLorentz : public ElectricDispersive {
public:
    ElectricLorentz(const QString& name, float conductivity, float relativePermittivity,
                    float staticRelativePermittivity, float resonantFrequency, float dampingCoefficient,
                    const std::vector<float>& effectiveConductivities);
    bool operator==(const Material& other) const override;

    float getConductivity() const { return m_conductivity; }

    /// At infinite frequency; the static value is that at zero frequency.
    float getRelativePermittivity() const { return m_relativePermittivity; }
    float getStaticRelativePermittivity() const { return m_staticRelativePermittivity; }
    float getResonantFrequency() const { return m_resonantFrequency; }
    float getDampingCoefficient() const { return m_dampingCoefficient; }

private:
    friend struct blocktext::Description<ElectricLorentz>;

    float m_conductivity;
    float m_relativePermittivity;
    float m_staticRelativePermittivity;
    float m_resonantFrequency;
    float m_dampingCoefficient;
};

/// Three Debye poles.
class QUARN_EXPORT Electric3PoleDebye : public ElectricDispersive {
public:
    Electric3PoleDebye(const QString& name, float relativePermittivity, float staticRelativePermittivity1,
                       float staticRelativePermittivity2, float staticRelativePermittivity3, float relaxationTime1,
                       float relaxationTime2, float relaxationTime3, float conductivity,
                       const std::vector<float>& effectiveConductivities);
    bool operator==(const Material& other) const override;

    float getRelativePermittivity() const { return m_relativePermittivity; }
    float getStaticRelativePermittivity1() const { return m_staticRelativePermittivities[0]; }
    float getStaticRelativePermittivity2() const { return m_staticRelativePermittivities[1]; }
    float getStaticRelativePermittivity3() const { return m_staticRelativePermittivities[2]; }
    float getRelaxationTime1() const { return m_relaxationTimes[0]; }
    float getRelaxationTime2() const { return m_relaxationTimes[1]; }
    float getRelaxationTime3() const { return m_relaxationTimes[2]; }
    float getConductivity() const { return m_conductivity; }

private:
    friend struct blocktext::Description<Electric3PoleDebye>;

    float m_relativePermittivity;
    std::array<float, 3> m_staticRelativePermittivities;
    std::array<float, 3> m_relaxationTimes;
    float m_conductivity;
};

/// Seven Debye poles.
class QUARN_EXPORT Electric7PoleDebye : public ElectricDispersive {
public:
    Electric7PoleDebye(const QString& name, float relativePermittivity, float staticRelativePermittivity1,
                       float staticRelativePermittivity2, float staticRelativePermittivity3,
                       float staticRelativePermittivity4, float staticRelativePermittivity5,
                       float staticRelativePermittivity6, float staticRelativePermittivity7, float relaxationTime1,
                       float relaxationTime2, float relaxationTime3, float relaxationTime4, float relaxationTime5,
                       float relaxationTime6, float relaxationTime7, float conductivity,
                       const std::vector<float>& effectiveConductivities);
    bool operator==(const Material& other) const override;

    float getRelativePermittivity() const { return m_relativePermittivity; }
    float getStaticRelativePermittivity1() const { return m_staticRelativePermittivities[0]; }
    float getStaticRelativePermittivity2() const { return m_staticRelativePermittivities[1]; }
    float getStaticRelativePermittivity3() const { return m_staticRelativePermittivities[2]; }
    float getStaticRelativePermittivity4() const { return m_staticRelativePermittivities[3]; }
    float getStaticRelativePermittivity5() const { return m_staticRelativePermittivities[4]; }
    float getStaticRelativePermittivity6() const { return m_staticRelativePermittivities[5]; }
    float getStaticRelativePermittivity7() const { return m_staticRelativePermittivities[6]; }
    float getRelaxationTime1() const { return m_relaxationTimes[0]; }
    float getRelaxationTime2() const { return m_relaxationTimes[1]; }
    float getRelaxationTime3() const { return m_relaxationTimes[2]; }
    float getRelaxationTime4() const { return m_relaxationTimes[3]; }
    float getRelaxationTime5() const { return m_relaxationTimes[4]; }
    float getRelaxationTime6() const { return m_relaxationTimes[5]; }
    float getRelaxationTime7() const { return m_relaxationTimes[6]; }
    float getConductivity() const { return m_conductivity; }

private:
    friend struct blocktext::Description<Electric7PoleDebye>;

    float m_relativePermittivity;
    std::array<float, 7> m_staticRelativePermittivities;
    std::array<float, 7> m_relaxationTimes;
    float m_conductivity;
};

/// A wideband Debye medium: poles spread evenly over the logarithm of the frequency between two limits.
class QUARN_EXPORT ElectricDjordjevic : public Material {
public:
    ElectricDjordjevic(const QString& name, float relativePermittivity, float imaginaryPart, float evalFrequency,
                       float lowFrequency, float highFrequency);
    bool operator==(const Material& other) const override;

    /// At the evaluation frequency, as the imaginary part is.
    float getRelativePermittivity() const { return m_relativePermittivity; }

    /// Whether the imaginary part is given as a loss tangent.
    bool useLossTangent() const { return m_useLossTangent; }
    void useLossTangent(bool use) { m_useLossTangent = use; }
    float getImaginaryPart() const { return m_imaginaryPart; }
    void setImaginaryPart(float imaginaryPart) { m_imaginaryPart = imaginaryPart; }
    float getEvalFrequency() const { return m_evalFrequency; }
    void setEvalFrequency(float frequency) { m_evalFrequency = frequency; }
    float getLowFrequency() const { return m_lowFrequency; }
    void setLowFrequency(float frequency) { m_lowFrequency = frequency; }
    float getHighFrequency() const { return m_highFrequency; }
    void setHighFrequency(float frequency) { m_highFrequency = frequency; }

private:
    friend struct blocktext::Description<ElectricDjordjevic>;

    float m_relativePermittivity;
    bool m_useLossTangent = true;
    float m_imaginaryPart;
    float m_evalFrequency;
    float m_lowFrequency;
    float m_highFrequency;
};

/// Any number of Debye, Lorentz and Cole-Cole terms.
class QUARN_EXPORT ElectricDebyeLorentzColeCole : public Material {
public:
    struct DebyeSample {
        double staticRelativePermittivity = 0.0;
        double relaxationTime = 0.0;

        friend bool operator==(const DebyeSample& a, const DebyeSample& b) {
            return a.staticRelativePermittivity == b.staticRelativePermittivity && a.relaxationTime == b.relaxationTime;
        }
        friend bool operator!=(const DebyeSample& a, const DebyeSample& b) { return !(a == b); }
    };
    struct LorentzSample {
        double staticRelativePermittivity = 0.0;
        double resonantFrequency = 0.0;
        double dampingCoefficient = 0.0;

        friend bool operator==(const LorentzSample& a, const LorentzSample& b) {
            return a.staticRelativePermittivity == b.staticRelativePermittivity &&
                   a.resonantFrequency == b.resonantFrequency && a.dampingCoefficient == b.dampingCoefficient;
        }
        friend bool operator!=(const LorentzSample& a, const LorentzSample& b) { return !(a == b); }
    };
    struct ColeColeSample {
        double staticRelativePermittivity = 0.0;
        double relaxationTime = 0.0;
        double poleBroadness = 0.0;

        friend bool operator==(const ColeColeSample& a, const ColeColeSample& b) {
            return a.staticRelativePermittivity == b.staticRelativePermittivity &&
                   a.relaxationTime == b.relaxationTime && a.poleBroadness == b.poleBroadness;
        }
        friend bool operator!=(const ColeColeSample& a, const ColeColeSample& b) { return !(a == b); }
    };

    ElectricDebyeLorentzColeCole(const QString& name, double relativePermittivity, double conductivity,
                                 std::vector<DebyeSample> debyeTerms, std::vector<LorentzSample> lorentzTerms,
                                 std::vector<ColeColeSample> coleColeTerms);
    bool operator==(const Material& other) const override;

    double getRelativePermittivity() const { return m_relativePermittivity; }
    double getConductivity() const { return m_conductivity; }

    const std::vector<DebyeSample>& getDebyeTerms() const { return m_debyeTerms; }
    const std::vector<LorentzSample>& getLorentzTerms() const { return m_lorentzTerms; }
    const std::vector<ColeColeSample>& getColeColeTerms() const { return m_coleColeTerms; }
    std::size_t debyeSize() const { return m_debyeTerms.size(); }
    std::size_t lorentzSize() const { return m_lorentzTerms.size(); }
    std::size_t coleColeSize() const { return m_coleColeTerms.size(); }

    /// The index of a term is not checked.
    double getDebyeStaticRelativePermittivity(std::size_t i) const {
        return m_debyeTerms[i].staticRelativePermittivity;
    }
    double getDebyeRelaxationTime(std::size_t i) const { return m_debyeTerms[i].relaxationTime; }
    double getLorentzStaticRelativePermittivity(std::size_t i) const {
        return m_lorentzTerms[i].staticRelativePermittivity;
    }
    double getLorentzResonantFrequency(std::size_t i) const { return m_lorentzTerms[i].resonantFrequency; }
    double getLorentzDampingCoefficient(std::size_t i) const { return m_lorentzTerms[i].dampingCoefficient; }
    double getColeColeStaticRelativePermittivity(std::size_t i) const {
        return m_coleColeTerms[i].staticRelativePermittivity;
    }
    double getColeColeRelaxationTime(std::size_t i) const { return m_coleColeTerms[i].relaxationTime; }
    double getColeColePoleBroadness(std::size_t i) const { return m_coleColeTerms[i].poleBroadness; }

private:
    friend struct blocktext::Description<ElectricDebyeLorentzColeCole>;

    double m_relativePermittivity;
    double m_conductivity;
    std::vector<DebyeSample> m_debyeTerms;
    std::vector<LorentzSample> m_lorentzTerms;
    std::vector<ColeColeSample> m_coleColeTerms;
};

}  // namespace quarn
