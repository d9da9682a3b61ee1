#pragma once

#include <QString>
#include <initializer_list>
#include <utility>

/// Text for people.
namespace quarn::tool {

inline QString text(const char* utf8) { return QString::fromUtf8(utf8); }

/// The text with control characters replaced, so that a file's content cannot drive the terminal.
QString printable(QString text);

/// "1 error", "2 errors"; the plural is the noun with an s.
template <class Count>
QString counted(Count count, const QString& noun) {
    return text("%1 %2%3").arg(count).arg(noun, QLatin1String(count == 1 ? "" : "s"));
}

/// "(1, 2, 3)".
template <class Value>
QString tripleText(Value x, Value y, Value z) {
    return text("(%1, %2, %3)").arg(x).arg(y).arg(z);
}

/// The names of the flags that are set, with commas between them.
QString listText(std::initializer_list<std::pair<bool, const char*>> flags);

/// The name that a table gives a value; "unknown" for values that it lacks.
template <class Value>
struct Named {
    Value value;
    const char* name;
};
template <class Value, std::size_t size>
QString nameOf(Value value, const Named<Value> (&table)[size]) {
    for (const auto& row : table) {
        if (row.value == value) return text(row.name);
    }
    return text("unknown");
}

}  // namespace quarn::tool
