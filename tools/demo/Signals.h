#pragma once

#include <array>
#include <cstddef>

namespace TARN::Demo {

/// Everything the aircraft's units measure or report, in the units of the parameter profile.
enum class Signal : std::size_t
{
    None,
    // attitude: g, degrees per second, degrees; the angles that turn are not wrapped
    LongitudinalAcceleration,
    LateralAcceleration,
    NormalAcceleration,
    PitchRate,
    RollRate,
    YawRate,
    Pitch,
    Roll,
    Heading,
    // air data: ft/min, kt, hPa, ft, degrees Celsius
    VerticalSpeed,
    IndicatedAirspeed,
    TrueAirspeed,
    Qnh,
    BaroAltitude,
    PressureAltitude,
    OutsideTemperature,
    ImpactPressure,
    StaticPressure,
    // navigation: degrees, m, kt, nautical miles
    Latitude,
    Longitude,
    GpsAltitude,
    GroundSpeed,
    Track,
    DistanceToGo,
    Satellites,
    WindSpeed,
    WindDirection,
    // engine: 1/min, inHg, percent, l/h, bar, degrees Celsius
    Rpm,
    ManifoldPressure,
    Power,
    FuelFlow,
    OilPressure,
    OilTemperature,
    FuelPressure,
    Cht1,
    Cht2,
    Cht3,
    Cht4,
    Cht5,
    Cht6,
    Egt1,
    Egt2,
    Egt3,
    Egt4,
    Egt5,
    Egt6,
    ThrottleLever,
    PropellerLever,
    MixtureLever,
    InductionTemperature,
    CrankPulses,   ///< 60 a revolution
    EngineSeconds, ///< running time since overhaul
    FuelUsed,      ///< ml since power-up
    // fuel: l, percent
    FuelLeft,
    FuelRight,
    FuelPercent,
    // electrical: V, A, degrees Celsius
    BusVoltage,
    AlternatorCurrent,
    BatteryCurrent,
    BatteryTemperature,
    StandbyVoltage,
    // airframe: degrees
    Flaps,
    Slip,
    // words of bits and enumerations; these are held, never interpolated
    EngineState,
    FuelSelector,
    Gear,
    Autopilot,
    Lamps,
    EngineStatus,
    SystemStatus,
    Count
};

/// One value for each signal at one moment.
class Signals
{
public:
    double& operator[](Signal signal) { return mValues[static_cast<std::size_t>(signal)]; }
    double operator[](Signal signal) const { return mValues[static_cast<std::size_t>(signal)]; }

private:
    std::array<double, static_cast<std::size_t>(Signal::Count)> mValues{};
};

/// Signal of a cylinder, 0 to 5, from the signal of the first one.
inline Signal ofCylinder(Signal first, std::size_t cylinder)
{
    return static_cast<Signal>(static_cast<std::size_t>(first) + cylinder);
}

} // namespace TARN::Demo
