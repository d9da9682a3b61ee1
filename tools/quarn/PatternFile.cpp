#include "PatternFile.h"

#include <QTextCodec>
#include <QTextStream>
#include <algorithm>

#include "Console.h"

namespace quarn::tool {

namespace {

constexpr int kibibyte = 1 << 10;
constexpr int longestHeader = 64 * kibibyte;
constexpr int sizeLimit = 64 * kibibyte * kibibyte;
constexpr std::size_t cutLimit = 100000;
constexpr double megahertz = 1e6;
constexpr int quotedLength = 60;

const QLatin1String cutKeyword("PATCUT");
const QLatin1String rangeKeyword("FSTLST");
const QLatin1String endKeyword("ENDFIL");
const QLatin1String frequencyKeyword("PATFRE");
const QLatin1String cutKeywords[] = {cutKeyword, QLatin1String("POLARI"), QLatin1String("NUPOIN"), rangeKeyword};

const QString separator = QStringLiteral(":,");
const QString comma = QStringLiteral(",");

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

/// Why the reader of cuts stops at a line. PATCUT and NUPOIN take any value, so that they are not among the reasons.
QString refusalReason(const QString& line) {
    QString keyword, value;
    if (!NSMACutPlane::ProcessLine(line, keyword, value, separator)) return QStringLiteral("the sample has no gain");
    if (keyword == rangeKeyword) return QStringLiteral("there is no comma between the first and the last angle");
    if (keyword == endKeyword) return QStringLiteral("the end marker is not EOF");
    return belongsToACut(keyword)
               ? QStringLiteral("the polarizations are not two of V, H, LCP and RCP with a slash between them")
               : QStringLiteral("the keyword is none of a cut");
}

/// The lines of one cut, collected as the reader of cuts takes them: one for each line of the file.
class CutText {
public:
    CutText(int line, const std::optional<double>& frequency) {
        m_cut.line = line;
        m_cut.frequency = frequency;
    }

    bool hasRange() const { return m_hasRange; }

    void addKeyword(const QString& keyword, const QString& value) {
        m_hasRange = keyword == rangeKeyword;
        addLine(keyword + separator + value);
    }

    void addOther(const QString& line) {
        QString angle, values, gain, second;
        const bool lacksSecond = m_hasRange && NSMACutPlane::ProcessLine(line, angle, values, comma) &&
                                 !values.isEmpty() && !NSMACutPlane::ProcessLine(values, gain, second, comma);
        if (lacksSecond) ++m_cut.completedLines;
        addLine(lacksSecond ? angle + comma + values + comma : line);
    }

    PatternCut read() {
        QTextStream stream(&m_text, QIODevice::ReadOnly);
        const bool wasRead = m_cut.plane.StreamIn(stream, 0.0F, NSMACutPlane::Decibels);
        const auto end = static_cast<int>(stream.pos());
        if (!wasRead) refuseAtLineBefore(end);
        QString line;
        while (wasRead && stream.readLineInto(&line)) m_cut.leftOutLines += line.contains(u',') ? 1 : 0;
        return std::move(m_cut);
    }

private:
    void addLine(const QString& line) {
        m_text += line;
        m_text += u'\n';
    }

    void refuseAtLineBefore(int end) {
        const QString read = m_text.left(end - 1);
        const QString line = read.mid(read.lastIndexOf(u'\n') + 1);
        m_cut.refusal =
            PatternCut::Refusal{m_cut.line + read.count(u'\n'),
                                QStringLiteral("\"%1\": %2").arg(line.left(quotedLength), refusalReason(line))};
    }

    PatternCut m_cut;
    QString m_text;
    bool m_hasRange = false;
};

/// Takes a file line by line and finds where its cuts start and end.
class CutCollector {
public:
    void addKeyword(int line, const QString& keyword, const QString& value) {
        if (m_open && (m_open->hasRange() || keyword == cutKeyword)) closeCut();
        if (!m_open && belongsToACut(keyword)) m_open.emplace(line, m_frequency);
        if (m_open) {
            m_open->addKeyword(keyword, value);
        } else if (keyword == frequencyKeyword) {
            m_frequency = frequencyFrom(value);
        }
    }

    void addOther(const QString& line) {
        if (m_open) m_open->addOther(line);
    }

    void closeCut() {
        if (m_open) m_cuts.push_back(m_open->read());
        m_open.reset();
    }

    std::vector<PatternCut>& cuts() { return m_cuts; }

private:
    std::vector<PatternCut> m_cuts;
    std::optional<CutText> m_open;
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
    if (content.size() > sizeLimit) throw FileProblem(path, QStringLiteral("larger than any antenna pattern"));
    QString text = decoded(content);
    QTextStream lines(&text, QIODevice::ReadOnly);
    CutCollector collector;
    QString line, keyword, value;
    for (int number = 1; lines.readLineInto(&line); ++number) {
        // For people a comment begins at the first mark, for the reader of cuts at the last.
        line = line.left(line.indexOf(u'!')).trimmed();
        if (NSMACutPlane::ProcessLine(line, keyword, value, separator)) {
            collector.addKeyword(number, keyword.trimmed(), value.trimmed());
        } else {
            collector.addOther(line);
        }
        if (collector.cuts().size() > cutLimit) throw FileProblem(path, QStringLiteral("more cuts than any pattern"));
    }
    collector.closeCut();
    return std::move(collector.cuts());
}

}  // namespace quarn::tool
