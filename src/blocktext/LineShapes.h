#pragma once

#include <tuple>
#include <type_traits>

#include "blocktext/BlockWalker.h"
#include "blocktext/FormatBuilder.h"
#include "blocktext/ValueForms.h"

/// What a line of a described block can be (BlockDescription.h has the functions that make them). Each shape writes
/// itself for an object, takes words or inner blocks that are its own, compares two objects and describes itself.
namespace quarn::blocktext {

/// What a value that cannot be read does. It keeps what the member has and puts the stream in error, which ends the
/// block. Either that is all, or the reader of the block reports a failure.
enum class Unreadable { KeepsValue, Fails };

inline Offer afterReading(bool isRead, Unreadable unreadable) {
    return isRead || unreadable == Unreadable::KeepsValue ? Offer::Continue : Offer::End;
}

/// What most shapes do with an offer.
struct LineShape {
    template <class Object>
    static Offer readWord(QStringView, QTextStream&, Object&, Unreadable) {
        return Offer::Unknown;
    }
    template <class Object>
    static Offer readBlock(const QString&, const QString&, DelimManager&, Object&) {
        return Offer::Unknown;
    }
    static QString usuallyWritten() { return QStringLiteral("always"); }
};

/// A shape with a member behind it.
template <class Access>
struct MemberShape : LineShape {
    Access access;

    explicit constexpr MemberShape(Access a) : access(a) {}

    template <class Object>
    bool areEqual(const Object& a, const Object& b) const {
        return valueIn(a, access) == valueIn(b, access);
    }
    /// Whether `other` leads to the same member.
    constexpr bool isFor(const Access& other) const {
        if constexpr (std::is_empty_v<Access>) {
            return true;
        } else {
            return access == other;
        }
    }
};

/// A key and its value.
template <class Access, class Form>
struct ValueLine : MemberShape<Access> {
    QLatin1String key;
    Form form;

    constexpr ValueLine(QLatin1String k, Access a, Form f) : MemberShape<Access>(a), key(k), form(f) {}

    template <class Object>
    void write(DelimManager& delim, const Object& object) const {
        const auto& value = valueIn(object, this->access);
        if (!form.isWritable(value)) return;
        QTextStream& out = delim.GetStream();
        out << key << ' ';
        form.write(out, value);
        out << '\n';
    }
    template <class Object>
    Offer readWord(QStringView word, QTextStream& in, Object& object, Unreadable unreadable) const {
        if (word != key) return Offer::Unknown;
        return afterReading(readInto(object, this->access, [&](auto& value) { return form.read(in, value); }),
                            unreadable);
    }
    template <class Object>
    void describeTo(FormatBuilder& builder, const Object& blank, FormatLine line) const {
        using Value = ValueIn<Access, Object>;
        line.key = key;
        line.kind = form.template kind<Value>();
        line.names = form.names();
        line.defaultValue = form.defaultText(valueIn(blank, this->access));
        builder.add(line);
    }
    QString usuallyWritten() const { return form.usuallyWritten(); }
    template <class... Values>
    QString conditionText(const Values&... values) const {
        QStringList texts;
        (texts << ... << form.defaultText(values));
        return key + QLatin1String(" ") + texts.join(QLatin1String(" or "));
    }
};

/// A key alone, which stands where the flag is set.
template <class Access>
struct FlagLine : MemberShape<Access> {
    QLatin1String key;
    const char* behind;

    constexpr FlagLine(QLatin1String k, Access a, const char* b) : MemberShape<Access>(a), key(k), behind(b) {}

