#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <vector>

namespace quarn::tool {

/// A closed curve. Angles are in degrees, clockwise from the zenith at the top; values are in dB.
struct PolarCurve {
    QString title;
    std::vector<double> angles;
    std::vector<double> values;
};

enum class ImageFormat { Svg, Png };

/// The format that the ending of the file name stands for.
std::optional<ImageFormat> imageFormatOf(const QString& path);

/// Whether gnuplot, which draws the plots, is installed and knows the format.
bool canPlot(ImageFormat format);

/// An image of the curves, from 40 dB below the largest value. Throws std::runtime_error when gnuplot fails.
QByteArray polarPlot(ImageFormat format, const QString& title, const std::vector<PolarCurve>& curves);

}  // namespace quarn::tool
