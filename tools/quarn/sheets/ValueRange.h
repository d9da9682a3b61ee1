#pragma once

#include <QString>
#include <cstddef>

namespace quarn::tool {

/// The range of a series of values, and the number of NaNs among them.
class ValueRange {
public:
    void add(float value) {
        ++m_count;
        if (value != value) {
            ++m_nans;
        } else if (m_count == m_nans + 1) {
            m_least = m_greatest = value;
        } else if (value < m_least) {
            m_least = value;
        } else if (value > m_greatest) {
            m_greatest = value;
        }
    }

    /// "-2 mV/m to 5 V/m, 3 NaN"; "no values".
    QString text(const QString& unit) const;

private:
    std::size_t m_count = 0;
    std::size_t m_nans = 0;
    float m_least = 0.0F;
    float m_greatest = 0.0F;
};

}  // namespace quarn::tool
