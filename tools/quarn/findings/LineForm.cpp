#include "findings/LineForm.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>

namespace quarn::tool {

namespace {

/// Removes the first word from the text and returns it; empty at the end of the text.
QStringView takeWord(QStringView& text) {
    const auto isSpace = [](QChar c) { return c.isSpace(); };
    const auto start = std::find_if_not(text.begin(), text.end(), isSpace);
    const auto end = std::find_if(start, text.end(), isSpace);
    text = QStringView(end, text.end());
    return QStringView(start, end);
}

bool isDigit(QChar c) { return c >= u'0' && c <= u'9'; }

/// A quick test that rules out most words; "nan" and "inf" are numbers.
bool mayBeNumber(QStringView word) {
    const QChar first = word.front();
    return isDigit(first) || first == u'-' || first == u'+' || first == u'.' || first == u'n' || first == u'N' ||
           first == u'i' || first == u'I';
}

/// A decimal integer without sign and leading zeros, the common case, is its own form.
bool isPlainInteger(QStringView word) {
    return std::all_of(word.begin(), word.end(), isDigit) && (word.front() != u'0' || word.size() == 1);
}

bool appendInteger(QString& form, QStringView word) {
    if (isPlainInteger(word)) {
        form += word;
        return true;
    }
    if (word.contains(u'.')) return false;
    constexpr int baseByPrefix = 0;
    bool ok = false;
    const qlonglong number = word.toString().toLongLong(&ok, baseByPrefix);
    if (ok) form += QString::number(number);
    return ok;
}

/// A float with an integral value takes the form of the integer, as it is saved. False for a finite number beyond the
/// range of floats, since saving does not keep it.
bool appendReal(QString& form, QStringView word) {
    bool ok = false;
    const double number = word.toString().toDouble(&ok);
    if (!ok || (std::isfinite(number) && std::abs(number) > std::numeric_limits<float>::max())) return false;
    const auto rounded = static_cast<float>(number);
    constexpr float beyondIntegers = 9.2e18F;
    if (std::abs(rounded) < beyondIntegers && rounded == std::trunc(rounded)) {
        form += QString::number(static_cast<qlonglong>(rounded));
        return true;
    }
    std::uint32_t bits = 0;
    std::memcpy(&bits, &rounded, sizeof bits);
    form += u'#';
    form += QChar(static_cast<ushort>(bits >> 16));
    form += QChar(static_cast<ushort>(bits & 0xffff));
    return true;
}

void appendWord(QString& form, QStringView word, NumberForm numberForm) {
    static const QLatin1String oldName("ORBC_PML");
    static const QLatin1String name("ORBC_CPML");
    if (word == oldName) {
        form += name;
        return;
    }
    if (mayBeNumber(word)) {
        if (numberForm == NumberForm::ExactIntegers && appendInteger(form, word)) return;
        if (appendReal(form, word)) return;
    }
    form += word;
}

}  // namespace

QString formOf(int block, QStringView text, NumberForm form) {
    QString result;
    result.reserve(static_cast<int>(text.size()) + 16);
    result += QString::number(block);
    for (QStringView word = takeWord(text); !word.isEmpty(); word = takeWord(text)) {
        result += u' ';
        appendWord(result, word, form);
    }
    return result;
}

std::vector<QStringView> wordsOf(QStringView text) {
    std::vector<QStringView> words;
    for (QStringView word = takeWord(text); !word.isEmpty(); word = takeWord(text)) words.push_back(word);
    return words;
}

QStringView firstWordOf(QStringView text) { return takeWord(text); }

}  // namespace quarn::tool
