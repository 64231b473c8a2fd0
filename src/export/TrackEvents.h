#pragma once

#include "export/GeoTrack.h"

namespace TARN {

/// What went wrong at one point of a track.
struct TrackEvents
{
    const TrackPoint* point;
    double time; ///< of the first of them, seconds, with the offset
    std::vector<const RecordEvent*> events;
};

/// Of those inside \p range, each at the point nearest to it. Those without one are added to
/// \p leftOut.
std::vector<TrackEvents> trackEvents(const std::vector<RecordEvent>& events, const Flight& flight,
                                     double offset, const GeoTrack& track, const TimeRange& range,
                                     std::size_t& leftOut);

} // namespace TARN
