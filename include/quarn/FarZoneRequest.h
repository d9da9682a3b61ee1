#pragma once

#include <QString>
#include <tuple>
#include <utility>
#include <vector>

#include "quarn/Description.h"
#include "quarn/Export.h"

namespace quarn {

class DelimManager;

/// The directions in which the engine is to record far-zone fields, and the file that receives them.
class QUARN_EXPORT FarZoneRequest {
public:
    /// A direction in radians.
    struct Angle {
        float theta = 0.0F;  ///< from the z axis
        float phi = 0.0F;    ///< azimuth, from the x axis towards the y axis

        Angle() = default;
        Angle(float theta_, float phi_) : theta(theta_), phi(phi_) {}

        friend bool operator==(const Angle& a, const Angle& b) { return a.theta == b.theta && a.phi == b.phi; }
        friend bool operator!=(const Angle& a, const Angle& b) { return !(a == b); }
    };

    FarZoneRequest() = default;
    FarZoneRequest(std::vector<Angle> angles, const QString& outputFileName)
        : m_angles(std::move(angles)), m_outputFileName(outputFileName) {}

    const std::vector<Angle>& getAngles() const { return m_angles; }

    /// The direction (0, 0) where the request has no angle with that index.
    Angle getAngle(unsigned int index) const { return index < m_angles.size() ? m_angles[index] : Angle(); }

    const QString& getOutputFileName() const { return m_outputFileName; }

    /// The output name with its last three characters replaced by ".uan" or ".cpuan"; a name of fewer than four
    /// characters stays as it is. Made for extensions of two letters: "a.far" becomes "a..uan".
    QString getUANOutputFileName() const;
    QString getCircularPolarizedUANOutputFileName() const;

    /// Replaces this request by the rest of the block at the reader's position. Unknown words are skipped one by one; a
    /// missing number is zero and ends the reading. Returns whether the stream has no error.
    bool StreamIn(DelimManager& delim);

    /// Writes the lines of the request without a block around them. Returns whether the stream has no error.
    bool StreamOut(DelimManager& delim) const;

    friend bool operator==(const FarZoneRequest& a, const FarZoneRequest& b) {
        return std::tie(a.m_angles, a.m_outputFileName) == std::tie(b.m_angles, b.m_outputFileName);
    }
    friend bool operator!=(const FarZoneRequest& a, const FarZoneRequest& b) { return !(a == b); }

private:
    friend struct blocktext::Description<FarZoneRequest>;

    std::vector<Angle> m_angles;
    QString m_outputFileName;
};

}  // namespace quarn
