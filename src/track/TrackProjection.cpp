#include "track/TrackProjection.h"

#include "flight/PositionTrack.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace TARN {

namespace {

constexpr double HalfTurn = std::numbers::pi;
constexpr double OneDegree = HalfTurn / 180.0;

/// The direction of the sum of all positions, seen from the middle of the earth.
GeoPoint middleOf(const PositionTrack& track)
{
    constexpr double Least = 0.01; // shorter sums point nowhere
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    const std::size_t step = std::max<std::size_t>(1, track.size() / 10'000);
    std::size_t count = 0;
    for (const PositionTrack::Stretch& stretch : track.stretches()) {
        for (std::size_t k = stretch.begin; k < stretch.end && !track.isStray(stretch); k += step) {
            const double latitude = track.point(k).latitude * OneDegree;
            const double longitude = track.point(k).longitude * OneDegree;
            x += std::cos(latitude) * std::cos(longitude);
            y += std::cos(latitude) * std::sin(longitude);
            z += std::sin(latitude);
            ++count;
        }
    }
    if (std::hypot(x, y, z) < Least * static_cast<double>(count) || count == 0) {
        return track.empty() ? GeoPoint{} : track.point(0);
    }
    return {std::atan2(z, std::hypot(x, y)) / OneDegree, std::atan2(y, x) / OneDegree};
}

} // namespace

TrackProjection::TrackProjection(const GeoPoint& centre)
    : mCentre(centre), mSin(std::sin(centre.latitude * OneDegree)),
      mCos(std::cos(centre.latitude * OneDegree))
{}

TrackProjection::TrackProjection(const PositionTrack& track) : TrackProjection(middleOf(track)) {}

QPointF TrackProjection::toPlane(const GeoPoint& point) const
{
    const double turn = turnBetween(mCentre.longitude, point.longitude) * OneDegree;
    const double sine = std::sin(point.latitude * OneDegree);
    const double cosine = std::cos(point.latitude * OneDegree);
    // As seen along the line from the middle of the earth to the centre.
    const double east = cosine * std::sin(turn);
    const double north = mCos * sine - mSin * cosine * std::cos(turn);
    const double depth = mSin * sine + mCos * cosine * std::cos(turn);
    const double radius = std::hypot(east, north);
    const double factor =
        radius > 0.0 ? EarthRadius * std::atan2(radius, depth) / radius : EarthRadius;
    return {factor * east, factor * north};
}

GeoPoint TrackProjection::toEarth(const QPointF& place) const
{
    const double length = std::hypot(place.x(), place.y());
    if (length == 0.0) {
        return {mCentre.latitude, std::remainder(mCentre.longitude, 360.0)};
    }
    const double angle = std::min(length / EarthRadius, HalfTurn);
    const double east = std::sin(angle) * place.x() / length;
    const double north = std::sin(angle) * place.y() / length;
    const double depth = std::cos(angle);
    const double outwards = mCos * depth - mSin * north;
    const double latitude =
        std::atan2(mSin * depth + mCos * north, std::hypot(outwards, east)) / OneDegree;
    const double longitude = mCentre.longitude + std::atan2(east, outwards) / OneDegree;
    return {latitude, std::remainder(longitude, 360.0)};
}

double TrackProjection::northAt(const QPointF& place) const
{
    constexpr double Step = 1e-4; // degrees
    constexpr double Highest = 89.9999;
    GeoPoint from = toEarth(place);
    from.latitude = std::min(from.latitude, Highest - Step);
    const QPointF way = toPlane({from.latitude + Step, from.longitude}) - toPlane(from);
    return std::atan2(way.x(), way.y()) / OneDegree;
}

} // namespace TARN
