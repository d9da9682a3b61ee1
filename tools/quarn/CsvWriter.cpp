#include "CsvWriter.h"

#include <charconv>

#include "Console.h"

namespace quarn::tool {

void CsvWriter::addHeader(const QStringList& columns) {
    m_text += columns.join(u',').toUtf8();
    m_text += '\n';
}

template <class Number>
void CsvWriter::addNumber(Number value) {
    constexpr std::size_t longest = 32;
    char digits[longest];
    const auto end = std::to_chars(digits, digits + longest, value).ptr;
    if (!m_rowIsEmpty) m_text += ',';
    m_text.append(digits, static_cast<int>(end - digits));
    m_rowIsEmpty = false;
}

void CsvWriter::add(float value) { addNumber(value); }
void CsvWriter::add(double value) { addNumber(value); }
void CsvWriter::add(std::int32_t value) { addNumber(value); }

void CsvWriter::add(const std::complex<float>& value) {
    add(value.real());
    add(value.imag());
}

void CsvWriter::endRow() {
    constexpr int piece = 1 << 16;
    m_text += '\n';
    m_rowIsEmpty = true;
    if (m_text.size() >= piece) flush();
}

void CsvWriter::flush() {
    if (m_destination) {
        *m_destination += m_text;
    } else {
        out() << QString::fromUtf8(m_text);
    }
    m_text.clear();
}

}  // namespace quarn::tool
