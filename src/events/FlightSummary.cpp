#include "events/FlightSummary.h"

#include "faults/EventDetector.h"
#include "record/RecordText.h"

#include <algorithm>
#include <bit>

namespace TARN {

namespace {

/// Parameters of types that have states, with a threshold that has some.
Watched watchedIn(const Flight& flight)
{
    Watched watched;
    const ProfileInfo& profile = flight.profile()->data();
    for (const auto& [device, parameter] : flight.profile()->parameters()) {
        const auto threshold = profile.thresholds.find(parameter->thresholdId);
        const Series series = flight.series(*parameter, 0.0);
        if (threshold != profile.thresholds.end() && isWatched(threshold->second) &&
            series.decoder().isNumeric() && !series.empty()) {
            ++watched.parameters;
            watched.samples += series.size();
        }
    }
    return watched;
}

} // namespace

void FlightSummary::Count::add(double time)
{
    first = times == 0 ? time : first;
    ++times;
}

FlightSummary summaryOf(const Flight& flight, double offset, const std::vector<Episode>& episodes)
{
    FlightSummary summary;
    const TimeRange range = flight.range(offset);
    summary.duration = range.stop - range.start;
    // The first that an event tells of is what a reader wants to see; engines start out of range.
    for (const bool isAnnounced : {true, false}) {
        for (const Episode& episode : episodes) {
            if (episode.isAnnounced() == isAnnounced) {
                FlightSummary::Count& count =
                    episode.state == StateLimit ? summary.limits : summary.warnings;
                count.add(episode.start);
            }
        }
    }
    for (const EventMark& mark : flight.marks().marks()) {
        if (mark.kind == EventMark::Lamp) {
            summary.lamps.add(mark.time + (mark.isShifted ? offset : 0.0));
        }
    }
    std::optional<double> firstFault;
    for (const FaultHistory& history : flight.faults()) {
        const auto bits = history.bitsOfType(ErrorWarning) | history.bitsOfType(ErrorFault);
        std::uint32_t before = 0;
        for (const FaultRun& run : history.runs()) {
            const int came = std::popcount(run.bits & bits & ~before);
            before = run.bits;
            if (came > 0) {
                const double time = run.start + history.shift(offset);
                firstFault = std::min(firstFault.value_or(time), time);
                summary.faults.times += static_cast<std::size_t>(came);
            }
        }
    }
    summary.faults.first = firstFault.value_or(0.0);
    summary.watched = watchedIn(flight);
    summary.remarks = static_cast<std::size_t>(recordRemarks(flight.record()->integrity()).size());
    return summary;
}

} // namespace TARN
