#pragma once

#include <QString>
#include <functional>
#include <iostream>

/// Equality that says on standard output where two objects differ: a class lists its members with their labels, and the
/// comparison stops at the first difference.
namespace quarn::report {

inline std::ostream& operator<<(std::ostream& out, QLatin1String text) { return out.write(text.data(), text.size()); }

/// Reports nothing.
struct Silent {};

/// Writes nothing but the label.
struct LabelOnly {
    template <class T>
    void operator()(const T&) const {}
};

/// Writes the value behind a tab, on a line of its own.
struct OnItsLine {
    template <class T>
    void operator()(const T& value) const {
        std::cout << '\t' << value << '\n';
    }
    void operator()(const QString& value) const { std::cout << '\t' << value.toStdString() << '\n'; }
};

template <class Get, class Show>
struct Member {
    const char* label;
    Get get;
    Show show;
};

/// A member, as a pointer to it or as a function of the object, and what is written of both values if they differ.
template <class Get, class Show = LabelOnly>
Member<Get, Show> member(const char* label, Get get, Show show = {}) {
    return {label, get, show};
}

template <class Show, class Value>
void difference(const char* label, const Show& show, const Value& a, const Value& b) {
    std::cout << "different " << label << '\n';
    show(a);
    show(b);
    std::cout.flush();
}

template <class T, class Get, class Show>
bool isEqual(const T& a, const T& b, const Member<Get, Show>& member) {
    if (std::invoke(member.get, a) == std::invoke(member.get, b)) return true;
    difference(member.label, member.show, std::invoke(member.get, a), std::invoke(member.get, b));
    return false;
}

template <class T, class... Members>
bool areEqual(const T& a, const T& b, const Members&... members) {
    return (isEqual(a, b, members) && ...);
}

}  // namespace quarn::report
