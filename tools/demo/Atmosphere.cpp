#include "Atmosphere.h"

#include "PortableMath.h"

#include <cmath>

namespace TARN::Demo {

namespace {

constexpr double kLapse = 0.0065;        // K/m
constexpr double kGasConstant = 287.053; // J/(kg K)
constexpr double kPressureExponent = 5.25588;
constexpr double kSeaLevelTemperature = 288.15; // K
constexpr double kWarmth = 3.0;                 // K above the standard atmosphere

} // namespace

Air airAt(double altitude)
{
    Air air;
    // The altimeter set to QNH shows height in the standard atmosphere shifted by the pressure of
    // the day; flying by it makes that the height that counts here.
    double ratio = power(1.0 - kLapse * altitude / kSeaLevelTemperature, kPressureExponent);
    air.pressure = kQnh * 100.0 * ratio;
    air.temperature = kSeaLevelTemperature + kWarmth - kLapse * altitude;
    air.density = air.pressure / (kGasConstant * air.temperature);
    air.windSpeed = clampTo(4.0 + 0.0035 * altitude, 4.0, 14.0);
    air.windFrom = (248.0 + 0.005 * altitude) * kDegree;
    return air;
}

double pressureAltitude(double pressure)
{
    double ratio = power(pressure / 101325.0, 1.0 / kPressureExponent);
    return (1.0 - ratio) * kSeaLevelTemperature / kLapse;
}

double indicatedSpeed(double trueAirspeed, const Air& air)
{
    return trueAirspeed * std::sqrt(air.density / kSeaLevelDensity);
}

} // namespace TARN::Demo
