#include <QTextCodec>

#include "tool/ToolFixture.h"

namespace quarn::test {
namespace {

// The first cut stands in line 3. As its gains are in decibels, 0 and -2 at most make it omnidirectional.
const QString pattern =
    "REVNUM:,NSMA WG16.99.050\nPATFRE:,2450\n"
    "PATCUT:,H\nPOLARI:,V/H\nNUPOIN:,3\nFSTLST:,-90,90\n-90,-2,5\n0,0,\n90,-1.5,\n"
    "PATFRE:,5800\n"
    "PATCUT:,T30\nPOLARI:,LCP/LCP\nNUPOIN:,2\nFSTLST:,0,180\n0,12.25,\n180,-40,\n"
    "ENDFIL:,EOF\n";

const QString firstCut =
    "  Cut 1              horizontal, line 3, 2.45 GHz\n"
    "    Polarizations    V/H\n"
    "    Points           3 from -90° to 90°, increment 90.5°\n"
    "    Samples          3\n"
    "    Largest gain     0 dB at 0°\n"
    "    Smallest gain    -2 dB at 270°\n"
    "    Omnidirectional  yes\n";
const QString secondCut =
    "  Cut 2              T angle 30°, line 11, 5.8 GHz\n"
    "    Polarizations    LCP/LCP\n"
    "    Points           2 from 0° to 180°, increment 180°\n"
    "    Samples          2\n"
    "    Largest gain     12.25 dB at 0°\n"
    "    Smallest gain    -40 dB at 180°\n"
    "    Omnidirectional  no\n";

class PatternTool : public Tool {
protected:
    ToolResult show(const QByteArray& content) {
        write("file", content);
        return run({"show", "file"});
    }
};

QString changed(QString text, const QString& from, const QString& to) {
    EXPECT_TRUE(text.contains(from)) << from.toStdString();
    return text.replace(from, to);
}

struct ShowRow {
    const char* name;
    QByteArray content;
    QString cuts;
    friend void PrintTo(const ShowRow& row, std::ostream* out) { *out << row.name; }
};

class ShowingAPattern : public PatternTool, public testing::WithParamInterface<ShowRow> {};

TEST_P(ShowingAPattern, prints) {
    const ToolResult result = show(GetParam().content);
    EXPECT_EQ(result.out, "file: antenna pattern, 2 cuts\n" + GetParam().cuts.toStdString());
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.status, 0);
}

// Byte-order mark included.
QByteArray encoded(const char* codec) { return QTextCodec::codecForName(codec)->fromUnicode(pattern); }
QByteArray patternWith(const QString& from, const QString& to) { return changed(pattern, from, to).toUtf8(); }

// The first cut when it is refused, which leaves the second as it is.
QString refusedAt(int line, const QString& reason) {
    return QString("  Cut 1              horizontal, line 3, 2.45 GHz\n    Refused          line %1, ").arg(line) +
           reason + '\n' + secondCut;
}

const ShowRow showRows[] = {
    {"all_cuts_with_their_frequencies", pattern.toUtf8(), firstCut + secondCut},
    {"cuts_without_a_frequency",
     patternWith("PATFRE:", "FREQU:"),
     changed(firstCut, ", 2.45 GHz", "") + changed(secondCut, ", 5.8 GHz", "")},
    {"the_same_with_CRLF", patternWith("\n", "\r\n"), firstCut + secondCut},
    {"the_same_with_CR_CR_LF", patternWith("\n", "\r\r\n"), firstCut + secondCut},
    {"the_same_with_comments", patternWith("\n", " ! one, two:,three ! four\n"), firstCut + secondCut},
    {"the_same_with_blanks_after_the_separator", patternWith(":,", ":,  "), firstCut + secondCut},
    {"the_same_without_an_end_marker_and_last_line_end", patternWith("\nENDFIL:,EOF\n", ""), firstCut + secondCut},
    {"the_same_in_UTF_16", encoded("UTF-16"), firstCut + secondCut},
    {"the_same_in_UTF_16_of_the_other_byte_order", encoded("UTF-16BE"), firstCut + secondCut},
    {"how_many_lines_of_two_columns_were_completed",
     patternWith(",\n", "\n"),
     firstCut + "    Completed        2 lines with an empty second value\n" + secondCut +
         "    Completed        2 lines with an empty second value\n"},
    {"what_stands_behind_the_last_point",
     patternWith("90,-1.5,\n", "90,-1.5,\n91,3,\n\n92,3\n"),
     firstCut + "    Completed        1 line with an empty second value\n" +
         "    Left out         2 lines after the last point\n" + changed(secondCut, "line 11", "line 14")},
    {"fewer_samples_than_points",
     patternWith("NUPOIN:,2", "NUPOIN:,5"),
     firstCut + changed(secondCut, "2 from 0° to 180°, increment 180°", "5 from 0° to 180°, increment 45°")},
    {"where_polarizations_are_refused",
     patternWith("V/H", "V+H"),
     refusedAt(4, "\"POLARI:,V+H\": the polarizations are not two of V, H, LCP and RCP with a slash between them")},
    {"where_a_range_is_refused",
     patternWith("-90,90", "-90"),
     refusedAt(6, "\"FSTLST:,-90\": there is no comma between the first and the last angle")},
    {"where_a_keyword_within_a_cut_is_refused",
     patternWith("NUPOIN:,3", "\nXORIEN:,0\nNUPOIN:,3"),
     changed(refusedAt(6, "\"XORIEN:,0\": the keyword is none of a cut"), "line 11", "line 13")},
    {"where_a_sample_without_a_gain_is_refused",
     patternWith("0,0,", "0, ,\n0,").replace("NUPOIN:,3", "NUPOIN:,4"),
     changed(refusedAt(9, "\"0,\": the sample has no gain"), "line 11", "line 12")},
};
INSTANTIATE_TEST_SUITE_P(, ShowingAPattern, testing::ValuesIn(showRows), rowName<ShowRow>);

TEST_F(PatternTool, refuses_files_larger_than_any_pattern) {
    const ToolResult result = show(pattern.toUtf8() + QByteArray(64 << 20, '\n'));
    EXPECT_EQ(result.err, "quarn: file: larger than any antenna pattern\n");
    EXPECT_EQ(result.status, 2);
}

TEST_F(PatternTool, refuses_more_cuts_than_any_pattern_has) {
    const ToolResult result = show(QByteArray("PATCUT:,V\n").repeated(100002));
    EXPECT_EQ(result.err, "quarn: file: more cuts than any pattern\n");
    EXPECT_EQ(result.status, 2);
}

}  // namespace
}  // namespace quarn::test
