#include "track/TrackHits.h"

#include "base/ClockTime.h"
#include "track/Graticule.h"
#include "track/TrackSymbols.h"

#include <QtCore/QCoreApplication>

#include <cmath>

namespace TARN {

namespace {

struct HitTexts
{
    Q_DECLARE_TR_FUNCTIONS(TrackHits)
};

constexpr double Reach = 12.0; // pixels from the path that a click may be

} // namespace

std::optional<double> timeAt(const TrackPlaces& places, const QPointF& pixel)
{
    if (places.scene.empty()) {
        return std::nullopt;
    }
    const PositionTrack& track = places.scene.ground->track;
    if (!places.view.area.contains(pixel)) {
        return places.heights.isShown() ? std::optional(places.heights.timeAt(track, pixel.x()))
                                        : std::nullopt;
    }
    const auto marks = marksNear(places.scene, places.view, pixel);
    if (!marks.empty()) {
        return marks.front()->time;
    }
    const auto hit = places.scene.ground->path.nearest(places.view, pixel, Reach);
    if (!hit) {
        return std::nullopt;
    }
    const double from = track.time(hit->index);
    return hit->share > 0.0 ? from + hit->share * (track.time(hit->index + 1) - from) : from;
}

QString tipAt(const TrackPlaces& places, const QPointF& pixel)
{
    constexpr std::size_t Most = 6;
    const auto time = timeAt(places, pixel);
    if (!time) {
        return {};
    }
    QStringList lines;
    const auto marks = places.view.area.contains(pixel)
                           ? marksNear(places.scene, places.view, pixel)
                           : marksNear(places.scene, places.heights, pixel.x());
    for (const TrackMark* mark : marks) {
        if (lines.size() < qsizetype(Most)) {
            lines += mark->text;
        }
    }
    if (marks.size() > Most) {
        lines += HitTexts::tr("and %1 more").arg(marks.size() - Most);
    }
    const PositionTrack& track = places.scene.ground->track;
    QString line = clockText(*time);
    if (const auto place = track.at(*time)) {
        line += "  " + degreesText(place->point.latitude, false) + "  " +
                degreesText(place->point.longitude, true);
        if (std::isfinite(place->altitude)) {
            line += QString("  %1 %2").arg(place->altitude, 0, 'f', 0).arg(track.altitudeUnit());
        }
        line += QString("  %1 km").arg(place->metres / 1000.0, 0, 'f', 1);
    }
    lines += line;
    return lines.join('\n');
}

} // namespace TARN
