#include "files/PatternFile.h"

#include <QSet>
#include <QTextCodec>
#include <QTextStream>
#include <algorithm>
#include <cmath>

#include "Console.h"
#include "Quantity.h"

namespace quarn::tool {

namespace {

constexpr int kibibyte = 1 << 10;
constexpr int longestHeader = 64 * kibibyte;
constexpr int sizeLimit = 64 * kibibyte * kibibyte;
constexpr std::size_t cutLimit = 100000;
constexpr double megahertz = 1e6;
constexpr int quotedLength = 60;

const QLatin1String cutKeyword("PATCUT");
const QLatin1String countKeyword("NUPOIN");
const QLatin1String rangeKeyword("FSTLST");
const QLatin1String endKeyword("ENDFIL");
const QLatin1String frequencyKeyword("PATFRE");
const QLatin1String cutKeywords[] = {cutKeyword, QLatin1String("POLARI"), countKeyword, rangeKeyword};

const QString separator = text(":,");
const QString anyRange = text("0,0");  // the samples do not depend on it

const QString countProblem = text("the number of samples is not a whole number of 0 or more");
const QString rangeProblem = text("the first and the last angle are not two numbers");
const QString sampleProblem = text("the sample is not an angle and a gain, two numbers with a comma between them");
const QString continuationProblem = text("samples continue after a keyword that does not belong in a cut");

QString decoded(const QByteArray& content) {
    return QTextCodec::codecForUtfText(content, QTextCodec::codecForName("UTF-8"))->toUnicode(content);
}

bool belongsToACut(const QString& keyword) {
    return std::find(std::begin(cutKeywords), std::end(cutKeywords), keyword) != std::end(cutKeywords);
}

std::optional<double> frequencyFrom(const QString& value) {
    const double number = value.toDouble();
    return number > 0.0 ? std::make_optional(number * megahertz) : std::nullopt;
}

/// Why NSMACutPlane stops at a keyword.
QString refusalReason(const QString& line) {
    QString keyword, value;
    NSMACutPlane::ProcessLine(line, keyword, value, separator);
    if (keyword == endKeyword) return text("the end marker is not EOF");
    return belongsToACut(keyword) ? text("the polarizations are not two of V, H, LCP and RCP with a slash between them")
                                  : text("the keyword does not belong in a cut");
}

bool isAngle(const QString& word) { return isNumber(word) && std::isfinite(word.toFloat()); }

bool splitAtComma(const QString& line, QString& first, QString& rest) {
    return NSMACutPlane::ProcessLine(line, first, rest, ",");
}

bool isRange(const QString& value) {
    QString first, last;
    return splitAtComma(value, first, last) && isAngle(first) && isAngle(last);
}

/// The sample in a line as NSMACutPlane reads it.
NSMACutPlane::Samples sampleFrom(const QString& line) {
    QString cut = countKeyword + separator + "1\n" + rangeKeyword + separator + anyRange + u'\n' + line;
    QTextStream stream(&cut, QIODevice::ReadOnly);
    NSMACutPlane plane;
    plane.StreamIn(stream, 0.0F, NSMACutPlane::Decibels);
    return plane.GetSamples();
}

bool isSameGain(double first, double second) { return first == second || (std::isnan(first) && std::isnan(second)); }

/// One cut, collected line by line. Ensures what NSMACutPlane relies on: the number of samples and their range are
/// given, in this order and before the samples, and all of these are numbers.
class CutReader {
public:
    CutReader(int line, const std::optional<double>& frequency) {
        m_cut.line = line;
        m_cut.frequency = frequency;
    }

    bool endsBefore(const QString& keyword) const {
        if (!belongsToACut(keyword)) return false;
        return m_hasSamples || (m_keywords.contains(keyword) && (m_cut.hasRange || keyword == cutKeyword));
    }

    void addKeyword(int number, const QString& keyword, const QString& value) {
        m_keywords << keyword;
        const QString line = keyword + separator + value;
        if (!belongsToACut(keyword)) {
            if (!m_foreign) m_foreign = Line{number, line};
            if (m_cut.hasRange || m_hasSamples) return;
        }
        if (keyword == countKeyword) {
            setCount(number, line, value);
        } else if (keyword == rangeKeyword) {
            m_cut.hasRange = true;
            m_range = value;
            if (!isRange(value)) refuse(number, line, rangeProblem);
        } else {
            if (keyword == cutKeyword) m_cut.planeText = value;
            m_header << line;
            m_headerNumbers.push_back(number);
        }
    }

    void addOther(int number, const QString& line) {
        if (line.isEmpty()) return;
        QString angle, values, gain, second;
        const bool hasSecond = splitAtComma(line, angle, values) && splitAtComma(values, gain, second);
        const bool isSample = isAngle(angle) && isNumber(hasSecond ? gain : values);
        if (!isSample && (m_foreign || (!m_cut.hasRange && !m_hasSamples))) return;
        m_hasSamples = true;
        if (m_foreign) {
            refuse(m_foreign->number, m_foreign->text, continuationProblem);
        } else if (m_cut.hasCount && m_samples.size() >= m_count) {
            m_cut.leftOutLines += line.contains(u',') ? 1 : 0;
        } else if (!isSample) {
            refuse(number, line, sampleProblem);
        } else if (!m_cut.refusal) {
            m_cut.completedLines += hasSecond ? 0 : 1;
            m_samples << (hasSecond ? line : line + u',');
        }
    }

