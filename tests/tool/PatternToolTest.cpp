#include <QTextCodec>

#include "tool/ToolFixture.h"

namespace quarn::test {
namespace {

// The first cut begins in line 3. It is omnidirectional: its gains are between -2 and 0 dB.
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

struct ShowRow : NamedRow {
    QByteArray content;
    QString cuts = firstCut + secondCut;
};

class PatternToolTest : public ToolTest, public testing::WithParamInterface<ShowRow> {};

TEST_P(PatternToolTest, ShowDescribesTheCuts) {
    write("file", GetParam().content);
    expect("show file", 0, "file: antenna pattern, 2 cuts\n" + GetParam().cuts.toStdString());
}

QString changed(QString text, const QString& from, const QString& to) { return test::changed(text, {{from, to}}); }

// Encodes with a byte-order mark.
QByteArray encoded(const char* codec) { return QTextCodec::codecForName(codec)->fromUnicode(pattern); }
QByteArray patternWith(const QString& from, const QString& to) { return test::changed(pattern, {{from, to}}); }

// Refuses the first cut; the second is as before.
QString refusedAt(int line, const QString& reason) {
    return QString("  Cut 1              horizontal, line 3, 2.45 GHz\n    Refused          line %1, ").arg(line) +
           reason + '\n' + secondCut;
}

const QString notASample = "the sample is not an angle and a gain, two numbers with a comma between them";

const ShowRow showRows[] = {
    {"CutsHaveTheirFrequencies", pattern.toUtf8()},
    {"CutsMayLackAFrequency",
     patternWith("PATFRE:", "FREQU:"),
     changed(firstCut, ", 2.45 GHz", "") + changed(secondCut, ", 5.8 GHz", "")},
    {"LinesMayEndInCrLf", patternWith("\n", "\r\n")},
    {"LinesMayEndInCrCrLf", patternWith("\n", "\r\r\n")},
    {"LinesMayEndInComments", patternWith("\n", " ! one, two:,three ! four\n")},
    {"BlanksMayFollowTheSeparator", patternWith(":,", ":,  ")},
    {"EndMarkerAndLastLineEndMayBeMissing", patternWith("\nENDFIL:,EOF\n", "")},
    {"FileMayBeUtf16", encoded("UTF-16")},
    {"FileMayBeUtf16BigEndian", encoded("UTF-16BE")},
    {"LinesOfTwoColumnsAreCompletedAndCounted",
     patternWith(",\n", "\n"),
     firstCut + "    Completed        2 lines with an empty second value\n" + secondCut +
         "    Completed        2 lines with an empty second value\n"},
    {"LinesAfterTheLastPointAreCounted",
     patternWith("90,-1.5,\n", "90,-1.5,\n91,3,\n\n92,3\n"),
     firstCut + "    Left out         2 lines after the last point\n" + changed(secondCut, "line 11", "line 14")},
    {"CutMayHaveFewerSamplesThanPoints",
     patternWith("NUPOIN:,2", "NUPOIN:,5"),
     firstCut + changed(secondCut, "2 from 0° to 180°, increment 180°", "5 from 0° to 180°, increment 45°")},
    {"WrongPolarizationsAreRefused",
     patternWith("V/H", "V+H"),
     refusedAt(4, "\"POLARI:,V+H\": the polarizations are not two of V, H, LCP and RCP with a slash between them")},
    {"WrongRangeIsRefused",
     patternWith("-90,90", "-90,right"),
     refusedAt(6, "\"FSTLST:,-90,right\": the first and the last angle are not two numbers")},
    {"ForeignKeywordWithinACutIsRefused",
     patternWith("NUPOIN:,3", "\nXORIEN:,0\nNUPOIN:,3"),
     changed(refusedAt(6, "\"XORIEN:,0\": the keyword does not belong in a cut"), "line 11", "line 13")},
    {"SampleWithoutAGainIsRefused",
     patternWith("0,0,", "\n0,").replace("NUPOIN:,3", "NUPOIN:,4"),
     changed(refusedAt(9, "\"0,\": " + notASample), "line 11", "line 12")},
    {"SampleWithoutACommaIsRefused", patternWith("0,0,", "0 0"), refusedAt(8, "\"0 0\": " + notASample)},
    {"WrongNumberOfSamplesIsRefused",
     patternWith("NUPOIN:,3", "NUPOIN:,all"),
     refusedAt(5, "\"NUPOIN:,all\": the number of samples is not a whole number of 0 or more")},
    {"NumberOfSamplesMayBeMissing",
     patternWith("NUPOIN:,3\n", "! three\n"),
     changed(firstCut, "3 from -90° to 90°, increment 90.5°", "number not given, from -90° to 90°") + secondCut},
    {"RangeMayBeMissing",
     patternWith("FSTLST:,-90,90\n", "Boston, MA\n"),
     changed(firstCut, "3 from -90° to 90°, increment 90.5°", "3, range not given") + secondCut},
    {"NumberAndRangeMayBeMissing",
     patternWith("NUPOIN:,3\nFSTLST:,-90,90\n", "\n\n"),
     changed(firstCut, "3 from -90° to 90°, increment 90.5°", "number and range not given") + secondCut},
    {"NumberMayFollowTheRangeAndCommentsMayFollowSamples",
     patternWith("NUPOIN:,3\nFSTLST:,-90,90\n-90,-2,5\n", "FSTLST:,-90,90\nNUPOIN:,3\n-90,-2,5\n! two\n\n"),
     firstCut + changed(secondCut, "line 11", "line 13")},
    {"SamplesAfterAForeignKeywordAreRefused",
     patternWith("0,0,\n", "0,0,\nCOMENT:,x\n"),
     changed(refusedAt(9, "\"COMENT:,x\": samples continue after a keyword that does not belong in a cut"), "line 11",
             "line 12")},
    {"FirstSampleAtAnAngleIsKept",
     patternWith("180,-40,", "0,12.25,1\n-360,9,\n360,nan,\n180,-40,").replace("NUPOIN:,2", "NUPOIN:,5"),
     firstCut + changed(secondCut, "2 from 0° to 180°, increment 180°", "5 from 0° to 180°, increment 45°") +
         "    Left out         2 samples after one at the same angle with another gain\n"},
    {"PlanesMayBeMissingOrUnknown",
     patternWith("PATCUT:,H\n", "\n").replace("T30", "Tee"),
     changed(firstCut, "horizontal, line 3", "plane not given, line 4") +
         changed(secondCut, "T angle 30°", "unknown plane \"Tee\"")},
};
INSTANTIATE_TEST_SUITE_P(, PatternToolTest, testing::ValuesIn(showRows), rowName<ShowRow>);

class PatternExportTest : public ToolTest {};

// Cuts 1 and 2 continue after a foreign keyword, cut 3 repeats angles, cuts 4 and 5 are complete.
TEST_F(PatternExportTest, ExportReportsIncompleteCuts) {
    write("file",
          "PATCUT:,AZ\nFSTLST:,0,270\n0,0\nCOMENT:,x\nPATFRE:,1\n90,0\nPATCUT:,V\nENDFIL:,EOF\n0,0\nPATCUT:,H\nNUPOIN:,"
          "5\n"
          "FSTLST:,0,9\n0,0\n360,-2\n90,10\n-270,-4\nFSTLST:,-180,180\nPATCUT:,V\n-180,10\n0,0\n180,10\nPATFRE:,2\n"
          "Boston, MA\nPOLARI:,V/V\n0,0\nENDFIL:,EOF\n");
    const std::string reason = "samples continue after a keyword that does not belong in a cut\n";
    expect("export file",
           1,
           "cut,angle_deg,gain_power_ratio,second\n1,0,1,0\n3,0,1,0\n3,90,10,0\n4,0,1,0\n4,180,10,0\n5,0,1,0\n",
           "quarn: file:1: cut 1: refused at line 4, \"COMENT:,x\": " + reason +
               "quarn: file:7: cut 2: refused at line 8, \"ENDFIL:,EOF\": " + reason +
               "quarn: file:10: cut 3: cut short: 4 of 5 samples\n"
               "quarn: file:10: cut 3: 2 samples left out: a sample at the same angle with another gain came before\n");
}

// Cut 2 has no samples, cut 3 lacks their number and range, cut 4 has two of three samples, cut 5 more than it says,
// cut 6 one that is not a number, and cut 7 a negative number of samples.
TEST_F(PatternExportTest, ExportReportsSamplesThatAreLeftOut) {
    write("file",
          "PATCUT:,V\nFSTLST:,-90,0\n-90,10\n0,0,2.5\nPATCUT:,AZ\nPATCUT:,H\n1,10\n2,10\nPATCUT:,H\nNUPOIN:,3\n"
          "FSTLST:,0,2\n0,0\n1,0\nPATCUT:,H\nNUPOIN:,0\n0,0\n1,0\nPATCUT:,V\n0,0\n1,one\n2,0\nPATCUT:,V\nNUPOIN:,-1\n0,"
          "0\n");
    expect("export file",
           1,
           "cut,angle_deg,gain_power_ratio,second\n1,0,1,2.5\n1,270,10,0\n3,1,10,0\n3,2,10,0\n4,0,1,0\n4,1,1,0\n"
           "6,0,1,0\n",
           "quarn: file:9: cut 4: cut short: 2 of 3 samples\n"
           "quarn: file:14: cut 5: 2 samples left out after the 0 that NUPOIN announces\n"
           "quarn: file:18: cut 6: refused at line 20, \"1,one\": " +
               notASample.toStdString() +
               "\nquarn: file:22: cut 7: refused at line 23, \"NUPOIN:,-1\": the number of samples is not a whole "
               "number of 0 or more\n");
}

TEST_F(PatternExportTest, FilesLargerThanAnyPatternAreRefused) {
    write("file", pattern.toUtf8() + QByteArray(64 << 20, '\n'));
    expect("show file", 2, "", "quarn: file: larger than the 64 MiB that an antenna pattern may have\n");
    write("file", QByteArray("PATCUT:,V\n").repeated(100002));
    expect("show file", 2, "", "quarn: file: has more than the 100000 cuts that can be read\n");
}

}  // namespace
}  // namespace quarn::test
