#include "files/CsvWriter.h"

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

QString columnName(const QString& name, const QString& unit) {
    QString column = (name + u'_' + unit).toLower();
    for (const QChar blank : {u' ', u'-'}) column.replace(blank, u'_');
    return column.replace(u'/', QLatin1String("_per_")).replace(u'²', u'2');
}

QStringList vectorColumns(const QString& field, const QString& unit, Components components) {
    QStringList columns;
    for (const char* axis : {"_x", "_y", "_z"}) {
        const QString name = field + QLatin1String(axis);
        if (components == Components::Real) {
            columns << columnName(name, unit);
        } else {
            columns << columnName(name + QLatin1String("_re"), unit) << columnName(name + QLatin1String("_im"), unit);
        }
    }
    return columns;
}

}  // namespace quarn::tool
