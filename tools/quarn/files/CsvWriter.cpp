#include "files/CsvWriter.h"

#include <QStringList>
#include <charconv>

#include "Console.h"

namespace quarn::tool {

void CsvWriter::addHeader(const QString& columns) { m_text += columns.toUtf8() + '\n'; }

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

QString vectorColumns(const QString& field, const QString& unit, Components components) {
    QStringList columns;
    for (const char* axis : {"x", "y", "z"}) {
        for (const char* part : {"_", "_re_", "_im_"}) {
            if ((components == Components::Real) != (part == QLatin1String("_"))) continue;
            columns << field + u'_' + QLatin1String(axis) + QLatin1String(part) + unit;
        }
    }
    QString names = columns.join(u',').toLower();
    for (const QChar blank : {u' ', u'-'}) names.replace(blank, u'_');
    return names.replace(u'/', QLatin1String("_per_")).replace(u'²', u'2');
}

}  // namespace quarn::tool
