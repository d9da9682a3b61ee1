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

}  // namespace quarn::tool
