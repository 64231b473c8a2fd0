#include "Airfield.h"

#include "Atmosphere.h"
#include "PortableMath.h"

#include <cmath>

namespace TARN::Demo {

namespace {

constexpr double kMetresPerDegree = 111195.0;

double north(const Position& from, const Position& to)
{
    return (to.latitude - from.latitude) * kMetresPerDegree;
}

double east(const Position& from, const Position& to)
{
    double middle = 0.5 * (from.latitude + to.latitude);
    return (to.longitude - from.longitude) * kMetresPerDegree * cosine(middle * kDegree);
}

} // namespace

Position Runway::at(double along, double right) const
{
    double cosCourse = cosine(course);
    double sinCourse = sine(course);
    return moved(threshold, along * cosCourse - right * sinCourse,
                 along * sinCourse + right * cosCourse);
}

Position moved(const Position& from, double north, double east)
{
    double latitude = from.latitude + north / kMetresPerDegree;
    double scale = kMetresPerDegree * cosine(0.5 * (from.latitude + latitude) * kDegree);
    return {latitude, from.longitude + east / scale};
}

double distance(const Position& from, const Position& to)
{
    double dn = north(from, to);
    double de = east(from, to);
    return std::sqrt(dn * dn + de * de);
}

double bearing(const Position& from, const Position& to)
{
    return arcTangent2(east(from, to), north(from, to));
}

const Runway& departureRunway()
{
    static const Runway runway{{48.4275, 10.9405}, 252.0 * kDegree, 1515.0 * kFoot};
    return runway;
}

const Runway& arrivalRunway()
{
    static const Runway runway{{47.6945, 10.3480}, 246.0 * kDegree, 2340.0 * kFoot};
    return runway;
}

} // namespace TARN::Demo
