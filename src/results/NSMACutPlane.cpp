#include "quarn/NSMACutPlane.h"

#include <QTextStream>
#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

#include "blocktext/BlockWalker.h"
#include "blocktext/NameTable.h"

namespace quarn {

using namespace blocktext;

namespace {

constexpr float fullTurn = 360.0F;
constexpr float omniSpread = 3.0F;  // dB
const double halfWaveDipoleGain = 10.0 * std::log10(1.64);

bool splitAtComma(const QString& text, QString& first, QString& rest) {
    return NSMACutPlane::ProcessLine(text, first, rest, QStringLiteral(","));
}

// The angle in [0, 360). The remainder is exact, like repeated subtraction of 360, but as fast for 1e30 as for 400.
std::optional<float> wrapped(float angle) {
    if (!std::isfinite(angle)) return std::nullopt;
    float result = std::fmod(angle, fullTurn);
    if (result < 0.0F) result += fullTurn;
    if (result == fullTurn) result = 0.0F;  // rounded up from just below 0
    return result + 0.0F;                   // turns -0 into 0
}

constexpr NameTable<NSMACutPlane::PatternCut, 4> cutNames{{
    {NSMACutPlane::Vertical, "V"_key},
    {NSMACutPlane::Horizontal, "H"_key},
    {NSMACutPlane::Azimuth, "AZ"_key},
    {NSMACutPlane::Elevation, "EL"_key},
}};

constexpr NameTable<NSMACutPlane::Polarization, 4> polarizationNames{{
    {NSMACutPlane::V, "V"_key},
    {NSMACutPlane::H, "H"_key},
    {NSMACutPlane::LCP, "LCP"_key},
    {NSMACutPlane::RCP, "RCP"_key},
}};

bool readPolarization(const QString& word, NSMACutPlane::Polarization& polarization) {
    const auto named = valueOf(polarizationNames, word, NSMACutPlane::NoPolarization);
    if (named == NSMACutPlane::NoPolarization) return false;
    polarization = named;
    return true;
}

double ratioFromDecibels(double decibels) { return std::pow(10.0, decibels / 10.0); }

double convertedGain(double gain, float referenceLevel, int gainMode) {
    const auto reference = static_cast<double>(referenceLevel);
    switch (gainMode) {
        case NSMACutPlane::DecibelsToReference:
            return ratioFromDecibels(gain - reference);
        case NSMACutPlane::DipoleDecibelsToReference:
            return ratioFromDecibels(gain - reference + halfWaveDipoleGain);
        case NSMACutPlane::Decibels:
            return ratioFromDecibels(gain);
        default:
            return gain;
    }
}

}  // namespace

bool NSMACutPlane::ProcessLine(const QString& line, QString& key, QString& value, const QString& separator) {
    QString text = line;
    for (const QChar lineEnd : {QChar(QChar::CarriageReturn), QChar(QChar::LineFeed)}) {
        const int position = text.indexOf(lineEnd);
        if (position >= 0) text.remove(position, 1);
    }
    const int comment = text.lastIndexOf(u'!');
    if (comment >= 0) text.truncate(comment);
    text = text.trimmed();
    const int position = text.indexOf(separator);
    if (position < 0) return false;
    value = text.mid(position + separator.size());
    key = text.left(position);
    return true;
}

bool NSMACutPlane::StreamIn(QTextStream& stream, const float referenceLevel, const int gainMode) {
    QString line, key, value;
    while (stream.readLineInto(&line)) {
        if (!ProcessLine(line, key, value, QStringLiteral(":,"))) continue;
        if (key == "PATCUT"_key) {
            setPatternCut(value);
        } else if (key == "POLARI"_key) {
            if (!setPolarizations(value)) return false;
        } else if (key == "NUPOIN"_key) {
            m_numberOfPoints = value.toInt();
        } else if (key == "FSTLST"_key) {
            return setAngleRange(value) && readSamples(stream, referenceLevel, gainMode);
        } else {
            return key == "ENDFIL"_key && value == "EOF"_key;
        }
    }
    return true;
}

void NSMACutPlane::setPatternCut(const QString& value) {
    const bool atT = value.startsWith(u'T');
    m_patternCut = valueOf(cutNames, value, atT ? AtTAngle : AtPAngle);
    if (m_patternCut != AtTAngle && m_patternCut != AtPAngle) return;
    const bool hasLetter = atT || value.startsWith(u'P');
    m_patternCutAngle = value.midRef(hasLetter ? 1 : 0).toFloat();
}

bool NSMACutPlane::setPolarizations(const QString& value) {
    QString first, second;
    return ProcessLine(value, first, second, QStringLiteral("/")) && readPolarization(first, m_firstPolarization) &&
           readPolarization(second, m_secondPolarization);
}

bool NSMACutPlane::setAngleRange(const QString& value) {
    QString start, stop;
    if (!splitAtComma(value, start, stop)) return false;
    m_angleStart = start.toFloat();
    m_angleStop = stop.toFloat();
    m_angleIncrement = std::abs(m_angleStop - m_angleStart);
    if (m_numberOfPoints >= 3) {
        // By convention a range with a negative start is taken as one degree wider than it is.
        const float width = m_angleStop - m_angleStart + (m_angleStart < 0.0F ? 1.0F : 0.0F);
        m_angleIncrement = std::abs(width / static_cast<float>(m_numberOfPoints - 1));
    }
    return true;
}

bool NSMACutPlane::readSamples(QTextStream& stream, float referenceLevel, int gainMode) {
    QString line;
    for (std::int32_t point = 0; point < m_numberOfPoints && stream.readLineInto(&line); ++point) {
        if (!addSample(line, referenceLevel, gainMode)) return false;
    }
    return true;
}

bool NSMACutPlane::addSample(const QString& line, float referenceLevel, int gainMode) {
    QString angleText, values, gainText, secondText;
    if (!splitAtComma(line, angleText, values)) return true;
    const bool hasGain = splitAtComma(values, gainText, secondText);
    const double gain = hasGain ? convertedGain(gainText.toDouble(), referenceLevel, gainMode) : 0.0;
    if (const auto angle = wrapped(angleText.toFloat())) {
        m_samples.emplace(*angle, std::make_pair(gain, secondText.toDouble()));
    }
    return hasGain;
}

bool NSMACutPlane::GetGainAtAngle(const float angle, double& gain) const {
    const auto key = wrapped(angle);
    const auto sample = key ? m_samples.find(*key) : m_samples.end();
    if (sample == m_samples.end()) return false;
    gain = sample->second.first;
    return true;
}

bool NSMACutPlane::IsOmni() const {
    if (m_samples.empty()) return false;
    float largest = -std::numeric_limits<float>::infinity();
    float smallest = std::numeric_limits<float>::infinity();
    for (const auto& [angle, values] : m_samples) {
        const auto gain = static_cast<float>(values.first);
        if (std::isnan(gain)) return false;
        largest = std::max(largest, gain);
        smallest = std::min(smallest, gain);
    }
    if (smallest == 0.0F) return false;
    return std::abs(10.0F * std::log10(largest) - 10.0F * std::log10(smallest)) < omniSpread;
}

}  // namespace quarn
