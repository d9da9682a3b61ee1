#pragma once

#include <functional>
#include <type_traits>
#include <utility>

/// Where the value of a line is in the object that a block describes.
namespace quarn::blocktext {

/// A value that is behind functions: `get(object)` gives it, `set(object, value)` changes it.
template <class Get, class Set>
struct Property {
    Get get;
    Set set;
};
template <class Get, class Set>
constexpr Property<Get, Set> property(Get get, Set set) {
    return {get, set};
}

/// A value that is written from one place and read into another.
template <class From, class Into>
struct Separate {
    From from;
    Into into;
};
template <class From, class Into>
constexpr Separate<From, Into> separate(From from, Into into) {
    return {from, into};
}

/// The object itself.
struct Itself {
    template <class Object>
    constexpr auto& operator()(Object& object) const {
        return object;
    }
};
inline constexpr Itself itself;

/// A member of a member.
template <class Outer, class Inner>
struct Path {
    Outer outer;
    Inner inner;

    template <class Object>
    constexpr auto& operator()(Object& object) const {
        return std::invoke(inner, std::invoke(outer, object));
    }
    friend bool operator==(const Path& a, const Path& b) { return a.outer == b.outer && a.inner == b.inner; }
};
template <class Outer, class Inner>
constexpr Path<Outer, Inner> path(Outer outer, Inner inner) {
    return {outer, inner};
}

/// An element of an array.
template <class Array>
struct Element {
    Array array;
    std::size_t index;

    template <class Object>
    constexpr auto& operator()(Object& object) const {
        return std::invoke(array, object)[index];
    }
};
template <class Array>
constexpr Element<Array> element(Array array, std::size_t index) {
    return {array, index};
}

/// A member that a block begins anew, so that nothing remains of an earlier block of the same name.
template <class Access>
struct Anew {
    Access access;

    template <class Object>
    constexpr const auto& operator()(const Object& object) const {
        return std::invoke(access, object);
    }
    template <class Object>
    auto& operator()(Object& object) const {
        auto& value = std::invoke(access, object);
        value = std::decay_t<decltype(value)>();
        return value;
    }
};
template <class Access>
constexpr Anew<Access> anew(Access access) {
    return {access};
}

/// The value in an object: `access` is a pointer to a member, a function that returns a reference, a Property,
/// or a Separate.
template <class Access, class Object>
decltype(auto) valueIn(const Object& object, const Access& access) {
    return std::invoke(access, object);
}
template <class Get, class Set, class Object>
decltype(auto) valueIn(const Object& object, const Property<Get, Set>& access) {
    return std::invoke(access.get, object);
}
template <class From, class Into, class Object>
decltype(auto) valueIn(const Object& object, const Separate<From, Into>& access) {
    return std::invoke(access.from, object);
}
template <class Access, class Object>
using ValueIn = std::decay_t<decltype(valueIn(std::declval<const Object&>(), std::declval<const Access&>()))>;

/// Calls `read` with the value in an object, for reading into it, and returns the result.
template <class Access, class Object, class Read>
bool readInto(Object& object, const Access& access, Read read) {
    return read(std::invoke(access, object));
}
template <class Get, class Set, class Object, class Read>
bool readInto(Object& object, const Property<Get, Set>& access, Read read) {
    auto value = std::invoke(access.get, object);
    const bool isRead = read(value);
    std::invoke(access.set, object, value);
    return isRead;
}
template <class From, class Into, class Object, class Read>
bool readInto(Object& object, const Separate<From, Into>& access, Read read) {
    return read(std::invoke(access.into, object));
}

}  // namespace quarn::blocktext
