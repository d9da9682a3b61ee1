#pragma once

#include <QStringList>
#include <array>
#include <cstdint>

#include "quarn/BoundingBoxSide.h"
#include "quarn/Description.h"
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
    float getPML_M() const { return 4.0F; }
    float getPMLKappaMax() const { return 1.0F; }
    float getPMLAlphaMax() const { return 0.0F; }
    float getPML_Ma() const { return 2.0F; }

    bool useScanAngle() const { return m_useScanAngle; }
    float getPhi() const { return m_phi; }
    float getTheta() const { return m_theta; }
    float getFrequency() const { return m_frequency; }

    /// Sets the direction (degrees) and the frequency (Hz) of the phase shift between periodic faces, and enables it.
    void addPeriodicScanAngleParameters(float phi, float theta, float frequency);

    /// Updates the following six answers from the types of the sides. Symmetry planes count in none of them.
    void cacheVariables();
    int getNumberOfPECBoundaries() const { return m_numberOfPECBoundaries; }
    bool hasLiaoBoundary() const { return hasCached(Liao); }
    bool hasCPMLBoundary() const { return hasCached(CPML); }
    bool hasPECBoundary() const { return hasCached(PEC); }
    bool hasPMCBoundary() const { return hasCached(PMC); }
    bool hasPeriodicBoundary() const { return hasCached(Periodic); }

    /// Appends findings about the absorbing layers; there are none for the FDTD engine.
    void checkValidity(QStringList& errors, QStringList& warnings, Engine engine) const;

    QUARN_EXPORT friend bool operator==(const BoundaryConditions& a, const BoundaryConditions& b);
    friend bool operator!=(const BoundaryConditions& a, const BoundaryConditions& b) { return !(a == b); }

private:
    friend struct blocktext::Description<BoundaryConditions>;

    bool hasCached(BoundaryType type) const { return (m_cachedTypes >> type & 1U) != 0; }

    std::array<BoundaryType, 6> m_types;
    std::int32_t m_numberOfPMLLayers;
    bool m_useScanAngle = false;
    float m_phi = 0.0F;
    float m_theta = 0.0F;
    float m_frequency = 0.0F;
    bool m_takesWaveformFrequency = false;  // what a file asks for while it is read
    std::int32_t m_numberOfPECBoundaries = 0;
    std::uint32_t m_cachedTypes = 0;  // a bit for each type that a side has, symmetry planes left out
};

}  // namespace quarn
