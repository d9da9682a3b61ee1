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
    QString result;  // "key|value", or the untouched "k|v" where there is nothing to split
    friend void PrintTo(const SplitRow& row, std::ostream* out) { *out << row.name; }
};

class SplittingALine : public testing::TestWithParam<SplitRow> {};

TEST_P(SplittingALine, gives) {
    QString key = "k", value = "v";
    const bool split = NSMACutPlane::ProcessLine(GetParam().line, key, value, GetParam().separator);
    EXPECT_EQ(key + "|" + value, GetParam().result);
    EXPECT_EQ(split, GetParam().result != "k|v");
}

const SplitRow splitRows[] = {
    {"key_and_value", "NUPOIN:,361", ":,", "NUPOIN|361"},
    {"the_value_to_the_end_with_further_separators", "1,2,,3", ",", "1|2,,3"},
    {"blanks_around_the_line_taken_off_and_within_it_kept", " \tA :, b \t", ":,", "A | b"},
    {"empty_key_and_value", ":,", ":,", "|"},
    {"one_carriage_return_and_one_line_feed_removed_anywhere", "A\r:\n,b\r\n", ":,", "A|b"},
    {"a_second_carriage_return_within_the_line_kept", "A:,\rb\rc", ":,", "A|b\rc"},
    {"a_comment_cut_off", "A:,b ! c:,d", ":,", "A|b"},
    {"only_what_follows_the_last_mark_cut_off", "A:,b ! c ! d", ":,", "A|b ! c"},
    {"nothing_from_a_separator_within_a_comment", "A ! :,b", ":,", "k|v"},
    {"nothing_from_half_a_separator", "A:b,c", ":,", "k|v"},
    {"nothing_from_an_empty_line", "", ":,", "k|v"},
};
INSTANTIATE_TEST_SUITE_P(, SplittingALine, testing::ValuesIn(splitRows), rowName<SplitRow>);

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

class ReadingACut : public testing::TestWithParam<CutRow> {};

TEST_P(ReadingACut, gives) {
    onBothStreams(QString(GetParam().text).replace(';', '\n'),
                  [](QTextStream& stream) { EXPECT_EQ(summary(stream), GetParam().result); });
}

