#include "faults/Episode.h"

#include "faults/EventDetector.h"
#include "profile/Profile.h"
#include "profile/Series.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <tuple>

namespace TARN {

namespace {

/// Finds the episodes of one parameter.
class Finder
{
public:
    Finder(const Profile::Entry& entry, const Series& series) : mEntry(entry), mSeries(series)
    {
        mStates.resize(series.size());
        series.decoder().cellStates(series.entries(), mStates.data());
    }

    bool findsAny() const
    {
        return std::ranges::any_of(mStates, [](std::uint8_t state) { return state != StateOk; });
    }

    std::vector<Episode> find(const GapRule& gaps)
    {
        findEvents();
        std::vector<Episode> episodes;
        for (std::size_t k = 0; k < mSeries.size();) {
            if (stateAt(k) == StateOk) {
                ++k;
                continue;
            }
            const std::size_t end = endOfRun(k, gaps);
            episodes.push_back(episodeOf(k, end, gaps));
            k = end;
        }
        return episodes;
    }

private:
    int stateAt(std::size_t k) const { return mStates[mSeries.place(k)]; }

    /// Samples that make a limit event; only FLOAT messages are watched for those.
    void findEvents()
    {
        std::vector<std::uint8_t> watched(mSeries.size());
        mSeries.decoder().states(mSeries.entries(), watched.data());
        int before = StateLimit;
        mIsEvent.resize(watched.size());
        for (std::size_t place = 0; place < watched.size(); ++place) {
            mIsEvent[place] = isLimitEvent(before, watched[place]);
            before = watched[place];
        }
    }

    std::size_t endOfRun(std::size_t k, const GapRule& gaps) const
    {
        for (++k; k < mSeries.size(); ++k) {
            if (stateAt(k) == StateOk || gaps.isGap(mSeries.time(k - 1), mSeries.time(k))) {
                break;
            }
        }
        return k;
    }

    Episode episodeOf(std::size_t begin, std::size_t end, const GapRule& gaps) const
    {
        Episode episode;
        episode.device = mEntry.device;
        episode.parameter = mEntry.parameter;
        episode.name = mEntry.device->name + " " + mEntry.parameter->name;
        episode.shift = mSeries.shift();
        episode.samples = end - begin;
        episode.start = mSeries.time(begin);
        const double last = mSeries.time(end - 1);
        const bool endsWithNext =
            end < mSeries.size() && stateAt(end) == StateOk && !gaps.isGap(last, mSeries.time(end));
        episode.end = endsWithNext ? mSeries.time(end) : last;
        std::size_t worst = begin;
        for (std::size_t k = begin; k < end; ++k) {
            worst = stateAt(k) > stateAt(worst) ? k : worst;
            if (mIsEvent[mSeries.place(k)]) {
                episode.announcedBy.push_back(mSeries.place(k));
            }
        }
        episode.state = stateAt(worst);
        episode.peak = peakOf(begin, end, isDownwards(mSeries.entry(worst)));
        episode.color = episode.peak ? episode.peak->color : QColor();
        return episode;
    }

    bool isDownwards(const RecordEntry& worst) const
    {
        const auto isOk = [](const ProfileThrValue& value) { return value.state == StateOk; };
        const auto& values = mSeries.decoder().thresholds().threshold()->values;
        const auto reached = values.begin() + mSeries.decoder().reachedLimit(worst);
        return std::any_of(reached + 1, values.end(), isOk) &&
               std::none_of(values.begin(), reached, isOk);
    }

    std::optional<Episode::Peak> peakOf(std::size_t begin, std::size_t end, bool downwards) const
    {
        std::optional<Episode::Peak> peak;
        for (std::size_t k = begin; k < end; ++k) {
            const double value = mSeries.value(k);
            if (std::isnan(value) ||
                (peak && !(downwards ? value < peak->value : value > peak->value))) {
                continue;
            }
            const Decoder& decoder = mSeries.decoder();
            const auto& limits = decoder.thresholds().limits();
            const auto reached = static_cast<std::size_t>(decoder.reachedLimit(mSeries.entry(k)));
            peak = {value, mSeries.time(k), limits[reached],
                    decoder.thresholds().threshold()->values[reached].color, std::nullopt};
            if (downwards && reached + 1 < limits.size()) {
                peak->below = limits[reached + 1];
            }
        }
        return peak;
    }

    const Profile::Entry& mEntry;
    const Series& mSeries;
    std::vector<std::uint8_t> mStates; ///< by place in the list
    std::vector<bool> mIsEvent;        ///< by place in the list
};

} // namespace

std::vector<Episode> findEpisodes(const RecordData& data, const Profile& profile, double offset,
                                  const SilencesSource& silences, Progress& progress)
{
    std::vector<Episode> episodes;
    std::size_t done = 0;
    for (const Profile::Entry& entry : profile.parameters()) {
        progress.report(done++, profile.parameters().size());
        const auto threshold = profile.data().thresholds.find(entry.parameter->thresholdId);
        if (progress.stopRequested() || threshold == profile.data().thresholds.end() ||
            !isWatched(threshold->second)) {
            continue;
        }
        const Series series(data, profile, *entry.parameter, offset);
        Finder finder(entry, series);
        if (finder.findsAny()) {
            const auto found = finder.find(series.gapRule(silences));
            episodes.insert(episodes.end(), found.begin(), found.end());
        }
    }
    std::ranges::stable_sort(episodes, {}, &Episode::start);
    return episodes;
}

std::vector<const Episode*> pointersTo(const std::vector<Episode>& episodes)
{
    std::vector<const Episode*> all;
    for (const Episode& episode : episodes) {
        all.push_back(&episode);
    }
    return all;
}

std::vector<const Episode*> worstOf(const std::vector<Episode>& episodes, std::size_t most)
{
    std::vector<const Episode*> worst = pointersTo(episodes);
    std::ranges::stable_sort(worst, std::greater(), [](const Episode* episode) {
        return std::tuple(episode->state, episode->isAnnounced(), episode->duration());
    });
    worst.resize(std::min(most, worst.size()));
    return worst;
}

} // namespace TARN