    template <class Object>
    void write(DelimManager& delim, const Object& object) const {
        if (valueIn(object, this->access)) delim.GetStream() << key << behind << '\n';
    }
    template <class Object>
    Offer readWord(QStringView word, QTextStream&, Object& object, Unreadable) const {
        if (word != key) return Offer::Unknown;
        readInto(object, this->access, [](auto& isSet) { return isSet = true; });
        return Offer::Continue;
    }
    template <class Object>
    void describeTo(FormatBuilder& builder, const Object&, FormatLine line) const {
        line.key = key;
        line.kind = QStringLiteral("flag");
        builder.add(line);
    }
    static QString usuallyWritten() { return QStringLiteral("where set"); }
    template <class... Values>
    QString conditionText(const Values&...) const {
        return key;
    }
};

/// A key alone, which stands for one value of the member.
template <class Access, class Value>
struct ChoiceLine : MemberShape<Access> {
    QLatin1String key;
    Value value;

    constexpr ChoiceLine(QLatin1String k, Access a, Value v) : MemberShape<Access>(a), key(k), value(v) {}

    template <class Object>
    void write(DelimManager& delim, const Object&) const {
        delim.GetStream() << key << '\n';
    }
    template <class Object>
    Offer readWord(QStringView word, QTextStream&, Object& object, Unreadable) const {
        if (word != key) return Offer::Unknown;
        readInto(object, this->access, [this](auto& stored) { return stored = value, true; });
        return Offer::Continue;
    }
    template <class Object>
    void describeTo(FormatBuilder& builder, const Object&, FormatLine line) const {
        line.key = key;
        line.kind = QStringLiteral("choice");
        builder.add(line);
    }
};

/// A line for each entry of a list.
template <class Access, class Form>
struct EntryLines : MemberShape<Access> {
    QLatin1String key;
    Form form;

    constexpr EntryLines(QLatin1String k, Access a, Form f) : MemberShape<Access>(a), key(k), form(f) {}

    template <class Object>
    void write(DelimManager& delim, const Object& object) const {
        QTextStream& out = delim.GetStream();
        for (const auto& value : valueIn(object, this->access)) {
            out << key << ' ';
            form.write(out, value);
            out << '\n';
        }
    }
    template <class Object>
    Offer readWord(QStringView word, QTextStream& in, Object& object, Unreadable unreadable) const {
        if (word != key) return Offer::Unknown;
        const auto append = [&](auto& list) {
            typename std::decay_t<decltype(list)>::value_type value{};
            const bool isRead = form.read(in, value);
            if (isRead) list.push_back(value);
            return isRead;
        };
        return afterReading(readInto(object, this->access, append), unreadable);
    }
    template <class Object>
    void describeTo(FormatBuilder& builder, const Object&, FormatLine line) const {
        line.key = key;
        line.kind = form.template kind<typename ValueIn<Access, Object>::value_type>();
        builder.add(line);
    }
    static QString usuallyWritten() { return QStringLiteral("for each entry"); }
};

/// A line for each element of an array, whose key ends in the element's number, counted from 1.
template <class Access>
struct NumberedLines : MemberShape<Access> {
    QLatin1String stem;

    constexpr NumberedLines(QLatin1String s, Access a) : MemberShape<Access>(a), stem(s) {}

    template <class Object>
    void write(DelimManager& delim, const Object& object) const {
        int number = 1;
        for (const auto& value : valueIn(object, this->access)) {
            delim.GetStream() << stem << number++ << ' ' << value << '\n';
        }
    }
    template <class Object>
    Offer readWord(QStringView word, QTextStream& in, Object& object, Unreadable unreadable) const {
        if (word.size() != stem.size() + 1 || !word.startsWith(stem)) return Offer::Unknown;
        const std::size_t index = static_cast<std::size_t>(word.back().unicode()) - '1';  // huge below '1'
        if (index >= std::tuple_size_v<ValueIn<Access, Object>>) return Offer::Unknown;
        const auto read = [&](auto& values) { return readValue(in, values[index]); };
        return afterReading(readInto(object, this->access, read), unreadable);
    }
    template <class Object>
    void describeTo(FormatBuilder& builder, const Object& blank, FormatLine line) const {
        int number = 1;
        for (const auto& value : valueIn(blank, this->access)) {
            line.key = stem + QString::number(number++);
            line.kind = OneValue::kind<std::decay_t<decltype(value)>>();
            line.defaultValue = OneValue::defaultText(value);
            builder.add(line);
        }
    }
};

/// A member that the file does not carry and that counts for equality.
template <class Access>
struct UnwrittenMember : MemberShape<Access> {
    using MemberShape<Access>::MemberShape;

