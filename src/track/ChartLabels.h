#pragma once

#include "track/TrackCanvas.h"
#include "track/TrackScene.h"

#include <vector>

namespace TARN {

/// Texts of a chart on plates, each where nothing stands yet. All outlive it.
class ChartLabels
{
public:
    ChartLabels(const TrackScene& scene, const TrackStyle& style, const TrackView& view,
                TrackCanvas& canvas)
        : mScene(scene), mStyle(style), mView(view), mCanvas(canvas)
    {}

    /// Whether nothing stands in a box.
    bool isFree(const QRectF& box) const;
    /// Whether the path runs through a box.
    bool isOnPath(const QRectF& box) const;

    /// Something stands there.
    void take(const QRectF& box) { mTaken.push_back(box); }
    /// The ground of a text, which hides what is below it.
    void plate(const QRectF& box);
    /// A text on a plate; false, and nothing, where something stands.
    bool add(const QString& text, const QPointF& topLeft, const QColor& color);

private:
    const TrackScene& mScene;
    const TrackStyle& mStyle;
    const TrackView& mView;
    TrackCanvas& mCanvas;
    std::vector<QRectF> mTaken;
};

} // namespace TARN
