#pragma once

#include "faults/Episode.h"
#include "track/TrackPath.h"

#include <QtCore/QString>

namespace TARN {

/// Something that went wrong, where it happened.
struct TrackMark
{
    enum Kind
    {
        Limit,
        Lamp,
        Fault
    };

    Kind kind;
    int state;         ///< StateWarning or StateLimit
    QColor color;      ///< never invalid
    QString name;      ///< of the parameter, lamp or error
    QString text;      ///< all about it, as the lists word it
    double time;       ///< of the symbol: the peak's, or when it began; seconds
    QPointF place;     ///< of the symbol, metres
    double metres;     ///< flown until then
    double altitude;   ///< NaN where it is not known
    std::size_t begin; ///< positions meanwhile
    std::size_t end;
};

/// All times out of range, lamps that were on, warnings and faults: the worst last, as they are
/// drawn.
struct TrackMarks
{
    std::vector<TrackMark> marks;
    std::size_t elsewhere = 0; ///< of which nobody knows where they happened
};

/// \p troubles at the track's time offset.
TrackMarks marksOf(const Troubles& troubles, const PositionTrack& track,
                   const TrackProjection& projection);

} // namespace TARN
