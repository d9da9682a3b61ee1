#pragma once

#include "results/FarZoneLanes.h"
#include "results/FarZoneSummation.h"

namespace quarn::farzone {

/// The sums over the cells of all faces, cell by cell, for a few directions at a time.
///
/// The phase of a cell is the sum of one phase for each axis, and its weight the product of one for each in-plane axis.
/// So a direction needs a table of phasors for each axis, and a face becomes a sum over the rows of sums along the
/// rows. The cost is that of one phasor for each cell and direction, about 4 ns.
class DirectSum : public FaceSummation {
public:
    /// The surface must outlive the sum.
    DirectSum(const Surface& surface, double waveNumber) : m_surface(surface), m_waveNumber(waveNumber) {}

    bool prepare(Progress& progress) override;
    bool evaluate(const Vector* directions, std::size_t count, FaceSums* sums, Progress& progress) override;

    /// Estimated time in ns for all directions.
    static double cost(const Surface& surface, double numDirections);

private:
    bool fillPhasors(std::size_t axis, double u, Phasor* phasors, Progress& progress) const;
    bool sumRows(std::size_t normal, Side side, std::size_t count, Progress& progress);
    ComponentSums faceSum(std::size_t normal, Side side, std::size_t d, const Vector& direction);
    Phasor* phasors(std::size_t axis, std::size_t d) {
        return m_phasors[axis].data() + d * m_surface.axes[axis].cells();
    }

    const Surface& m_surface;
    double m_waveNumber;
    std::array<std::vector<Phasor>, numAxes> m_phasors;  ///< for each axis, direction by direction
    std::vector<Lanes> m_row;
    std::vector<Lanes> m_rowSums;  ///< direction by direction
};

}  // namespace quarn::farzone
