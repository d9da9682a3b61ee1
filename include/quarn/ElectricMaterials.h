#pragma once

#include <array>
#include <complex>
#include <vector>

#include "quarn/Material.h"

/// The electric materials, save those with poles, which are in ElectricDispersiveMaterials.h. Conductivities are in S/m
/// and permittivities relative to vacuum; lengths are in metres, frequencies in Hz, temperatures in kelvin.
namespace quarn {

class QUARN_EXPORT ElectricFreeSpace : public Material {
public:
    explicit ElectricFreeSpace(const QString& name);
    bool operator==(const Material& other) const override;

    float getConductivity() const { return 0.0F; }
    float getRelativePermittivity() const { return 1.0F; }
};

class QUARN_EXPORT ElectricPerfectConductor : public Material {
public:
    explicit ElectricPerfectConductor(const QString& name);
    bool operator==(const Material& other) const override;
};

/// A lossy dielectric. Its losses may also be given as a loss tangent or as the imaginary part of the permittivity; the
/// geometry file carries one of the two only, the loss tangent first. The conductivity may depend on the temperature.
class QUARN_EXPORT ElectricNormal : public Material {
public:
    /// The conductivity is the value in use, the uncorrected one what it was before a correction.
    ElectricNormal(const QString& name, float conductivity, float uncorrectedConductivity, float relativePermittivity);

    /// Leaves out the uncorrected conductivity.
    bool operator==(const Material& other) const override;

    float getConductivity() const { return m_conductivity; }

    /// The conductivity, for any index.
    float getEffectiveConductivity(unsigned int /*index*/) const { return m_conductivity; }
    float getUncorrectedConductivity() const { return m_uncorrectedConductivity; }
    float getRelativePermittivity() const { return m_relativePermittivity; }

    bool useLossTangent() const { return m_useLossTangent; }
    void useLossTangent(bool use) { m_useLossTangent = use; }
    float getLossTangent() const { return m_lossTangent; }
    void setLossTangent(float lossTangent) { m_lossTangent = lossTangent; }

    bool useComplex() const { return m_useComplex; }
    void useComplex(bool use) { m_useComplex = use; }
    float getImaginary() const { return m_imaginary; }
    void setImaginary(float imaginary) { m_imaginary = imaginary; }

    float getNominalTemperature() const { return m_nominalTemperature; }
    void setNominalTemperature(float temperature) { m_nominalTemperature = temperature; }
    float getConductivityLinearTempCoef() const { return m_conductivityLinearTempCoef; }
    void setConductivityLinearTempCoef(float coefficient) { m_conductivityLinearTempCoef = coefficient; }
    float getConductivityQuadraticTempCoef() const { return m_conductivityQuadraticTempCoef; }
    void setConductivityQuadraticTempCoef(float coefficient) { m_conductivityQuadraticTempCoef = coefficient; }

    /// The geometry file does not carry this flag.
    bool useSurfaceConductivity() const { return m_useSurfaceConductivity; }
    void useSurfaceConductivity(bool use) { m_useSurfaceConductivity = use; }

private:
    friend struct blocktext::Description<ElectricNormal>;

    float m_conductivity;
    float m_uncorrectedConductivity;
    float m_relativePermittivity;
    bool m_useLossTangent = false;
    float m_lossTangent = 1.0F;
    bool m_useComplex = false;
    float m_imaginary = 0.0F;
    float m_nominalTemperature = 298.15F;
    float m_conductivityLinearTempCoef = 0.0F;
    float m_conductivityQuadraticTempCoef = 0.0F;
    bool m_useSurfaceConductivity = false;
};

/// A material described by samples, each at one frequency.
class QUARN_EXPORT ElectricSampled : public Material {
public:
    struct Parameters {
        float frequency = 0.0F;
        float conductivity = 0.0F;
        float permittivity = 0.0F;

        friend bool operator==(const Parameters& a, const Parameters& b) {
            return a.frequency == b.frequency && a.conductivity == b.conductivity && a.permittivity == b.permittivity;
        }
        friend bool operator!=(const Parameters& a, const Parameters& b) { return !(a == b); }
    };

    ElectricSampled(const QString& name, const std::vector<Parameters>& parameters, bool useSurfaceConductivity = false,
                    bool useLossTangent = false, bool useComplex = false);

    /// Leaves out the samples and the flags.
    bool operator==(const Material& other) const override;

    const std::vector<Parameters>& getParameters() const { return m_parameters; }

    /// The index is not checked.
    Parameters getParameters(unsigned int index) const { return m_parameters[index]; }

