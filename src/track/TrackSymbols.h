#pragma once

#include "track/TrackCanvas.h"
#include "track/TrackScene.h"

namespace TARN {

/// The symbol of a mark around a place.
QPolygonF symbolOf(const TrackMark& mark, const QPointF& place);

/// An aircraft seen from above, and what stands for it where it has no course.
QPolygonF aircraftAt(const QPointF& place, double degrees);
QPolygonF circleAt(const QPointF& place, double radius);

/// A shape that points up, turned clockwise, around a place.
QPolygonF turned(const QPolygonF& shape, double degrees, const QPointF& place);

/// Marks whose symbols are near a pixel, the worst first.
std::vector<const TrackMark*> marksNear(const TrackScene& scene, const TrackView& view,
                                        const QPointF& pixel);

/// What the symbols mean, and how many are not on the path, in a row.
void drawKey(const TrackScene& scene, const TrackStyle& style, const QRectF& row,
             TrackCanvas& canvas);

} // namespace TARN
