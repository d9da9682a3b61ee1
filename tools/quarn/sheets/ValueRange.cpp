#include "sheets/ValueRange.h"

#include <QStringList>

#include "Quantity.h"

namespace quarn::tool {

QString ValueRange::text(const QString& unit) const {
    if (m_count == 0) return "no values";
    QStringList parts;
    if (m_nans < m_count) parts << rangeText(m_least, m_greatest, unit);
    if (m_nans > 0) parts << QString::number(m_nans) + " NaN";
    return parts.join(", ");
}

}  // namespace quarn::tool
