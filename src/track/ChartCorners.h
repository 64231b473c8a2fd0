#pragma once

#include "track/ChartLabels.h"

#include <initializer_list>

namespace TARN {

/// What stands in the corners of a chart: north, the scale and what the colours mean. All outlive
/// it.
class ChartCorners
{
public:
    /// Takes the places, in corners without the path where there are such.
    ChartCorners(const TrackScene& scene, const TrackStyle& style, const TrackView& view,
                 ChartLabels& labels, TrackCanvas& canvas);

    void draw();

private:
    QRectF corner(const QSizeF& size, std::initializer_list<Qt::Corner> corners);
    void drawScale();
    void drawNorth();
    void drawLegend();

    const TrackScene& mScene;
    const TrackStyle& mStyle;
    const TrackView& mView;
    ChartLabels& mLabels;
    TrackCanvas& mCanvas;
    QRectF mNorth;
    QRectF mScale;
    QRectF mLegend; ///< null without one
};

} // namespace TARN
