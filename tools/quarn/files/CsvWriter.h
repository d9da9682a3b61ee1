#pragma once

#include <QByteArray>
#include <QString>
#include <complex>
#include <cstdint>

namespace quarn::tool {

/// Rows of comma-separated values, on standard output or at the end of a byte array. Numbers have the fewest digits
/// that give them back exactly; a value that is not a finite number is "nan" or "inf".
class CsvWriter {
public:
    CsvWriter() = default;
    explicit CsvWriter(QByteArray& destination) : m_destination(&destination) {}
    ~CsvWriter() { flush(); }
    CsvWriter(const CsvWriter&) = delete;
    CsvWriter& operator=(const CsvWriter&) = delete;

    /// The names of the columns, with commas between them.
    void addHeader(const QString& columns);

    template <class... Values>
    void addRow(const Values&... values) {
        (add(values), ...);
        endRow();
    }

    /// The same value by value, for rows whose length is only known at run time.
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

/// The columns of a field such as "total E": "total_e_x_v_per_m" and so on for each component, with commas between
/// them; when they are complex, "total_e_x_re_v_per_m", "total_e_x_im_v_per_m" and so on.
enum class Components { Real, Complex };
QString vectorColumns(const QString& field, const QString& unit, Components components);

}  // namespace quarn::tool
