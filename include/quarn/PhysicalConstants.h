#pragma once

/// The constants that far fields are computed with, in double precision.
namespace quarn::constants {

inline constexpr double pi = 3.14159265358979323846;
inline constexpr double radiansPerDegree = pi / 180.0;

/// In vacuum, in m/s.
inline constexpr double speedOfLight = 299792458.0;

/// In ohms: speedOfLight times a vacuum permeability of 4e-7 pi H/m, to 14 digits.
inline constexpr double freeSpaceImpedance = 376.73031346177;

}  // namespace quarn::constants
