#include "quarn/NSMACutPlane.h"

#include <cmath>
#include <limits>

#include "TestSupport.h"

namespace quarn::test {
namespace {

struct SplitRow {
    const char* name;
    QString line;
    QString separator;
    QString result;  // "key|value", or the unchanged "k|v" for a line without a separator
    friend void PrintTo(const SplitRow& row, std::ostream* out) { *out << row.name; }
};

class NSMACutLine : public testing::TestWithParam<SplitRow> {};

TEST_P(NSMACutLine, IsSplitIntoKeyAndValue) {
    QString key = "k", value = "v";
    const bool split = NSMACutPlane::ProcessLine(GetParam().line, key, value, GetParam().separator);
    EXPECT_EQ(key + "|" + value, GetParam().result);
    EXPECT_EQ(split, GetParam().result != "k|v");
}

const SplitRow splitRows[] = {
    {"KeyAndValue", "NUPOIN:,361", ":,", "NUPOIN|361"},
    {"FurtherSeparatorsBelongToTheValue", "1,2,,3", ",", "1|2,,3"},
    {"OnlyBlanksAroundTheLineAreRemoved", " \tA :, b \t", ":,", "A | b"},
    {"EmptyKeyAndValue", ":,", ":,", "|"},
    {"OneCarriageReturnAndOneLineFeedAreRemoved", "A\r:\n,b\r\n", ":,", "A|b"},
    {"SecondCarriageReturnIsKept", "A:,\rb\rc", ":,", "A|b\rc"},
    {"CommentIsRemoved", "A:,b ! c:,d", ":,", "A|b"},
    {"CommentStartsAtTheLastMark", "A:,b ! c ! d", ":,", "A|b ! c"},
    {"SeparatorInACommentIsIgnored", "A ! :,b", ":,", "k|v"},
    {"IncompleteSeparatorIsIgnored", "A:b,c", ":,", "k|v"},
    {"EmptyLineHasNoKey", "", ":,", "k|v"},
};
INSTANTIATE_TEST_SUITE_P(, NSMACutLine, testing::ValuesIn(splitRows), rowName<SplitRow>);

// "read cut 3@0 -1/-1 0pt 0..359/1", then "angle=gain,second value" for each sample.
std::string summary(QTextStream& stream) {
    NSMACutPlane cut;
    const bool read = cut.StreamIn(stream, 0.0F, NSMACutPlane::AsRead);
    std::ostringstream out;
    out << (read ? "read cut " : "refused cut ") << cut.GetPatternCut() << '@' << cut.GetPatternCutAngle() << ' '
        << cut.GetFirstPolarization() << '/' << cut.GetSecondPolarization() << ' ' << cut.GetNumberOfPoints() << "pt "
        << cut.GetAngleStart() << ".." << cut.GetAngleStop() << '/' << cut.GetAngleIncrement();
    for (const auto& [angle, values] : cut.GetSamples()) {
        out << ' ' << angle << '=' << values.first << ',' << values.second;
    }
    return out.str();
}

struct CutRow {
    const char* name;
    QString text;  // lines ended by ";"
    std::string result;
    friend void PrintTo(const CutRow& row, std::ostream* out) { *out << row.name; }
};

class NSMACutReading : public testing::TestWithParam<CutRow> {};

TEST_P(NSMACutReading, GivesTheCut) {
    onBothStreams(QString(GetParam().text).replace(';', '\n'),
                  [](QTextStream& stream) { EXPECT_EQ(summary(stream), GetParam().result); });
}

const CutRow cutRows[] = {
    {"EmptyStreamGivesTheDefaults", "", "read cut 3@0 -1/-1 0pt 0..359/1"},
    {"AllKeywordsAndSamples",
     "PATCUT:,H;POLARI:,V/H;NUPOIN:,4;FSTLST:,0,270;0,-1.5,7;90,2,;180,3,8;270,4,9;",
     "read cut 1@0 0/1 4pt 0..270/90 0=-1.5,7 90=2,0 180=3,8 270=4,9"},
    {"VerticalCut", "PATCUT:,V", "read cut 0@0 -1/-1 0pt 0..359/1"},
    {"AzimuthCut", "PATCUT:,V;PATCUT:,AZ", "read cut 3@0 -1/-1 0pt 0..359/1"},
    {"ElevationCut", "PATCUT:,EL", "read cut 4@0 -1/-1 0pt 0..359/1"},
    {"CutAtATAngle", "PATCUT:,T45", "read cut 5@45 -1/-1 0pt 0..359/1"},
    {"CutAtAPAngle", "PATCUT:,P-22.5", "read cut 6@-22.5 -1/-1 0pt 0..359/1"},
    {"CutAtABareAngle", "PATCUT:,30", "read cut 6@30 -1/-1 0pt 0..359/1"},
    {"OtherWordsGiveAngle0", "PATCUT:, H", "read cut 6@0 -1/-1 0pt 0..359/1"},
    {"CircularPolarizations", "POLARI:,LCP/RCP", "read cut 3@0 2/3 0pt 0..359/1"},
    {"SinglePolarizationIsRefused", "POLARI:,V;PATCUT:,H", "refused cut 3@0 -1/-1 0pt 0..359/1"},
    {"UnknownFirstPolarizationIsRefused", "POLARI:,v/H", "refused cut 3@0 -1/-1 0pt 0..359/1"},
    {"UnknownSecondPolarizationIsRefused", "POLARI:,V/X", "refused cut 3@0 0/-1 0pt 0..359/1"},
    {"RangeWithoutACommaIsRefused", "NUPOIN:,1;FSTLST:,0 359;0,1,", "refused cut 3@0 -1/-1 1pt 0..359/1"},
    {"IncrementIsTheWholeRangeBelowThreePoints",
     "NUPOIN:,2;FSTLST:,90,-90;90,1,;-90,2,",
     "read cut 3@0 -1/-1 2pt 90..-90/180 90=1,0 270=2,0"},
    {"NegativeStartWidensTheRange", "NUPOIN:,4;FSTLST:,-90,89", "read cut 3@0 -1/-1 4pt -90..89/60"},
    {"NegativeStopDoesNotWidenTheRange", "NUPOIN:,4;FSTLST:,90,-90", "read cut 3@0 -1/-1 4pt 90..-90/60"},
    {"RangeWithoutPointsEndsTheCut", "FSTLST:,0,10;NUPOIN:,1;0,1,", "read cut 3@0 -1/-1 0pt 0..10/10"},
    {"NegativeNumberOfPointsEndsTheCut",
     "NUPOIN:,-2147483648;FSTLST:,0,10;0,1,",
     "read cut 3@0 -1/-1 -2147483648pt 0..10/10"},
    {"NumberOfPointsBeyondIntIsZero", "NUPOIN:,4294967297;FSTLST:,0,10;0,1,", "read cut 3@0 -1/-1 0pt 0..10/10"},
    {"UnreadableNumbersAreZero", "NUPOIN:,1;FSTLST:,a,b;c,d,e", "read cut 3@0 -1/-1 1pt 0..0/0 0=0,0"},
    {"NumbersWithBlanksAroundThem", "NUPOIN:, 1 ;FSTLST:, 5 , 6 ; 5 , 2 , 3 ", "read cut 3@0 -1/-1 1pt 5..6/1 5=2,3"},
    {"HugeNumberOfPointsGivesTheSamplesPresent",
     "NUPOIN:,2147483647;FSTLST:,0,359;0,1,",
     "read cut 3@0 -1/-1 2147483647pt 0..359/1.67172e-07 0=1,0"},
    {"LineWithoutACommaCountsAsAPoint",
     "NUPOIN:,3;FSTLST:,0,2;0,1,;;! 1,5,;2,3,",
     "read cut 3@0 -1/-1 3pt 0..2/1 0=1,0"},
    {"FirstOfTwoSamplesAtOneAngleIsKept",
     "NUPOIN:,3;FSTLST:,-180,180;-180,1,2;0,3,;180,4,5",
     "read cut 3@0 -1/-1 3pt -180..180/180.5 0=3,0 180=1,2"},
    {"SampleWithoutItsSecondCommaIsRefusedAndKeptAsZero",
     "NUPOIN:,3;FSTLST:,0,2;0,1,;1,5;2,3,",
     "refused cut 3@0 -1/-1 3pt 0..2/1 0=1,0 1=0,0"},
    {"KeywordAmongTheSamplesIsRefused",
     "NUPOIN:,3;FSTLST:,0,2;10,1,;PATCUT:,V",
     "refused cut 3@0 -1/-1 3pt 0..2/1 0=0,0 10=1,0"},
    {"AnglesAreWrappedIntoOneTurn",
     "NUPOIN:,4;FSTLST:,0,3;-90,1,;720.5,2,;-360,3,;-1e-10,4,",
     "read cut 3@0 -1/-1 4pt 0..3/1 0=3,0 0.5=2,0 270=1,0"},
    {"HugeAnglesAreWrappedAndInvalidAnglesHaveNoSample",
     "NUPOIN:,5;FSTLST:,0,4;1e30,1,;inf,2,;-inf,3,;nan,4,;1e99,5,",
     "read cut 3@0 -1/-1 5pt 0..4/1 120=1,0"},
    {"EndMarkerEndsTheCut", "PATCUT:,V;ENDFIL:,EOF;POLARI:,X", "read cut 0@0 -1/-1 0pt 0..359/1"},
    {"OtherEndMarkerIsRefused", "PATCUT:,V;ENDFIL:,eof", "refused cut 0@0 -1/-1 0pt 0..359/1"},
    {"UnknownKeywordIsRefused", "PATFRE:,2400;PATCUT:,V", "refused cut 3@0 -1/-1 0pt 0..359/1"},
    {"LowerCaseKeywordIsRefused", "patcut:,V", "refused cut 3@0 -1/-1 0pt 0..359/1"},
    {"LinesWithoutAKeywordAreSkipped", "A pattern;;PATCUT:V;-90,1,2;", "read cut 3@0 -1/-1 0pt 0..359/1"},
    {"LineEndsAndCommentsAreIgnored",
     "PATCUT:,V ! up\r;NUPOIN:,1\r\r;FSTLST:,0,1\r\r;0,2,3 ! first\r\r;",
     "read cut 0@0 -1/-1 1pt 0..1/1 0=2,3"},
};
INSTANTIATE_TEST_SUITE_P(, NSMACutReading, testing::ValuesIn(cutRows), rowName<CutRow>);

NSMACutPlane readCut(QString text, float reference = 0.0F, int gainMode = NSMACutPlane::AsRead) {
    QTextStream stream(&text, QIODevice::ReadOnly);
    NSMACutPlane cut;
    EXPECT_TRUE(cut.StreamIn(stream, reference, gainMode));
    return cut;
}

TEST(NSMACutPlane, Spreads361PointsFromMinus180Over361Degrees) {
    EXPECT_FLOAT_EQ(readCut("NUPOIN:,361\nFSTLST:,-180,180\n").GetAngleIncrement(), 361.0F / 360.0F);
}

TEST(NSMACutPlane, LeavesTheStreamAfterItsPoints) {
    QString text = "NUPOIN:,1\nFSTLST:,0,0\n5,1,\nPATCUT:,EL\nNUPOIN:,1\nFSTLST:,0,0\n6,2,\n";
    QTextStream stream(&text, QIODevice::ReadOnly);
    EXPECT_EQ(summary(stream), "read cut 3@0 -1/-1 1pt 0..0/0 5=1,0");
    EXPECT_EQ(summary(stream), "read cut 4@0 -1/-1 1pt 0..0/0 6=2,0");
}

TEST(NSMACutPlane, ConvertsGainsByTheMode) {
    // 13 dB over 3 dB is a ratio of 10; a dipole has 1.64; 13 dB alone is 10 * 10^0.3 = 10 * 1.99526.
    const QString text = "NUPOIN:,1\nFSTLST:,0,0\n0,13,-13\n";
    const auto sample = [&](int mode) { return readCut(text, 3.0F, mode).GetSamples().at(0.0F); };
    EXPECT_NEAR(sample(0).first, 10.0, 1e-12);
    EXPECT_NEAR(sample(1).first, 16.4, 1e-12);
    EXPECT_NEAR(sample(2).first, 19.9526231496888, 1e-12);
    EXPECT_EQ(sample(3).first, 13.0);
    EXPECT_EQ(sample(-1).first, 13.0);
    EXPECT_EQ(sample(1).second, -13.0) << "the second value is never converted";
}

TEST(NSMACutPlane, FindsGainsOnlyAtSampledAngles) {
    const auto cut = readCut("NUPOIN:,2\nFSTLST:,-90,0\n-90,2,\n0.1,3,\n");
    constexpr float infinity = std::numeric_limits<float>::infinity();
    double gain = 0.0;
    for (const float angle : {-90.0F, 270.0F, 630.0F, -450.0F}) {
        gain = 0.0;
        EXPECT_TRUE(cut.GetGainAtAngle(angle, gain)) << angle;
        EXPECT_EQ(gain, 2.0) << angle;
    }
    EXPECT_TRUE(cut.GetGainAtAngle(0.1F, gain));
    EXPECT_EQ(gain, 3.0);
    for (const float angle : {270.5F, 0.0F, 1e30F, infinity, -infinity, std::nanf("")}) {
        EXPECT_FALSE(cut.GetGainAtAngle(angle, gain)) << angle;
        EXPECT_EQ(gain, 3.0) << angle;
    }
}

TEST(NSMACutPlane, OmniIsDecidedByTheSpreadOfGains) {
    const std::pair<std::vector<const char*>, bool> rows[] = {{{"0.8", "0.6", "1.0"}, true},
                                                              {{"1e-6"}, true},
                                                              {{"1.0", "0.5"}, false},
                                                              {{"0", "0"}, false},
                                                              {{"-1", "-1"}, false},
                                                              {{"nan", "1"}, false},
                                                              {{"1", "nan"}, false},
                                                              {{"inf", "inf"}, false},
                                                              {{}, false}};
    for (const auto& [gains, isOmni] : rows) {  // power ratios
        QString text = QString("NUPOIN:,%1\nFSTLST:,0,0\n").arg(gains.size());
        int angle = 0;
        for (const char* gain : gains) text += QString("%1,%2,\n").arg(++angle).arg(gain);
        EXPECT_EQ(readCut(text).IsOmni(), isOmni) << text.toStdString();
    }
}

}  // namespace
}  // namespace quarn::test
