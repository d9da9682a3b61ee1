#pragma once

#include <vector>

#include "quarn/FarZoneFieldFiles.h"
#include "quarn/FarZoneRequest.h"
#include "quarn/FieldsOnSSFarZoneBox.h"
#include "quarn/PostProcessSSFarZoneFields.h"

/// Figures of an antenna from its far fields.
namespace quarn::tool {

using FarZoneAngles = std::vector<FarZoneRequest::Angle>;
using FarZoneRecords = std::vector<FarZoneSSFieldFile::Record>;

double toDegrees(double radians);

/// The wavelength in free space, in metres.
double waveLengthAt(float frequency);

/// The directions of a whole sphere: polar angles from 0 to 180 degrees, azimuths from 0 to below 360.
FarZoneAngles sphereOf(double stepInDegrees);

/// The directions of a full circle through the zenith at one azimuth; its other half has polar angles above 180
/// degrees.
FarZoneAngles polarCut(double azimuthInDegrees);

/// The radiation intensity in the direction of the record, in W/sr. Fields are amplitudes.
double radiationIntensity(const FarZoneSSFieldFile::Record& record);

struct RadiatedPower {
    double watts = 0.0;
    FarZoneSSFieldFile::Record peak;  ///< the record with the largest intensity

    /// The directivity relative to an isotropic radiator, in dB.
    double directivity(const FarZoneSSFieldFile::Record& record) const;
};

/// Integrates the intensity over the sphere, in enough directions for an exact result with sources of the box's size.
RadiatedPower radiatedPower(const FieldsOnSSFarZoneBox& fields, const PostProcessSSFarZoneFields& processor,
                            const ProgressReporter& reporter);

/// The ratio of the axes of the polarization ellipse in dB: 0 for circular, infinite for linear polarization.
double axialRatio(const FarZoneSSFieldFile::Record& record);

}  // namespace quarn::tool
