#pragma once

#include <vector>

#include "quarn/Export.h"
#include "quarn/FarZoneFieldFiles.h"
#include "quarn/FarZoneRequest.h"
#include "quarn/ProgressReporter.h"

namespace quarn {

class FieldsOnSSFarZoneBox;

/// Computes far fields from the fields on a far-zone box, by the surface equivalence principle with the time dependence
/// exp(+j w t). Far fields are given as distance times field, in volts, without the factor exp(-j k r): their phase
/// refers to the centre of the box.
///
/// Above a perfectly conducting plane that the box touches, the image of the box is included; below it fields are
/// exactly 0.
class QUARN_EXPORT PostProcessSSFarZoneFields {
public:
    /// The fields must outlive this object. The frequency is in Hz. The two settings are kept and have no effect.
    PostProcessSSFarZoneFields(const FieldsOnSSFarZoneBox* fields, float frequency, unsigned int firstSetting,
                               unsigned int secondSetting);

    float getFrequency() const { return m_frequency; }
    unsigned int getFirstSetting() const { return m_firstSetting; }
    unsigned int getSecondSetting() const { return m_secondSetting; }

    /// Appends a record for each angle, in their order. Angles may have any size; a NaN or infinite angle gives NaN
    /// fields. Without cells or at frequency 0 the fields are 0.
    ///
    /// A few directions cost about 4 ns for each of them and each cell on the box, exact to rounding. For many, the
    /// cost is that of some tens of directions and then about 2 microseconds for each, for any number of cells, exact
    /// to 1e-7 of the largest field. The faster method is chosen.
    ///
    /// False, with the records as they were, when there are no fields, when they are not complete
    /// (FieldsOnSSFarZoneBox::isComplete), or when the reporter asked to stop. The reporter is called at the beginning,
    /// at the end and about twenty times a second in between, preparations included; it is told a number of directions,
    /// or the equivalent share of the preparations for them.
    bool computeFields(const std::vector<FarZoneRequest::Angle>& angles,
                       std::vector<FarZoneSSFieldFile::Record>& records,
                       const ProgressReporter& reporter = nullptr) const;

private:
    const FieldsOnSSFarZoneBox* m_fields;
    float m_frequency;
    unsigned int m_firstSetting;
    unsigned int m_secondSetting;
};

}  // namespace quarn