    PatternCut read() {
        if (!m_cut.hasCount) m_count = m_samples.size();
        QString text = countKeyword + separator + QString::number(m_count) + u'\n';
        for (const QString& line : m_header) text += line + u'\n';
        if (!m_cut.refusal || !m_samples.empty()) {
            text += rangeKeyword + separator + m_range + u'\n' + m_samples.join(u'\n');
        }
        QTextStream stream(&text, QIODevice::ReadOnly);
        if (!m_cut.plane.StreamIn(stream, 0.0F, NSMACutPlane::Decibels)) {
            const int index = text.leftRef(static_cast<int>(stream.pos()) - 1).count(u'\n') - 1;
            m_cut.refusal.reset();  // it is further down
            refuse(m_headerNumbers[static_cast<std::size_t>(index)], m_header[index], refusalReason(m_header[index]));
        }
        countCoincidingSamples();
        m_cut.missingSamples = std::max(m_count - m_samples.size(), 0);
        return std::move(m_cut);
    }

private:
    struct Line {
        int number;
        QString text;
    };

    /// NSMACutPlane keeps the first sample at an angle.
    void countCoincidingSamples() {
        const auto& kept = m_cut.plane.GetSamples();
        if (static_cast<std::size_t>(m_samples.size()) == kept.size()) return;
        for (const QString& line : m_samples) {
            for (const auto& [angle, values] : sampleFrom(line)) {
                const auto first = kept.find(angle);
                if (first == kept.end() || isSameGain(first->second.first, values.first)) continue;
                ++m_cut.coincidingSamples;
            }
        }
    }

    void setCount(int number, const QString& line, const QString& value) {
        bool isInteger = false;
        m_cut.hasCount = true;
        m_count = value.toInt(&isInteger);
        if (!isInteger || m_count < 0) refuse(number, line, countProblem);
    }

    void refuse(int number, const QString& line, const QString& reason) {
        if (m_cut.refusal) return;
        m_cut.refusal = PatternCut::Refusal{number, text("\"%1\": %2").arg(line.left(quotedLength), reason)};
    }

    PatternCut m_cut;
    QSet<QString> m_keywords;
    QStringList m_header;  ///< lines with keywords other than NUPOIN and FSTLST
    std::vector<int> m_headerNumbers;
    QStringList m_samples;          ///< up to a refusal
    std::optional<Line> m_foreign;  ///< the first keyword that does not belong in a cut
    bool m_hasSamples = false;
    int m_count = 0;
    QString m_range = anyRange;
};

/// Takes a file line by line and divides it into cuts.
class CutCollector {
public:
    void addKeyword(int line, const QString& keyword, const QString& value) {
        if (m_open && m_open->endsBefore(keyword)) closeCut();
        if (!m_open && belongsToACut(keyword)) m_open.emplace(line, m_frequency);
        if (m_open) m_open->addKeyword(line, keyword, value);
        if (keyword == frequencyKeyword) m_frequency = frequencyFrom(value);
    }

    void addOther(int number, const QString& line) {
        if (m_open) m_open->addOther(number, line);
    }

    void closeCut() {
        if (m_open) m_cuts.push_back(m_open->read());
        m_open.reset();
    }

    std::vector<PatternCut>& cuts() { return m_cuts; }

private:
    std::vector<PatternCut> m_cuts;
    std::optional<CutReader> m_open;
    std::optional<double> m_frequency;
};

}  // namespace

bool isPatternFile(const QByteArray& content) {
    const QString beginning = decoded(content.left(longestHeader));
    return std::any_of(std::begin(cutKeywords), std::end(cutKeywords), [&](QLatin1String keyword) {
        return beginning.contains(keyword + separator);
    });
}

std::vector<PatternCut> readPatternFile(const QString& path, const QByteArray& content) {
    if (content.size() > sizeLimit) {
        throw FileProblem(path, "larger than the 64 MiB that an antenna pattern may have");
    }
    QString decodedContent = decoded(content);
    QTextStream lines(&decodedContent, QIODevice::ReadOnly);
    CutCollector collector;
    QString line, keyword, value;
    for (int number = 1; lines.readLineInto(&line); ++number) {
        // A comment begins at the first mark; NSMACutPlane would take the last one.
        line = line.left(line.indexOf(u'!')).trimmed();
        if (NSMACutPlane::ProcessLine(line, keyword, value, separator)) {
            collector.addKeyword(number, keyword.trimmed(), value.trimmed());
        } else {
            collector.addOther(number, line);
        }
        if (collector.cuts().size() <= cutLimit) continue;
        throw FileProblem(path, text("has more than the %1 cuts that can be read").arg(cutLimit));
    }
    collector.closeCut();
    return std::move(collector.cuts());
}

}  // namespace quarn::tool
