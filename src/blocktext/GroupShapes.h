#pragma once

#include "blocktext/LineShapes.h"
#include "blocktext/NameTable.h"

/// Shapes of several lines that stand for one thing.
namespace quarn::blocktext {

/// A key alone, one of several, each of which stands for a value of the member. A value without a key is written as the
/// last of them.
template <class Access, class Value, std::size_t count>
struct ChoiceOfKeys : MemberShape<Access> {
    const NameTable<Value, count>* keys;

    constexpr ChoiceOfKeys(Access a, const NameTable<Value, count>& k) : MemberShape<Access>(a), keys(&k) {}

    template <class Object>
    void write(DelimManager& delim, const Object& object) const {
        delim.GetStream() << nameOf(*keys, valueIn(object, this->access), keys->back().name) << '\n';
    }
    template <class Object>
    Offer readWord(QStringView word, QTextStream&, Object& object, Unreadable) const {
        for (const auto& key : *keys) {
            if (word != key.name) continue;
            readInto(object, this->access, [&key](auto& stored) { return stored = key.value, true; });
            return Offer::Continue;
        }
        return Offer::Unknown;
    }
    template <class Object>
    void describeTo(FormatBuilder& builder, const Object&, FormatLine line) const {
        line.kind = QStringLiteral("choice");
        for (const auto& key : *keys) {
            line.key = key.name;
            builder.add(line);
        }
    }
    static QString usuallyWritten() { return QStringLiteral("where chosen"); }
};

/// An inner block whose lines tell of the same object as those around it.
template <class Content>
struct GroupOfLines : LineShape {
    Content content;

    explicit constexpr GroupOfLines(Content c) : content(c) {}

    template <class Object>
    void write(DelimManager& delim, const Object& object) const {
        content.write(delim, object);
    }
    template <class Object>
    Offer readBlock(const QString& name, const QString&, DelimManager& delim, Object& object) const {
        if (name != content.name) return Offer::Unknown;
        return afterReading(content.read(delim, object), content.unreadable);
    }
    template <class Object>
    bool areEqual(const Object& a, const Object& b) const {
        return content.areEqual(a, b);
    }
    template <class Object>
    void describeTo(FormatBuilder& builder, const Object& blank, const FormatLine& line) const {
        builder.addBlock(content.name, line.written);
        content.describeTo(builder, blank);
    }
};

}  // namespace quarn::blocktext
