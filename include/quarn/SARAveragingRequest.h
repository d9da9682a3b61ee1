#pragma once

#include <QString>
#include <array>
#include <cstdint>
#include <utility>
#include <vector>

#include "quarn/Description.h"
#include "quarn/Export.h"

namespace quarn {

class DelimManager;

/// A request to average the specific absorption rate (SAR) over masses of 1 g and 10 g in a region of the grid, and to
/// save planes of the averages.
class QUARN_EXPORT SARAveragingRequest {
public:
    /// The bounds are grid indices. The cutoff, in decibels, belongs to the automatic subregion.
    SARAveragingRequest(bool compute1gAverage, bool compute10gAverage, bool treatDataOutsideAsAir, unsigned int xLower,
                        unsigned int yLower, unsigned int zLower, unsigned int xUpper, unsigned int yUpper,
                        unsigned int zUpper, bool useAutomaticSubregion, float subregionCutoff,
                        std::vector<std::uint8_t> materialsToUse, bool save1gXYPlanes, bool save1gZXPlanes,
                        bool save1gYZPlanes, bool save10gXYPlanes, bool save10gZXPlanes, bool save10gYZPlanes,
                        const QString& outputAveragedFileName);

    /// Reads the rest of the "SARAveraging" block at the reader's position. What the block leaves out is false or 0,
    /// and the output file is "project". Inner blocks are not recognised.
    explicit SARAveragingRequest(DelimManager& delim);

    /// Writes the block. The cutoff is written only with the automatic subregion. Returns whether the stream has no
    /// error.
    bool streamOut(DelimManager& delim) const;

    bool compute1gAverage() const { return m_compute1gAverage; }
    bool compute10gAverage() const { return m_compute10gAverage; }
    bool treatDataOutsideAsAir() const { return m_treatDataOutsideAsAir; }
    bool useAutomaticSubregion() const { return m_useAutomaticSubregion; }
    float getSubregionCutoff() const { return m_subregionCutoff; }

    std::uint32_t getXLowerBound() const { return m_lowerBound[0]; }
    std::uint32_t getYLowerBound() const { return m_lowerBound[1]; }
    std::uint32_t getZLowerBound() const { return m_lowerBound[2]; }
    std::uint32_t getXUpperBound() const { return m_upperBound[0]; }
    std::uint32_t getYUpperBound() const { return m_upperBound[1]; }
    std::uint32_t getZUpperBound() const { return m_upperBound[2]; }

    /// Numbers of materials; numbers in a file are taken modulo 256.
    const std::vector<std::uint8_t>& getMaterialsToUse() const { return m_materialsToUse; }
    void setMaterialsToUse(std::vector<std::uint8_t> materials) { m_materialsToUse = std::move(materials); }

    bool save1gXYPlanes() const { return m_save1gXYPlanes; }
    bool save1gZXPlanes() const { return m_save1gZXPlanes; }
    bool save1gYZPlanes() const { return m_save1gYZPlanes; }
    bool save10gXYPlanes() const { return m_save10gXYPlanes; }
    bool save10gZXPlanes() const { return m_save10gZXPlanes; }
    bool save10gYZPlanes() const { return m_save10gYZPlanes; }

    const QString& getOutputAveragedFileName() const { return m_outputAveragedFileName; }

    QUARN_EXPORT friend bool operator==(const SARAveragingRequest& a, const SARAveragingRequest& b);
    friend bool operator!=(const SARAveragingRequest& a, const SARAveragingRequest& b) { return !(a == b); }

private:
    friend struct blocktext::Description<SARAveragingRequest>;

    bool m_compute1gAverage = false;
    bool m_compute10gAverage = false;
    bool m_treatDataOutsideAsAir = false;
    bool m_useAutomaticSubregion = false;
    float m_subregionCutoff = 0.0F;
    std::array<std::uint32_t, 3> m_lowerBound{};
    std::array<std::uint32_t, 3> m_upperBound{};
    std::vector<std::uint8_t> m_materialsToUse;
    bool m_save1gXYPlanes = false;
    bool m_save1gZXPlanes = false;
    bool m_save1gYZPlanes = false;
    bool m_save10gXYPlanes = false;
    bool m_save10gZXPlanes = false;
    bool m_save10gYZPlanes = false;
    QString m_outputAveragedFileName;
};

}  // namespace quarn