const CutRow cutRows[] = {
    {"the_defaults_for_an_empty_stream", "", "read cut 3@0 -1/-1 0pt 0..359/1"},
    {"all_keywords_and_samples",
     "PATCUT:,H;POLARI:,V/H;NUPOIN:,4;FSTLST:,0,270;0,-1.5,7;90,2,;180,3,8;270,4,9;",
     "read cut 1@0 0/1 4pt 0..270/90 0=-1.5,7 90=2,0 180=3,8 270=4,9"},
    {"a_vertical_cut", "PATCUT:,V", "read cut 0@0 -1/-1 0pt 0..359/1"},
    {"an_azimuth_cut", "PATCUT:,V;PATCUT:,AZ", "read cut 3@0 -1/-1 0pt 0..359/1"},
    {"an_elevation_cut", "PATCUT:,EL", "read cut 4@0 -1/-1 0pt 0..359/1"},
    {"a_cut_at_a_T_angle", "PATCUT:,T45", "read cut 5@45 -1/-1 0pt 0..359/1"},
    {"a_cut_at_a_P_angle", "PATCUT:,P-22.5", "read cut 6@-22.5 -1/-1 0pt 0..359/1"},
    {"a_cut_at_a_bare_angle", "PATCUT:,30", "read cut 6@30 -1/-1 0pt 0..359/1"},
    {"angle_0_for_any_other_word", "PATCUT:, H", "read cut 6@0 -1/-1 0pt 0..359/1"},
    {"circular_polarizations", "POLARI:,LCP/RCP", "read cut 3@0 2/3 0pt 0..359/1"},
    {"a_refusal_of_one_polarization", "POLARI:,V;PATCUT:,H", "refused cut 3@0 -1/-1 0pt 0..359/1"},
    {"a_refusal_of_an_unknown_first_polarization", "POLARI:,v/H", "refused cut 3@0 -1/-1 0pt 0..359/1"},
    {"a_refusal_of_an_unknown_second_polarization", "POLARI:,V/X", "refused cut 3@0 0/-1 0pt 0..359/1"},
    {"a_refusal_of_a_range_without_a_comma", "NUPOIN:,1;FSTLST:,0 359;0,1,", "refused cut 3@0 -1/-1 1pt 0..359/1"},
    {"the_whole_range_as_increment_below_three_points",
     "NUPOIN:,2;FSTLST:,90,-90;90,1,;-90,2,",
     "read cut 3@0 -1/-1 2pt 90..-90/180 90=1,0 270=2,0"},
    {"a_wider_range_from_a_negative_start", "NUPOIN:,4;FSTLST:,-90,89", "read cut 3@0 -1/-1 4pt -90..89/60"},
    {"no_wider_range_to_a_negative_stop", "NUPOIN:,4;FSTLST:,90,-90", "read cut 3@0 -1/-1 4pt 90..-90/60"},
    {"nothing_after_a_range_without_points", "FSTLST:,0,10;NUPOIN:,1;0,1,", "read cut 3@0 -1/-1 0pt 0..10/10"},
    {"nothing_after_a_negative_number_of_points",
     "NUPOIN:,-2147483648;FSTLST:,0,10;0,1,",
     "read cut 3@0 -1/-1 -2147483648pt 0..10/10"},
    {"0_for_a_number_of_points_that_is_no_int",
     "NUPOIN:,4294967297;FSTLST:,0,10;0,1,",
     "read cut 3@0 -1/-1 0pt 0..10/10"},
    {"0_for_numbers_that_cannot_be_read", "NUPOIN:,1;FSTLST:,a,b;c,d,e", "read cut 3@0 -1/-1 1pt 0..0/0 0=0,0"},
    {"numbers_with_blanks_around_them",
     "NUPOIN:, 1 ;FSTLST:, 5 , 6 ; 5 , 2 , 3 ",
     "read cut 3@0 -1/-1 1pt 5..6/1 5=2,3"},
    {"the_samples_that_are_there_of_an_absurd_number",
     "NUPOIN:,2147483647;FSTLST:,0,359;0,1,",
     "read cut 3@0 -1/-1 2147483647pt 0..359/1.67172e-07 0=1,0"},
    {"no_sample_for_a_line_without_a_comma_that_counts",
     "NUPOIN:,3;FSTLST:,0,2;0,1,;;! 1,5,;2,3,",
     "read cut 3@0 -1/-1 3pt 0..2/1 0=1,0"},
    {"the_first_of_two_samples_at_one_angle",
     "NUPOIN:,3;FSTLST:,-180,180;-180,1,2;0,3,;180,4,5",
     "read cut 3@0 -1/-1 3pt -180..180/180.5 0=3,0 180=1,2"},
    {"a_refusal_of_a_sample_without_its_second_comma_and_the_sample_as_0",
     "NUPOIN:,3;FSTLST:,0,2;0,1,;1,5;2,3,",
     "refused cut 3@0 -1/-1 3pt 0..2/1 0=1,0 1=0,0"},
    {"a_refusal_of_a_keyword_among_the_samples",
     "NUPOIN:,3;FSTLST:,0,2;10,1,;PATCUT:,V",
     "refused cut 3@0 -1/-1 3pt 0..2/1 0=0,0 10=1,0"},
    {"angles_in_one_turn",
     "NUPOIN:,4;FSTLST:,0,3;-90,1,;720.5,2,;-360,3,;-1e-10,4,",
     "read cut 3@0 -1/-1 4pt 0..3/1 0=3,0 0.5=2,0 270=1,0"},
    {"an_end_for_huge_angles_and_no_sample_for_angles_that_are_none",
     "NUPOIN:,5;FSTLST:,0,4;1e30,1,;inf,2,;-inf,3,;nan,4,;1e99,5,",
     "read cut 3@0 -1/-1 5pt 0..4/1 120=1,0"},
    {"the_end_marker", "PATCUT:,V;ENDFIL:,EOF;POLARI:,X", "read cut 0@0 -1/-1 0pt 0..359/1"},
    {"a_refusal_of_another_end_marker", "PATCUT:,V;ENDFIL:,eof", "refused cut 0@0 -1/-1 0pt 0..359/1"},
    {"a_refusal_of_an_unknown_keyword", "PATFRE:,2400;PATCUT:,V", "refused cut 3@0 -1/-1 0pt 0..359/1"},
    {"a_refusal_of_a_keyword_in_small_letters", "patcut:,V", "refused cut 3@0 -1/-1 0pt 0..359/1"},
    {"nothing_for_lines_without_a_keyword", "A pattern;;PATCUT:V;-90,1,2;", "read cut 3@0 -1/-1 0pt 0..359/1"},
    {"the_same_with_other_line_ends_and_comments",
     "PATCUT:,V ! up\r;NUPOIN:,1\r\r;FSTLST:,0,1\r\r;0,2,3 ! first\r\r;",
     "read cut 0@0 -1/-1 1pt 0..1/1 0=2,3"},
};
INSTANTIATE_TEST_SUITE_P(, ReadingACut, testing::ValuesIn(cutRows), rowName<CutRow>);

