#include "TestSupport.h"
#include "blocktext/DelimScript.h"

namespace quarn::test {
namespace {

TEST(DelimManager, open_lines_and_descriptions) {
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

TEST(DelimManager, close_lines_follow_the_open_blocks_and_errors_fail_one_operation) {
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
    {"is keeps blanks of the value", "begin_<A>   abc  \nkey", "is", "[A|  abc  |?]"},
    {"next trims the value", "begin_<A>   abc  \nkey", "next", "[A|abc|]"},
    {"is cuts the value at a cr", "begin_<A> v\rw\nkey", "is", "[A|v|?]"},
    {"is takes an open mark within the last line", "\n \tkey begin_<A>", "is rest", "[A||?] {}"},
    {"is leaves a key line", "key 1\nlast", "is line", "- 'key 1'"},
    {"is leaves an open line without bracket", "begin_<A\nlast", "is line", "- 'begin_<A'"},
    {"is leaves a block of another name", "begin_<A> v\nlast", "is:B is:a is:A", "- - [A|v|?]"},
    {"is description", "begin_<A> \n description  text \nkey", "is line", "[A|| text ] 'key'"},
    {"is description without blank", "begin_<A> \ndescriptionx\nkey", "is", "[A||x]"},
    {"is cuts the description at a cr and keeps escapes", "begin_<A> \ndescription a\\rb\rc\nkey", "is", "[A||a\\rb]"},
    {"is takes 1000 characters", "begin_<A> " + x(990) + "\nkey", "is line", "[A|" + x(990) + "|?] 'key'"},
    {"is takes what exceeds 1000 characters for the next line",
     "begin_<A> " + x(990) + "description d\nkey", "is rest", "[A|" + x(990) + "|d] {key}"},
    {"is in error consumes a line", "begin_<A> \nkey\nlast", "bad is line", "- 'key'"},
    {"more consumes the close line", "begin_<A> \n\n\t end_<A>\nafter\nlast", "is more line", "[A||?] - 'after'"},
    {"more leaves a key line", "begin_<A> \nkey 1\nlast", "is more more line", "[A||?] + + 'key 1'"},
    {"more passes over close lines of others", "begin_<A> \nend_<B>\nend_<a>\nend_<A>\nafter\nlast",
     "is more more more line", "[A||?] + + - 'after'"},
    {"more without open block ends at a close line", "end_<A>\nkey\nlast", "more line", "- 'key'"},
    {"more never takes the last line for content", "key\n", "more rest", "- {}"},
    {"more leaves a close line without bracket", "begin_<A> \nend_<A\nlast", "is more line", "[A||?] + 'end_<A'"},
    {"more sees a close line in 1000 characters", "begin_<A> \n" + x(993) + "end_<A>\nlast", "is more rest",
     "[A||?] - {\nlast}"},
    {"more sees no close line beyond 1000 characters", "begin_<A> \n" + x(994) + "end_<A>\nlast", "is more line",
     "[A||?] + '" + x(994) + "end_<A>'"},
    {"more in error consumes a line", "first\nsecond\nlast", "bad more line", "- 'second'"},
    {"cr lf", "begin_<A> v\r\ndescription d\r\nkey 1\r\nend_<A>\r\nafter\r\nlast", "is more line more line",
     "[A|v|d] + 'key 1' - 'after'"},
    {"seek skips nested blocks", "begin_<A> \nkey\nbegin_<A> \nbegin_<C> \nend_<C>\nend_<A>\nkey\nend_<A>\nafter\nlast",
     "is seek line", "[A||?] + 'after'"},
    {"seek ends in a block that is never closed", "begin_<A> \nbegin_<B> \nend_<A>\nkey\nlast", "is seek", "[A||?] -"},
    {"seek knows a close line before trailing blanks", "begin_<A> \nend_<A>\n ", "is seek", "[A||?] +"},
    {"seek ends at a close line that is the last", "begin_<A> \nend_<A>", "is seek", "[A||?] -"},
    {"seek in error goes on", "begin_<A> \nkey\nend_<A>\nafter\nlast", "is bad seek line", "[A||?] + 'after'"},
    {"next drops eleven characters twice", described, "next line", "[A||lmnopqrstuvw] 'key'"},
    {"is keeps the same description", described, "is line", "[A||abcdefghijklmnopqrstuvw] 'key'"},
    {"next loses a short description", "begin_<A> \ndescription short\nkey", "next line", "[A||] 'key'"},
    {"next undoes escapes", "begin_<A> \ndescription 01234567890a\\rb\\nc\nkey", "next", "[A||a\rb\nc]"},
    {"next ends at stray backslashes", "begin_<A> \ndescription 01234567890a\\b\\\nkey", "next", "[A||a\\b\\]"},
    {"next has no limit of 1000 characters", "begin_<A> " + x(2000) + "\nkey", "next", "[A|" + x(2000) + "|]"},
    {"next passes over key lines and close lines", "key\nend_<A>\nkey\nbegin_<B> v\nkey", "next", "[B|v|]"},
    {"next fails at a close line of another block", "begin_<A> \nend_<a>\nbegin_<C> \nkey", "next next", "[A||] -"},
    {"next fails at a close line without bracket", "end_<A\nbegin_<B> \nkey", "next", "-"},
    {"next pops the closed block", "begin_<A> \nend_<A>\nbegin_<B> \nend_<B>\nend_<Z>\nlast", "next next seek more",
     "[A||] [B||] + -"},
    {"next pops only the first of two closed blocks",
     "begin_<A> \nbegin_<B> \nend_<B>\nend_<A>\nbegin_<C> \nend_<C>\nend_<Z>\nlast", "next next next seek more",
     "[A||] [B||] [C||] + +"},
    {"next ends at the end", "key\nbegin_<A> \nend_<A>", "next next next", "[A||] - -"},
    {"next in error reads nothing", "begin_<A> \nkey", "bad next next", "- [A||]"},
    {"first rewinds and pops one of two blocks", AB, "next next first seek more", "[A|a|] [B|b|] [A|a|] + +"},
    {"first pops the only block", AB, "next first seek more", "[A|a|] [A|a|] + -"},
    {"find rewinds and ignores case", AB, "next next find:b find:A find:C", "[A|a|] [B|b|] [b|b|] [A|a|] -"},
    {"findnext goes forward", AB, "findnext:B findnext:A", "[B|b|] -"},
    {"findnext compares case sensitively", AB, "findnext:b", "-"},
    {"scans in error read nothing", AB, "bad first bad find:A bad findnext:A next", "- - - [A|a|]"},
};
// clang-format on

TEST(DelimManager, reading) {
    for (const auto& row : readingRows) {
        SCOPED_TRACE(row.behaviour);
        onBothStreams(row.text, [&](QTextStream& stream) { EXPECT_EQ(outcome(stream, row.script), row.outcome); });
    }
}

TEST(DelimManager, deep_nesting_is_skipped_without_recursion) {
    constexpr int depth = 100000;
    QString text = "begin_<A> \n" + QString("begin_<B> \n").repeated(depth) + QString("end_<B>\n").repeated(depth) +
                   "end_<A>\nafter\nlast";
    QTextStream stream(&text);
    EXPECT_EQ(outcome(stream, "is seek line"), "[A||?] + 'after'");
}

}  // namespace
}  // namespace quarn::test
