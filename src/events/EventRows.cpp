#include "events/EventRows.h"

#include "base/ClockTime.h"

#include <algorithm>
#include <map>

namespace TARN {

void EventRows::setEvents(const std::vector<RecordEvent>* events)
{
    mEvents = events;
    setEpisodes(nullptr);
}

void EventRows::setEpisodes(Episodes episodes)
{
    mEpisodes = std::move(episodes);
    mUnannounced.clear();
    std::map<std::pair<const ProfileParameter*, std::size_t>, const Episode*> announced;
    if (mEpisodes != nullptr) {
        for (const Episode& episode : *mEpisodes) {
            if (!episode.isAnnounced()) {
                mUnannounced.push_back(&episode);
            }
            for (const std::size_t place : episode.announcedBy) {
                announced[{episode.parameter, place}] = &episode;
            }
        }
    }
    if (mKind == EventKind::Faults) { // by the times that are shown
        std::ranges::stable_sort(mUnannounced, {},
                                 [this](const Episode* episode) { return shownStart(*episode); });
    }
    mOfEvents.assign(mEpisodes != nullptr ? eventCount() : 0, nullptr);
    for (std::size_t i = 0; i < mOfEvents.size(); ++i) {
        const auto found = announced.find({(*mEvents)[i].parameter, (*mEvents)[i].place});
        mOfEvents[i] = found != announced.end() ? found->second : nullptr;
    }
    merge();
}

void EventRows::setReference(std::shared_ptr<const void> keeper, std::vector<Other> others)
{
    mKeeper = std::move(keeper);
    mReference = std::move(others);
    std::ranges::stable_sort(mReference, {}, [](const Other& other) { return shownStart(other); });
    merge();
}

/// The matrices carry no time offset.
double EventRows::shownStart(const Episode& episode) const
{
    return episode.start - (mKind == EventKind::Faults ? episode.shift : 0.0);
}

double EventRows::timeOf(std::size_t own) const
{
    return own < eventCount() ? (*mEvents)[own].time : shownStart(*mUnannounced[own]);
}

std::size_t EventRows::ownCount() const
{
    return mUnannounced.empty() ? eventCount() : firstUnannounced() + mUnannounced.size();
}

/// The reference's lines go between the events, of errors between the episodes.
void EventRows::merge()
{
    mOwn.clear();
    mRows.clear();
    if (mReference.empty()) {
        return;
    }
    const std::size_t mixed = mKind == EventKind::Faults ? mUnannounced.size() : eventCount();
    std::size_t next = 0;
    for (std::size_t own = 0; own <= ownCount(); ++own) {
        const double time = own < mixed ? timeOf(own) : std::numeric_limits<double>::infinity();
        while (next < mReference.size() && shownStart(mReference[next]) < time) {
            mOwn.push_back(-1 - static_cast<int>(next++));
        }
        if (own < ownCount()) {
            mRows.push_back(static_cast<int>(mOwn.size()));
            mOwn.push_back(static_cast<int>(own));
        }
    }
}

int EventRows::count() const
{
    return static_cast<int>(mOwn.empty() ? ownCount() : mOwn.size());
}

bool EventRows::isHeading(int row) const
{
    return mKind != EventKind::Faults && own(row) >= 0 &&
           static_cast<std::size_t>(own(row)) == eventCount();
}

const RecordEvent* EventRows::event(int row) const
{
    const int place = own(row);
    return place >= 0 && static_cast<std::size_t>(place) < eventCount()
               ? &(*mEvents)[static_cast<std::size_t>(place)]
               : nullptr;
}

const Episode* EventRows::episode(int row) const
{
    if (own(row) < 0) {
        return other(row).episode;
    }
    const auto place = static_cast<std::size_t>(own(row));
    if (place < eventCount()) {
        return place < mOfEvents.size() ? mOfEvents[place] : nullptr;
    }
    return place >= firstUnannounced() ? mUnannounced[place - firstUnannounced()] : nullptr;
}

double EventRows::shift(int row) const
{
    if (isOfReference(row)) {
        return other(row).hidden - other(row).shift;
    }
    const Episode* told = episode(row);
    const bool isWithout = mKind == EventKind::Faults || event(row) != nullptr;
    return told != nullptr && isWithout ? told->shift : 0.0;
}

int EventRows::rowAt(double time) const
{
    const auto lastOf = [key = timeKeyOf(time)](const auto& rows, const auto& keyOf) {
        const auto after = std::ranges::upper_bound(rows, key, {}, keyOf);
        return after == rows.begin() ? 0 : static_cast<int>(after - rows.begin() - 1);
    };
    int place = 0;
    if (mKind == EventKind::Faults) {
        place = lastOf(mUnannounced,
                       [this](const Episode* episode) { return timeKeyOf(shownStart(*episode)); });
    } else if (mEvents != nullptr) {
        place = lastOf(*mEvents, [](const RecordEvent& event) {
            return static_cast<std::uint32_t>(event.tenths);
        });
    }
    return static_cast<std::size_t>(place) < mRows.size() ? mRows[static_cast<std::size_t>(place)]
                                                          : place;
}

} // namespace TARN
