#pragma once

#include <functional>
#include <string>
#include <tuple>
#include <utility>

#include "blocktext/BlockWalker.h"
#include "blocktext/BlockWriter.h"
#include "blocktext/DescribedLine.h"
#include "blocktext/GroupShapes.h"
#include "blocktext/LineShapes.h"
#include "quarn/Description.h"

/// The description of a block: its name, its reading policies and its lines in file order, each stated once. The
/// writer, the reader, equality and the reference of the format come from it:
///
///     constexpr auto point = describe<Cartesian3D>("Point", Unknown::DropLine, Unreadable::KeepsValue,
///                                                  value("X", &Cartesian3D::x).in("m"),
///                                                  value("Y", &Cartesian3D::y).in("m"),
///                                                  value("Z", &Cartesian3D::z).in("m"));
///     point.write(delim, position);
///
/// A description is a constant. Reading expands to one chain of comparisons, and nothing is allocated for a line.
namespace quarn::blocktext {

// The kinds of lines, by the functions that make them.

template <class Shape>
constexpr Line<Shape> lineOf(Shape shape) {
    return {shape, {}, {}};
}

/// A key and a value in any of the forms of ValueForms.h: without a form, a number or a word.
template <class Access, class Form = OneValue>
constexpr auto value(Key key, Access access, Form form = {}) {
    return lineOf(ValueLine<Access, Form>(key, access, form));
}
/// A key and the rest of the line.
template <class Access>
constexpr auto text(Key key, Access access) {
    return value(key, access, RestOfLine());
}
/// A key and the elements of an array.
template <class Access>
constexpr auto elements(Key key, Access access) {
    return value(key, access, Elements());
}
/// A key alone where the flag is set; `behind` is written behind the key.
template <class Access>
constexpr auto flag(Key key, Access access, const char* behind = "") {
    return lineOf(FlagLine<Access>(key, access, behind));
}
/// A key alone where the member has the value.
template <class Access, class Value>
constexpr auto choice(Key key, Access access, Value value) {
    return lineOf(ChoiceLine<Access, Value>(key, access, value))
        .where([access, value](const auto& object) { return valueIn(object, access) == value; }, "where chosen");
}
/// A key alone, one of a table of values and keys.
template <class Access, class Value, std::size_t count>
constexpr auto oneKeyOf(const NameTable<Value, count>& keys, Access access) {
    return lineOf(ChoiceOfKeys<Access, Value, count>(access, keys));
}
/// A line for each entry of a list.
template <class Access, class Form = OneValue>
constexpr auto entries(Key key, Access access, Form form = {}) {
    return lineOf(EntryLines<Access, Form>(key, access, form));
}
/// A line for each element of an array, with the element's number, counted from 1, at the end of the key.
template <class Access>
constexpr auto numbered(Key stem, Access access) {
    return lineOf(NumberedLines<Access>(stem, access));
}
/// A number that is always written and never read.
constexpr auto fixed(Key key, int number) { return lineOf(FixedLine(key, number)); }
/// A key of older files, which is dropped with so many words behind it.
constexpr auto dropped(Key key, int words) { return lineOf(DroppedLine(key, words)); }
/// A member that the file does not carry and that counts for equality.
template <class Access>
constexpr auto unwritten(Access access) {
    return lineOf(UnwrittenMember<Access>(access));
}
/// An inner block for some of the members.
template <class Content>
constexpr auto group(Content content) {
    return lineOf(GroupOfLines<Content>(content));
}
/// An inner block for a member, with a label on its open line where others have the same name.
template <class Access, class Content>
constexpr auto innerBlock(Access access, Content content, Key label = "") {
    return lineOf(BlockLine<Access, Content, false>(access, content, label));
}
/// An inner block for each entry of a list.
template <class Access, class Content>
constexpr auto innerBlocks(Access access, Content content) {
    return lineOf(BlockLine<Access, Content, true>(access, content, Key("")));
}

/// The same, without an entry whose block is cut short.
template <class Access, class Content>
constexpr auto wholeInnerBlocks(Access access, Content content) {
    return lineOf(BlockLine<Access, Content, true>(access, content, Key(""), true));
}

// A block.

template <class Object, class... Lines>
struct Block {
    QLatin1String name;
    Unknown unknown;
    Unreadable unreadable;
    bool findsBlocks;
    std::tuple<Lines...> lines;

    /// The same content under another name.
    constexpr Block named(Key other) const { return {other, unknown, unreadable, findsBlocks, lines}; }

    /// The same content behind other lines.
    template <class... Others>
    constexpr Block<Object, Others..., Lines...> behind(Others... others) const {
        return {name, unknown, unreadable, findsBlocks, std::tuple_cat(std::tuple(others...), lines)};
    }

