#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "results/FarZoneSummation.h"

namespace quarn::farzone {

/// A direction with the unit vectors of its two field components.
struct Direction {
    Vector r;
    Vector theta;
    Vector phi;

    /// Polar angle and azimuth in radians, of any size; not a number where an angle is none or infinite.
    Direction(double polarAngle, double azimuth);
};

/// Distance times field, in volts.
struct FarField {
    Complex theta;
    Complex phi;
};

/// What the sums over the faces radiate; the two are each other's reference.
enum class Method { Direct, Sampled };

/// The method that is estimated to take less time for so many directions. Direct for a wave number that is not a
/// positive number, for a surface that is not finite, and where the samples would take more than a gibibyte.
Method fasterMethod(const Surface& surface, double waveNumber, std::size_t numDirections);

/// Wave number in free space.
double waveNumberOf(double frequency);

/// Estimated time in ns of all directions, the work that a transformation reports.
double costOf(Method method, const Surface& surface, double waveNumber, std::size_t numDirections);

/// The far fields of a surface's currents, with those of its mirror image if it has one.
class Transform {
public:
    /// The surface must outlive the transformation.
    Transform(const Surface& surface, double waveNumber, Method method);

    /// To be done once, before apply(). False when the work was stopped.
    bool prepare(Progress& progress) { return m_summation->prepare(progress); }

    /// Puts a field for each direction in place of what the list held. False when the work was stopped, which leaves
    /// the fields in any state.
    bool apply(const std::vector<Direction>& directions, std::vector<FarField>& fields, Progress& progress);

private:
    const Surface& m_surface;
    double m_waveNumber;
    std::unique_ptr<FaceSummation> m_summation;
};

}  // namespace quarn::farzone
