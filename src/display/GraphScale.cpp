#include "display/GraphScale.h"

#include "base/Numbers.h"
#include "display/GraphTypes.h"

#include <algorithm>
#include <cmath>

namespace TARN {

namespace {

/// A step is a short decimal number; single precision would let far ticks drift off it.
double decimalOf(float step)
{
    return QString::number(step, 'g', 5).toDouble();
}

/// \p value, which is between \p from and \p from + \p span, on the axis that starts at \p to.
double map(double value, double from, double span, double extent, double to)
{
    return span == 0.0 ? to : (value - from) * extent / span + to;
}

} // namespace

void getAutoPara(float min, float max, float length, float spacing, float* step, int* subdivisions)
{
    const float range = max - min;
    float raw = range / (length / spacing);
    if (raw > range) {
        *step = -1.0F;
        return;
    }
    const float exponent = std::log10(std::fabs(raw));
    double power = 1.0;
    if (exponent > 1.0F) {
        power = std::pow(10.0, std::trunc(exponent));
    } else if (exponent < 0.0F) {
        power = std::pow(10.0, std::trunc(exponent - 1.0F));
    }
    raw = static_cast<float>(raw / power);
    struct Choice
    {
        int mantissa;
        int subdivisions;
    };
    const Choice choice = raw < 1.0F   ? Choice{1, 5}
                          : raw < 2.0F ? Choice{2, 4}
                          : raw < 5.0F ? Choice{5, 5}
                                       : Choice{10, 5};
    *subdivisions = choice.subdivisions;
    *step = static_cast<float>(power * choice.mantissa);
}

void getAutoFormat(float step, QString& format)
{
    const float exponent = std::log10(step);
    const int decimals = exponent >= 1.0F ? 0 : truncatedTo<int>(std::fabs(exponent) + 1.0F);
    format = QString::asprintf("%%.%df", decimals);
}

void pt1(float input, float timeConstant, float timeStep, double* state)
{
    const double k = std::min(timeStep, 1.0F);
    *state = static_cast<float>((timeConstant * *state + k * input) / (k + timeConstant));
}

GraphTicks::GraphTicks(double min, double max, double length, double spacing)
{
    constexpr double MaxTicks = 1000; // more than pixels can hold apart
    float single = 0.0F;
    int parts = 0;
    // From 0: the rule looks at the extent only, and far from 0 single precision would lose it.
    getAutoPara(0.0F, static_cast<float>(max - min), static_cast<float>(length),
                static_cast<float>(spacing), &single, &parts);
    if (!(single > 0.0F) || !std::isfinite(single) || !(std::fabs(min / single) < 1e12) ||
        !((max - min) / single < MaxTicks)) {
        return;
    }
    step = decimalOf(single);
    const auto last = static_cast<std::int64_t>(std::floor(max / step));
    for (auto i = static_cast<std::int64_t>(std::floor(min / step)); i <= last; ++i) {
        for (int part = 0; part < parts; ++part) {
            const double value = (static_cast<double>(i * parts + part)) * step / parts;
            if (value >= min && value <= max) {
                ticks.push_back({value, part == 0, i});
            }
        }
    }
}

int GraphTicks::labelStride(double extent, double pixels)
{
    constexpr int Strides[] = {1, 2, 5, 10, 20, 50};
    const auto* found = std::ranges::find_if(Strides, [&](int n) { return n * pixels >= extent; });
    return found != std::end(Strides) ? *found : 100;
}

QString timeLabel(double time, double step)
{
    if (time < 0.0) {
        return {};
    }
    // A tick on a whole second may have been computed as one just before it.
    const auto nearest = std::round(time);
    const bool whole = std::fabs(time - nearest) < step * 1e-3;
    const auto seconds = truncatedTo<int>(whole ? nearest : time);
    const QString text =
        QString::asprintf("%d:%02d:%02d", seconds / 3600, seconds / 60 % 60, seconds % 60);
    if (whole) {
        return text;
    }
    const int decimals = std::clamp(static_cast<int>(std::ceil(-std::log10(step) - 1e-6)), 1, 9);
    const double fraction = time - seconds;
    return text + QString::number(fraction, 'f', decimals).mid(1);
}

QString valueLabel(double value, double step)
{
    constexpr int Longest = 12; // characters that the space left of the plot can spare
    QString format;
    getAutoFormat(static_cast<float>(step), format);
    if (std::fabs(value) < step * 1e-3) {
        value = 0.0; // no negative zero
    }
    const QString text = QString::asprintf(format.toLatin1().constData(), value);
    return text.size() <= Longest ? text : QString::number(value, 'g', 6);
}

double GraphView::xToViewport(double time) const
{
    return map(time, xmin, xmax - xmin, width, x0);
}

double GraphView::yToViewport(double value) const
{
    return map(value, ymin, ymax - ymin, height, y0);
}

double GraphView::yToViewport(const ParStruct& curve, double value) const
{
    return map(value, curve.rangeMin, curve.rangeMax - curve.rangeMin, curve.viewportHeight,
               curve.viewportY);
}

double GraphView::viewportToX(double x) const
{
    return map(x, x0, width, xmax - xmin, xmin);
}

double GraphView::viewportToY(double y) const
{
    return map(y, y0, height, ymax - ymin, ymin);
}

double GraphView::viewportToY(const ParStruct& curve, double y) const
{
    return map(y, curve.viewportY, curve.viewportHeight, curve.rangeMax - curve.rangeMin,
               curve.rangeMin);
}

double GraphView::viewportToRelX(double x) const
{
    return std::clamp(map(x, x0, width, 1.0, 0.0), 0.0, 1.0);
}

double GraphView::viewportToRelY(double y) const
{
    return std::clamp(map(y, y0, height, 1.0, 0.0), 0.0, 1.0);
}

} // namespace TARN
