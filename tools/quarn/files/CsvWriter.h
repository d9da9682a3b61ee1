#pragma once

#include <QByteArray>
#include <QStringList>
#include <complex>
#include <cstdint>

namespace quarn::tool {

/// Rows of comma-separated values, on standard output or at the end of a text. Numbers have as few digits as give them
/// back exactly; what is no number is "nan" or "inf".
class CsvWriter {
public:
    CsvWriter() = default;
    explicit CsvWriter(QByteArray& destination) : m_destination(&destination) {}
    ~CsvWriter() { flush(); }
    CsvWriter(const CsvWriter&) = delete;
    CsvWriter& operator=(const CsvWriter&) = delete;

    void addHeader(const QStringList& columns);

    void add(float value);
    void add(double value);
    void add(std::int32_t value);
    /// Two columns: the real and the imaginary part.
    void add(const std::complex<float>& value);
    void endRow();

private:
    template <class Number>
    void addNumber(Number value);
    void flush();

    QByteArray* m_destination = nullptr;  ///< null for standard output
    QByteArray m_text;
    bool m_rowIsEmpty = true;
};

/// "x_v_per_m" for "x" in V/m: the name of a column with its unit.
QString columnName(const QString& name, const QString& unit);

/// The columns of a field such as "total E": "total_e_x_v_per_m" and so on for each component; when they are complex,
/// "total_e_x_re_v_per_m", "total_e_x_im_v_per_m" and so on.
enum class Components { Real, Complex };
QStringList vectorColumns(const QString& field, const QString& unit, Components components);

}  // namespace quarn::tool
