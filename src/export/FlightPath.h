#pragma once

#include "record/TimeRange.h"

#include <vector>

namespace TARN {

class Flight;

/// A point of the flight path; a coordinate below -999 has not been seen.
struct PathPosition
{
    double latitude = -1000.0;  ///< degrees
    double longitude = -1000.0; ///< degrees
    double altitude = -1000.0;  ///< as the profile scales it
};

/// The positions of a flight in slots of equal width, counted from time 0. Only slots in which
/// the aircraft told a coordinate are there.
class FlightPath
{
public:
    struct Point
    {
        int slot;
        PathPosition position;
    };

    /// \p slotWidth in seconds; samples inside \p range (with the time offset) are taken. Gaps are
    /// filled from the slot before, leading ones from the slot after.
    FlightPath(const Flight& flight, double offset, double slotWidth, const TimeRange& range);

    double slotWidth() const { return mSlotWidth; }

    /// Slot of a time, truncated.
    int slotOf(double time) const;

    /// Null when there is no position in this slot.
    const PathPosition* position(int slot) const;

    /// By slot.
    const std::vector<Point>& points() const { return mPoints; }

private:
    void collect(const Flight& flight, double offset, const TimeRange& range);
    void fillForward();
    void fillBackward();

    double mSlotWidth;
    std::vector<Point> mPoints;
};

} // namespace TARN
