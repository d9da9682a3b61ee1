#include "plots/PolarPlot.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QStringList>
#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>

#include "Text.h"

namespace quarn::tool {

namespace {

constexpr double range = 40.0;  // dB
constexpr double grid = 10.0;

const QString program = text("gnuplot");

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

/// The text in double quotes, in gnuplot's syntax.
QString quoted(QString text) {
    text.replace(u'\\', QLatin1String("\\\\")).replace(u'"', QLatin1String("\\\"")).replace(u'\n', u' ');
    return u'"' + text + u'"';
}

QString scriptFor(const QString& title, const std::vector<PolarCurve>& curves) {
    const double outer = outerCircle(curves);
    const double inner = outer - range;
    QString script = text(
                         "set title %1 noenhanced\nset polar\nset angles degrees\nset theta top clockwise\n"
                         "set size square\nunset border\nunset xtics\nunset ytics\nset key outside bottom center\n"
                         "set grid polar 30 linetype 1 linewidth 0.5 linecolor '#c0c0c0'\nset rrange [%2:%3]\nset "
                         "rtics %4\nset ttics 30\n")
                         .arg(quoted(title))
                         .arg(inner)
                         .arg(outer)
                         .arg(grid);
    QStringList plots;
    for (const PolarCurve& curve : curves) {
        plots << text("'-' using 1:2 with lines linewidth 2 dashtype %1 title %2")
                     .arg(plots.size() + 1)
                     .arg(quoted(curve.title));
    }
    script += text("plot ") + plots.join(", ") + u'\n';
    for (const PolarCurve& curve : curves) {
        for (std::size_t i = 0; i < curve.values.size(); ++i) {
            const double value = curve.values[i] > inner ? curve.values[i] : inner;  // also for NaN
            script += text("%1 %2\n").arg(curve.angles[i]).arg(value);
        }
        script += QLatin1String("e\n");
    }
    return script;
}

QString terminalFor(ImageFormat format) {
    return format == ImageFormat::Svg
               ? text("set terminal svg size 640,680 dynamic font 'sans,12' background 'white'\n")
               : text("set terminal pngcairo size 960,1020 font 'sans,18' background 'white'\n");
}

struct Outcome {
    bool isDone;
    QByteArray image;
    QByteArray message;
};

Outcome runGnuplot(const QString& script) {
    QProcess process;
    process.start(program, QStringList());
    process.write(script.toUtf8());
    process.closeWriteChannel();
    const bool isDone =
        process.waitForFinished() && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    return {isDone, process.readAllStandardOutput(), process.readAllStandardError()};
}

}  // namespace

std::optional<ImageFormat> imageFormatOf(const QString& path) {
    const QString ending = QFileInfo(path).suffix().toLower();
    if (ending == QLatin1String("svg")) return ImageFormat::Svg;
    if (ending == QLatin1String("png")) return ImageFormat::Png;
    return std::nullopt;
}

bool canPlot(ImageFormat format) {
    return !QStandardPaths::findExecutable(program).isEmpty() && runGnuplot(terminalFor(format)).isDone;
}

QByteArray polarPlot(ImageFormat format, const QString& title, const std::vector<PolarCurve>& curves) {
    const auto [isDone, image, message] = runGnuplot(terminalFor(format) + scriptFor(title, curves));
    if (isDone && !image.isEmpty()) return image;
    throw std::runtime_error("no plot was made, as gnuplot failed: " + message.trimmed().toStdString());
}

}  // namespace quarn::tool
