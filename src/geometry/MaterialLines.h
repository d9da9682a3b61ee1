#pragma once

#include <tuple>
#include <utility>
#include <vector>

#include "blocktext/BlockWalker.h"
#include "blocktext/BlockWriter.h"
#include "quarn/Material.h"

/// The lines of which material blocks consist. Each kind of line knows its key and the member behind it; it can write
/// itself for an object, and it can give the handlers that read it into one. A number that cannot be read ends the
/// walk.
namespace quarn::geometry {

using namespace blocktext;

template <class Value>
auto onNumber(QLatin1String key, Value& value) {
    return onWord(key, [&value](QTextStream& in) { return readValue(in, value); });
}

template <class Object, class... Lines>
void writeLines(DelimManager& delim, const Object& object, const std::tuple<Lines...>& lines) {
    std::apply([&](const auto&... line) { (line.write(delim, object), ...); }, lines);
}

/// Reads the rest of the innermost open block, with the lines in any order.
template <class Object, class... Lines>
bool readLines(DelimManager& delim, Object& object, const std::tuple<Lines...>& lines) {
    const auto walk = [&delim](auto... handlers) { return walkBlock(delim, Unknown::DropLine, handlers...); };
    return std::apply(
        [&](const auto&... line) { return std::apply(walk, std::tuple_cat(line.handlers(delim, object)...)); }, lines);
}

/// A line that always says the same and is never read.
struct FixedLine {
    QLatin1String key;
    int number;

    template <class Object>
    void write(DelimManager& delim, const Object&) const {
        putLine(delim, key, number);
    }
};
constexpr FixedLine fixedLine(QLatin1String key, int number) { return {key, number}; }

template <class Owner, class Value>
struct ValueLine {
    QLatin1String key;
    Value Owner::*member;

    void write(DelimManager& delim, const Owner& owner) const { putLine(delim, key, owner.*member); }
    auto handlers(DelimManager&, Owner& owner) const { return std::tuple(onNumber(key, owner.*member)); }
};
template <class Owner, class Value>
constexpr ValueLine<Owner, Value> valueLine(QLatin1String key, Value Owner::*member) {
    return {key, member};
}

/// A line without a value, which stands where the flag is set.
template <class Owner>
struct FlagLine {
    QLatin1String key;
    bool Owner::*member;

    void write(DelimManager& delim, const Owner& owner) const {
        if (owner.*member) putLine(delim, key, QLatin1String());
    }
    auto handlers(DelimManager&, Owner& owner) const {
        owner.*member = false;
        return std::tuple(onFlag(key, owner.*member));
    }
};
template <class Owner>
constexpr FlagLine<Owner> flagLine(QLatin1String key, bool Owner::*member) {
    return {key, member};
}

/// One line for each entry of a list.
template <class Owner, class List>
struct ListLines {
    QLatin1String key;
    List Owner::*member;

    void write(DelimManager& delim, const Owner& owner) const {
        for (const auto& value : owner.*member) putLine(delim, key, value);
    }
    auto handlers(DelimManager&, Owner& owner) const {
        return std::tuple(onWord(key, [&list = owner.*member](QTextStream& in) {
            typename List::value_type value{};
            const bool isRead = readValue(in, value);
            if (isRead) list.push_back(value);
            return isRead;
        }));
    }
};
template <class Owner, class List>
constexpr ListLines<Owner, List> listLines(QLatin1String key, List Owner::*member) {
    return {key, member};
}

/// One line for each element of an array; the keys may be more than the array has elements.
template <class Owner, std::size_t count>
struct NumberedLines {
    const QLatin1String* keys;
    std::array<float, count> Owner::*member;

    void write(DelimManager& delim, const Owner& owner) const {
        for (std::size_t i = 0; i < count; ++i) putLine(delim, keys[i], (owner.*member)[i]);
    }
    auto handlers(DelimManager&, Owner& owner) const {
        return handlers(owner.*member, std::make_index_sequence<count>());
    }

private:
    template <std::size_t... index>
    auto handlers(std::array<float, count>& values, std::index_sequence<index...>) const {
        return std::tuple(onNumber(keys[index], values[index])...);
    }
};
template <class Owner, std::size_t count>
constexpr NumberedLines<Owner, count> numberedLines(const QLatin1String* keys,
                                                    std::array<float, count> Owner::*member) {
    return {keys, member};
}

/// The values for x, y and z on one line.
template <class Owner>
struct PerAxisLine {
    QLatin1String key;
    std::array<float, 3> Owner::*member;

    void write(DelimManager& delim, const Owner& owner) const {
        const auto& [x, y, z] = owner.*member;
        putLine(delim, key, x, y, z);
    }
    auto handlers(DelimManager&, Owner& owner) const {
        return std::tuple(onWord(key, [&v = owner.*member](QTextStream& in) { return readAll(in, v[0], v[1], v[2]); }));
    }
};
template <class Owner>
constexpr PerAxisLine<Owner> perAxisLine(QLatin1String key, std::array<float, 3> Owner::*member) {
    return {key, member};
}

/// A line with the key alone, and three lines with a row each.
template <class Owner>
struct TensorLines {
    QLatin1String key;
    std::array<std::array<float, 3>, 3> Owner::*member;

    void write(DelimManager& delim, const Owner& owner) const {
        putLine(delim, key, QLatin1String());
        for (const auto& row : owner.*member) {
            for (const float value : row) delim.GetStream() << value << ' ';
            delim.GetStream() << '\n';
        }
    }
    auto handlers(DelimManager&, Owner& owner) const {
        return std::tuple(onWord(key, [&tensor = owner.*member](QTextStream& in) {
            bool isRead = true;
            for (auto& row : tensor) isRead = isRead && readAll(in, row[0], row[1], row[2]);
            return isRead;
        }));
    }
};
template <class Owner>
constexpr TensorLines<Owner> tensorLines(QLatin1String key, std::array<std::array<float, 3>, 3> Owner::*member) {
    return {key, member};
}

/// A block for each record of a list.
template <class Owner, class Record, class... Lines>
struct RecordBlocks {
    QLatin1String name;
    std::vector<Record> Owner::*member;
    std::tuple<Lines...> lines;

    void write(DelimManager& delim, const Owner& owner) const {
        for (const Record& record : owner.*member) {
            const WrittenBlock block(delim, name);
            writeLines(delim, record, lines);
        }
    }
    auto handlers(DelimManager& delim, Owner& owner) const {
        return std::tuple(onBlock(name, [this, &delim, &records = owner.*member] {
            records.emplace_back();
            return readLines(delim, records.back(), lines);
        }));
    }
};
template <class Owner, class Record, class... Lines>
constexpr auto recordBlocks(QLatin1String name, std::vector<Record> Owner::*member, Lines... lines) {
    return RecordBlocks<Owner, Record, Lines...>{name, member, {lines...}};
}

}  // namespace quarn::geometry
