#pragma once

#include "track/HeightDrawing.h"
#include "track/TrackScene.h"
#include "track/TrackView.h"

#include <QtCore/QString>

#include <optional>

namespace TARN {

/// What of a track stands where.
struct TrackPlaces
{
    const TrackScene& scene;
    const TrackView& view;
    const HeightChart& heights;
};

/// The time that a place is of: that of a mark, of the path, of the heights; nothing where there is
/// none of them.
std::optional<double> timeAt(const TrackPlaces& places, const QPointF& pixel);

/// What there is to say of a place, in plain text; empty where there is nothing.
QString tipAt(const TrackPlaces& places, const QPointF& pixel);

} // namespace TARN
