#pragma once

namespace TARN::Demo {

enum class CowlFlaps
{
    Closed,
    Trail,
    Open
};
enum class Magnetos
{
    Off,
    Right,
    Left,
    Both
};

/// How the pilot steers the climb angle.
enum class VerticalMode
{
    Rate, ///< verticalSpeed is held
    Speed ///< targetSpeed is held, the engine's power decides the climb
};

enum class LateralDisplay
{
    Off,
    Heading,
    Navigation,
    Approach
};
enum class VerticalDisplay
{
    Off,
    Speed,
    Altitude,
    Rate,
    Glide
};

/// What the pilot does: levers, switches and the commands that the airframe follows.
struct Controls
{
    double throttle = 0.0;      ///< 0 to 1
    double propeller = 2700.0;  ///< governed speed, 1/min
    double airFuelRatio = 11.6; ///< by mass; 14.9 gives the hottest exhaust, less is richer
    Magnetos magnetos = Magnetos::Off;
    CowlFlaps cowlFlaps = CowlFlaps::Open;
    bool starter = false;
    bool fuelPump = false;
    bool avionics = false;
    bool landingLight = false;
    bool gearDown = true;
    double flaps = 0.0; ///< selected, degrees

    bool rotate = false;   ///< lift off as soon as the speed is there
    bool flare = false;    ///< touch down where the ground is met
    double brake = 0.0;    ///< m/s^2
    double turnRate = 0.0; ///< rad/s, nose-wheel steering
    double bank = 0.0;     ///< rad, commanded
    VerticalMode vertical = VerticalMode::Rate;
    double verticalSpeed = 0.0; ///< m/s
    double targetSpeed = 0.0;   ///< m/s indicated

    bool autopilot = false;
    LateralDisplay lateralMode = LateralDisplay::Off;
    VerticalDisplay verticalMode = VerticalDisplay::Off;
};

} // namespace TARN::Demo
