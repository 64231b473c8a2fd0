#pragma once

#include "record/RecordData.h"

#include <map>
#include <vector>

namespace TARN {

class Profile;

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
    /// \p slotWidth in seconds; samples from \p start to \p stop (seconds, with the recording's
    /// offset) are taken. Gaps are filled from the slot before, leading ones from the slot after.
    FlightPath(const Profile& profile, const RecordData& data, double slotWidth, double start,
               double stop);

    double slotWidth() const { return mSlotWidth; }

    /// Slot of a time, truncated.
    int slotOf(double time) const;

    /// Null when there is no position in this slot.
    const PathPosition* position(int slot) const;

    const std::map<int, PathPosition>& positions() const { return mPositions; }

private:
    void fillForward();
    void fillBackward();

    double mSlotWidth;
    std::map<int, PathPosition> mPositions;
};

} // namespace TARN
