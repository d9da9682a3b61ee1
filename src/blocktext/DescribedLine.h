#pragma once

#include <functional>
#include <string>
#include <tuple>

#include "blocktext/EqualityReport.h"
#include "blocktext/LineShapes.h"

/// A line of a described block: its shape and what is said of it.
namespace quarn::blocktext {

/// A key or the name of a block.
struct Key : QLatin1String {
    constexpr Key(const char* text) : QLatin1String(text, static_cast<int>(std::char_traits<char>::length(text))) {}
    constexpr Key(QLatin1String text) : QLatin1String(text) {}
};

// Conditions: when a line is written, and the words for it.

struct Always {
    template <class Object>
    static constexpr bool holds(const Object&) {
        return true;
    }
};

template <class Predicate>
struct Where {
    Predicate predicate;
    const char* words;

    template <class Object>
    bool holds(const Object& object) const {
        return std::invoke(predicate, object);
    }
    template <class... Lines>
    QString text(const std::tuple<Lines...>&) const {
        return QString::fromLatin1(words);
    }
};

/// Whether a shape has conditionText(values), which says what its line must tell.
template <class Shape, class = void>
struct TellsCondition : std::false_type {};
template <class Shape>
struct TellsCondition<Shape, std::void_t<decltype(std::declval<const Shape&>().conditionText(0))>> : std::true_type {};

/// Where a member, of which another line of the block tells, has one of the values.
template <class Access, class... Values>
struct OnlyFor {
    Access access;
    std::tuple<Values...> values;

    template <class Object>
    bool holds(const Object& object) const {
        const auto isOneOf = [&](const auto&... each) { return ((valueIn(object, access) == each) || ...); };
        return std::apply(isOneOf, values);
    }
    template <class... Lines>
    QString text(const std::tuple<Lines...>& lines) const {
        QString text = QStringLiteral("with");
        const auto addFrom = [&](const auto& line) {
            using Shape = std::decay_t<decltype(line.shape)>;
            if constexpr (TellsCondition<Shape>::value && std::is_base_of_v<MemberShape<Access>, Shape>) {
                const auto condition = [&](const auto&... each) { return line.shape.conditionText(each...); };
                if (line.shape.isFor(access)) text += u' ' + std::apply(condition, values);
            }
        };
        std::apply([&](const auto&... line) { (addFrom(line), ...); }, lines);
        return text;
    }
};

template <class Shape, class When = Always, class Show = report::Silent>
struct Line {
    Shape shape;
    When when;
    Show show;
    const char* unit = "";
    const char* label = "";
    bool isRead = true;
    bool isCompared = true;

    /// The unit of the value, for the reference of the format.
    constexpr Line in(const char* unitOfValue) const {
        Line line = *this;
        line.unit = unitOfValue;
        return line;
    }
    /// Leaves the member out of equality.
    constexpr Line notCompared() const {
        Line line = *this;
        line.isCompared = false;
        return line;
    }
    /// A key that readers do not know.
    constexpr Line onlyWritten() const {
        Line line = *this;
        line.isRead = false;
        return line;
    }
    /// A key of older files.
    constexpr auto onlyRead() const {
        return where([](const auto&) { return false; }, "never");
    }
    /// Writes the line where the predicate holds of the object; `words` say when that is.
    template <class Predicate>
    constexpr auto where(Predicate predicate, const char* words) const {
        return with(Where<Predicate>{predicate, words}, show);
    }
    /// Writes the line where the flag is set, or the value is one of the given ones.
    template <class Access>
    constexpr auto onlyWith(Access flag) const {
        return onlyFor(flag, true);
    }
    template <class Access, class... Values>
    constexpr auto onlyFor(Access access, Values... values) const {
        return with(OnlyFor<Access, Values...>{access, {values...}}, show);
    }
    constexpr auto unlessEmpty() const {
        const auto access = shape.access;
        return where([access](const auto& object) { return !isEmpty(valueIn(object, access)); }, "unless empty");
    }
    /// Reports a difference on standard output under the label, and shows both values.
    template <class NewShow = report::LabelOnly>
    constexpr auto reports(const char* labelOfValue, NewShow showing = {}) const {
        auto line = with(when, showing);
        line.label = labelOfValue;
        return line;
    }

    template <class Object>
    void write(DelimManager& delim, const Object& object) const {
        if (when.holds(object)) shape.write(delim, object);
    }
    template <class Object>
    Offer readWord(QStringView word, QTextStream& stream, Object& object, Unreadable unreadable) const {
        return isRead ? shape.readWord(word, stream, object, unreadable) : Offer::Unknown;
    }
    template <class Object>
    Offer readBlock(const QString& name, const QString& value, DelimManager& delim, Object& object) const {
        return shape.readBlock(name, value, delim, object);
    }
    template <class Object>
    bool areEqual(const Object& a, const Object& b) const {
        if (!isCompared || shape.areEqual(a, b)) return true;
        if constexpr (!std::is_same_v<Show, report::Silent>) {
            report::difference(label, show, valueIn(a, shape.access), valueIn(b, shape.access));
        }
        return false;
    }
    template <class Object, class Lines>
    void describeTo(FormatBuilder& builder, const Object& blank, const Lines& lines) const {
        FormatLine line;
        line.unit = QString::fromUtf8(unit);
        if constexpr (std::is_same_v<When, Always>) {
            line.written = shape.usuallyWritten();
        } else {
            line.written = when.text(lines);
        }
        shape.describeTo(builder, blank, line);
    }

private:
    template <class List>
    static bool isEmpty(const List& list) {
        return list.size() == 0;
    }
    template <class NewWhen, class NewShow>
    constexpr auto with(NewWhen newWhen, NewShow newShow) const {
        return Line<Shape, NewWhen, NewShow>{shape, newWhen, newShow, unit, label, isRead, isCompared};
    }
};

}  // namespace quarn::blocktext
