#pragma once

#include <QLatin1String>
#include <QStringView>
#include <array>

namespace quarn::blocktext {

/// A word of the file: "Phi"_key.
constexpr QLatin1String operator""_key(const char* text, std::size_t size) {
    return QLatin1String(text, static_cast<int>(size));
}

template <class Value>
struct NamedValue {
    Value value;
    QLatin1String name;
};

/// The names of an enumeration's values, for both directions: where a value has several names it is written with the
/// first of them.
template <class Value, std::size_t count>
using NameTable = std::array<NamedValue<Value>, count>;

template <class Value, std::size_t count>
QLatin1String nameOf(const NameTable<Value, count>& table, Value value, QLatin1String otherwise) {
    for (const auto& entry : table) {
        if (entry.value == value) return entry.name;
    }
    return otherwise;
}

template <class Value, std::size_t count>
Value valueOf(const NameTable<Value, count>& table, QStringView name, Value otherwise) {
    for (const auto& entry : table) {
        if (name == entry.name) return entry.value;
    }
    return otherwise;
}

}  // namespace quarn::blocktext
