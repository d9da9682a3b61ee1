#pragma once

#include <QLatin1String>
#include <QStringList>
#include <QTextStream>
#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <optional>
#include <tuple>
#include <type_traits>
#include <utility>

#include "blocktext/NameTable.h"
#include "blocktext/TextValues.h"
#include "blocktext/ValueAccess.h"

/// How the value of a line is written behind its key.
namespace quarn::blocktext {

/// What all forms have in common: values can be written, whatever they are, and have no names.
struct Form {
    template <class Value>
    static bool isWritable(const Value&) {
        return true;
    }
    template <class Value>
    static QString defaultText(const Value& value) {
        if constexpr (std::is_floating_point_v<Value>) {
            return std::isnan(value) ? QString() : QString::number(static_cast<double>(value), 'g', 7);
        } else if constexpr (std::is_integral_v<Value>) {
            return QString::number(value);
        } else if constexpr (std::is_convertible_v<Value, QString>) {
            return value;
        } else {
            return {};
        }
    }
    static QStringList names() { return {}; }
    static QString usuallyWritten() { return QStringLiteral("always"); }
};

/// A number or a word.
struct OneValue : Form {
    template <class Value>
    static void write(QTextStream& out, const Value& value) {
        out << value;
    }
    template <class Value>
    static bool read(QTextStream& in, Value& value) {
        return readValue(in, value);
    }
    template <class Value>
    static QString kind() {
        if constexpr (std::is_floating_point_v<Value>) {
            return QStringLiteral("number");
        } else if constexpr (std::is_integral_v<Value>) {
            return QStringLiteral("integer");
        } else {
            return QStringLiteral("word");
        }
    }
};

/// The rest of the line, cleaned and trimmed.
struct RestOfLine : Form {
    static void write(QTextStream& out, const QString& text) { out << text; }
    static bool read(QTextStream& in, QString& text) {
        text = readRestOfLine(in);
        return true;
    }
    template <class Value>
    static QString kind() {
        return QStringLiteral("text");
    }
};

/// A number that is written and read as another type.
template <class Stored>
struct StoredAs : Form {
    template <class Value>
    static void write(QTextStream& out, const Value& value) {
        out << static_cast<Stored>(value);
    }
    template <class Value>
    static bool read(QTextStream& in, Value& value) {
        Stored stored{};
        const bool isRead = readValue(in, stored);
        if (isRead) value = static_cast<Value>(stored);
        return isRead;
    }
    template <class Value>
    static QString kind() {
        return OneValue::kind<Stored>();
    }
};

/// The elements of an array.
struct Elements : Form {
    template <class Array>
    static void write(QTextStream& out, const Array& array) {
        for (std::size_t i = 0; i < array.size(); ++i) out << (i > 0 ? " " : "") << array[i];
    }
    template <class Array>
    static bool read(QTextStream& in, Array& array) {
        return std::all_of(array.begin(), array.end(), [&in](auto& value) { return readValue(in, value); });
    }
    template <class Array>
    static QString kind() {
        return QStringLiteral("%1 %2s").arg(std::tuple_size_v<Array>).arg(OneValue::kind<typename Array::value_type>());
    }
};

/// Elements behind a second blank.
struct SpacedElements : Elements {
    template <class Array>
    static void write(QTextStream& out, const Array& array) {
        out << ' ';
        Elements::write(out, array);
    }
};

/// The parts of an object in the order of the file, as values of their own. Those before one that cannot be read keep
/// what was read.
template <class... Parts>
struct PartsInOrder : Form {
    std::tuple<Parts...> parts;

    template <class Value>
    void write(QTextStream& out, const Value& value) const {
        const char* blank = "";
        const auto writePart = [&](const auto& part) {
            out << blank << valueIn(value, part);
            blank = " ";
        };
        std::apply([&](const auto&... each) { (writePart(each), ...); }, parts);
    }
    template <class Value>
    bool read(QTextStream& in, Value& value) const {
        const auto readPart = [&](const auto& part) {
            return readInto(value, part, [&in](auto& stored) { return readValue(in, stored); });
        };
        return std::apply([&](const auto&... each) { return (readPart(each) && ...); }, parts);
    }
    template <class Value>
    static QString kind() {
        QStringList kinds;
        (kinds << ... << OneValue::kind<ValueIn<Parts, Value>>());
        const bool isUniform = kinds.count(kinds.front()) == kinds.size();
        return isUniform ? QStringLiteral("%1 %2s").arg(kinds.size()).arg(kinds.front())
                         : kinds.join(QLatin1String(", "));
    }
};
template <class... Parts>
constexpr PartsInOrder<Parts...> parts(Parts... each) {
    return {{}, {each...}};
}

/// A form whose value counts also where only a part of it can be read.
template <class Whole>
struct Partial : Whole {
    template <class Value>
    bool read(QTextStream& in, Value& value) const {
        static_cast<void>(Whole::read(in, value));
        return true;
    }
};
template <class Whole>
constexpr Partial<Whole> partial(Whole form) {
    return {form};
}

/// The number of entries and then the entries. The number in a file is not trusted: entries are read as they come.
template <class Entry>
struct CountedEntries : Form {
    Entry entry;

