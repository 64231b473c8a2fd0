#pragma once

#include "flight/Flight.h"

#include <map>

namespace TARN {

/// What went wrong in a flight, as a graph shows it beside its curves. Times that it gives carry
/// the time offset, as the curves do.
class GraphNotes
{
public:
    using Episodes = std::shared_ptr<const std::vector<Episode>>;

    /// Of no flight.
    GraphNotes() = default;

    /// \p episodes of the flight at that offset; null while nobody has looked for them.
    GraphNotes(std::shared_ptr<const Flight> flight, double offset, Episodes episodes);

    const std::shared_ptr<const Flight>& flight() const { return mFlight; }

    std::span<const EventMark> events() const;
    double timeOf(const EventMark& event) const
    {
        return event.time + (event.isShifted ? mOffset : 0.0);
    }

    /// The error matrices that reported something.
    const std::vector<const FaultHistory*>& lanes() const { return mLanes; }
    double shiftOf(const FaultHistory& lane) const { return lane.shift(mOffset); }

    /// By time.
    const std::vector<const Episode*>& episodesOf(const ProfileParameter& parameter) const;

private:
    std::shared_ptr<const Flight> mFlight;
    double mOffset = 0.0;
    Episodes mEpisodes;
    std::vector<const FaultHistory*> mLanes;
    std::map<const ProfileParameter*, std::vector<const Episode*>> mByParameter;
};

} // namespace TARN
