#pragma once

#include <QString>
#include <cstdint>
#include <map>
#include <utility>

#include "quarn/Export.h"

class QTextStream;

namespace quarn {

/// One cut plane of an antenna pattern: gains by angle, read from an NSMA text file.
///
/// Such a file is a sequence of lines "KEYWORD:,value", in which the keywords PATCUT, POLARI, NUPOIN and FSTLST
/// introduce a cut and one line "angle,gain,second value" for each of its points follows. Angles are in degrees, gains
/// in memory are converted by the gain mode of the read, usually to power ratios.
class QUARN_EXPORT NSMACutPlane {
public:
    enum PatternCut : std::int32_t {
        Vertical = 0,
        Horizontal = 1,
        Azimuth = 3,
        Elevation = 4,
        AtTAngle = 5,  ///< at a "T" angle
        AtPAngle = 6,  ///< at a "P" angle or one without a letter
    };

    enum Polarization : std::int32_t {
        NoPolarization = -1,
        V = 0,
        H = 1,
        LCP = 2,
        RCP = 3,
    };

    /// How a gain g in a file is converted. The reference level is in decibels.
    enum GainMode : std::int32_t {
        DecibelsToReference = 0,        ///< becomes 10^((g - reference) / 10)
        DipoleDecibelsToReference = 1,  ///< likewise, raised by the half-wave dipole's gain of 1.64
        Decibels = 2,                   ///< becomes 10^(g / 10)
        AsRead = 3,                     ///< stays g, as with every other number
    };

    /// The gain and the second value of a line, by the angle in [0, 360).
    using Samples = std::map<float, std::pair<double, double>>;

    /// Splits a line at the first `separator` into what stands before and after it. First one carriage return, one line
    /// feed, the comment that starts at the last "!", and then the surrounding white space are removed from the line.
    /// Without a separator the result is false and neither `key` nor `value` changes.
    static bool ProcessLine(const QString& line, QString& key, QString& value, const QString& separator);

    /// Reads one cut from a stream positioned at its first keyword, and leaves the stream after the cut's last point.
    /// Lines without a keyword are skipped; the end of the stream ends the cut.
    ///
    /// False is returned, and nothing more read, at the first keyword that does not belong in a cut, at an end marker
    /// other than "ENDFIL:,EOF", at unknown polarizations, at polarizations or a range of angles without their
    /// separator, and at a sample without a comma behind its gain, which is kept with gain 0. What was read until then
    /// stays.
    ///
    /// Numbers that cannot be read are 0. A line among the samples without a comma, or whose angle is not finite, is
    /// one of the points but adds no sample; of two samples at one angle the first is kept. Use a new object for each
    /// cut: samples add to those that the object has.
    bool StreamIn(QTextStream& stream, const float referenceLevel, const int gainMode);

    /// Gives the gain of the sample at exactly this angle, in degrees and in any turn; there is no interpolation.
    /// Without such a sample the result is false and `gain` does not change.
    bool GetGainAtAngle(const float angle, double& gain) const;

    /// Whether the gains, taken as power ratios, lie within 3 dB. Never true for a cut without samples or with a gain
    /// that is 0, negative or not a number.
    bool IsOmni() const;

    PatternCut GetPatternCut() const { return m_patternCut; }
    /// In degrees; only cuts at a T or P angle have one.
    float GetPatternCutAngle() const { return m_patternCutAngle; }

    Polarization GetFirstPolarization() const { return m_firstPolarization; }
    Polarization GetSecondPolarization() const { return m_secondPolarization; }

    /// As announced in the file; the samples may be fewer.
    std::int32_t GetNumberOfPoints() const { return m_numberOfPoints; }

    float GetAngleStart() const { return m_angleStart; }
    float GetAngleStop() const { return m_angleStop; }
    /// Never negative. With three points or more and a negative start, the range counts as one degree wider than it is.
    float GetAngleIncrement() const { return m_angleIncrement; }

    const Samples& GetSamples() const { return m_samples; }

private:
    void setPatternCut(const QString& value);
    bool setPolarizations(const QString& value);
    bool setAngleRange(const QString& value);
    bool readSamples(QTextStream& stream, float referenceLevel, int gainMode);
    bool addSample(const QString& line, float referenceLevel, int gainMode);

    std::int32_t m_numberOfPoints = 0;
    PatternCut m_patternCut = Azimuth;
    Polarization m_firstPolarization = NoPolarization;
    Polarization m_secondPolarization = NoPolarization;
    float m_angleStart = 0.0F;
    float m_angleStop = 359.0F;
    float m_angleIncrement = 1.0F;
    float m_patternCutAngle = 0.0F;
    Samples m_samples;
};

}  // namespace quarn
