#pragma once

namespace TARN::Demo {

constexpr double kKnot = 1852.0 / 3600.0;  ///< m/s
constexpr double kFoot = 0.3048;           ///< m
constexpr double kNauticalMile = 1852.0;   ///< m
constexpr double kGravity = 9.80665;       ///< m/s^2
constexpr double kSeaLevelDensity = 1.225; ///< kg/m^3
constexpr double kQnh = 1018.0;            ///< hPa, of the day of the flight

/// The air around the aircraft.
struct Air
{
    double pressure = 101325.0;  ///< Pa, static
    double temperature = 288.15; ///< K, static
    double density = 1.225;      ///< kg/m^3
    double windSpeed = 0.0;      ///< m/s
    double windFrom = 0.0;       ///< rad, true direction the wind comes from

    double inchesOfMercury() const { return pressure / 3386.389; }
};

/// Air at an altitude in metres above mean sea level: standard lapse, three degrees warmer than
/// standard, pressure by the day's QNH, wind growing and veering with height.
Air airAt(double altitude);

/// Altitude in metres that a static pressure in Pa has in the standard atmosphere.
double pressureAltitude(double pressure);

/// Speed in m/s that the airspeed indicator shows for a true airspeed in m/s.
double indicatedSpeed(double trueAirspeed, const Air& air);

} // namespace TARN::Demo
