#include "blocktext/TextValues.h"

#include <array>
#include <charconv>
#include <type_traits>

#include "blocktext/LineCursor.h"

namespace quarn::blocktext {

namespace {

constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }

// A token of ASCII characters that is short enough for the stream's own buffer; empty for any other token.
class PlainToken {
public:
    PlainToken(QStringView text, int start) {
        int at = start;
        for (; at < text.size() && !text[at].isSpace(); ++at) {
            if (m_size == m_chars.size() || text[at].unicode() > 0x7f) {
                m_size = 0;
                return;
            }
            m_chars[m_size++] = static_cast<char>(text[at].unicode());
        }
    }
    const char* begin() const { return m_chars.data(); }
    const char* end() const { return m_chars.data() + m_size; }

private:
    std::array<char, 48> m_chars;
    std::size_t m_size = 0;
};

// The numbers that QTextStream and from_chars both accept and read alike: a digit on each side of a point, no plus
// sign, no leading zero in an integer (QTextStream reads those as octal), no word such as "nan".
template <class T>
bool isPlainNumber(const PlainToken& token) {
    const char* c = token.begin();
    if constexpr (std::is_signed_v<T>) {
        if (c != token.end() && *c == '-') ++c;
    }
    if (c == token.end() || !isDigit(*c)) return false;
    if constexpr (std::is_floating_point_v<T>) {
        while (c != token.end() && isDigit(*c)) ++c;
        return c == token.end() || *c == 'e' || *c == 'E' || (*c == '.' && c + 1 != token.end() && isDigit(c[1]));
    } else {
        return *c != '0' || c + 1 == token.end();
    }
}

// Reads the number at the position of a string stream if it is a plain one; otherwise leaves the stream as it is.
template <class T>
bool readPlainNumber(QTextStream& in, T& value) {
    const QString* string = in.string();
    if (!string) return false;
    const int start = skipSpace(*string, static_cast<int>(in.pos()));
    const PlainToken token(*string, start);
    if (!isPlainNumber<T>(token)) return false;
    T number{};
    const auto [end, error] = std::from_chars(token.begin(), token.end(), number);
    if (error != std::errc() || end != token.end()) return false;
    value = number;
    in.seek(start + (token.end() - token.begin()));
    return true;
}

template <class T>
bool readNumber(QTextStream& in, T& value) {
    if (readPlainNumber(in, value)) return true;
    T number{};
    in >> number;
    if (in.status() != QTextStream::Ok) return false;
    value = number;
    return true;
}

void removeCharactersWithCode(QString& text, int code) {
    if (code >= 0 && code <= 0xffff) text.remove(QChar(code));
}

}  // namespace

QStringView readWord(QTextStream& in, QString& buffer) {
    if (const QString* string = in.string()) {
        const QStringView text(*string);
        const int start = skipSpace(text, static_cast<int>(in.pos()));
        int end = start;
        while (end < text.size() && !text[end].isSpace()) ++end;
        in.seek(end);
        if (start == end) in.setStatus(QTextStream::ReadPastEnd);
        return text.mid(start, end - start);
    }
    in >> buffer;
    return buffer;
}

bool readValue(QTextStream& in, double& value) { return readNumber(in, value); }

// Converts from double, as the stream does: reading a float directly may round differently.
bool readValue(QTextStream& in, float& value) {
    double number = 0;
    if (!readNumber(in, number)) return false;
    value = static_cast<float>(number);
    return true;
}

bool readValue(QTextStream& in, int& value) { return readNumber(in, value); }
bool readValue(QTextStream& in, unsigned& value) { return readNumber(in, value); }

bool readValue(QTextStream& in, QString& word) {
    QString buffer;
    const QStringView found = readWord(in, buffer);
    if (found.isEmpty()) return false;
    word = found.toString();
    return true;
}

QString readRestOfLine(QTextStream& in) {
    QString rest = in.readLine();
    stripEscapeCharacters(rest);
    return rest.trimmed();
}

void dropLine(QTextStream& in) {
    if (const QString* string = in.string()) {
        const int feed = string->indexOf(u'\n', static_cast<int>(in.pos()));
        in.seek(feed < 0 ? string->size() : feed + 1);
    } else {
        in.readLine();
    }
}

void dropWordsOfLine(QTextStream& in, int count) {
    const qint64 start = in.pos();
    const int available = in.readLine().simplified().count(u' ') + 1;
    if (available <= count) return;
    in.seek(start);
    QString word;
    for (int i = 0; i < count; ++i) readWord(in, word);
}

void stripEscapeCharacters(QString& text) {
    removeCharactersWithCode(text, static_cast<int>(text.indexOf(u'\r')));
    removeCharactersWithCode(text, static_cast<int>(text.indexOf(u'\n')));
}

}  // namespace quarn::blocktext
