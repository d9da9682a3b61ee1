#include "quarn/Cartesian3D.h"

#include <QTextStream>

namespace tavrix {

QString Cartesian3D::qstr() const { return QStringLiteral("(%1, %2, %3)").arg(x).arg(y).arg(z); }

QTextStream& operator<<(QTextStream& out, const Cartesian3D& point) { return out << point.qstr(); }

}  // namespace tavrix
