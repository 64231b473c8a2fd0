#include "export/GeoTrack.h"

#include "base/Numbers.h"
#include "export/PositionSource.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace TARN {

namespace {

constexpr double NotTold = std::numeric_limits<double>::quiet_NaN();

SilencesSource silencesOf(const Flight& flight, double offset)
{
    return [&flight, offset] { return flight.silences(offset); };
}

/// The values of a parameter at times that ascend.
class NearestValue
{
public:
    NearestValue(const Flight& flight, const ProfileParameter& parameter, double offset)
        : mSeries(flight.series(parameter, offset)),
          mReach(mSeries.gapRule(silencesOf(flight, offset)).shortest() / 2.0)
    {}

    /// NaN where none is near.
    double at(double time)
    {
        if (mSeries.empty()) {
            return NotTold;
        }
        while (mNext + 1 < mSeries.size() && mSeries.time(mNext + 1) <= time) {
            ++mNext;
        }
        const std::size_t after = std::min(mNext + 1, mSeries.size() - 1);
        const bool isLater = distance(after, time) < distance(mNext, time);
        const std::size_t k = isLater ? after : mNext;
        return distance(k, time) <= mReach ? mSeries.value(k) : NotTold;
    }

private:
    double distance(std::size_t k, double time) const { return std::abs(mSeries.time(k) - time); }

    Series mSeries;
    double mReach;
    std::size_t mNext = 0; ///< last one that is not after the time, or the first
};

void fillGaps(std::vector<TrackPoint>& points)
{
    for (std::size_t k = 1; k < points.size(); ++k) {
        if (std::isnan(points[k].altitude) && points[k].link == TrackPoint::Joined) {
            points[k].altitude = points[k - 1].altitude;
        }
    }
    for (std::size_t k = points.size(); k-- > 1;) {
        if (std::isnan(points[k - 1].altitude) && points[k].link == TrackPoint::Joined) {
            points[k - 1].altitude = points[k].altitude;
        }
    }
}

} // namespace

GeoTrack::GeoTrack(const Flight& flight, double offset, double slotWidth, const TimeRange& range)
{
    collect(flight, offset, range);
    thin(slotWidth);
}

void GeoTrack::collect(const Flight& flight, double offset, const TimeRange& range)
{
    const PositionSource source(*flight.profile());
    mAltitudeUnit = source.altitude.unit.trimmed();
    if (!source.isNamed()) {
        return;
    }
    const double known = metresIn(mAltitudeUnit);
    const double metres = known > 0.0 ? known : 1.0;
    const Series latitude = flight.series(source.latitude, offset);
    const GapRule gaps = latitude.gapRule(silencesOf(flight, offset));
    mReach = gaps.shortest() / 2.0;
    NearestValue longitude(flight, source.longitude, offset);
    std::optional<NearestValue> altitude;
    if (source.hasAltitude()) {
        altitude.emplace(flight, source.altitude, offset);
    }
    TrackPoint::Link link = TrackPoint::AfterGap;
    const std::size_t end = latitude.firstAfter(range.stop);
    for (std::size_t k = latitude.firstNotBefore(range.start); k < end; ++k) {
        TrackPoint point;
        point.time = latitude.time(k);
        point.place = {latitude.value(k), longitude.at(point.time)};
        if (k > 0 && gaps.isGap(latitude.time(k - 1), point.time)) {
            link = TrackPoint::AfterGap;
        }
        if (!isPlace(point.place)) {
            ++mLeftOut.nowhere;
            link = TrackPoint::AfterGap;
            continue;
        }
        point.place.longitude = turnBetween(0.0, point.place.longitude);
        const double height = altitude ? altitude->at(point.time) * metres : NotTold;
        point.altitude = std::isfinite(height) ? height : NotTold;
        point.link = link;
        add(point);
        link = TrackPoint::Joined;
    }
    dropLonely();
}

void GeoTrack::add(TrackPoint point)
{
    const auto isJumpFrom = [&](const TrackPoint& from) {
        return isJump(from.place, point.place, point.time - from.time);
    };
    if (point.link == TrackPoint::AfterGap) {
        dropLonely();
    } else if (isJumpFrom(mAll.back())) {
        const bool wasLonely = mAll.back().link == TrackPoint::AfterJump;
        dropLonely();
        const bool isJump = !wasLonely || isJumpFrom(mAll.back());
        point.link = isJump ? TrackPoint::AfterJump : TrackPoint::Joined;
    } else {
        dropStray();
    }
    mAll.push_back(point);
}

/// The point before the last one, if nothing comes before it, the last one came from there by a
/// jump, and now another one stays with that.
void GeoTrack::dropStray()
{
    const std::size_t size = mAll.size();
    if (size < 2 || mAll[size - 1].link != TrackPoint::AfterJump ||
        mAll[size - 2].link != TrackPoint::AfterGap) {
        return;
    }
    mAll[size - 2] = mAll[size - 1];
    mAll[size - 2].link = TrackPoint::AfterGap;
    mAll.pop_back();
    ++mLeftOut.jumps;
}

/// The last point, if it came by a jump: nothing followed it either.
void GeoTrack::dropLonely()
{
    if (!mAll.empty() && mAll.back().link == TrackPoint::AfterJump) {
        mAll.pop_back();
        ++mLeftOut.jumps;
    }
}

void GeoTrack::thin(double slotWidth)
{
    const auto slotOf = [&](const TrackPoint& point) {
        return truncatedTo<std::int64_t>(point.time / slotWidth);
    };
    for (const TrackPoint& point : mAll) {
        const bool isSame = !mPoints.empty() && slotOf(mPoints.back()) == slotOf(point);
        if (!isSame || point.link != TrackPoint::Joined) {
            mPoints.push_back(point);
            continue;
        }
        const TrackPoint::Link link = mPoints.back().link;
        mPoints.back() = point;
        mPoints.back().link = link;
    }
}

std::vector<GeoTrack::Stretch> GeoTrack::stretches() const
{
    std::vector<Stretch> stretches;
    for (const TrackPoint& point : mPoints) {
        if (point.link != TrackPoint::Joined) {
            stretches.emplace_back(&point, 1);
        } else {
            stretches.back() = {stretches.back().data(), stretches.back().size() + 1};
        }
    }
    return stretches;
}

const TrackPoint* GeoTrack::nearest(double time) const
{
    if (mAll.empty()) {
        return nullptr;
    }
    auto after = std::ranges::lower_bound(mAll, time, {}, &TrackPoint::time);
    const bool isLast = after == mAll.end();
    if (isLast || (after != mAll.begin() && time - (after - 1)->time < after->time - time)) {
        --after;
    }
    return std::abs(after->time - time) <= mReach ? &*after : nullptr;
}

void GeoTrack::fillAltitudes()
{
    fillGaps(mAll);
    fillGaps(mPoints);
}

} // namespace TARN
