#include "track/ChartLabels.h"

#include <algorithm>

namespace TARN {

bool ChartLabels::isFree(const QRectF& box) const
{
    return std::ranges::none_of(mTaken, [&](const QRectF& other) { return other.intersects(box); });
}

void ChartLabels::plate(const QRectF& box)
{
    constexpr int Opaque = 205;
    QColor color = mStyle.ground;
    color.setAlpha(Opaque);
    mCanvas.fill(box, color);
    mTaken.push_back(box);
}

bool ChartLabels::add(const QString& text, const QPointF& topLeft, const QColor& color)
{
    const QRectF box(topLeft, mCanvas.sizeOf(text));
    if (!isFree(box.adjusted(-4.0, -1.0, 4.0, 1.0))) {
        return false;
    }
    plate(box.adjusted(-2.0, 0.0, 2.0, 0.0));
    mCanvas.text(topLeft, text, color);
    return true;
}

bool ChartLabels::isOnPath(const QRectF& box) const
{
    static const TrackShades Plain;
    constexpr double Margin = 5.0; // pixels that are looked at around any area
    TrackView part = mView;
    part.area = box.adjusted(Margin, Margin, -Margin, -Margin);
    part.middle = mView.toPlane(box.center());
    return !mScene.ground->path.lines(part, Plain, 0, mScene.ground->track.size()).empty();
}

} // namespace TARN
