#include "blocktext/BlockWalker.h"

#include "TestSupport.h"

namespace quarn::test {
namespace {

using namespace blocktext;

// clang-format off
const struct {
    const char* behaviour;
    Unknown unknown;
    QString content, outcome;  // the outcome: the numbers read, whether the walk was complete, and the rest of the stream
} rows[] = {
    {"LineIsDropped", Unknown::DropLine, "number 1 foo number 2; number 3; end_<A>; z;", "1 3 complete {z}"},
    {"WordIsDropped", Unknown::DropWord, "number 1 foo number 2; number 3; end_<A>; z;", "1 2 3 complete {z}"},
    {"WordStops", Unknown::Stop, "number 1; foo number 2; end_<A>;", "1 left {number 2\nend_<A>}"},
    {"BlockIsSkipped", Unknown::DropLine, "C{ number 1; C{ } number 2; } number 3; end_<A>; z;", "3 complete {z}"},
    {"BlockStops", Unknown::Stop, "C{ number 1; } end_<A>;", "left {number 1\nend_<C>\nend_<A>}"},
    {"OpenLineAmongWords", Unknown::Stop, "B{ C{ number 1; } foo; } number 2; end_<A>; z;", "1 2 complete {z}"},
    {"HandlerEndsTheWalk", Unknown::DropLine, "number 1; leave number 2; end_<A>;", "1 left {number 2\nend_<A>}"},
    {"StreamEndsTheWalk", Unknown::DropLine, "number 1; number 2; number 3;", "1 2 complete {}"},
    {"BadNumberEndsTheWalk", Unknown::DropLine, "number x; number 2; end_<A>;", "complete {number 2\nend_<A>}"},
};
// clang-format on

TEST(BlockWalker, AppliesPoliciesAndEndsWalks) {
    for (const auto& row : rows) {
        SCOPED_TRACE(row.behaviour);
        onBothStreams("begin_<A> \n" + expanded(row.content), [&](QTextStream& in) {
            DelimManager delim(in, QString());
            QString name, value, description;
            ASSERT_TRUE(delim.IsDelim(name, value, description));
            QStringList outcome;
            const auto onNumber = onWord("number"_key, [&](QTextStream& stream) {
                int number = 0;
                if (readValue(stream, number)) outcome << QString::number(number);
            });
            const auto onLeave = onWord("leave"_key, [] { return false; });
            const auto onB = onBlock("B"_key, [&] { walkWords(delim, Unknown::DropWord, onNumber); });
            outcome << (walkBlock(delim, row.unknown, onNumber, onLeave, onB) ? "complete" : "left");
            EXPECT_EQ(outcome.join(' ') + " {" + in.readAll().trimmed() + "}", row.outcome);
        });
    }
}

}  // namespace
}  // namespace quarn::test
