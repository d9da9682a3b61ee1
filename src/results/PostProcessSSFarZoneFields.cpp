#include "quarn/PostProcessSSFarZoneFields.h"

#include "quarn/FieldsOnSSFarZoneBox.h"
#include "results/FarZoneRecords.h"

namespace quarn {

PostProcessSSFarZoneFields::PostProcessSSFarZoneFields(const FieldsOnSSFarZoneBox* fields, float frequency,
                                                       unsigned int firstSetting, unsigned int secondSetting)
    : m_fields(fields), m_frequency(frequency), m_firstSetting(firstSetting), m_secondSetting(secondSetting) {}

bool PostProcessSSFarZoneFields::computeFields(const std::vector<FarZoneRequest::Angle>& angles,
                                               std::vector<FarZoneSSFieldFile::Record>& records,
                                               const ProgressReporter& reporter) const {
    if (!m_fields || !m_fields->isComplete()) return false;
    if (angles.empty()) return true;
    Progress progress(reporter, angles.size());
    return farzone::appendFarFields(*m_fields, m_frequency, angles, records, progress);
}

}  // namespace quarn
