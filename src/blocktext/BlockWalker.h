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
///     walkBlock(delim, Unknown::DropWord,
///               onBlock(gaussian.name, [&] { return gaussian.read(delim, waveforms.emplace_back()); }),
///               onFlag("UseDFT"_key, useDFT));
///
/// The calls expand to one chain of comparisons; nothing is allocated for a line. The walk ends at the close line of
/// the block (or at any event that ends DelimManager::ContinueReading, a number that could not be read among them), and
/// early where a handler returns false. Handlers that return nothing continue it.
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

/// Sets the flag where the word stands.
inline auto onFlag(QLatin1String word, bool& flag) {
    return onWord(word, [&flag] { flag = true; });
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