    template <class List>
    void write(QTextStream& out, const List& list) const {
        out << list.size();
        for (const auto& value : list) {
            out << ' ';
            entry.write(out, value);
        }
    }
    /// Appends. A count that is missing or below 1 has no entries; an entry that cannot be read ends the list.
    template <class List>
    bool read(QTextStream& in, List& list) const {
        int count = -1;
        bool isRead = readValue(in, count);
        for (int i = 0; i < count && isRead; ++i) {
            typename List::value_type value{};
            isRead = entry.read(in, value);
            if (isRead) list.insert(list.end(), value);
        }
        return isRead;
    }
    template <class List>
    QString kind() const {
        return QStringLiteral("count, then for each: ") + entry.template kind<typename List::value_type>();
    }
};
template <class Entry>
constexpr CountedEntries<Entry> counted(Entry entry) {
    return {{}, entry};
}

/// The name of an enumeration's value. A value without a name is written as `otherwise`, or not at all where that is
/// empty; a name that the table does not have reads as `unknown`, or where there is none keeps the value.
template <class Value, std::size_t count>
struct NameFrom : Form {
    const NameTable<Value, count>* table;
    QLatin1String otherwise;
    std::optional<Value> unknown;

    QLatin1String nameIn(Value value) const { return nameOf(*table, value, otherwise); }
    bool isWritable(Value value) const { return !nameIn(value).isEmpty(); }
    void write(QTextStream& out, Value value) const { out << nameIn(value); }
    bool read(QTextStream& in, Value& value) const {
        QString buffer;
        const QStringView name = readWord(in, buffer);
        if (!name.isEmpty()) value = valueOf(*table, name, unknown.value_or(value));
        return true;
    }
    QString defaultText(Value value) const { return nameIn(value); }
    QString usuallyWritten() const {
        return otherwise.isEmpty() ? QStringLiteral("where the value has a name") : Form::usuallyWritten();
    }
    QStringList names() const {
        QStringList all;
        for (const auto& entry : *table) all << entry.name;
        return all;
    }
    template <class>
    static QString kind() {
        return QStringLiteral("name");
    }
};
template <class Value, std::size_t count>
constexpr NameFrom<Value, count> nameFrom(const NameTable<Value, count>& table, QLatin1String otherwise = {}) {
    return {{}, &table, otherwise, {}};
}
template <class Value, std::size_t count>
constexpr NameFrom<Value, count> nameFrom(const NameTable<Value, count>& table, QLatin1String otherwise,
                                          Value unknown) {
    return {{}, &table, otherwise, unknown};
}

/// A name that is the whole rest of the line.
template <class Names>
struct WholeName : Names {
    template <class Value>
    bool read(QTextStream& in, Value& value) const {
        value = valueOf(*this->table, readRestOfLine(in), this->unknown.value_or(value));
        return true;
    }
};
template <class Names>
constexpr WholeName<Names> wholeName(Names names) {
    return {names};
}

/// The numbers of an enumeration's values in the file.
template <class Value, std::size_t count>
using NumberTable = std::array<std::pair<Value, int>, count>;

/// The number of an enumeration's value. A number that the table does not have reads as `unknown`. A value that it does
/// not have is written as the number of `unknown`, or not at all where that has none either.
template <class Value, std::size_t count>
struct NumberFrom : Form {
    const NumberTable<Value, count>* table;
    Value unknown;

    std::optional<int> numberOf(Value value) const {
        std::optional<int> otherwise;
        for (const auto& entry : *table) {
            if (entry.first == value) return entry.second;
            if (entry.first == unknown) otherwise = entry.second;
        }
        return otherwise;
    }
    bool isWritable(Value value) const { return numberOf(value).has_value(); }
    void write(QTextStream& out, Value value) const { out << *numberOf(value); }
    bool read(QTextStream& in, Value& value) const {
        int number = 0;
        if (!readValue(in, number)) return false;
        value = unknown;
        for (const auto& entry : *table) {
            if (entry.second == number) value = entry.first;
        }
        return true;
    }
    QString defaultText(Value value) const { return isWritable(value) ? QString::number(*numberOf(value)) : QString(); }
    QString usuallyWritten() const {
        return isWritable(unknown) ? Form::usuallyWritten() : QStringLiteral("where the value has a number");
    }
    template <class>
    QString kind() const {
        QStringList numbers;
        for (const auto& entry : *table) numbers << QString::number(entry.second);
        return numbers.join(QLatin1String(" or "));
    }
};
template <class Value, std::size_t count>
constexpr NumberFrom<Value, count> numberFrom(const NumberTable<Value, count>& table, Value unknown) {
    return {{}, &table, unknown};
}

/// A number that counts from 0 in memory and from 1 in the file.
struct CountedFromOne : Form {
    static void write(QTextStream& out, unsigned index) { out << index + 1; }
    static bool read(QTextStream& in, unsigned& index) {
        int number = 0;
        const bool isRead = readValue(in, number);
        if (isRead) index = static_cast<unsigned>(number) - 1;
        return isRead;
    }
    static QString defaultText(unsigned index) { return QString::number(index + 1); }
    template <class>
    static QString kind() {
        return OneValue::kind<int>();
    }
};

/// A number that an object may lack; its line is left out then.
struct OptionalNumber : Form {
    template <class Number>
    static bool isWritable(const std::optional<Number>& number) {
        return number.has_value();
    }
    template <class Number>
    static void write(QTextStream& out, const std::optional<Number>& number) {
        out << *number;
    }
    template <class Number>
    static bool read(QTextStream& in, std::optional<Number>& number) {
        Number found{};
        const bool isRead = readValue(in, found);
        if (isRead) number = found;
        return isRead;
    }
    template <class Value>
    static QString kind() {
        return OneValue::kind<typename Value::value_type>();
    }
};

}  // namespace quarn::blocktext
