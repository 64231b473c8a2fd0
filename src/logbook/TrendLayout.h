#pragma once

#include "graph/GraphScale.h"
#include "logbook/Logbook.h"

#include <QtCore/QRectF>

namespace TARN {

/// Where a trend's flights and values stand in a picture, pixels from its upper left corner: the
/// flights side by side in their order, whatever time lay between them, because wear goes with
/// flights.
class TrendLayout
{
public:
    /// \p size of the picture, \p line the height of a line of text and \p character the width of a
    /// digit in it.
    TrendLayout(const ParameterTrend& trend, QSizeF size, double line, double character);

    const QRectF& plot() const { return mPlot; }
    const GraphTicks& ticks() const { return mTicks; } ///< of values; none without any value
    double xOf(std::size_t point) const;
    double yOf(double value) const;

    /// Every so many flights there is room for a date below, counted from the last.
    std::size_t dateStep() const { return mDateStep; }

    /// The flight at a place: of those with a value not farther than a finger the nearest, in the
    /// plot otherwise the one of the column. Nothing beside the plot.
    std::optional<std::size_t> pointAt(const QPointF& place) const;

private:
    void scale();

    const ParameterTrend& mTrend;
    QRectF mPlot;
    double mMin = 0.0;
    double mMax = 1.0;
    GraphTicks mTicks;
    std::size_t mDateStep = 1;
};

} // namespace TARN