    /// The geometry file does not carry the flags.
    bool useSurfaceConductivity() const { return m_useSurfaceConductivity; }
    void useSurfaceConductivity(bool use) { m_useSurfaceConductivity = use; }
    bool useLossTangent() const { return m_useLossTangent; }
    void useLossTangent(bool use) { m_useLossTangent = use; }
    bool useComplex() const { return m_useComplex; }
    void useComplex(bool use) { m_useComplex = use; }

private:
    friend struct blocktext::Description<ElectricSampled>;

    std::vector<Parameters> m_parameters;
    bool m_useSurfaceConductivity = false;
    bool m_useLossTangent = false;
    bool m_useComplex = false;
};

class QUARN_EXPORT ElectricAnisotropic : public Material {
public:
    /// Copies the two tensors of three rows each.
    ElectricAnisotropic(const QString& name, const float (*conductivity)[3], const float (*permittivity)[3]);
    bool operator==(const Material& other) const override;

    /// Row and column are 0 to 2; they are not checked.
    float getConductivity(int row, int column) const { return at(m_conductivity, row, column); }
    float getRelativePermittivity(int row, int column) const { return at(m_relativePermittivity, row, column); }

private:
    friend struct blocktext::Description<ElectricAnisotropic>;
    using Tensor = std::array<std::array<float, 3>, 3>;

    static float at(const Tensor& tensor, int row, int column) {
        return tensor[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
    }

    Tensor m_conductivity;
    Tensor m_relativePermittivity;
};

/// A dielectric whose permittivity depends on the field, separately for each axis.
class QUARN_EXPORT ElectricNonlinear : public Material {
public:
    /// Each pointer is to the three values for x, y and z, which are copied.
    ElectricNonlinear(const QString& name, const float* conductivity, const float* relativePermittivity1,
                      const float* relativePermittivity2, const float* a1, const float* a2, const float* a3,
                      const float* es, const float* eo);
    bool operator==(const Material& other) const override;

    /// The axis is 0 to 2; it is not checked.
    float getConductivity(int axis) const { return at(m_conductivity, axis); }
    float getRelativePermittivity1(int axis) const { return at(m_relativePermittivity1, axis); }
    float getRelativePermittivity2(int axis) const { return at(m_relativePermittivity2, axis); }
    float getA1(int axis) const { return at(m_a1, axis); }
    float getA2(int axis) const { return at(m_a2, axis); }
    float getA3(int axis) const { return at(m_a3, axis); }
    float getEs(int axis) const { return at(m_es, axis); }
    float getEo(int axis) const { return at(m_eo, axis); }

private:
    friend struct blocktext::Description<ElectricNonlinear>;
    using PerAxis = std::array<float, 3>;

    static float at(const PerAxis& values, int axis) { return values[static_cast<std::size_t>(axis)]; }

    PerAxis m_conductivity;
    PerAxis m_relativePermittivity1;
    PerAxis m_relativePermittivity2;
    PerAxis m_a1;
    PerAxis m_a2;
    PerAxis m_a3;
    PerAxis m_es;
    PerAxis m_eo;
};

/// A wire that is thinner than a cell.
class QUARN_EXPORT ElectricThinWire : public Material {
public:
    ElectricThinWire(const QString& name, float radius);
    bool operator==(const Material& other) const override;

    float getRadius() const { return m_radius; }

private:
    friend struct blocktext::Description<ElectricThinWire>;

    float m_radius;
};

/// A sheet with a complex surface resistance in ohm, which may depend on the temperature.
class QUARN_EXPORT ElectricSurfaceResistance : public Material {
public:
    ElectricSurfaceResistance(const QString& name, const std::complex<double>& surfaceResistance, double thickness);
    bool operator==(const Material& other) const override;

    std::complex<double> getSurfaceResistance() const { return {m_resistance, m_reactance}; }
    double getThickness() const { return m_thickness; }
    double getNominalTemperature() const { return m_nominalTemperature; }
    void setNominalTemperature(double temperature) { m_nominalTemperature = temperature; }
    double getLinearTempCoef() const { return m_linearTempCoef; }
    void setLinearTempCoef(double coefficient) { m_linearTempCoef = coefficient; }
    double getQuadraticTempCoef() const { return m_quadraticTempCoef; }
    void setQuadraticTempCoef(double coefficient) { m_quadraticTempCoef = coefficient; }

private:
    friend struct blocktext::Description<ElectricSurfaceResistance>;

    double m_resistance;
    double m_reactance;
    double m_thickness;
    double m_nominalTemperature = 298.15;
    double m_linearTempCoef = 0.0;
    double m_quadraticTempCoef = 0.0;
};

}  // namespace quarn
