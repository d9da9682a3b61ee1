#include "quarn/PostProcessSSFarZoneFields.h"

#include "quarn/FieldsOnSSFarZoneBox.h"
#include "results/FarZoneTransform.h"

namespace quarn {

namespace {

using farzone::Side;

farzone::Axis axisOf(const std::vector<float>& sizes, const std::vector<double>& middles, double toLowerFace,
                     double toUpperFace) {
    return {middles, {sizes.begin(), sizes.end()}, {-toLowerFace, toUpperFace}};
}

/// The fields on the box as the transformation takes them; it reads the samples where they are.
farzone::Surface surfaceOf(const FieldsOnSSFarZoneBox& fields) {
    const auto& x = fields;
    farzone::Surface surface;
    surface.axes[0] = axisOf(x.getXDeltas(), x.getXDistanceToY(), x.getXDistanceToX(), x.getXDistanceToXUpper());
    surface.axes[1] = axisOf(x.getYDeltas(), x.getYDistanceToX(), x.getYDistanceToY(), x.getYDistanceToYUpper());
    surface.axes[2] = axisOf(x.getZDeltas(), x.getZDistanceToX(), x.getZDistanceToZ(), x.getZDistanceToZUpper());

    const FarZoneBox& box = fields.getFarZoneBox();
    const bool isMirrored = box.isValid() && box.useImage();
    for (std::size_t number = 0; number < 2 * farzone::numAxes; ++number) {
        const auto face = static_cast<FarZoneBox::Face>(number);
        const std::size_t axis = number % farzone::numAxes;
        const Side side = face < FarZoneBox::XUpper ? Side::Lower : Side::Upper;
        farzone::Face& summed = surface.pairs[axis].faces[side];
        for (std::size_t component = 0; component < farzone::numComponents; ++component) {
            summed.samples[component] = fields.getFields(face)[component].data();
        }
        const bool isOnPlane = isMirrored && face == box.getImageFace();
        summed.isSummed = !isOnPlane;
        if (!isOnPlane) continue;
        surface.mirrorAxis = axis;
        surface.mirrorPosition = surface.axes[axis].faces[side];
    }
    return surface;
}

std::complex<float> narrowed(const farzone::Complex& value) {
    return {static_cast<float>(value.real()), static_cast<float>(value.imag())};
}

}  // namespace

PostProcessSSFarZoneFields::PostProcessSSFarZoneFields(const FieldsOnSSFarZoneBox* fields, float frequency,
                                                       unsigned int firstSetting, unsigned int secondSetting)
    : m_fields(fields), m_frequency(frequency), m_firstSetting(firstSetting), m_secondSetting(secondSetting) {}

bool PostProcessSSFarZoneFields::computeFields(const std::vector<FarZoneRequest::Angle>& angles,
                                               std::vector<FarZoneSSFieldFile::Record>& records,
                                               const ProgressReporter& reporter) const {
    if (!m_fields || !m_fields->isComplete()) return false;
    if (angles.empty()) return true;

    const FarZoneBox& box = m_fields->getFarZoneBox();
    const auto isSilent = [&box](const FarZoneRequest::Angle& angle) {
        return box.isAngleUnderGround(angle.phi, angle.theta);
    };
    std::vector<farzone::Direction> directions;
    for (const FarZoneRequest::Angle& angle : angles) {
        if (!isSilent(angle)) directions.emplace_back(angle.theta, angle.phi);
    }

    const farzone::Surface surface = surfaceOf(*m_fields);
    const double waveNumber = farzone::waveNumberOf(m_frequency);
    const farzone::Method method = farzone::fasterMethod(surface, waveNumber, directions.size());
    farzone::Progress progress(
        reporter, angles.size(), farzone::costOf(method, surface, waveNumber, directions.size()));
    std::vector<farzone::FarField> fields(directions.size());
    const bool isDone = progress.begin() &&
                        farzone::transform(surface, waveNumber, method, directions, progress, fields) && progress.end();
    if (!isDone) return false;

    records.reserve(records.size() + angles.size());
    auto field = fields.cbegin();
    for (const FarZoneRequest::Angle& angle : angles) {
        const farzone::FarField value = isSilent(angle) ? farzone::FarField{} : *field++;
        records.push_back({angle.theta, angle.phi, narrowed(value.theta), narrowed(value.phi)});
    }
    return true;
}

}  // namespace quarn
