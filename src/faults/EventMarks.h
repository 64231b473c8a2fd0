#pragma once

#include "faults/FaultHistory.h"
#include "faults/RecordEvent.h"

#include <span>
#include <vector>

namespace TARN {

/// A moment of a recording at which something went wrong or right again.
struct EventMark
{
    enum Kind
    {
        Limit,
        Lamp,
        Fault ///< a warning or fault of an error matrix came or went
    };

    double time; ///< seconds
    Kind kind;
    QString text;           ///< what happened, in one line
    QColor color;           ///< may be invalid
    bool isShifted = false; ///< the time offset applies to its samples
};

/// All of them, for going from one to the next: limit and warning-lamp events, and warnings and
/// faults that came or went. Informations are no events.
class EventMarks
{
public:
    EventMarks() = default;
    EventMarks(const RecordData& samples, const Events& events,
               const std::vector<FaultHistory>& faults);

    bool empty() const { return mMarks.empty(); }

    /// By time.
    const std::vector<EventMark>& marks() const { return mMarks; }

    // The first moment after a time (seconds) and the last one before it: all that happened within
    // a millisecond, of which the first, or the last, tells the time to go to. What is less than a
    // millisecond away is where one is. Empty when there is none.

    std::span<const EventMark> next(double time) const;
    std::span<const EventMark> previous(double time) const;

private:
    std::vector<EventMark> mMarks;
};

} // namespace TARN
