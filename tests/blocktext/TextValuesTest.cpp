#include "blocktext/TextValues.h"

#include <cstring>

#include "TestSupport.h"

namespace quarn::test {
namespace {

// Signs and bases, reals, words, numbers with characters directly behind them, the limits of the integers, numbers with
// superfluous digits, and non-ASCII characters. U+00A0 and U+2009 count as white space.
const QString tokens =
    "0 -0 7 +7 -7 --7 - + 007 010 -010 08 0x1F -0X1f 0b101 0b2 0x 1e5 1E5 1e+5 1e-5 1e 1e+ e5 .5 -.5 5. 5.e3 5.25 "
    "1.5.2 . "
    "1e999 -1e999 1e-400 5e-324 -5e-324 2.2250738585072014e-308 1.7976931348623157e308 3.5e38 1e-46 0.1 16777217 "
    "1.00000017881393432617187499 nan NaN -nan inf -inf +inf INF infinity abc 5abc 5-3 1,5 1,000 5; "
    "2147483647 2147483648 -2147483648 -2147483649 4294967295 4294967296 18446744073709551616 -1 -4294967297 "
    "0.1000000000000000055511151231257827021181583404541015625 0.00000000000000000000000000000000000000000000000000001 "
    "1234567890123456789012345678901234567890123456789012345678901234567890 \uff11\uff12 5\u00a07 5\u20097 \u22125 ";

template <class T>
class NumberReading : public testing::Test {};
using NumberTypes = testing::Types<int, unsigned, float, double>;
TYPED_TEST_SUITE(NumberReading, NumberTypes);

TYPED_TEST(NumberReading, AgreesWithTheTextStreamForAnyTokenAndContext) {
    for (const QString& token : tokens.split(' ')) {
        for (const char* behind : {"", " 7", "\n7", "\r\n7", "\t"}) {
            QString text = " \n\t" + token + behind;
            QTextStream in(&text, QIODevice::ReadOnly), reference(&text, QIODevice::ReadOnly);
            TypeParam value{}, expected{};
            const bool read = blocktext::readValue(in, value);
            reference >> expected;
            EXPECT_EQ(in.status(), reference.status()) << text.toStdString();
            EXPECT_EQ(read, in.status() == QTextStream::Ok) << text.toStdString();
            EXPECT_TRUE(!read || std::memcmp(&value, &expected, sizeof value) == 0) << value << " for " << expected;
            EXPECT_EQ(in.pos(), reference.pos()) << text.toStdString();
        }
    }
}

TYPED_TEST(NumberReading, KeepsTheValueWhenThereIsNoNumber) {
    for (const char* text : {"abc 5", "", "-"}) {
        onBothStreams(text, [&](QTextStream& in) {
            TypeParam value{42};
            EXPECT_FALSE(blocktext::readValue(in, value)) << text;
            EXPECT_EQ(value, TypeParam{42}) << text;
            EXPECT_NE(in.status(), QTextStream::Ok) << text;
        });
    }
}

// Removes the characters whose code is the index of the first CR, then likewise for the first LF.
TEST(TextValues, StrippingRemovesCharactersByTheIndexOfLineEnds) {
    const auto stripped = [](QString text) {
        v6ProjectFile::StripEscapeCharacters(text);
        return text;
    };
    EXPECT_EQ(stripped(" A\tb "), " A\tb ");
    EXPECT_EQ(stripped("abc\rd\n"), "abc\rd\n");
    EXPECT_EQ(stripped("abcdefghijklm\rn\ro"), "abcdefghijklmno") << "CR at 13";
    EXPECT_EQ(stripped("abcdefghij\nk\nl"), "abcdefghijkl") << "LF at 10";
    EXPECT_EQ(stripped("a\tbcdefgh\r"), "abcdefgh\r") << "CR at 9, the code of a tab";
    EXPECT_EQ(stripped("AB" + QString(63, 'x') + "\ry\nC"), QString(63, 'x') + "\ry\nC") << "CR at 65, then LF at 66";
    QString text = " a\tbcdef\r ";
    v6ProjectFile::StripEscapeCharactersAndTrimWhitespace(text);
    EXPECT_EQ(text, "a\tbcdef");
}

}  // namespace
}  // namespace quarn::test
