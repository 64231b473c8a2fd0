#include "MessageTable.h"

namespace TARN::Demo {

namespace {

enum Node : std::uint8_t
{
    Ahrs = 10,
    AirData = 11,
    Gps = 12,
    Emu = 20,
    Fuel = 21,
    Power = 30,
    Body = 35,
    Alert = 40,
    Standby = 50
};

using enum Encoding;
using S = Signal;

constexpr MessageRow row(std::uint32_t id, Node node, Encoding encoding, double hertz,
                         double resolution, double noise, Signal first, Signal second = S::None,
                         Signal third = S::None)
{
    std::uint16_t channel = node == Standby ? 1 : 0;
    return {id, node, channel, encoding, hertz, resolution, noise, {first, second, third}};
}

// Temperatures, pressures and voltages that are watched for limits carry no noise of the sensor on
// top of that of the aircraft: their units filter them, and a limit is passed once, not ten times.
constexpr MessageRow kTable[] = {
    row(300, Ahrs, Float, 10, 0.001, 0.003, S::LongitudinalAcceleration),
    row(301, Ahrs, Float, 10, 0.001, 0.003, S::LateralAcceleration),
    row(302, Ahrs, Float, 10, 0.001, 0.004, S::NormalAcceleration),
    row(303, Ahrs, Float, 10, 0.01, 0.04, S::PitchRate),
    row(304, Ahrs, Float, 10, 0.01, 0.05, S::RollRate),
    row(305, Ahrs, Float, 10, 0.01, 0.04, S::YawRate),
    row(311, Ahrs, Float, 20, 0.01, 0.02, S::Pitch),
    row(312, Ahrs, Float, 20, 0.01, 0.02, S::Roll),
    row(321, Ahrs, FloatAngle, 20, 0.01, 0.03, S::Heading),

    row(314, AirData, Float, 10, 1.0, 5.0, S::VerticalSpeed),
    row(315, AirData, Float, 10, 0.1, 0.08, S::IndicatedAirspeed),
    row(316, AirData, Float, 5, 0.1, 0.08, S::TrueAirspeed),
    row(319, AirData, Unsigned16, 1, 0.1, 0.0, S::Qnh),
    row(320, AirData, Float, 10, 1.0, 0.6, S::BaroAltitude),
    row(322, AirData, Float, 5, 1.0, 0.6, S::PressureAltitude),
    row(324, AirData, Float, 1, 0.1, 0.05, S::OutsideTemperature),
    row(325, AirData, Float, 5, 0.01, 0.02, S::ImpactPressure),
    row(326, AirData, Float, 2, 0.01, 0.02, S::StaticPressure),

    // Twice as often as the shortest position slot of a flight path: none of them stays empty.
    row(1036, Gps, Float, 20, 1e-6, 0.0, S::Latitude),
    row(1037, Gps, Float, 20, 1e-6, 0.0, S::Longitude),
    row(1038, Gps, Float, 10, 0.1, 0.15, S::GpsAltitude),
    row(1039, Gps, Float, 5, 0.1, 0.05, S::GroundSpeed),
    row(1040, Gps, FloatAngle, 5, 0.1, 0.05, S::Track),
    row(1044, Gps, FloatMinutes, 1, 0.001, 0.0, S::Latitude),
    row(1045, Gps, Float, 1, 0.01, 0.0, S::DistanceToGo),
    row(1046, Gps, Unsigned8, 1, 1.0, 0.0, S::Satellites),
    row(1050, Gps, Unsigned16x2, 1, 0.1, 0.2, S::WindDirection, S::WindSpeed),
    row(1200, Gps, TimeOfDay, 1, 1.0, 0.0, S::None),
    row(1206, Gps, Date, 1, 1.0, 0.0, S::None),

    row(500, Emu, Float, 10, 1.0, 1.5, S::Rpm),
    row(504, Emu, Float, 5, 0.01, 0.03, S::ManifoldPressure),
    row(508, Emu, Float, 2, 0.1, 0.0, S::Power),
    row(512, Emu, Float, 5, 0.1, 0.15, S::FuelFlow),
    row(520, Emu, Float, 5, 0.01, 0.0, S::OilPressure),
    row(524, Emu, Float, 2, 0.1, 0.0, S::OilTemperature),
    row(528, Emu, Float, 2, 0.01, 0.0, S::FuelPressure),
    row(532, Emu, Float, 2, 0.1, 0.0, S::Cht1),
    row(533, Emu, Float, 2, 0.1, 0.0, S::Cht2),
    row(534, Emu, Float, 2, 0.1, 0.0, S::Cht3),
    row(535, Emu, Float, 2, 0.1, 0.0, S::Cht4),
    row(536, Emu, Float, 2, 0.1, 0.0, S::Cht5),
    row(537, Emu, Float, 2, 0.1, 0.0, S::Cht6),
    row(540, Emu, Float, 4, 0.5, 0.5, S::Egt1),
    row(541, Emu, Float, 4, 0.5, 0.5, S::Egt2),
    row(542, Emu, Float, 4, 0.5, 0.5, S::Egt3),
    row(543, Emu, Float, 4, 0.5, 0.5, S::Egt4),
    row(544, Emu, Float, 4, 0.5, 0.5, S::Egt5),
    row(545, Emu, Float, 4, 0.5, 0.5, S::Egt6),
    row(548, Emu, Unsigned8x3, 5, 1.0, 0.0, S::ThrottleLever, S::PropellerLever, S::MixtureLever),
    row(552, Emu, Bits32, 2, 1.0, 0.0, S::EngineState),
    row(554, Emu, Counter48, 1, 1.0, 0.0, S::CrankPulses),
    row(555, Emu, Unsigned32, 1, 1.0, 0.0, S::EngineSeconds),
    row(556, Emu, Unsigned32, 1, 1.0, 0.0, S::FuelUsed),
    row(560, Emu, Signed16, 1, 0.1, 0.05, S::InductionTemperature),

    row(668, Fuel, Float, 1, 0.1, 0.0, S::FuelLeft),
    row(669, Fuel, Float, 1, 0.1, 0.0, S::FuelRight),
    row(670, Fuel, Unsigned8, 1, 1.0, 0.0, S::FuelPercent),
    row(671, Fuel, Bits16, 1, 1.0, 0.0, S::FuelSelector),

    row(930, Power, Float, 5, 0.01, 0.0, S::BusVoltage),
    row(931, Power, Float, 5, 0.1, 0.15, S::AlternatorCurrent),
    row(932, Power, Signed16, 2, 0.1, 0.1, S::BatteryCurrent),
    row(933, Power, Signed8, 1, 1.0, 0.0, S::BatteryTemperature),

    row(700, Body, Unsigned8, 2, 1.0, 0.0, S::Flaps),
    row(701, Body, Bits16, 2, 1.0, 0.0, S::Gear),
    row(702, Body, Bits32, 2, 1.0, 0.0, S::Autopilot),

    row(1300, Alert, Bits32, 5, 1.0, 0.0, S::Lamps),
    row(1310, Alert, Bits32, 2, 1.0, 0.0, S::EngineStatus),
    row(1311, Alert, Bits32, 2, 1.0, 0.0, S::SystemStatus),

    row(340, Standby, Float, 5, 0.1, 0.1, S::Pitch),
    row(341, Standby, Float, 5, 0.1, 0.1, S::Roll),
    row(342, Standby, Float, 5, 0.5, 0.4, S::IndicatedAirspeed),
    row(343, Standby, Float, 5, 5.0, 2.0, S::BaroAltitude),
    row(344, Standby, Signed16x2, 5, 0.01, 0.01, S::Slip, S::YawRate),
    row(935, Standby, Float, 2, 0.01, 0.0, S::StandbyVoltage),
};

} // namespace

std::span<const MessageRow> messageTable()
{
    return kTable;
}

std::uint8_t typeCode(Encoding encoding)
{
    switch (encoding) {
    case Float:
    case FloatAngle:
    case FloatMinutes:
        return 2;
    case Unsigned32:
        return 4;
    case Bits32:
        return 5;
    case Signed16:
        return 6;
    case Unsigned16:
        return 7;
    case Bits16:
        return 8;
    case Signed8:
        return 9;
    case Unsigned8:
        return 10;
    case Signed16x2:
        return 12;
    case Unsigned16x2:
        return 13;
    case TimeOfDay:
    case Date:
        return 16;
    case Unsigned8x3:
        return 27;
    case Counter48:
        return 30;
    }
    return 0;
}

bool isHeld(Encoding encoding)
{
    return encoding == Bits16 || encoding == Bits32;
}

} // namespace TARN::Demo