    template <class Object>
    static void write(DelimManager&, const Object&) {}
    template <class Object>
    static void describeTo(FormatBuilder&, const Object&, const FormatLine&) {}
};

/// A line without a member behind it.
struct UnboundLine : LineShape {
    QLatin1String key;
    int number;

    constexpr UnboundLine(QLatin1String k, int n) : key(k), number(n) {}

    template <class Object>
    static bool areEqual(const Object&, const Object&) {
        return true;
    }
};

/// A line that always gives the same number, which nobody reads.
struct FixedLine : UnboundLine {
    using UnboundLine::UnboundLine;

    template <class Object>
    void write(DelimManager& delim, const Object&) const {
        delim.GetStream() << key << ' ' << number << '\n';
    }
    template <class Object>
    void describeTo(FormatBuilder& builder, const Object&, FormatLine line) const {
        line.key = key;
        line.kind = QStringLiteral("the number %1").arg(number);
        builder.add(line);
    }
};

/// A line of older files, of which so many words are dropped, but nothing of the lines below.
struct DroppedLine : UnboundLine {
    using UnboundLine::UnboundLine;

    template <class Object>
    static void write(DelimManager&, const Object&) {}
    template <class Object>
    Offer readWord(QStringView word, QTextStream& in, Object&, Unreadable) const {
        if (word != key) return Offer::Unknown;
        dropWordsOfLine(in, number);
        return Offer::Continue;
    }
    template <class Object>
    void describeTo(FormatBuilder& builder, const Object&, FormatLine line) const {
        line.key = key;
        line.kind = QStringLiteral("ignored");
        builder.add(line);
    }
    static QString usuallyWritten() { return QStringLiteral("never"); }
};

/// An inner block for a member, or, where `isList` is set, for each entry of a list. Where there is a label, it is the
/// value on the open line, which tells the block from others of the same name. With `onlyWhole`, an entry at whose end
/// the stream is in error, as at the end of a truncated file, is left out.
template <class Access, class Content, bool isList>
struct BlockLine : MemberShape<Access> {
    Content content;
    QLatin1String label;
    bool onlyWhole;

    constexpr BlockLine(Access a, Content c, QLatin1String l, bool whole = false)
        : MemberShape<Access>(a), content(c), label(l), onlyWhole(whole) {}

    template <class Object>
    void write(DelimManager& delim, const Object& object) const {
        const auto& value = valueIn(object, this->access);
        if constexpr (isList) {
            for (const auto& entry : value) content.write(delim, entry);
        } else {
            content.write(delim, value, label);
        }
    }
    template <class Object>
    Offer readBlock(const QString& name, const QString& value, DelimManager& delim, Object& object) const {
        if (name != content.name || (!label.isEmpty() && value != label)) return Offer::Unknown;
        const auto read = [&](auto& member) {
            if constexpr (isList) {
                member.emplace_back();
                const bool isRead = content.read(delim, member.back());
                if (onlyWhole && !isOk(delim)) member.pop_back();
                return isRead;
            } else {
                return content.read(delim, member);
            }
        };
        return afterReading(readInto(object, this->access, read), content.unreadable);
    }
    template <class Object>
    void describeTo(FormatBuilder& builder, const Object& blank, FormatLine line) const {
        line.key = content.name;
        line.kind = label.isEmpty() ? QStringLiteral("block") : QStringLiteral("block labelled ") + label;
        builder.add(line);
        if constexpr (isList) {
            content.describeTo(builder, typename ValueIn<Access, Object>::value_type());
        } else {
            content.describeTo(builder, valueIn(blank, this->access));
        }
    }
    static QString usuallyWritten() { return isList ? QStringLiteral("for each entry") : QStringLiteral("always"); }
};

}  // namespace quarn::blocktext
