#include "logbook/TrendLayout.h"

#include <QtCore/QLineF>

#include <algorithm>
#include <cmath>
#include <limits>

namespace TARN {

TrendLayout::TrendLayout(const ParameterTrend& trend, QSizeF size, double line, double character)
    : mTrend(trend)
{
    constexpr int LabelCharacters = 9;
    constexpr int DateCharacters = 12;
    const double left = LabelCharacters * character;
    mPlot = QRectF(left, 1.75 * line, std::max(1.0, size.width() - left - character),
                   std::max(1.0, size.height() - 3.75 * line));
    scale();
    mTicks = GraphTicks::ofValues(mMin, mMax, mPlot.height(), 2.5 * line);
    const double column =
        mPlot.width() / static_cast<double>(std::max<std::size_t>(1, mTrend.points.size()));
    mDateStep = static_cast<std::size_t>(
        std::clamp(std::ceil(DateCharacters * character / column), 1.0, 1e9));
}

/// All values and, around them, the band.
void TrendLayout::scale()
{
    double min = std::numeric_limits<double>::infinity();
    double max = -min;
    const auto take = [&](double value) {
        min = std::min(min, value);
        max = std::max(max, value);
    };
    for (const TrendPoint& point : mTrend.points) {
        if (point.value) {
            take(*point.value);
        }
        if (point.median) {
            take(*point.median - 3.0 * *point.sigma);
            take(*point.median + 3.0 * *point.sigma);
        }
    }
    if (!std::isfinite(min) || !std::isfinite(max) || !std::isfinite(max - min)) {
        return;
    }
    constexpr double Margin = 0.06;
    const double extent = max > min ? max - min : std::max(std::fabs(max), 1.0);
    mMin = min - Margin * extent;
    mMax = max + Margin * extent;
}

double TrendLayout::xOf(std::size_t point) const
{
    return mPlot.left() + (static_cast<double>(point) + 0.5) * mPlot.width() /
                              static_cast<double>(std::max<std::size_t>(1, mTrend.points.size()));
}

double TrendLayout::yOf(double value) const
{
    return mPlot.bottom() - (value - mMin) / (mMax - mMin) * mPlot.height();
}

std::optional<std::size_t> TrendLayout::pointAt(const QPointF& place) const
{
    constexpr double Finger = 10.0; // pixels
    const auto count = static_cast<double>(mTrend.points.size());
    if (count == 0.0 || !mPlot.contains(place)) {
        return std::nullopt;
    }
    const double column = mPlot.width() / count;
    const auto numberAt = [&](double x) {
        return static_cast<std::size_t>(
            std::clamp(std::floor((x - mPlot.left()) / column), 0.0, count - 1.0));
    };
    std::optional<std::size_t> nearest;
    double least = Finger;
    for (std::size_t k = numberAt(place.x() - Finger); k <= numberAt(place.x() + Finger); ++k) {
        const auto& value = mTrend.points[k].value;
        const double away =
            value ? QLineF(place, QPointF(xOf(k), yOf(*value))).length() : 2.0 * Finger;
        if (away < least) {
            least = away;
            nearest = k;
        }
    }
    return nearest ? nearest : numberAt(place.x());
}

} // namespace TARN
