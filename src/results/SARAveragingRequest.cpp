#include "quarn/SARAveragingRequest.h"

#include <tuple>

#include "blocktext/BlockWalker.h"
#include "blocktext/BlockWriter.h"
#include "results/BoundLines.h"

namespace quarn {

using namespace blocktext;

namespace {

namespace key {
constexpr auto SARAveraging = "SARAveraging"_key;
constexpr auto average_one_gram = "average_one_gram"_key;
constexpr auto average_ten_grams = "average_ten_grams"_key;
constexpr auto automatic_subregion = "automatic_subregion"_key;
constexpr auto automatic_subregion_cutoff_in_db = "automatic_subregion_cutoff_in_db"_key;
constexpr auto save_ten_gram_x_slices = "save_ten_gram_x_slices"_key;
constexpr auto save_ten_gram_y_slices = "save_ten_gram_y_slices"_key;
constexpr auto save_ten_gram_z_slices = "save_ten_gram_z_slices"_key;
constexpr auto save_one_gram_x_slices = "save_one_gram_x_slices"_key;
constexpr auto save_one_gram_y_slices = "save_one_gram_y_slices"_key;
constexpr auto save_one_gram_z_slices = "save_one_gram_z_slices"_key;
constexpr auto outside_region_treated_as_air = "outside_region_treated_as_air"_key;
constexpr auto materials_to_use = "materials_to_use"_key;
constexpr auto outputAveragedFileName = "outputAveragedFileName"_key;
}  // namespace key

void writeMaterials(DelimManager& delim, const std::vector<std::uint8_t>& materials) {
    if (materials.empty()) return;
    QTextStream& out = delim.GetStream();
    out << key::materials_to_use << ' ' << materials.size();
    for (const std::uint8_t material : materials) out << ' ' << unsigned{material};
    out << '\n';
}

void readMaterials(QTextStream& in, std::vector<std::uint8_t>& materials) {
    readCounted(in, [&materials](QTextStream& from) {
        unsigned material = 0;
        const bool isRead = readValue(from, material);
        if (isRead) materials.push_back(static_cast<std::uint8_t>(material));
        return isRead;
    });
}

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

// Planes are named by their normal here.
bool SARAveragingRequest::streamOut(DelimManager& delim) const {
    WrittenBlock block(delim, key::SARAveraging);
    putFlag(delim, key::average_one_gram, m_compute1gAverage);
    putFlag(delim, key::average_ten_grams, m_compute10gAverage);
    putFlag(delim, key::automatic_subregion, m_useAutomaticSubregion);
    if (m_useAutomaticSubregion) putLine(delim, key::automatic_subregion_cutoff_in_db, m_subregionCutoff);
    putBounds(delim, m_lowerBound, m_upperBound);
    putFlag(delim, key::save_ten_gram_x_slices, m_save10gYZPlanes);
    putFlag(delim, key::save_ten_gram_y_slices, m_save10gZXPlanes);
    putFlag(delim, key::save_ten_gram_z_slices, m_save10gXYPlanes);
    putFlag(delim, key::save_one_gram_x_slices, m_save1gYZPlanes);
    putFlag(delim, key::save_one_gram_y_slices, m_save1gZXPlanes);
    putFlag(delim, key::save_one_gram_z_slices, m_save1gXYPlanes);
    putFlag(delim, key::outside_region_treated_as_air, m_treatDataOutsideAsAir);
    writeMaterials(delim, m_materialsToUse);
    putLine(delim, key::outputAveragedFileName, m_outputAveragedFileName);
    return block.end();
}

SARAveragingRequest::SARAveragingRequest(DelimManager& delim) : m_outputAveragedFileName(QStringLiteral("project")) {
    walkWords(delim,
              Unknown::DropLine,
              onFlag(key::average_one_gram, m_compute1gAverage),
              onFlag(key::average_ten_grams, m_compute10gAverage),
              onFlag(key::automatic_subregion, m_useAutomaticSubregion),
              onValue(key::automatic_subregion_cutoff_in_db, m_subregionCutoff),
              onBound(lowerBoundKey, m_lowerBound),
              onBound(upperBoundKey, m_upperBound),
              onFlag(key::save_ten_gram_x_slices, m_save10gYZPlanes),
              onFlag(key::save_ten_gram_y_slices, m_save10gZXPlanes),
              onFlag(key::save_ten_gram_z_slices, m_save10gXYPlanes),
              onFlag(key::save_one_gram_x_slices, m_save1gYZPlanes),
              onFlag(key::save_one_gram_y_slices, m_save1gZXPlanes),
              onFlag(key::save_one_gram_z_slices, m_save1gXYPlanes),
              onFlag(key::outside_region_treated_as_air, m_treatDataOutsideAsAir),
              onWord(key::materials_to_use, [this](QTextStream& in) { readMaterials(in, m_materialsToUse); }),
              onText(key::outputAveragedFileName, m_outputAveragedFileName));
}

bool operator==(const SARAveragingRequest& a, const SARAveragingRequest& b) {
    const auto members = [](const SARAveragingRequest& r) {
        return std::tie(r.m_compute1gAverage,
                        r.m_compute10gAverage,
                        r.m_treatDataOutsideAsAir,
                        r.m_useAutomaticSubregion,
                        r.m_subregionCutoff,
                        r.m_lowerBound,
                        r.m_upperBound,
                        r.m_materialsToUse,
                        r.m_save1gXYPlanes,
                        r.m_save1gZXPlanes,
                        r.m_save1gYZPlanes,
                        r.m_save10gXYPlanes,
                        r.m_save10gZXPlanes,
                        r.m_save10gYZPlanes,
                        r.m_outputAveragedFileName);
    };
    return members(a) == members(b);
}

}  // namespace quarn
