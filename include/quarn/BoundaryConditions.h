#pragma once

#include <QStringList>
#include <cstdint>

#include "quarn/BoundingBoxSide.h"
#include "quarn/Engine.h"
#include "quarn/Export.h"

namespace quarn {

/// The boundary types of the six faces of the computational box, with the settings of the absorbing layers and of a
/// periodic structure's scan angle.
class QUARN_EXPORT BoundaryConditions {
public:
    using BoundingBoxSide = quarn::BoundingBoxSide;

    enum BoundaryType : std::int32_t {
        Liao = 0,  ///< Liao absorbing boundary
        PEC = 1,   ///< perfect electric conductor
        PMC = 2,   ///< perfect magnetic conductor
        CPML = 3,  ///< convolutional perfectly matched layer
        Periodic = 4,
        ESymmetry = 5,  ///< electric symmetry plane
        MSymmetry = 6,  ///< magnetic symmetry plane
    };

    BoundaryConditions(BoundaryType lowerX, BoundaryType upperX, BoundaryType lowerY, BoundaryType upperY,
                       BoundaryType lowerZ, BoundaryType upperZ, int numberOfPMLLayers);

    /// The lower X type for a side outside the enumeration.
    BoundaryType getBoundaryType(BoundingBoxSide side) const;

    /// Ignores a side outside the enumeration. hasPECBoundary() and the other cached answers change only with
    /// cacheVariables().
    void setBoundaryType(BoundingBoxSide side, BoundaryType type);

    BoundaryType getLowerX() const { return m_types[0]; }
    BoundaryType getUpperX() const { return m_types[1]; }
    BoundaryType getLowerY() const { return m_types[2]; }
    BoundaryType getUpperY() const { return m_types[3]; }
    BoundaryType getLowerZ() const { return m_types[4]; }
    BoundaryType getUpperZ() const { return m_types[5]; }
    int getNumberOfPMLLayers() const { return m_numberOfPMLLayers; }

    /// The grading of the absorbing layers, which is fixed and not part of the project file: the polynomial orders of
    /// the conductivity profile and of the alpha profile, and the largest kappa and alpha.
    float getPML_M() const { return m_pmlM; }
    float getPMLKappaMax() const { return m_pmlKappaMax; }
    float getPMLAlphaMax() const { return m_pmlAlphaMax; }
    float getPML_Ma() const { return m_pmlMa; }

    bool useScanAngle() const { return m_useScanAngle; }
    float getPhi() const { return m_phi; }
    float getTheta() const { return m_theta; }
    float getFrequency() const { return m_frequency; }

    /// Sets the direction (degrees) and the frequency (Hz) of the phase shift between periodic faces, and enables it.
    void addPeriodicScanAngleParameters(float phi, float theta, float frequency);

    /// Updates the following six answers from the types of the sides. Symmetry planes count in none of them.
    void cacheVariables();
    int getNumberOfPECBoundaries() const { return m_numberOfPECBoundaries; }
    bool hasLiaoBoundary() const { return m_hasLiao; }
    bool hasCPMLBoundary() const { return m_hasCPML; }
    bool hasPECBoundary() const { return m_hasPEC; }
    bool hasPMCBoundary() const { return m_hasPMC; }
    bool hasPeriodicBoundary() const { return m_hasPeriodic; }

    /// Appends findings about the absorbing layers; there are none for the FDTD engine.
    void checkValidity(QStringList& errors, QStringList& warnings, Engine engine) const;

    QUARN_EXPORT friend bool operator==(const BoundaryConditions& a, const BoundaryConditions& b);
    friend bool operator!=(const BoundaryConditions& a, const BoundaryConditions& b) { return !(a == b); }

private:
    bool hasSideOfType(BoundaryType type) const;

    BoundaryType m_types[6];
    std::int32_t m_numberOfPMLLayers;
    float m_pmlM = 4.0F;
    float m_pmlKappaMax = 1.0F;
    float m_pmlAlphaMax = 0.0F;
    float m_pmlMa = 2.0F;
    bool m_useScanAngle = false;
    float m_phi = 0.0F;
    float m_theta = 0.0F;
    float m_frequency = 0.0F;
    std::int32_t m_numberOfPECBoundaries = 0;
    bool m_hasLiao = false;
    bool m_hasCPML = false;
    bool m_hasPEC = false;
    bool m_hasPMC = false;
    bool m_hasPeriodic = false;
};

}  // namespace quarn
