#include "faults/LampEpisodes.h"

#include "faults/EventDetector.h"
#include "profile/Profile.h"
#include "profile/Series.h"

#include <algorithm>
#include <ranges>

namespace TARN {

namespace {

/// Whether each sample, by its place in the list, makes an event.
std::vector<bool> eventsOf(const Series& series)
{
    std::vector<bool> isEvent;
    isEvent.reserve(series.size());
    int before = 0;
    for (const RecordEntry& entry : series.entries()) {
        isEvent.push_back(isLampEvent(before, series.decoder().toInt(entry)));
    }
    return isEvent;
}

void findIn(const Profile::Entry& entry, const Series& series, const SilencesSource& silences,
            std::vector<Episode>& episodes)
{
    const auto valueAt = [&](std::size_t k) { return series.decoder().toInt(series.entry(k)); };
    const auto numbers = std::views::iota(std::size_t(0), series.size());
    if (std::ranges::all_of(numbers, [&](std::size_t k) { return valueAt(k) == 0; })) {
        return;
    }
    const GapRule gaps = series.gapRule(silences);
    const std::vector<bool> isEvent = eventsOf(series);
    std::size_t next = 0;
    for (std::size_t k = 0; k < series.size(); k = next) {
        const int value = valueAt(k);
        next = k + 1;
        const auto isGap = [&] { return gaps.isGap(series.time(next - 1), series.time(next)); };
        while (next < series.size() && valueAt(next) == value && !isGap()) {
            ++next;
        }
        if (value == 0) {
            continue;
        }
        Episode& episode = episodes.emplace_back();
        episode.device = entry.device;
        episode.parameter = entry.parameter;
        episode.name = entry.device->name + " " + entry.parameter->name;
        episode.state = value == 1 ? StateWarning : StateLimit;
        episode.color = lampColor(value);
        episode.start = series.time(k);
        episode.end = series.time(next < series.size() && !isGap() ? next : next - 1);
        episode.shift = series.shift();
        episode.samples = next - k;
        for (std::size_t of = k; of < next; ++of) {
            if (isEvent[series.place(of)]) {
                episode.announcedBy.push_back(series.place(of));
            }
        }
    }
}

} // namespace

std::vector<Episode> findLampEpisodes(const RecordData& data, const Profile& profile, double offset,
                                      const SilencesSource& silences, Progress& progress)
{
    std::vector<Episode> episodes;
    for (const Profile::Entry& entry : profile.parameters()) {
        if (!progress.stopRequested() && isLamp(profile.data(), *entry.parameter)) {
            findIn(entry, Series(data, profile, *entry.parameter, offset), silences, episodes);
        }
    }
    std::ranges::stable_sort(episodes, {}, &Episode::start);
    return episodes;
}

} // namespace TARN
