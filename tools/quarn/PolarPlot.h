#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

namespace quarn::tool {

/// A closed curve around the zenith, which is at the top; angles in degrees grow clockwise, values are in dB.
struct PolarCurve {
    QString title;
    std::vector<double> angles;
    std::vector<double> values;
};

/// Whether gnuplot, which draws the plots, is installed.
bool canPlot();

/// An SVG image of the curves, from 40 dB below the largest value. Throws std::runtime_error when gnuplot fails.
QByteArray polarPlot(const QString& title, const std::vector<PolarCurve>& curves);

}  // namespace quarn::tool
