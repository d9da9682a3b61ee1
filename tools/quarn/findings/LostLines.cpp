#include "findings/LostLines.h"

#include <QHash>
#include <algorithm>

#include "Quantity.h"
#include "findings/LineForm.h"

namespace quarn::tool {

namespace {

using Lines = std::vector<BlockLine>;

/// The saved lines that no input line has matched yet, counted by their form.
class Unmatched {
public:
    Unmatched(const Lines& lines, NumberForm form) : m_form(form), m_left(lines.size()) {
        m_counts.reserve(static_cast<int>(lines.size()));
        for (const BlockLine& line : lines) ++m_counts[formOf(line.block, line.text, form)];
    }

    bool none() const { return m_left == 0; }

    bool take(const BlockLine& line) { return take(formOf(line.block, line.text, m_form)); }

    /// Matches each entry of a line with several entries; changes nothing when one entry has no match.
    bool takeEntries(const BlockLine& line) {
        const std::vector<QStringView> words = wordsOf(line.text);
        std::vector<QString> taken;
        for (std::size_t first = 0; first < words.size();) {
            const std::size_t length = takeLongestEntry(line.block, words, first, taken);
            if (length == 0) {
                putBack(taken);
                return false;
            }
            first += length;
        }
        return true;
    }

private:
    bool take(const QString& form) {
        const auto found = m_counts.find(form);
        if (found == m_counts.end() || *found == 0) return false;
        --*found;
        --m_left;
        return true;
    }

    void putBack(const std::vector<QString>& forms) {
        for (const QString& form : forms) ++m_counts[form];
        m_left += forms.size();
    }

    std::size_t takeLongestEntry(int block, const std::vector<QStringView>& words, std::size_t first,
                                 std::vector<QString>& taken) {
        constexpr std::size_t longest = 3;
        for (std::size_t length = std::min(longest, words.size() - first); length > 0; --length) {
            const QStringView entry(words[first].begin(), words[first + length - 1].end());
            const QString form = formOf(block, entry, m_form);
            if (take(form)) {
                taken.push_back(form);
                return length;
            }
        }
        return 0;
    }

    NumberForm m_form;
    QHash<QString, int> m_counts;
    std::size_t m_left;
};

template <class Predicate>
void removeIf(Lines& lines, Predicate predicate) {
    lines.erase(std::remove_if(lines.begin(), lines.end(), predicate), lines.end());
}

/// Removes the lines that both have in the same order within a block, usually nearly all of them. Inserted and moved
/// lines remain.
void removeLinesInOrder(Lines& input, Lines& saved) {
    constexpr auto form = NumberForm::ExactIntegers;
    QHash<int, std::vector<std::size_t>> savedLastFirst;
    for (std::size_t i = saved.size(); i-- > 0;) savedLastFirst[saved[i].block].push_back(i);
    std::vector<bool> isMatched(saved.size());
    removeIf(input, [&](const BlockLine& line) {
        const auto block = savedLastFirst.find(line.block);
        if (block == savedLastFirst.end() || block->empty()) return false;
        const BlockLine& next = saved[block->back()];
        if (formOf(line.block, line.text, form) != formOf(next.block, next.text, form)) return false;
        isMatched[block->back()] = true;
        block->pop_back();
        return true;
    });
    std::size_t i = 0;
    removeIf(saved, [&](const BlockLine&) { return isMatched[i++]; });
}

/// Removes the lines that both have, in any order.
void removeEqualLines(Lines& input, Lines& saved, NumberForm form) {
    Unmatched unmatched(saved, form);
    removeIf(input, [&](const BlockLine& line) { return unmatched.take(line); });
    removeIf(saved, [&](const BlockLine& line) { return unmatched.none() || !unmatched.take(line); });
}

void removeLinesOfSeveralEntries(Lines& input, const Lines& saved) {
    Unmatched unmatched(saved, NumberForm::AllReals);
    removeIf(input, [&](const BlockLine& line) { return unmatched.takeEntries(line); });
}

/// The saved lines by block and key.
class SavedByKey {
public:
    explicit SavedByKey(const Lines& saved) {
        for (const BlockLine& line : saved) m_lines[keyOf(line)].push_back(line.text.toString());
    }

    /// Removes and returns the last line with the same key; null when there is none. A number is not a key.
    QString takeCounterpartOf(const BlockLine& line) {
        const auto found = m_lines.find(keyOf(line));
        if (found == m_lines.end() || found->empty() || isNumber(firstWordOf(line.text))) return {};
        QString text = found->back();
        found->pop_back();
        return text;
    }

private:
    static QPair<int, QString> keyOf(const BlockLine& line) { return {line.block, firstWordOf(line.text).toString()}; }

    QHash<QPair<int, QString>, std::vector<QString>> m_lines;
};

}  // namespace

// Pairs lines from the end, since the last line counts where a key occurs several times.
std::vector<LostLine> linesLost(const Lines& input, const Lines& saved) {
    Lines lost = input;
    Lines added = saved;
    removeLinesInOrder(lost, added);
    removeEqualLines(lost, added, NumberForm::ExactIntegers);
    removeEqualLines(lost, added, NumberForm::AllReals);
    removeLinesOfSeveralEntries(lost, added);

    SavedByKey counterparts(added);
    std::vector<LostLine> result;
    result.reserve(lost.size());
    for (auto line = lost.rbegin(); line != lost.rend(); ++line) {
        result.push_back({line->number, line->text.toString(), counterparts.takeCounterpartOf(*line)});
    }
    std::reverse(result.begin(), result.end());
    return result;
}

}  // namespace quarn::tool
