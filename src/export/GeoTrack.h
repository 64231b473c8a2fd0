#pragma once

#include "flight/Flight.h"
#include "flight/GeoPoint.h"

#include <cstddef>
#include <limits>
#include <span>
#include <vector>

namespace TARN {

/// A moment of a flight: when and where.
struct TrackPoint
{
    /// How it comes after the one before.
    enum Link
    {
        Joined,
        AfterGap, ///< or as the first one: nothing tells how the aircraft came here
        AfterJump ///< nothing that flies comes here from there
    };

    double time = 0.0; ///< seconds on the recording's clock, with the offset
    GeoPoint place;    ///< longitude above -180 and up to 180
    double altitude = std::numeric_limits<double>::quiet_NaN(); ///< metres; NaN where not told
    Link link = AfterGap;
};

/// Where an aircraft was when, in stretches that it can have flown. Of each slot of time the last
/// position stays, as it was sent, with its own time.
///
/// A latitude makes a position with the longitude and the altitude that are nearest to it in time,
/// not further away than half of the time that makes a gap of theirs. A stretch ends at a gap of
/// the latitude, at positions that nobody can be at, and at a jump. A single position that is
/// reached by a jump and left by a jump or a gap is none, nor is one that follows a gap when those
/// after it are elsewhere: halves of two fixes meet where one is found again.
class GeoTrack
{
public:
    /// Positions in \p range (with the offset), in slots of \p slotWidth seconds from time 0.
    GeoTrack(const Flight& flight, double offset, double slotWidth, const TimeRange& range);

    /// By time.
    const std::vector<TrackPoint>& points() const { return mPoints; }
    using Stretch = std::span<const TrackPoint>;
    std::vector<Stretch> stretches() const;

    /// Of all positions, not only of those that stay, the one nearest to a time; null where it is
    /// further away than half of the time that makes a gap.
    const TrackPoint* nearest(double time) const;

    /// Gives points without an altitude that of the one before in their stretch, else that of the
    /// next: for those who can't leave it out.
    void fillAltitudes();

    /// What was left out, positions.
    struct LeftOut
    {
        std::size_t nowhere = 0; ///< 0/0, outside of the earth, half of it missing
        std::size_t jumps = 0;
    };
    const LeftOut& leftOut() const { return mLeftOut; }

    /// As the profile names the altitude's unit.
    const QString& altitudeUnit() const { return mAltitudeUnit; }

private:
    void collect(const Flight& flight, double offset, const TimeRange& range);
    void add(TrackPoint point);
    void dropLonely();
    void dropStray();
    void thin(double slotWidth);

    std::vector<TrackPoint> mAll;    ///< as they were sent
    std::vector<TrackPoint> mPoints; ///< of them those that stay
    LeftOut mLeftOut;
    QString mAltitudeUnit;
    double mReach = 0.0; ///< of nearest(), seconds
};

} // namespace TARN
