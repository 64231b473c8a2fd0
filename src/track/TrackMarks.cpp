#include "track/TrackMarks.h"

#include "base/ClockTime.h"
#include "faults/EventWords.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <tuple>

namespace TARN {

namespace {

/// The user's texts of this file, declared so that the extraction of texts finds them.
struct TrackMarkTexts
{
    Q_DECLARE_TR_FUNCTIONS(TrackMarks)
};

QColor markColor(const Episode& episode)
{
    const QColor own =
        episode.peak && episode.peak->color.isValid() ? episode.peak->color : episode.color;
    return own.isValid() && own != QColor(Qt::white) ? own
           : episode.state == StateLimit             ? QColor("#ff6666")
                                                     : QColor("#ffe666");
}

QString markName(const Episode& episode)
{
    return episode.parameter != nullptr ? episode.parameter->name : episode.name;
}

QString markText(const Episode& episode, EventKind kind)
{
    QString text = QString("%1, %2, %3, %4")
                       .arg(clockText(episode.start), durationWords(episode.duration()),
                            episode.name, severityWords(kind).value(episode.state));
    if (kind == EventKind::Limits && episode.peak && episode.parameter != nullptr) {
        text += ", " + TrackMarkTexts::tr("peak %1 at %2, threshold %3")
                           .arg(valueWords(*episode.parameter, episode.peak->value),
                                clockText(episode.peak->time), thresholdWords(*episode.peak));
    }
    return text;
}

} // namespace

TrackMarks marksOf(const Troubles& troubles, const PositionTrack& track,
                   const TrackProjection& projection)
{
    TrackMarks found;
    const auto add = [&](const std::vector<Episode>& episodes, EventKind kind,
                         TrackMark::Kind mark) {
        for (const Episode& episode : episodes) {
            if (episode.state == StateOk) {
                continue; // an information
            }
            const double time =
                episode.peak && kind == EventKind::Limits ? episode.peak->time : episode.start;
            const auto place = track.at(time);
            if (!place || !place->isKnown) {
                ++found.elsewhere;
                continue;
            }
            found.marks.push_back({mark, episode.state, markColor(episode), markName(episode),
                                   markText(episode, kind), time, projection.toPlane(place->point),
                                   place->metres, place->altitude,
                                   track.firstNotBefore(episode.start),
                                   track.firstNotBefore(episode.end)});
        }
    };
    add(troubles.lamps, EventKind::Lamps, TrackMark::Lamp);
    add(troubles.faults, EventKind::Faults, TrackMark::Fault);
    add(troubles.limits, EventKind::Limits, TrackMark::Limit);
    std::ranges::stable_sort(found.marks, {}, &TrackMark::state);
    return found;
}

} // namespace TARN
