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

const QString noSample = "the sample is not an angle and a gain, two numbers with a comma between them";

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
     firstCut + "    Left out         2 lines after the last point\n" + changed(secondCut, "line 11", "line 14")},
    {"fewer_samples_than_points",
     patternWith("NUPOIN:,2", "NUPOIN:,5"),
     firstCut + changed(secondCut, "2 from 0° to 180°, increment 180°", "5 from 0° to 180°, increment 45°")},
    {"where_polarizations_are_refused",
     patternWith("V/H", "V+H"),
     refusedAt(4, "\"POLARI:,V+H\": the polarizations are not two of V, H, LCP and RCP with a slash between them")},
    {"where_a_range_is_refused",
     patternWith("-90,90", "-90,right"),
     refusedAt(6, "\"FSTLST:,-90,right\": the first and the last angle are not two numbers")},
    {"where_a_keyword_within_a_cut_is_refused",
     patternWith("NUPOIN:,3", "\nXORIEN:,0\nNUPOIN:,3"),
     changed(refusedAt(6, "\"XORIEN:,0\": the keyword does not belong in a cut"), "line 11", "line 13")},
    {"where_a_sample_without_a_gain_is_refused",
     patternWith("0,0,", "\n0,").replace("NUPOIN:,3", "NUPOIN:,4"),
     changed(refusedAt(9, "\"0,\": " + noSample), "line 11", "line 12")},
    {"where_a_sample_without_a_comma_is_refused", patternWith("0,0,", "0 0"), refusedAt(8, "\"0 0\": " + noSample)},
    {"where_a_number_of_samples_is_refused",
     patternWith("NUPOIN:,3", "NUPOIN:,all"),
     refusedAt(5, "\"NUPOIN:,all\": the number of samples is not a whole number of 0 or more")},
    {"all_samples_without_their_number",
     patternWith("NUPOIN:,3\n", "! three\n"),
     changed(firstCut, "3 from -90° to 90°, increment 90.5°", "number not given, from -90° to 90°") + secondCut},
    {"all_samples_without_their_range",
     patternWith("FSTLST:,-90,90\n", "Boston, MA\n"),
     changed(firstCut, "3 from -90° to 90°, increment 90.5°", "3, range not given") + secondCut},
    {"all_samples_without_either",
     patternWith("NUPOIN:,3\nFSTLST:,-90,90\n", "\n\n"),
     changed(firstCut, "3 from -90° to 90°, increment 90.5°", "number and range not given") + secondCut},
    {"the_same_with_the_number_behind_the_range_and_comments_among_the_samples",
     patternWith("NUPOIN:,3\nFSTLST:,-90,90\n-90,-2,5\n", "FSTLST:,-90,90\nNUPOIN:,3\n-90,-2,5\n! two\n\n"),
     firstCut + changed(secondCut, "line 11", "line 13")},
    {"where_samples_go_on_behind_a_keyword",
     patternWith("0,0,\n", "0,0,\nCOMENT:,x\n"),
     changed(refusedAt(9, "\"COMENT:,x\": samples go on behind a keyword that does not belong in a cut"), "line 11",
             "line 12")},
    {"the_first_of_two_samples_at_an_angle",
     patternWith("180,-40,", "0,12.25,1\n-360,9,\n360,nan,\n180,-40,").replace("NUPOIN:,2", "NUPOIN:,5"),
     firstCut + changed(secondCut, "2 from 0° to 180°, increment 180°", "5 from 0° to 180°, increment 45°") +
         "    Left out         2 samples behind one at the same angle with another gain\n"},
    {"planes_that_are_not_given_or_not_known",
     patternWith("PATCUT:,H\n", "\n").replace("T30", "Tee"),
     changed(firstCut, "horizontal, line 3", "plane not given, line 4") +
         changed(secondCut, "T angle 30°", "unknown plane \"Tee\"")},
};
INSTANTIATE_TEST_SUITE_P(, ShowingAPattern, testing::ValuesIn(showRows), rowName<ShowRow>);

