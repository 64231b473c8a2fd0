#pragma once

namespace TARN {

/// A point on the earth in degrees; longitudes may be counted to 180 or to 360.
struct GeoPoint
{
    double latitude = 0.0;
    double longitude = 0.0;

    friend bool operator==(const GeoPoint&, const GeoPoint&) = default;
};

/// Mean radius of the earth, metres; everything here takes it for a sphere.
constexpr double EarthRadius = 6371008.8;

/// Whether somebody can be there: numbers within 90 and 360 degrees, and not 0/0, which receivers
/// send while they do not know where they are.
bool isPlace(const GeoPoint& point);

/// Degrees of longitude from one to the other the short way round: -180 (excluded) to 180.
double turnBetween(double fromLongitude, double toLongitude);

/// Metres along the great circle (haversine formula).
double distanceBetween(const GeoPoint& from, const GeoPoint& to);

/// Whether nothing that flies goes from one to the other in \p seconds (0 or more): faster than
/// 500 m/s. Steps of up to 50 m never are: messages wait for a free bus, and receivers do not agree
/// with themselves.
bool isJump(const GeoPoint& from, const GeoPoint& to, double seconds);
bool isJump(double metres, double seconds);

} // namespace TARN
