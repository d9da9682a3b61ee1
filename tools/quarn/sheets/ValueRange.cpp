#include "sheets/ValueRange.h"

#include "Quantity.h"

namespace quarn::tool {

QString ValueRange::text(const QString& unit) const {
    if (m_count == 0) return QStringLiteral("no values");
    QString nans = m_nans == 0 ? QString() : QStringLiteral("%1 NaN").arg(m_nans);
    if (m_nans == m_count) return nans;
    const QString range =
        QStringLiteral("%1 to %2")
            .arg(withPrefix(static_cast<double>(m_least), unit), withPrefix(static_cast<double>(m_greatest), unit));
    return nans.isEmpty() ? range : range + QStringLiteral(", ") + nans;
}

}  // namespace quarn::tool
