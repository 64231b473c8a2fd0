#pragma once

#include "track/ChartLabels.h"
#include "track/TrackCanvas.h"
#include "track/TrackScene.h"

namespace TARN {

struct GraticuleLine;

/// Draws the chart of a track: graticule, path, marks, and what a reader needs to read them.
class TrackDrawing
{
public:
    /// All outlive the drawing.
    TrackDrawing(const TrackScene& scene, const TrackStyle& style, TrackCanvas& canvas);

    /// All but the current time.
    void draw(const TrackView& view);

    /// The aircraft where it was at a time, hollow and with words where nobody knows.
    void drawAircraft(const TrackView& view, double time);

private:
    void drawGraticule(const TrackView& view, ChartLabels& labels);
    bool labelLine(const TrackView& view, const GraticuleLine& line, ChartLabels& labels);
    void drawPath(const TrackView& view);
    void drawPart(const TrackView& view, std::size_t begin, std::size_t end, bool isFaded);
    void drawArrows(const QPolygonF& line, const QColor& color);
    void drawBands(const TrackView& view);
    void drawSymbols(const TrackView& view, ChartLabels& labels);
    void drawNames(const TrackView& view, ChartLabels& labels);
    bool labelMark(const TrackView& view, const QString& name, const QPointF& pixel,
                   ChartLabels& labels);

    const TrackScene& mScene;
    const TrackStyle& mStyle;
    TrackCanvas& mCanvas;
    double mUntilArrow = 0.0; ///< pixels
    int mArrows = 0;
};

} // namespace TARN
