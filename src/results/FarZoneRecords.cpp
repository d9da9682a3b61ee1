#include "results/FarZoneRecords.h"

#include <algorithm>

#include "quarn/FieldsOnSSFarZoneBox.h"
#include "results/FarZoneTransform.h"

namespace quarn::farzone {

namespace {

using Angles = std::vector<FarZoneRequest::Angle>;
using Records = std::vector<FarZoneSSFieldFile::Record>;

constexpr std::size_t itemsAtOnce = 1U << 12;
constexpr double nsPerCellOfAxis = 10.0;
constexpr double nsPerAngleChecked = 40.0;
constexpr double nsPerRecordCopied = 10.0;
constexpr double nsPerRecordMade = 200.0;

/// The fields in the form that the transformation takes, which refers to their samples.
Surface surfaceOf(const FieldsOnSSFarZoneBox& fields) {
    Surface surface;
    for (std::size_t n = 0; n < numAxes; ++n) {
        const auto& [sizes, middles, toLowerFace, toUpperFace] = fields.axis(n);
        surface.axes[n] = {middles, {sizes.begin(), sizes.end()}, {-toLowerFace, toUpperFace}};
    }

    const FarZoneBox& box = fields.getFarZoneBox();
    const bool isMirrored = box.isValid() && box.useImage();
    for (std::size_t number = 0; number < 2 * numAxes; ++number) {
        const auto face = static_cast<FarZoneBox::Face>(number);
        const std::size_t axis = number % numAxes;
        const Side side = face < FarZoneBox::XUpper ? Side::Lower : Side::Upper;
        Face& summed = surface.pairs[axis].faces[side];
        for (std::size_t component = 0; component < numComponents; ++component) {
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

std::complex<float> narrowed(const Complex& value) {
    return {static_cast<float>(value.real()), static_cast<float>(value.imag())};
}

/// Calls `use(begin, end)` for a few thousand items at a time. An item takes `nsPerItem` beside the work that `use`
/// reports itself. Returns false when the work was stopped.
template <class Use>
bool inPieces(std::size_t count, double nsPerItem, Progress& progress, Use use) {
    for (std::size_t begin = 0; begin < count; begin += itemsAtOnce) {
        const std::size_t end = std::min(begin + itemsAtOnce, count);
        if (!use(begin, end) || !progress.advance(static_cast<double>(end - begin) * nsPerItem)) return false;
    }
    return true;
}

/// Makes the records of a list of angles. All functions return false when the work was stopped.
class RecordMaker {
public:
    RecordMaker(const FarZoneBox& box, const Angles& angles, Progress& progress)
        : m_box(box), m_angles(angles), m_progress(progress) {}

    /// Counts the directions that do not point behind a conducting plane, where fields are 0.
    bool countInFront(std::size_t& inFront) const {
        inFront = 0;
        return inPieces(m_angles.size(), nsPerAngleChecked, m_progress, [&](std::size_t begin, std::size_t end) {
            for (std::size_t i = begin; i < end; ++i) inFront += isBehindPlane(i) ? 0 : 1;
            return true;
        });
    }

    bool copy(const Records& from, Records& to) const {
        return inPieces(from.size(), nsPerRecordCopied, m_progress, [&](std::size_t begin, std::size_t end) {
            to.insert(to.end(), from.data() + begin, from.data() + end);
            return true;
        });
    }

    bool append(Transform& transform, Records& records) const {
        std::vector<Direction> directions;
        std::vector<FarField> fields;
        return inPieces(m_angles.size(), nsPerRecordMade, m_progress, [&](std::size_t begin, std::size_t end) {
            directions.clear();
            for (std::size_t i = begin; i < end; ++i) {
                if (!isBehindPlane(i)) directions.emplace_back(m_angles[i].theta, m_angles[i].phi);
            }
            if (!transform.apply(directions, fields, m_progress)) return false;
            auto field = fields.cbegin();
            for (std::size_t i = begin; i < end; ++i) {
                const FarField value = isBehindPlane(i) ? FarField{} : *field++;
                records.push_back({m_angles[i].theta, m_angles[i].phi, narrowed(value.theta), narrowed(value.phi)});
            }
            return true;
        });
    }

private:
    bool isBehindPlane(std::size_t i) const { return m_box.isAngleUnderGround(m_angles[i].phi, m_angles[i].theta); }

    const FarZoneBox& m_box;
    const Angles& m_angles;
    Progress& m_progress;
};

}  // namespace

bool appendFarFields(const FieldsOnSSFarZoneBox& fields, double frequency, const Angles& angles, Records& records,
                     Progress& progress) {
    const RecordMaker maker(fields.getFarZoneBox(), angles, progress);
    std::size_t inFront = 0;
    if (!progress.begin() || !maker.countInFront(inFront)) return false;

    const Surface surface = surfaceOf(fields);
    for (const Axis& axis : surface.axes) {
        if (!progress.advance(static_cast<double>(axis.cells()) * nsPerCellOfAxis)) return false;
    }
    const double waveNumber = waveNumberOf(frequency);
    const Method method = fasterMethod(surface, waveNumber, inFront);
    progress.expect(costOf(method, surface, waveNumber, inFront) +
                    static_cast<double>(angles.size()) * nsPerRecordMade +
                    static_cast<double>(records.size()) * nsPerRecordCopied);

    Records made;
    made.reserve(records.size() + angles.size());
    Transform transform(surface, waveNumber, method);
    const bool isDone =
        maker.copy(records, made) && transform.prepare(progress) && maker.append(transform, made) && progress.end();
    if (isDone) records.swap(made);
    return isDone;
}

}  // namespace quarn::farzone
