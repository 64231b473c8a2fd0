#include "flight/GeoPoint.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace TARN {

namespace {

constexpr double Radians = std::numbers::pi / 180.0;
constexpr double FastestFlight = 500.0; // m/s
constexpr double SmallestJump = 50.0;   // metres

} // namespace

bool isPlace(const GeoPoint& point)
{
    // A NaN is within nothing.
    return std::abs(point.latitude) <= 90.0 && std::abs(point.longitude) <= 360.0 &&
           !(point.latitude == 0.0 && point.longitude == 0.0);
}

double turnBetween(double fromLongitude, double toLongitude)
{
    const double turn = std::remainder(toLongitude - fromLongitude, 360.0);
    return turn == -180.0 ? 180.0 : turn;
}

double distanceBetween(const GeoPoint& from, const GeoPoint& to)
{
    const double north = std::sin((to.latitude - from.latitude) * Radians / 2.0);
    const double east = std::sin(turnBetween(from.longitude, to.longitude) * Radians / 2.0);
    const double square = north * north + std::cos(from.latitude * Radians) *
                                              std::cos(to.latitude * Radians) * east * east;
    return 2.0 * EarthRadius * std::asin(std::sqrt(std::min(1.0, square)));
}

bool isJump(const GeoPoint& from, const GeoPoint& to, double seconds)
{
    return isJump(distanceBetween(from, to), seconds);
}

bool isJump(double metres, double seconds)
{
    return metres > std::max(SmallestJump, FastestFlight * seconds);
}

} // namespace TARN
