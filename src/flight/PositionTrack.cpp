#include "flight/PositionTrack.h"

#include "base/ClockTime.h"
#include "base/CountText.h"
#include "flight/ValueReader.h"
#include "profile/Profile.h"
#include "profile/Series.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace TARN {

namespace {

/// The user's texts of this file, declared so that the extraction of texts finds them.
struct PositionTexts
{
    Q_DECLARE_TR_FUNCTIONS(PositionTrack)
};

constexpr double DegreeOfArc = std::numbers::pi / 180.0;

/// By the identifier, as another device may describe it: the profile's last word counts.
ProfileParameter parameterOf(const Profile& profile, int channel, int id)
{
    ProfileParameter parameter = profile.parameterById(static_cast<unsigned>(id));
    parameter.channel = channel;
    parameter.id = id;
    return parameter;
}

/// Whether two points are so near that there is no jump from one to the other; most are, and
/// angles are dear.
bool isStep(const GeoPoint& from, const GeoPoint& to)
{
    constexpr double Near = 3e-4; // degrees, at most 33 m
    return std::abs(to.latitude - from.latitude) < Near &&
           std::abs(to.longitude - from.longitude) < Near;
}

/// The longitudes of a flight at times that ascend.
class Longitudes
{
public:
    Longitudes(const Series& series, const SilencesSource& silences)
        : mSeries(series), mGaps(series.gapRule(silences))
    {
        mAfter = sample(0);
    }

    /// NaN in a gap; the nearest sample where two contradict each other and at the ends.
    double at(double time, double latitude)
    {
        for (; mNext < mSeries.size() && mAfter.time <= time + HalfTick; mAfter = sample(++mNext)) {
            mBefore = mAfter;
        }
        if (time - mBefore.time <= HalfTick) {
            return mBefore.value;
        }
        if (mNext == 0 || mNext >= mSeries.size()) {
            return alone(mNext == 0 ? mAfter : mBefore, time);
        }
        if (mGaps.isGap(mBefore.time, mAfter.time)) {
            return NoValue;
        }
        const double step = mAfter.time - mBefore.time;
        const GeoPoint before{latitude, mBefore.value};
        const GeoPoint after{latitude, mAfter.value};
        if (isStep(before, after)) {
            return mBefore.value + (time - mBefore.time) / step * (mAfter.value - mBefore.value);
        }
        if (isJump(before, after, step)) {
            return time - mBefore.time < mAfter.time - time ? mBefore.value : mAfter.value;
        }
        return mBefore.value +
               (time - mBefore.time) / step * turnBetween(mBefore.value, mAfter.value);
    }

private:
    static constexpr double NoValue = std::numeric_limits<double>::quiet_NaN();
    static constexpr double Never = std::numeric_limits<double>::infinity();

    struct Sample
    {
        double time;
        double value;
    };

    Sample sample(std::size_t k) const
    {
        return k < mSeries.size() ? Sample{mSeries.time(k), mSeries.value(k)}
                                  : Sample{Never, NoValue};
    }

    double alone(const Sample& other, double time) const
    {
        return mGaps.isGap(std::min(time, other.time), std::max(time, other.time)) ? NoValue
                                                                                   : other.value;
    }

