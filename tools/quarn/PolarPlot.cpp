#include "PolarPlot.h"

#include <QProcess>
#include <QStandardPaths>
#include <QStringList>
#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>

namespace quarn::tool {

namespace {

constexpr double range = 40.0;  // dB
constexpr double grid = 10.0;

const QString program = QStringLiteral("gnuplot");

/// The first multiple of 10 dB that no value exceeds.
double outerCircle(const std::vector<PolarCurve>& curves) {
    double largest = -std::numeric_limits<double>::infinity();
    for (const PolarCurve& curve : curves) {
        for (const double value : curve.values) {
            if (std::isfinite(value)) largest = std::max(largest, value);
        }
    }
    return std::isfinite(largest) ? grid * std::ceil(largest / grid) : 0.0;
}

/// As gnuplot takes it within double quotes.
QString quoted(QString text) {
    text.replace(u'\\', QLatin1String("\\\\")).replace(u'"', QLatin1String("\\\"")).replace(u'\n', u' ');
    return u'"' + text + u'"';
}

QString scriptFor(const QString& title, const std::vector<PolarCurve>& curves) {
    const double outer = outerCircle(curves);
    const double inner = outer - range;
    QString script = QStringLiteral(
                         "set terminal svg size 640,680 dynamic font 'sans,12' background 'white'\n"
                         "set title %1 noenhanced\nset polar\nset angles degrees\nset theta top clockwise\n"
                         "set size square\nunset border\nunset xtics\nunset ytics\nset key outside bottom center\n"
                         "set grid polar 30 linecolor '#c0c0c0'\nset rrange [%2:%3]\nset rtics %4\nset ttics 30\n")
                         .arg(quoted(title))
                         .arg(inner)
                         .arg(outer)
                         .arg(grid);
    QStringList plots;
    for (const PolarCurve& curve : curves) {
        plots << QStringLiteral("'-' using 1:2 with lines linewidth 2 dashtype %1 title %2")
                     .arg(plots.size() + 1)
                     .arg(quoted(curve.title));
    }
    script += QStringLiteral("plot ") + plots.join(QStringLiteral(", ")) + u'\n';
    for (const PolarCurve& curve : curves) {
        for (std::size_t i = 0; i < curve.values.size(); ++i) {
            const double value = curve.values[i] > inner ? curve.values[i] : inner;  // also for what is no number
            script += QStringLiteral("%1 %2\n").arg(curve.angles[i]).arg(value);
        }
        script += QLatin1String("e\n");
    }
    return script;
}

}  // namespace

bool canPlot() { return !QStandardPaths::findExecutable(program).isEmpty(); }

QByteArray polarPlot(const QString& title, const std::vector<PolarCurve>& curves) {
    QProcess process;
    process.start(program, QStringList());
    process.write(scriptFor(title, curves).toUtf8());
    process.closeWriteChannel();
    const bool isDone =
        process.waitForFinished() && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    QByteArray image = process.readAllStandardOutput();
    if (isDone && !image.isEmpty()) return image;
    throw std::runtime_error("gnuplot failed: " + process.readAllStandardError().trimmed().toStdString());
}

}  // namespace quarn::tool
