#include "graph/GraphNotes.h"

#include <algorithm>

namespace TARN {

GraphNotes::GraphNotes(std::shared_ptr<const Flight> flight, double offset, Episodes episodes)
    : mFlight(std::move(flight)), mOffset(offset), mEpisodes(std::move(episodes))
{
    if (mFlight == nullptr) {
        return;
    }
    for (const FaultHistory& history : mFlight->faults()) {
        if (std::ranges::any_of(history.runs(),
                                [](const FaultRun& run) { return run.bits != 0; })) {
            mLanes.push_back(&history);
        }
    }
    if (mEpisodes != nullptr) {
        for (const Episode& episode : *mEpisodes) {
            mByParameter[episode.parameter].push_back(&episode);
        }
    }
}

std::span<const EventMark> GraphNotes::events() const
{
    return mFlight != nullptr ? std::span(mFlight->marks().marks()) : std::span<const EventMark>();
}

const std::vector<const Episode*>& GraphNotes::episodesOf(const ProfileParameter& parameter) const
{
    static const std::vector<const Episode*> None;
    const auto found = mByParameter.find(&parameter);
    return found != mByParameter.end() ? found->second : None;
}

} // namespace TARN
