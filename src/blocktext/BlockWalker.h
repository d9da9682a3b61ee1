#pragma once

#include <QLatin1String>
#include <QTextStream>
#include <tuple>
#include <type_traits>

#include "blocktext/NameTable.h"
#include "blocktext/TextValues.h"
#include "quarn/DelimManager.h"

/// The walk over the content of a block, with the policy for what a section does not know.
///
/// A section names what it knows and leaves the rest to the walk:
///
///     walkBlock(delim, Unknown::DropLine,
///               onBlock(key::Periodic, [&] { return readPeriodic(delim, periodic); }),
///               onValue(key::LowerX, lowerX),
///               onFlag(key::UseScanAngle, useScanAngle));
///
/// The calls expand to one chain of comparisons; nothing is allocated for a line. The walk ends at the close line of
/// the block (or at any event that ends DelimManager::ContinueReading, a number that could not be read among them), and
/// early where a handler returns false. Handlers that return nothing go on.
namespace quarn::blocktext {

/// What becomes of a word that no handler knows: it is dropped with the rest of its line, dropped by itself, so that
/// the next word of the line is looked at, or it ends the walk, as then a block that no handler knows does too. With
/// the other two such a block is skipped.
enum class Unknown { DropLine, DropWord, Stop };

template <class Read>
struct OnBlock {
    QLatin1String name;
    Read read;
};

template <class Read>
struct OnWord {
    QLatin1String word;
    Read read;
};

template <class Read>
struct OnLine {
    Read read;
};

/// The handler has entered the block and, as a rule, reads up to and including its close line. It may take the value of
/// the open line, a QString.
template <class Read>
OnBlock<Read> onBlock(QLatin1String name, Read read) {
    return {name, read};
}

/// The handler stands behind the word. It may take the stream.
template <class Read>
OnWord<Read> onWord(QLatin1String word, Read read) {
    return {word, read};
}

/// Reads the number or word behind `word`.
template <class T>
auto onValue(QLatin1String word, T& value) {
    return onWord(word, [&value](QTextStream& in) { readValue(in, value); });
}

/// Reads all of `values`, until one cannot be read.
template <class... Values>
bool readAll(QTextStream& in, Values&... values) {
    return (readValue(in, values) && ...);
}

/// Reads a count and calls `read` that many times, or until it returns false. No memory is taken on the word of the
/// count. There is nothing to read where the count is missing or below 1.
template <class Read>
void readCounted(QTextStream& in, Read read) {
    int count = -1;
    readValue(in, count);
    for (int i = 0; i < count && read(in); ++i) continue;
}

/// Reads the rest of the line behind `word`, cleaned and trimmed.
inline auto onText(QLatin1String word, QString& text) {
    return onWord(word, [&text](QTextStream& in) { text = readRestOfLine(in); });
}

/// Reads a number, or the rest of the line as text, into what a setter of `object` takes.
template <class Object, class Owner, class T>
auto onSetting(QLatin1String word, Object& object, void (Owner::*set)(T)) {
    return onWord(word, [&object, set](QTextStream& in) {
        std::decay_t<T> value{};
        if constexpr (std::is_same_v<std::decay_t<T>, QString>) {
            (object.*set)(readRestOfLine(in));
        } else if (readValue(in, value)) {
            (object.*set)(value);
        }
    });
}

inline auto onFlag(QLatin1String word, bool& flag) {
    return onWord(word, [&flag] { flag = true; });
}

/// Sets `value` to what `word` stands for.
template <class T, class Choice>
auto onChoice(QLatin1String word, T& value, Choice choice) {
    return onWord(word, [&value, choice] { value = static_cast<T>(choice); });
}

/// Reads the name behind `word` as a value of the table; a name that the table does not have gives `otherwise`, or
/// where that is left out keeps `value`.
template <class Value, std::size_t count>
auto onName(QLatin1String word, const NameTable<Value, count>& table, Value& value, Value otherwise) {
    return onWord(word, [&table, &value, otherwise](QTextStream& in) {
        QString buffer;
        const QStringView name = readWord(in, buffer);
        if (!name.isEmpty()) value = valueOf(table, name, otherwise);
    });
}
template <class Value, std::size_t count>
auto onName(QLatin1String word, const NameTable<Value, count>& table, Value& value) {
    return onWord(word, [&table, &value](QTextStream& in) {
        QString buffer;
        value = valueOf(table, readWord(in, buffer), value);
    });
}

/// Takes each line whole that opens no block, instead of its words.
template <class Read>
OnLine<Read> onLine(Read read) {
    return {read};
}

namespace detail {

template <class Handler, class... Arguments>
bool goesOn(Handler& handler, Arguments&&... arguments) {
    if constexpr (std::is_void_v<std::invoke_result_t<Handler&, Arguments...>>) {
        handler(std::forward<Arguments>(arguments)...);
        return true;
    } else {
        return handler(std::forward<Arguments>(arguments)...);
    }
}

// Each offers an entry to one handler: true when the handler took it; `proceed` is what the handler returned.
template <class Read>
bool offerBlock(OnBlock<Read>& handler, const QString& name, const QString& value, bool& proceed) {
    if (name != handler.name) return false;
    if constexpr (std::is_invocable_v<Read&, const QString&>) {
        proceed = goesOn(handler.read, value);
    } else {
        proceed = goesOn(handler.read);
    }
    return true;
}
template <class Other>
bool offerBlock(Other&, const QString&, const QString&, bool&) {
    return false;
}

template <class Read>
bool offerWord(OnWord<Read>& handler, QStringView word, QTextStream& in, bool& proceed) {
    if (word != handler.word) return false;
    if constexpr (std::is_invocable_v<Read&, QTextStream&>) {
        proceed = goesOn(handler.read, in);
    } else {
        proceed = goesOn(handler.read);
    }
    return true;
}
template <class Other>
bool offerWord(Other&, QStringView, QTextStream&, bool&) {
    return false;
}

template <class Read>
bool offerLine(OnLine<Read>& handler, QTextStream& in, bool& proceed) {
    proceed = goesOn(handler.read, in.readLine());
    return true;
}
template <class Other>
bool offerLine(Other&, QTextStream&, bool&) {
    return false;
}

template <bool lookForBlocks, class... Handlers>
bool walk(DelimManager& delim, Unknown unknown, Handlers&... handlers) {
    QTextStream& in = delim.GetStream();
    QString name, value, description, buffer;
    bool proceed = true;
    while (proceed && delim.ContinueReading()) {
        name.clear();
        if (lookForBlocks && delim.IsDelim(name, value, description)) {
            if ((offerBlock(handlers, name, value, proceed) || ...)) continue;
            if (unknown == Unknown::Stop) return false;
            delim.SeekToEndOfDelim();
            continue;
        }
        if ((offerLine(handlers, in, proceed) || ...)) continue;
        const QStringView word = readWord(in, buffer);
        if ((offerWord(handlers, word, in, proceed) || ...)) continue;
        if (unknown == Unknown::Stop) return false;
        if (unknown == Unknown::DropLine) dropLine(in);
    }
    return proceed;
}

}  // namespace detail

/// Walks the rest of the innermost open block. False when a handler or Unknown::Stop ended it early.
template <class... Handlers>
bool walkBlock(DelimManager& delim, Unknown unknown, Handlers... handlers) {
    return detail::walk<true>(delim, unknown, handlers...);
}

/// Walks a block whose lines hold only words: what looks like an open line there is words too.
template <class... Handlers>
bool walkWords(DelimManager& delim, Unknown unknown, Handlers... handlers) {
    return detail::walk<false>(delim, unknown, handlers...);
}

/// Walks a block that is one list, calling `read` at the start of each entry.
template <class Read>
void walkList(DelimManager& delim, Read read) {
    while (delim.ContinueReading()) read(delim.GetStream());
}

/// What section readers and writers return.
inline bool isOk(DelimManager& delim) { return delim.GetStream().status() == QTextStream::Ok; }

}  // namespace quarn::blocktext
