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

/// What becomes of a block or word that is offered: nobody knows it, it was read and the walk continues, or it was read
/// and ends the walk.
enum class Offer { Unknown, Continue, End };

namespace detail {

// A handler that returns nothing continues the walk.
template <class Read, class... Arguments>
Offer call(Read& read, Arguments&&... arguments) {
    if constexpr (std::is_void_v<std::invoke_result_t<Read&, Arguments...>>) {
        read(std::forward<Arguments>(arguments)...);
        return Offer::Continue;
    } else {
        return read(std::forward<Arguments>(arguments)...) ? Offer::Continue : Offer::End;
    }
}

template <class Read>
Offer offerBlock(OnBlock<Read>& handler, const QString& name, const QString& value) {
    if (name != handler.name) return Offer::Unknown;
    if constexpr (std::is_invocable_v<Read&, const QString&>) {
        return call(handler.read, value);
    } else {
        return call(handler.read);
    }
}
template <class Other>
Offer offerBlock(Other&, const QString&, const QString&) {
    return Offer::Unknown;
}

template <class Read>
Offer offerWord(OnWord<Read>& handler, QStringView word, QTextStream& in) {
    if (word != handler.word) return Offer::Unknown;
    if constexpr (std::is_invocable_v<Read&, QTextStream&>) {
        return call(handler.read, in);
    } else {
        return call(handler.read);
    }
}
template <class Other>
Offer offerWord(Other&, QStringView, QTextStream&) {
    return Offer::Unknown;
}

template <class Read>
Offer offerLine(OnLine<Read>& handler, QTextStream& in) {
    return call(handler.read, in.readLine());
}
template <class Other>
Offer offerLine(Other&, QTextStream&) {
    return Offer::Unknown;
}

// The first answer of `offer` that is not Unknown, called for one handler or line after the other.
template <class Offered, class... Takers>
Offer offerToEach([[maybe_unused]] Offered offer, Takers&... takers) {
    Offer answer = Offer::Unknown;
    static_cast<void>((((answer = offer(takers)) != Offer::Unknown) || ...));
    return answer;
}

template <class... Handlers>
struct HandlerList {
    std::tuple<Handlers...> handlers;

    Offer block(const QString& name, const QString& value) {
        const auto offer = [&](auto& handler) { return offerBlock(handler, name, value); };
        return std::apply([&](auto&... each) { return offerToEach(offer, each...); }, handlers);
    }
    Offer word(QStringView word, QTextStream& in) {
        const auto offer = [&](auto& handler) { return offerWord(handler, word, in); };
        return std::apply([&](auto&... each) { return offerToEach(offer, each...); }, handlers);
    }
    Offer line(QTextStream& in) {
        const auto offer = [&](auto& handler) { return offerLine(handler, in); };
        return std::apply([&](auto&... each) { return offerToEach(offer, each...); }, handlers);
    }
};

}  // namespace detail

/// Walks the rest of the innermost open block and offers what it finds to `content`, which has the functions
/// block(name, value), word(word, stream) and line(stream). Where `findsBlocks` is false, what looks like an open line
/// is words. False when the content or Unknown::Stop ended the walk early.
template <bool findsBlocks, class Content>
bool walkContent(DelimManager& delim, Unknown unknown, Content& content) {
    QTextStream& in = delim.GetStream();
    QString name, value, description, buffer;
    while (delim.ContinueReading()) {
        name.clear();
        Offer answer = Offer::Unknown;
        if (findsBlocks && delim.IsDelim(name, value, description)) {
            answer = content.block(name, value);
            if (answer == Offer::Unknown && unknown != Unknown::Stop) delim.SeekToEndOfDelim();
        } else if ((answer = content.line(in)) == Offer::Unknown) {
            answer = content.word(readWord(in, buffer), in);
            if (answer == Offer::Unknown && unknown == Unknown::DropLine) dropLine(in);
        }
        if (answer == Offer::End || (answer == Offer::Unknown && unknown == Unknown::Stop)) return false;
    }
    return true;
}

/// Walks the rest of the innermost open block. False when a handler or Unknown::Stop ended it early.
template <class... Handlers>
bool walkBlock(DelimManager& delim, Unknown unknown, Handlers... handlers) {
    detail::HandlerList<Handlers...> content{{handlers...}};
    return walkContent<true>(delim, unknown, content);
}

/// Walks a block whose lines hold only words: what looks like an open line there is words too.
template <class... Handlers>
bool walkWords(DelimManager& delim, Unknown unknown, Handlers... handlers) {
    detail::HandlerList<Handlers...> content{{handlers...}};
    return walkContent<false>(delim, unknown, content);
}

/// Walks a block that is one list, calling `read` at the start of each entry.
template <class Read>
void walkList(DelimManager& delim, Read read) {
    while (delim.ContinueReading()) read(delim.GetStream());
}

/// What section readers and writers return.
inline bool isOk(DelimManager& delim) { return delim.GetStream().status() == QTextStream::Ok; }

}  // namespace quarn::blocktext
