#include "export/TrackEvents.h"

#include <map>

namespace TARN {

std::vector<TrackEvents> trackEvents(const std::vector<RecordEvent>& events, const Flight& flight,
                                     double offset, const GeoTrack& track, const TimeRange& range,
                                     std::size_t& leftOut)
{
    std::map<const TrackPoint*, TrackEvents> byPoint; // which lie by time
    for (const RecordEvent& event : events) {
        const double time = event.time + flight.series(*event.parameter, offset).shift();
        if (!range.contains(time)) {
            continue;
        }
        const TrackPoint* point = track.nearest(time);
        if (point == nullptr) {
            ++leftOut;
            continue;
        }
        const auto [at, isNew] = byPoint.try_emplace(point, TrackEvents{point, time, {}});
        at->second.time = std::min(at->second.time, time);
        at->second.events.push_back(&event);
    }
    std::vector<TrackEvents> list;
    for (auto& [point, one] : byPoint) {
        list.push_back(std::move(one));
    }
    return list;
}

} // namespace TARN