// Cuts 1 and 2 go on behind a keyword, cut 3 repeats angles, and cuts 4 and 5 are whole.
TEST_F(PatternTool, exports_no_part_of_a_cut_without_a_word) {
    write("file",
          "PATCUT:,AZ\nFSTLST:,0,270\n0,0\nCOMENT:,x\nPATFRE:,1\n90,0\nPATCUT:,V\nENDFIL:,EOF\n0,0\nPATCUT:,H\nNUPOIN:,"
          "5\n"
          "FSTLST:,0,9\n0,0\n360,-2\n90,10\n-270,-4\nFSTLST:,-180,180\nPATCUT:,V\n-180,10\n0,0\n180,10\nPATFRE:,2\n"
          "Boston, MA\nPOLARI:,V/V\n0,0\nENDFIL:,EOF\n");
    const ToolResult result = run({"export", "file"});
    EXPECT_EQ(result.out,
              "cut,angle_deg,gain_power_ratio,second\n1,0,1,0\n3,0,1,0\n3,90,10,0\n4,0,1,0\n4,180,10,0\n5,0,1,0\n");
    const std::string reason = "samples go on behind a keyword that does not belong in a cut\n";
    EXPECT_EQ(
        result.err,
        "quarn: file:1: cut 1: refused at line 4, \"COMENT:,x\": " + reason +
            "quarn: file:7: cut 2: refused at line 8, \"ENDFIL:,EOF\": " + reason +
            "quarn: file:10: cut 3: cut short: 4 of 5 samples\n"
            "quarn: file:10: cut 3: 2 samples left out: a sample at the same angle with another gain came before\n");
    EXPECT_EQ(result.status, 1);
}

// Cut 2 has no samples, cut 3 neither their number nor their range, cut 4 two of three, cut 5 more than it says, cut 6
// one that is no number and cut 7 an impossible number of them.
TEST_F(PatternTool, exports_all_samples_or_says_what_is_left_out) {
    write("file",
          "PATCUT:,V\nFSTLST:,-90,0\n-90,10\n0,0,2.5\nPATCUT:,AZ\nPATCUT:,H\n1,10\n2,10\nPATCUT:,H\nNUPOIN:,3\n"
          "FSTLST:,0,2\n0,0\n1,0\nPATCUT:,H\nNUPOIN:,0\n0,0\n1,0\nPATCUT:,V\n0,0\n1,one\n2,0\nPATCUT:,V\nNUPOIN:,-1\n0,"
          "0\n");
    const ToolResult result = run({"export", "file"});
    EXPECT_EQ(result.out,
              "cut,angle_deg,gain_power_ratio,second\n1,0,1,2.5\n1,270,10,0\n3,1,10,0\n3,2,10,0\n4,0,1,0\n4,1,1,0\n"
              "6,0,1,0\n");
    EXPECT_EQ(result.err,
              "quarn: file:9: cut 4: cut short: 2 of 3 samples\n"
              "quarn: file:14: cut 5: 2 samples left out behind the 0 that NUPOIN announces\n"
              "quarn: file:18: cut 6: refused at line 20, \"1,one\": " +
                  noSample.toStdString() +
                  "\nquarn: file:22: cut 7: refused at line 23, \"NUPOIN:,-1\": the number of samples is not a whole "
                  "number of 0 or more\n");
    EXPECT_EQ(result.status, 1);
}

TEST_F(PatternTool, refuses_files_larger_than_any_pattern_and_more_cuts_than_any_has) {
    EXPECT_EQ(show(pattern.toUtf8() + QByteArray(64 << 20, '\n')).err,
              "quarn: file: larger than the 64 MiB that an antenna pattern may have\n");
    const ToolResult result = show(QByteArray("PATCUT:,V\n").repeated(100002));
    EXPECT_EQ(result.err, "quarn: file: has more than the 100000 cuts that can be read\n");
    EXPECT_EQ(result.status, 2);
}

}  // namespace
}  // namespace quarn::test
