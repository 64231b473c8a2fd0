#pragma once

#include "record/RecordStart.h"

#include <string>

namespace TARN {

/// Turns times of a recording into moments of the world, by when its date was told.
class TrackClock
{
public:
    explicit TrackClock(const Record& record);

    RecordStart::Source source() const { return mStart.source; }
    bool isKnown() const { return mStart.source != RecordStart::Unknown; }

    /// "2021-07-09T04:05:06.250Z", rounded; within the years 1 to 9999, whatever damaged times say.
    std::string text(double time) const;

private:
    RecordStart mStart;
};

} // namespace TARN
