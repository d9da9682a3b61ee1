#include "TestSupport.h"
#include "blocktext/DelimScript.h"

namespace quarn::test {
namespace {

TEST(DelimManager, WritesOpenLinesAndDescriptions) {
    const auto written = [](const char* value, const char* description) {
        QString text;
        QTextStream stream(&text);
        EXPECT_TRUE(DelimManager(stream, "file").BeginDelim("Units", value, description));
        return text;
    };
    EXPECT_EQ(written("", ""), "begin_<Units> \n");
    EXPECT_EQ(written(" v w ", ""), "begin_<Units>  v w \n");
    EXPECT_EQ(written("", "text"), "begin_<Units> \ndescription text\n");
    EXPECT_EQ(written("", "a\r\nb\r\n\r\nc"), "begin_<Units> \ndescription a\\r\nb\\r\n\\r\nc\n");
    EXPECT_EQ(written("", "a\nb\rc"), "begin_<Units> \ndescription a\nb\rc\n") << "lone line ends are untouched";
}

TEST(DelimManager, CloseLinesFollowOpenBlocksAndErrorsFailOneOperation) {
    QString text;
    QTextStream stream(&text);
    DelimManager delim(stream, "file");
    EXPECT_FALSE(delim.EndDelim());
    stream.setStatus(QTextStream::WriteFailed);
    EXPECT_FALSE(delim.BeginDelim("A", "", ""));
    EXPECT_FALSE(delim.EndDelim()) << "the failed block must not be open";
    EXPECT_TRUE(delim.BeginDelim("B", "", "") && delim.BeginDelim("C", "", ""));
    DelimManager copy = delim;
    stream.setStatus(QTextStream::WriteFailed);
    EXPECT_FALSE(delim.EndDelim());
    EXPECT_TRUE(delim.EndDelim() && delim.EndDelim() && copy.EndDelim()) << "the block must have stayed open";
    EXPECT_FALSE(delim.EndDelim());
    EXPECT_EQ(text, "begin_<B> \nbegin_<C> \nend_<C>\nend_<B>\nend_<C>\n");
}

QString x(int count) { return QString(count, 'x'); }

const QString AB = "begin_<A> a\nbegin_<B> b\nend_<B>\nend_<A>\nend_<Z>\nkey\nlast\n";
const QString described = "begin_<A> \ndescription abcdefghijklmnopqrstuvw\nkey";

// clang-format off
const struct {
    const char* behaviour;
    QString text, script, outcome;
} readingRows[] = {
    {"IsDelimKeepsBlanksOfTheValue", "begin_<A>   abc  \nkey", "is", "[A|  abc  |?]"},
    {"NextTrimsTheValue", "begin_<A>   abc  \nkey", "next", "[A|abc|]"},
    {"IsDelimCutsTheValueAtACR", "begin_<A> v\rw\nkey", "is", "[A|v|?]"},
    {"IsDelimTakesAnOpenMarkWithinTheLastLine", "\n \tkey begin_<A>", "is rest", "[A||?] {}"},
    {"IsDelimLeavesAKeyLine", "key 1\nlast", "is line", "- 'key 1'"},
    {"IsDelimLeavesAnOpenLineWithoutBracket", "begin_<A\nlast", "is line", "- 'begin_<A'"},
    {"IsDelimLeavesABlockOfAnotherName", "begin_<A> v\nlast", "is:B is:a is:A", "- - [A|v|?]"},
    {"IsDelimReadsADescription", "begin_<A> \n description  text \nkey", "is line", "[A|| text ] 'key'"},
    {"IsDelimReadsADescriptionWithoutABlank", "begin_<A> \ndescriptionx\nkey", "is", "[A||x]"},
    {"IsDelimCutsTheDescriptionAtACRAndKeepsEscapes", "begin_<A> \ndescription a\\rb\rc\nkey", "is", "[A||a\\rb]"},
    {"IsDelimTakes1000Characters", "begin_<A> " + x(990) + "\nkey", "is line", "[A|" + x(990) + "|?] 'key'"},
    {"IsDelimTakesTheRestBeyond1000CharactersAsTheNextLine",
     "begin_<A> " + x(990) + "description d\nkey", "is rest", "[A|" + x(990) + "|d] {key}"},
    {"IsDelimInErrorConsumesALine", "begin_<A> \nkey\nlast", "bad is line", "- 'key'"},
    {"MoreConsumesTheCloseLine", "begin_<A> \n\n\t end_<A>\nafter\nlast", "is more line", "[A||?] - 'after'"},
    {"MoreLeavesAKeyLine", "begin_<A> \nkey 1\nlast", "is more more line", "[A||?] + + 'key 1'"},
    {"MoreIgnoresCloseLinesOfOtherBlocks", "begin_<A> \nend_<B>\nend_<a>\nend_<A>\nafter\nlast",
     "is more more more line", "[A||?] + + - 'after'"},
    {"MoreWithoutOpenBlockEndsAtACloseLine", "end_<A>\nkey\nlast", "more line", "- 'key'"},
    {"MoreNeverTakesTheLastLineForContent", "key\n", "more rest", "- {}"},
    {"MoreLeavesACloseLineWithoutBracket", "begin_<A> \nend_<A\nlast", "is more line", "[A||?] + 'end_<A'"},
    {"MoreFindsACloseLineWithin1000Characters", "begin_<A> \n" + x(993) + "end_<A>\nlast", "is more rest",
     "[A||?] - {\nlast}"},
    {"MoreFindsNoCloseLineBeyond1000Characters", "begin_<A> \n" + x(994) + "end_<A>\nlast", "is more line",
     "[A||?] + '" + x(994) + "end_<A>'"},
    {"MoreInErrorConsumesALine", "first\nsecond\nlast", "bad more line", "- 'second'"},
    {"LinesMayEndInCRLF", "begin_<A> v\r\ndescription d\r\nkey 1\r\nend_<A>\r\nafter\r\nlast", "is more line more line",
     "[A|v|d] + 'key 1' - 'after'"},
    {"SeekSkipsNestedBlocks", "begin_<A> \nkey\nbegin_<A> \nbegin_<C> \nend_<C>\nend_<A>\nkey\nend_<A>\nafter\nlast",
     "is seek line", "[A||?] + 'after'"},
    {"SeekEndsInABlockThatIsNeverClosed", "begin_<A> \nbegin_<B> \nend_<A>\nkey\nlast", "is seek", "[A||?] -"},
    {"SeekFindsACloseLineBeforeTrailingBlanks", "begin_<A> \nend_<A>\n ", "is seek", "[A||?] +"},
    {"SeekEndsAtACloseLineThatIsTheLast", "begin_<A> \nend_<A>", "is seek", "[A||?] -"},
    {"SeekContinuesAfterAnError", "begin_<A> \nkey\nend_<A>\nafter\nlast", "is bad seek line", "[A||?] + 'after'"},
    {"NextDropsElevenCharactersTwice", described, "next line", "[A||lmnopqrstuvw] 'key'"},
    {"IsDelimKeepsTheSameDescription", described, "is line", "[A||abcdefghijklmnopqrstuvw] 'key'"},
    {"NextDropsAShortDescription", "begin_<A> \ndescription short\nkey", "next line", "[A||] 'key'"},
    {"NextUndoesEscapes", "begin_<A> \ndescription 01234567890a\\rb\\nc\nkey", "next", "[A||a\rb\nc]"},
    {"NextKeepsStrayBackslashes", "begin_<A> \ndescription 01234567890a\\b\\\nkey", "next", "[A||a\\b\\]"},
    {"NextHasNoLimitOf1000Characters", "begin_<A> " + x(2000) + "\nkey", "next", "[A|" + x(2000) + "|]"},
    {"NextSkipsKeyLinesAndCloseLines", "key\nend_<A>\nkey\nbegin_<B> v\nkey", "next", "[B|v|]"},
    {"NextFailsAtACloseLineOfAnotherBlock", "begin_<A> \nend_<a>\nbegin_<C> \nkey", "next next", "[A||] -"},
    {"NextFailsAtACloseLineWithoutBracket", "end_<A\nbegin_<B> \nkey", "next", "-"},
    {"NextPopsTheClosedBlock", "begin_<A> \nend_<A>\nbegin_<B> \nend_<B>\nend_<Z>\nlast", "next next seek more",
     "[A||] [B||] + -"},
    {"NextPopsOnlyTheFirstOfTwoClosedBlocks",
     "begin_<A> \nbegin_<B> \nend_<B>\nend_<A>\nbegin_<C> \nend_<C>\nend_<Z>\nlast", "next next next seek more",
     "[A||] [B||] [C||] + +"},
    {"NextEndsAtTheEnd", "key\nbegin_<A> \nend_<A>", "next next next", "[A||] - -"},
    {"NextInErrorReadsNothing", "begin_<A> \nkey", "bad next next", "- [A||]"},
    {"FirstRewindsAndPopsOneOfTwoBlocks", AB, "next next first seek more", "[A|a|] [B|b|] [A|a|] + +"},
    {"FirstPopsTheOnlyBlock", AB, "next first seek more", "[A|a|] [A|a|] + -"},
    {"FindRewindsAndIgnoresCase", AB, "next next find:b find:A find:C", "[A|a|] [B|b|] [b|b|] [A|a|] -"},
    {"FindNextMovesForward", AB, "findnext:B findnext:A", "[B|b|] -"},
    {"FindNextIsCaseSensitive", AB, "findnext:b", "-"},
    {"ScansInErrorReadNothing", AB, "bad first bad find:A bad findnext:A next", "- - - [A|a|]"},
};
// clang-format on

TEST(DelimManager, ReadsBlocks) {
    for (const auto& row : readingRows) {
        SCOPED_TRACE(row.behaviour);
        onBothStreams(row.text, [&](QTextStream& stream) { EXPECT_EQ(outcome(stream, row.script), row.outcome); });
    }
}

TEST(DelimManager, DeepNestingIsSkippedWithoutRecursion) {
    constexpr int depth = 100000;
    QString text = "begin_<A> \n" + QString("begin_<B> \n").repeated(depth) + QString("end_<B>\n").repeated(depth) +
                   "end_<A>\nafter\nlast";
    QTextStream stream(&text);
    EXPECT_EQ(outcome(stream, "is seek line"), "[A||?] + 'after'");
}

}  // namespace
}  // namespace quarn::test