NSMACutPlane readCut(QString text, float reference = 0.0F, int gainMode = NSMACutPlane::AsRead) {
    QTextStream stream(&text, QIODevice::ReadOnly);
    NSMACutPlane cut;
    EXPECT_TRUE(cut.StreamIn(stream, reference, gainMode));
    return cut;
}

TEST(NSMACutPlane, spreads_361_points_from_minus_180_over_361_degrees) {
    EXPECT_FLOAT_EQ(readCut("NUPOIN:,361\nFSTLST:,-180,180\n").GetAngleIncrement(), 361.0F / 360.0F);
}

TEST(NSMACutPlane, leaves_the_stream_after_its_points) {
    QString text = "NUPOIN:,1\nFSTLST:,0,0\n5,1,\nPATCUT:,EL\nNUPOIN:,1\nFSTLST:,0,0\n6,2,\n";
    QTextStream stream(&text, QIODevice::ReadOnly);
    EXPECT_EQ(summary(stream), "read cut 3@0 -1/-1 1pt 0..0/0 5=1,0");
    EXPECT_EQ(summary(stream), "read cut 4@0 -1/-1 1pt 0..0/0 6=2,0");
}

TEST(NSMACutPlane, converts_gains_as_the_mode_says) {
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

TEST(NSMACutPlane, finds_gains_at_the_sampled_angles_only) {
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

struct OmniRow {
    const char* name;
    std::vector<const char*> gains;  // power ratios
    bool omni;
    friend void PrintTo(const OmniRow& row, std::ostream* out) { *out << row.name; }
};

class Omni : public testing::TestWithParam<OmniRow> {};

TEST_P(Omni, is_told) {
    QString text = QString("NUPOIN:,%1\nFSTLST:,0,0\n").arg(GetParam().gains.size());
    int angle = 0;
    for (const char* gain : GetParam().gains) text += QString("%1,%2,\n").arg(++angle).arg(gain);
    EXPECT_EQ(readCut(text).IsOmni(), GetParam().omni);
}

const OmniRow omniRows[] = {
    {"of_a_spread_below_3_dB", {"0.8", "0.6", "1.0"}, true},
    {"of_one_sample", {"1e-6"}, true},
    {"not_of_a_spread_above_3_dB", {"1.0", "0.5"}, false},
    {"not_with_a_gain_of_0", {"0", "0"}, false},
    {"not_with_a_negative_gain", {"-1", "-1"}, false},
    {"not_with_no_number_first", {"nan", "1"}, false},
    {"not_with_no_number_last", {"1", "nan"}, false},
    {"not_of_infinite_gains", {"inf", "inf"}, false},
    {"not_without_samples", {}, false},
};
INSTANTIATE_TEST_SUITE_P(, Omni, testing::ValuesIn(omniRows), rowName<OmniRow>);

}  // namespace
}  // namespace quarn::test
