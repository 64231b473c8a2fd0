#pragma once

#include "track/TrackCanvas.h"
#include "track/TrackScene.h"

namespace TARN {

/// Draws how high the aircraft was, with the marks of the chart above. All outlive the drawing.
class HeightDrawing
{
public:
    HeightDrawing(const TrackScene& scene, const TrackStyle& style, const HeightChart& chart,
                  TrackCanvas& canvas)
        : mScene(scene), mStyle(style), mChart(chart), mCanvas(canvas)
    {}

    /// All but the current time; \p area with the axes.
    void draw(const QRectF& area);
    void drawMoment(double time);

private:
    void drawAltitudes();
    void drawTimes();
    void drawDistances();
    void drawColumn(double x, const QString& text);
    void drawMarks();

    const TrackScene& mScene;
    const TrackStyle& mStyle;
    const HeightChart& mChart;
    TrackCanvas& mCanvas;
};

/// Marks that stand near a column of the heights, the worst first.
std::vector<const TrackMark*> marksNear(const TrackScene& scene, const HeightChart& chart,
                                        double x);

} // namespace TARN