    /// Writes the whole block; `value` goes on its open line. Returns whether the stream is in order.
    bool write(DelimManager& delim, const Object& object, const QString& value = QString()) const {
        WrittenBlock block(delim, name, value);
        writeLines(delim, object);
        return block.end();
    }
    void writeLines(DelimManager& delim, const Object& object) const {
        std::apply([&](const auto&... line) { (line.write(delim, object), ...); }, lines);
    }

    /// Reads what follows the open line, up to and including the close line, with the lines in any order; `handlers`
    /// take what the lines do not. False when the reading ended early, at an unreadable value or unknown content, where
    /// the policies say so.
    template <class... Handlers>
    bool read(DelimManager& delim, Object& object, Handlers... handlers) const {
        Content<Handlers...> content{*this, delim, object, {{handlers...}}};
        return findsBlocks ? walkContent<true>(delim, unknown, content) : walkContent<false>(delim, unknown, content);
    }

    /// Offers a word to the lines, for readers that walk the block by hand.
    Offer offerWord(QStringView word, QTextStream& in, Object& object) const {
        const auto offer = [&](const auto& line) { return line.readWord(word, in, object, unreadable); };
        return std::apply([&](const auto&... each) { return detail::offerToEach(offer, each...); }, lines);
    }

    /// Compares the members that count for equality.
    bool areEqual(const Object& a, const Object& b) const {
        return std::apply([&](const auto&... line) { return (line.areEqual(a, b) && ...); }, lines);
    }

    /// Adds the block to the reference of the format. The values of `blank` are the defaults.
    void describeTo(FormatBuilder& builder, const Object& blank) const {
        describeTo(builder, blank, [] {});
    }
    /// `addMore` adds what is read and written by hand behind the lines.
    template <class AddMore>
    void describeTo(FormatBuilder& builder, const Object& blank, AddMore addMore) const {
        builder.begin(name);
        std::apply([&](const auto&... line) { (line.describeTo(builder, blank, lines), ...); }, lines);
        addMore();
        builder.end();
    }

private:
    template <class... Handlers>
    struct Content {
        const Block& description;
        DelimManager& delim;
        Object& object;
        detail::HandlerList<Handlers...> handlers;

        Offer block(const QString& found, const QString& value) {
            const auto offer = [&](const auto& line) { return line.readBlock(found, value, delim, object); };
            const auto offerToLines = [&](const auto&... each) { return detail::offerToEach(offer, each...); };
            const Offer answer = std::apply(offerToLines, description.lines);
            return answer == Offer::Unknown ? handlers.block(found, value) : answer;
        }
        Offer word(QStringView word, QTextStream& in) {
            const Offer answer = description.offerWord(word, in, object);
            return answer == Offer::Unknown ? handlers.word(word, in) : answer;
        }
        Offer line(QTextStream& in) { return handlers.line(in); }
    };
};

/// A block without keys: it holds one value, or those of a list, a line each.
template <class Content, class Form>
struct BareBlock {
    QLatin1String name;
    Unreadable unreadable;
    Form form;

    bool write(DelimManager& delim, const Content& content, const QString& value = QString()) const {
        WrittenBlock block(delim, name, value);
        const auto writeLine = [&](const auto& entry) {
            form.write(delim.GetStream(), entry);
            delim.GetStream() << '\n';
        };
        if constexpr (std::is_arithmetic_v<Content>) {
            writeLine(content);
        } else {
            for (const auto& entry : content) writeLine(entry);
        }
        return block.end();
    }
    /// Where one value is expected, the last one in the block counts. False when a value cannot be read.
    bool read(DelimManager& delim, Content& content) const {
        bool isRead = true;
        walkList(delim, [&](QTextStream& in) {
            if constexpr (std::is_arithmetic_v<Content>) {
                isRead = form.read(in, content);
            } else {
                typename Content::value_type value{};
                isRead = form.read(in, value);
                if (isRead) content.push_back(value);
            }
        });
        return isRead;
    }
    void describeTo(FormatBuilder& builder, const Content&) const {
        builder.begin(name);
        FormatLine line;
        if constexpr (std::is_arithmetic_v<Content>) {
            line.kind = form.template kind<Content>();
            line.written = QStringLiteral("always");
        } else {
            line.kind = form.template kind<typename Content::value_type>();
            line.written = QStringLiteral("for each entry");
        }
        builder.add(line);
        builder.end();
    }
};
template <class Content, class Form = OneValue>
constexpr BareBlock<Content, Form> bareValues(Key name, Unreadable unreadable, Form form = {}) {
    return {name, unreadable, form};
}

/// A block of lines and inner blocks.
template <class Object, class... Lines>
constexpr Block<Object, Lines...> describe(Key name, Unknown unknown, Unreadable unreadable, Lines... lines) {
    return {name, unknown, unreadable, true, {lines...}};
}

/// A block in which what looks like an open line is words.
template <class Object, class... Lines>
constexpr Block<Object, Lines...> describeWords(Key name, Unknown unknown, Unreadable unreadable, Lines... lines) {
    return {name, unknown, unreadable, false, {lines...}};
}

}  // namespace quarn::blocktext