    const Series& mSeries;
    GapRule mGaps;
    std::size_t mNext = 0; ///< of the sample after the last time
    Sample mBefore{-Never, NoValue};
    Sample mAfter;
};

/// Tells all places by time, and where what is between it and the one before is not known; how
/// many positions are 0/0.
template <typename Visitor>
std::size_t visitPositions(const RecordData& data, const Profile& profile, double offset,
                           const SilencesSource& silences, Progress& progress, Visitor visit)
{
    constexpr std::size_t Turn = 4096; // positions between two looks
    const KmlInfo kml = profile.kmlInfo();
    const ProfileParameter north = parameterOf(profile, kml.latitudeChannel, kml.latitudeId);
    const ProfileParameter east = parameterOf(profile, kml.longitudeChannel, kml.longitudeId);
    const Series latitudes(data, profile, north, offset);
    const Series eastern(data, profile, east, offset);
    const GapRule gaps = latitudes.gapRule(silences);
    Longitudes longitudes(eastern, silences);
    std::size_t nowhere = 0;
    double before = 0.0;
    bool isCut = true;
    for (std::size_t k = 0; k < latitudes.size(); ++k) {
        if (k % Turn == 0 && progress.stopRequested()) {
            break;
        }
        const double time = latitudes.time(k);
        const double latitude = latitudes.value(k);
        GeoPoint point{latitude, longitudes.at(time, latitude)};
        isCut = isCut || gaps.isGap(before, time);
        before = time;
        if (!isPlace(point)) {
            nowhere += latitude == 0.0 && point.longitude == 0.0 ? 1 : 0;
            isCut = true;
            continue;
        }
        if (std::abs(point.longitude) > 180.0) {
            point.longitude = std::remainder(point.longitude, 360.0);
        }
        visit(time, point, isCut);
        isCut = false;
    }
    return nowhere;
}

/// Degrees clockwise from north of the great circle from one point to another.
double bearing(const GeoPoint& from, const GeoPoint& to)
{
    const double turn = turnBetween(from.longitude, to.longitude) * DegreeOfArc;
    const double north =
        std::cos(from.latitude * DegreeOfArc) * std::sin(to.latitude * DegreeOfArc) -
        std::sin(from.latitude * DegreeOfArc) * std::cos(to.latitude * DegreeOfArc) *
            std::cos(turn);
    const double east = std::sin(turn) * std::cos(to.latitude * DegreeOfArc);
    const double degrees = std::atan2(east, north) / DegreeOfArc;
    return degrees < 0.0 ? degrees + 360.0 : degrees;
}

} // namespace

bool namesPosition(const Profile& profile)
{
    return profile.kmlInfo().latitudeId != 0 && profile.kmlInfo().longitudeId != 0;
}

QStringList PositionQuality::remarks() const
{
    QStringList lines;
    if (nowhere > 0) {
        lines += PositionTexts::tr("Positions of 0/0, sent while the receiver knows none: %1")
                     .arg(countText(static_cast<qint64>(nowhere)));
    }
    if (jumps > 0) {
        lines += PositionTexts::tr("Jumps of the position faster than 500 m/s: %1, the first at %2")
                     .arg(countText(static_cast<qint64>(jumps)), clockText(firstJump));
    }
    return lines;
}

PositionQuality positionQuality(const RecordData& data, const Profile& profile,
                                const SilencesSource& silences, Progress& progress)
{
    PositionQuality found;
    if (!namesPosition(profile)) {
        return found;
    }
    std::optional<GeoPoint> last;
    double lastTime = 0.0;
    const auto look = [&](double time, const GeoPoint& point, bool) {
        if (last && !isStep(*last, point) && isJump(*last, point, time - lastTime)) {
            found.addJump(lastTime);
        }
        last = point;
        lastTime = time;
    };
    found.nowhere = visitPositions(data, profile, 0.0, silences, progress, look);
    return found;
}

PositionTrack::PositionTrack(const RecordData& data, const Profile& profile, double offset,
                             const SilencesSource& silences, Progress& progress)
{
    if (namesPosition(profile)) {
        mQuality.nowhere = visitPositions(
            data, profile, offset, silences, progress,
            [this](double time, const GeoPoint& point, bool isCut) { append(time, point, isCut); });
    }
}

void PositionTrack::append(double time, const GeoPoint& point, bool isCut, double altitude)
{
    isCut = isCut || empty();
    double metres = mMetres.empty() ? 0.0 : mMetres.back();
    bool hasJumped = false;
    if (!mTimes.empty()) {
        const double step = distanceBetween(mPoints.back(), point);
        hasJumped = isJump(step, time - mTimes.back());
        metres += isCut || hasJumped ? 0.0 : step;
    }
    if (hasJumped) {
        mQuality.addJump(mTimes.back());
        mStretches.back().jumped = true;
    }
    if (isCut || hasJumped) {
        mStretches.push_back({mTimes.size(), mTimes.size(), hasJumped});
    }
    mTimes.push_back(time);
    mPoints.push_back(point);
    mAltitudes.push_back(static_cast<float>(altitude));
    mMetres.push_back(metres);
    mStretches.back().end = mTimes.size();
}

