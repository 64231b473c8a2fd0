#include "graph/GraphScale.h"

#include "base/Numbers.h"

#include <algorithm>
#include <cmath>

namespace TARN {

namespace {

/// A step is a short decimal number; single precision would let far ticks drift off it.
double decimalOf(float step)
{
    return QString::number(step, 'g', 5).toDouble();
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

GraphTicks GraphTicks::ofValues(double min, double max, double length, double spacing)
{
    GraphTicks axis;
    float single = 0.0F;
    int parts = 0;
    // From 0: the rule looks at the extent only, and far from 0 single precision would lose it.
    getAutoPara(0.0F, static_cast<float>(max - min), static_cast<float>(length),
                static_cast<float>(spacing), &single, &parts);
    if (single > 0.0F && std::isfinite(single)) {
        axis.step = decimalOf(single);
        axis.fill(min, max, parts);
    }
    return axis;
}

GraphTicks GraphTicks::ofTimes(double min, double max, double length, double spacing)
{
    constexpr struct
    {
        double seconds;
        int parts;
    } Steps[] = {{1, 5},    {2, 4},    {5, 5},     {10, 5},    {15, 3},    {30, 6},
                 {60, 6},   {120, 4},  {300, 5},   {600, 5},   {900, 3},   {1800, 6},
                 {3600, 4}, {7200, 4}, {10800, 3}, {21600, 6}, {43200, 4}, {86400, 4}};
    const double least = (max - min) / length * spacing;
    if (!(least > 0.0) || !std::isfinite(least)) {
        return {};
    }
    GraphTicks axis;
    const auto* found =
        std::ranges::find_if(Steps, [&](const auto& step) { return step.seconds >= least; });
    if (least <= 0.5) {
        // 1, 2 or 5 times a power of ten.
        const double power = std::pow(10.0, std::floor(std::log10(least)));
        const double mantissa = least / power;
        axis.step = power * (mantissa <= 1.0   ? 1.0
                             : mantissa <= 2.0 ? 2.0
                             : mantissa <= 5.0 ? 5.0
                                               : 10.0);
        axis.fill(min, max, 5);
    } else if (found != std::end(Steps)) {
        axis.step = found->seconds;
        axis.fill(min, max, found->parts);
    } else {
        constexpr double Day = 86400.0;
        axis.step = Day * std::ceil(least / Day);
        axis.fill(min, max, 4);
    }
    return axis;
}

void GraphTicks::fill(double min, double max, int parts)
{
    constexpr double MaxTicks = 1000; // more than pixels can hold apart
    if (!(std::fabs(min / step) < 1e12) || !((max - min) / step < MaxTicks)) {
        step = 0.0;
        return;
    }
    const auto last = static_cast<std::int64_t>(std::floor(max / step));
    for (auto i = static_cast<std::int64_t>(std::floor(min / step)); i <= last; ++i) {
        for (int part = 0; part < parts; ++part) {
            const double value = static_cast<double>(i * parts + part) * step / parts;
            if (value >= min && value <= max) {
                ticks.push_back({value, part == 0});
            }
        }
    }
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
    const int decimals = std::clamp(truncatedTo<int>(std::ceil(-std::log10(step) - 1e-6)), 1, 9);
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

QString rangeLabel(double value, double extent, int digits)
{
    constexpr int MostDecimals = 9;
    if (!std::isfinite(value) || !(extent > 0.0)) {
        return QString::number(value, 'g', 6);
    }
    const int decimals = truncatedTo<int>(digits - 1 - std::floor(std::log10(extent)));
    if (decimals > MostDecimals || std::fabs(value) >= 1e9) {
        return QString::number(value, 'g', 4);
    }
    const QString text = QString::number(value, 'f', std::max(0, decimals));
    return text.startsWith('-') && text.toDouble() == 0.0 ? text.mid(1) : text;
}

} // namespace TARN
