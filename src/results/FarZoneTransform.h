#pragma once

#include <cstddef>
#include <vector>

#include "results/FarZoneProgress.h"
#include "results/FarZoneSurface.h"

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

/// The far fields of the surface's currents, with those of its mirror image if it has one; `fields` has as many as
/// there are directions. False when the work was stopped, which leaves the fields in any state.
bool transform(const Surface& surface, double waveNumber, Method method, const std::vector<Direction>& directions,
               Progress& progress, std::vector<FarField>& fields);

}  // namespace quarn::farzone
