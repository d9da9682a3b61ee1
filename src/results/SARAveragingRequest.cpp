#include "quarn/SARAveragingRequest.h"

#include "results/RequestLines.h"
#include "results/RequestSections.h"

namespace quarn {

using namespace blocktext;

// A plane is called by its normal here.
template <>
struct blocktext::Description<SARAveragingRequest> {
    using R = SARAveragingRequest;
    static constexpr auto block() {
        return describeWords<R>(
            sectionName::sarAveraging,
            Unknown::DropLine,
            Unreadable::KeepsValue,
            flag("average_one_gram", &R::m_compute1gAverage),
            flag("average_ten_grams", &R::m_compute10gAverage),
            flag("automatic_subregion", &R::m_useAutomaticSubregion),
            value("automatic_subregion_cutoff_in_db", &R::m_subregionCutoff)
                .onlyWith(&R::m_useAutomaticSubregion)
                .in("dB"),
            lowerBound(&R::m_lowerBound),
            upperBound(&R::m_upperBound),
            flag("save_ten_gram_x_slices", &R::m_save10gYZPlanes),
            flag("save_ten_gram_y_slices", &R::m_save10gZXPlanes),
            flag("save_ten_gram_z_slices", &R::m_save10gXYPlanes),
            flag("save_one_gram_x_slices", &R::m_save1gYZPlanes),
            flag("save_one_gram_y_slices", &R::m_save1gZXPlanes),
            flag("save_one_gram_z_slices", &R::m_save1gXYPlanes),
            flag("outside_region_treated_as_air", &R::m_treatDataOutsideAsAir),
            value("materials_to_use", &R::m_materialsToUse, counted(StoredAs<unsigned>())).unlessEmpty(),
            text("outputAveragedFileName", &R::m_outputAveragedFileName));
    }
};

namespace {

constexpr auto sarAveraging = Description<SARAveragingRequest>::block();

}  // namespace

SARAveragingRequest::SARAveragingRequest(bool compute1gAverage, bool compute10gAverage, bool treatDataOutsideAsAir,
                                         unsigned int xLower, unsigned int yLower, unsigned int zLower,
                                         unsigned int xUpper, unsigned int yUpper, unsigned int zUpper,
                                         bool useAutomaticSubregion, float subregionCutoff,
                                         std::vector<std::uint8_t> materialsToUse, bool save1gXYPlanes,
                                         bool save1gZXPlanes, bool save1gYZPlanes, bool save10gXYPlanes,
                                         bool save10gZXPlanes, bool save10gYZPlanes,
                                         const QString& outputAveragedFileName)
    : m_compute1gAverage(compute1gAverage),
      m_compute10gAverage(compute10gAverage),
      m_treatDataOutsideAsAir(treatDataOutsideAsAir),
      m_useAutomaticSubregion(useAutomaticSubregion),
      m_subregionCutoff(subregionCutoff),
      m_lowerBound{xLower, yLower, zLower},
      m_upperBound{xUpper, yUpper, zUpper},
      m_materialsToUse(std::move(materialsToUse)),
      m_save1gXYPlanes(save1gXYPlanes),
      m_save1gZXPlanes(save1gZXPlanes),
      m_save1gYZPlanes(save1gYZPlanes),
      m_save10gXYPlanes(save10gXYPlanes),
      m_save10gZXPlanes(save10gZXPlanes),
      m_save10gYZPlanes(save10gYZPlanes),
      m_outputAveragedFileName(outputAveragedFileName) {}

void describeSARAveraging(FormatBuilder& builder) {
    sarAveraging.describeTo(builder, blankRequest<SARAveragingRequest>());
}

bool SARAveragingRequest::streamOut(DelimManager& delim) const { return sarAveraging.write(delim, *this); }

SARAveragingRequest::SARAveragingRequest(DelimManager& delim) : m_outputAveragedFileName(QStringLiteral("project")) {
    sarAveraging.read(delim, *this);
}

bool operator==(const SARAveragingRequest& a, const SARAveragingRequest& b) { return sarAveraging.areEqual(a, b); }

}  // namespace quarn
