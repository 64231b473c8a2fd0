#pragma once

#include "faults/Episode.h"
#include "faults/EventWords.h"
#include "faults/RecordEvent.h"

#include <memory>
#include <vector>

namespace TARN {

/// Which event or episode stands in which row of a list: the events, then a heading and the
/// episodes that no event announced, and between the first ones, by time, what the reference
/// flight had. Errors have no events: theirs are episodes, without a heading.
class EventRows
{
public:
    using Episodes = std::shared_ptr<const std::vector<Episode>>;

    explicit EventRows(EventKind kind) : mKind(kind) {}

    /// Sorted by time; null for none. It lives as long. Episodes are gone, but the reference's.
    void setEvents(const std::vector<RecordEvent>* events);
    /// Null for none.
    void setEpisodes(Episodes episodes);
    /// What a reference flight had.
    struct Other
    {
        const Episode* episode;
        double shift;  ///< seconds that bring its times to the clock of the flight
        double hidden; ///< of these, that times in the list are shown without
    };

    /// \p keeper keeps the episodes alive.
    void setReference(std::shared_ptr<const void> keeper, std::vector<Other> others);

    int count() const;
    bool isHeading(int row) const;
    bool isOfReference(int row) const { return !mOwn.empty() && mOwn[std::size_t(row)] < 0; }

    /// Null where a row has none.
    const RecordEvent* event(int row) const;
    /// What a row tells of, or what its event belongs to; null where there is none.
    const Episode* episode(int row) const;
    /// Seconds that times of the row's episode are shown without: events carry no time offset.
    double shift(int row) const;
    /// Seconds that bring times of the row's episode to the flight's clock with the offset.
    double clockShift(int row) const { return isOfReference(row) ? other(row).shift : 0.0; }

    /// Row of the latest event, in a list without events of the latest episode, at or before \p
    /// time (seconds, compared in tenths); of several in one tenth the last. 0 when there is none.
    int rowAt(double time) const;

private:
    std::size_t eventCount() const { return mEvents != nullptr ? mEvents->size() : 0; }
    /// Place of the first episode without an event, below the heading where there is one.
    std::size_t firstUnannounced() const
    {
        return mKind == EventKind::Faults ? 0 : eventCount() + 1;
    }
    std::size_t ownCount() const;
    /// Place of a row's line when the reference has none; negative of the reference's.
    const Other& other(int row) const { return mReference[std::size_t(-1 - own(row))]; }
    int own(int row) const { return mOwn.empty() ? row : mOwn[std::size_t(row)]; }
    static double shownStart(const Other& other)
    {
        return other.episode->start + other.shift - other.hidden;
    }
    double timeOf(std::size_t own) const;
    double shownStart(const Episode& episode) const;
    void merge();

    EventKind mKind;
    const std::vector<RecordEvent>* mEvents = nullptr;
    Episodes mEpisodes;
    std::shared_ptr<const void> mKeeper;
    std::vector<const Episode*> mUnannounced;
    std::vector<const Episode*> mOfEvents; ///< the episode of each event, null where there is none
    std::vector<Other> mReference;         ///< by the times that are shown
    std::vector<int> mOwn;                 ///< see own(); empty where the reference has no line
    std::vector<int> mRows;                ///< of the own lines; empty with mOwn
};

} // namespace TARN
