#pragma once

#include <vector>

#include "quarn/FarZoneFieldFiles.h"
#include "quarn/FarZoneRequest.h"
#include "quarn/FieldsOnSSFarZoneBox.h"
#include "quarn/PostProcessSSFarZoneFields.h"

/// What an antenna engineer reads off far fields.
namespace quarn::tool {

using FarZoneAngles = std::vector<FarZoneRequest::Angle>;
using FarZoneRecords = std::vector<FarZoneSSFieldFile::Record>;

double toDegrees(double radians);

/// In free space, in metres.
double waveLengthAt(float frequency);

/// A whole sphere: the polar angle from 0 to 180 degrees, the azimuth from 0 to below 360.
FarZoneAngles sphereOf(double stepInDegrees);

/// A full circle in the plane of one azimuth, through the zenith; polar angles beyond 180 degrees are its other half.
FarZoneAngles polarCut(double azimuthInDegrees);

/// In the direction of the record, in W for each steradian. Fields are amplitudes.
double radiationIntensity(const FarZoneSSFieldFile::Record& record);

struct RadiatedPower {
    double watts = 0.0;
    FarZoneSSFieldFile::Record peak;  ///< the largest record that was integrated

    /// Relative to an isotropic radiator of the same power, in dB.
    double directivity(const FarZoneSSFieldFile::Record& record) const;
};

/// Integrates the intensity over the sphere, from as many directions as a source of the box's size needs for an exact
/// result.
RadiatedPower radiatedPower(const FieldsOnSSFarZoneBox& fields, const PostProcessSSFarZoneFields& processor,
                            const ProgressReporter& reporter);

/// Major to minor axis of the polarization ellipse, in dB: 0 for circular, infinite for linear polarization.
double axialRatio(const FarZoneSSFieldFile::Record& record);

}  // namespace quarn::tool