void PositionTrack::addAltitudes(const RecordData& data, const Profile& profile, double offset,
                                 const SilencesSource& silences)
{
    const KmlInfo kml = profile.kmlInfo();
    if (kml.altitudeId == 0) {
        return;
    }
    const ProfileParameter parameter = parameterOf(profile, kml.altitudeChannel, kml.altitudeId);
    mAltitudeUnit = parameter.unit;
    const Series series(data, profile, parameter, offset);
    const GapRule gaps = series.gapRule(silences);
    ValueReader reader(SeriesSamples{series, gaps}, Between::Line);
    for (std::size_t k = 0; k < size(); ++k) {
        mAltitudes[k] = static_cast<float>(reader.at(mTimes[k]));
    }
}

const PositionTrack::Stretch& PositionTrack::stretchOf(std::size_t k) const
{
    return *(std::ranges::upper_bound(mStretches, k, {}, &Stretch::begin) - 1);
}

std::size_t PositionTrack::firstNotBefore(double time) const
{
    return static_cast<std::size_t>(std::ranges::lower_bound(mTimes, time - HalfTick) -
                                    mTimes.begin());
}

std::optional<PositionTrack::Place> PositionTrack::at(double time) const
{
    constexpr double Held = 2.0; // seconds, the shortest limit of a gap
    const auto after = static_cast<std::size_t>(std::ranges::upper_bound(mTimes, time + HalfTick) -
                                                mTimes.begin());
    if (after == 0) {
        // A recording rarely begins with a position, and its begin is looked at first.
        const bool isHeld = !empty() && mTimes.front() - time <= Held;
        return isHeld ? std::optional(Place{mPoints[0], mAltitudes[0], mMetres[0], 0, true})
                      : std::nullopt;
    }
    const std::size_t k = after - 1;
    Place place{mPoints[k], mAltitudes[k], mMetres[k], k, true};
    if (after == stretchOf(k).end) {
        place.isKnown = time - mTimes[k] <= Held;
        return place;
    }
    const double share = std::max(0.0, (time - mTimes[k]) / (mTimes[after] - mTimes[k]));
    const auto between = [share](double from, double to) { return from + share * (to - from); };
    const GeoPoint& from = mPoints[k];
    const double turn = turnBetween(from.longitude, mPoints[after].longitude);
    place.point = {between(from.latitude, mPoints[after].latitude),
                   std::remainder(from.longitude + share * turn, 360.0)};
    place.altitude = between(mAltitudes[k], mAltitudes[after]);
    place.metres = between(mMetres[k], mMetres[after]);
    return place;
}

std::optional<double> PositionTrack::courseAt(std::size_t k) const
{
    constexpr double Apart = 15.0; // metres, beyond the noise of a receiver
    const Stretch& stretch = stretchOf(k);
    const auto isFar = [&](std::size_t other) {
        return distanceBetween(mPoints[k], mPoints[other]) >= Apart;
    };
    // Wider and wider steps: an aircraft may stand for hours.
    std::size_t from = k;
    std::size_t to = k;
    for (std::size_t step = 1; to + 1 < stretch.end && !isFar(to); step *= 2) {
        to = std::min(k + step, stretch.end - 1);
    }
    for (std::size_t step = 1; from > stretch.begin && !isFar(from); step *= 2) {
        from = k - std::min(step, k - stretch.begin);
    }
    // One that stands looks as it came to stand, or as it will go.
    if (isFar(from) && isFar(to) && mTimes[to] - mTimes[from] < 60.0) {
        return bearing(mPoints[from], mPoints[to]);
    }
    const double since = isFar(from) ? mTimes[k] - mTimes[from] : INFINITY;
    const double until = isFar(to) ? mTimes[to] - mTimes[k] : INFINITY;
    if (std::isinf(since) && std::isinf(until)) {
        return std::nullopt;
    }
    return since <= until ? bearing(mPoints[from], mPoints[k]) : bearing(mPoints[k], mPoints[to]);
}

} // namespace TARN
