#include "Pilot.h"
#include "PortableMath.h"

// What the pilot does from take-off to touchdown.

namespace TARN::Demo {

namespace {

constexpr double kCruiseAltitude = 8500.0 * kFoot;
constexpr double kGateAltitude = 4800.0 * kFoot;
constexpr double kGateDistance = 10.0 * kNauticalMile; // before the threshold
constexpr double kGlideSlope = 0.0524;                 // 3 degrees
constexpr double kAimPoint = 250.0;                    // m past the threshold
constexpr double kPilotHeadLimit = 238.0;              // degrees Celsius
constexpr double kReturnSpeed = 72.0;                  // m/s over the ground against the wind
constexpr double kTimeFromGate = 690.0; // s from the gate until parked, with a margin
constexpr Position kLake{48.02, 11.18};
constexpr double kOutboundTrack = 97.0 * kDegree;

Position gate()
{
    return arrivalRunway().at(-kGateDistance, 0.0);
}

} // namespace

void Pilot::takeOff(const View& view)
{
    const Airframe& airframe = view.airframe;
    double height = airframe.altitude() - departureRunway().elevation;
    mControls.throttle = approach(mControls.throttle, 1.0, 0.25 * view.dt);
    mControls.rotate = true;
    mControls.vertical = VerticalMode::Speed;
    mControls.targetSpeed = 96.0 * kKnot;
    steerCentreline(view, departureRunway());
    mControls.gearDown = height < 50.0;
    mControls.flaps = height < 110.0 ? 10.0 : 0.0;
    if (height > 290.0) {
        mLeg = Leg::Straight;
        enter(Phase::Climb);
    }
}

void Pilot::climb(const View& view)
{
    double altitude = view.airframe.altitude();
    mControls.propeller = approach(mControls.propeller, 2550.0, 25.0 * view.dt);
    mControls.targetSpeed =
        approach(mControls.targetSpeed, (mCooling ? 132.0 : 114.0) * kKnot, 0.7 * kKnot * view.dt);
    mControls.airFuelRatio = mCooling ? 10.4 : 10.5 + 0.0004 * altitude;
    mControls.fuelPump = mPhaseTime < 25.0;
    mControls.landingLight = mPhaseTime < 60.0;
    mControls.autopilot = mPhaseTime > 15.0;
    mControls.verticalMode = mControls.autopilot ? VerticalDisplay::Speed : VerticalDisplay::Off;
    if (!mCooling && mPhaseTime > 8.0)
        mControls.cowlFlaps = CowlFlaps::Trail;
    coolCylinders(view);
    navigate(view);
    if (altitude > kCruiseAltitude - 45.0) {
        mControls.verticalSpeed = 3.0;
        enter(Phase::Cruise);
    }
}

// The pilot notices the head temperature some seconds after it has reached its limit, lowers the
// nose, opens the cowl flaps, enriches and takes a little power back.
void Pilot::coolCylinders(const View& view)
{
    if (view.thermal.head(2) > kPilotHeadLimit)
        mHotTime += view.dt;
    if (mHotTime > 14.0 && !mCooling) {
        mCooling = true;
        mControls.cowlFlaps = CowlFlaps::Open;
    }
    if (mCooling && view.thermal.head(2) > 212.0)
        holdManifold(view, 24.0);
    else
        mControls.throttle = approach(mControls.throttle, 1.0, 0.03 * view.dt);
}

void Pilot::cruise(const View& view)
{
    holdAltitude(view, kCruiseAltitude, 3.0);
    mControls.autopilot = true;
    mControls.verticalMode = VerticalDisplay::Altitude;
    mControls.throttle = approach(mControls.throttle, 1.0, 0.02 * view.dt);
    if (mPhaseTime > 70.0) {
        mControls.propeller = approach(mControls.propeller, 2450.0, 15.0 * view.dt);
        mControls.cowlFlaps = CowlFlaps::Closed;
    }
    double ratio = mPhaseTime > 110.0 ? 14.25 : mControls.airFuelRatio;
    mControls.airFuelRatio = approach(mControls.airFuelRatio, ratio, 0.05 * view.dt);
    navigate(view);
    double sink = (view.airframe.altitude() - kGateAltitude) / 2.9;
    double toGate = distance(view.airframe.position(), gate());
    if (mLeg == Leg::Back && toGate < sink * (view.airframe.groundSpeed() + 2.0) + 3000.0) {
        mSpeedTrim = 18.5;
        enter(Phase::Descent);
    }
}

void Pilot::descend(const View& view)
{
    holdAltitude(view, kGateAltitude, 2.95);
    bool nearGate = view.airframe.altitude() < kGateAltitude + 80.0;
    mControls.verticalMode = nearGate ? VerticalDisplay::Altitude : VerticalDisplay::Rate;
    holdSpeed(view, 150.0 * kKnot);
    mControls.airFuelRatio = approach(mControls.airFuelRatio, 12.9, 0.006 * view.dt);
    navigate(view);
    if (mLeg == Leg::Final)
        enter(Phase::Approach);
}

void Pilot::approachField(const View& view)
{
    const Airframe& airframe = view.airframe;
    const Runway& runway = arrivalRunway();
    double toGo = distance(airframe.position(), runway.at(kAimPoint, 0.0));
    double glide = runway.elevation + kGlideSlope * toGo;
    bool onGlide = glide < kGateAltitude;
    configureForLanding(view, toGo);
    steerCentreline(view, runway);
    if (onGlide) {
        double correction = clampTo(0.12 * (glide - airframe.altitude()), -1.2, 1.2);
        double wanted = -kGlideSlope * airframe.groundSpeed() + correction;
        mControls.verticalSpeed = approach(mControls.verticalSpeed, wanted, 0.6 * view.dt);
    } else {
        holdAltitude(view, kGateAltitude, 2.0);
    }
    mControls.lateralMode = LateralDisplay::Approach;
    mControls.verticalMode = onGlide ? VerticalDisplay::Glide : VerticalDisplay::Altitude;
    double height = airframe.altitude() - runway.elevation;
    mControls.autopilot = height > 150.0;
    if (!mControls.autopilot) {
        mControls.lateralMode = LateralDisplay::Off;
        mControls.verticalMode = VerticalDisplay::Off;
    }
    if (height < 8.0)
        enter(Phase::Landing);
}

void Pilot::configureForLanding(const View& view, double toGo)
{
    double miles = toGo / kNauticalMile;
    mControls.airFuelRatio = approach(mControls.airFuelRatio, 11.6, 0.02 * view.dt);
    mControls.fuelPump = miles < 7.0;
    mControls.landingLight = true;
    mControls.gearDown = miles < 7.3;
    mControls.flaps = miles < 3.8 ? 30.0 : (miles < 8.0 ? 10.0 : 0.0);
    double speed = miles < 3.8 ? 84.0 : (miles < 7.3 ? 103.0 : 122.0);
    mControls.targetSpeed = approach(mControls.targetSpeed, speed * kKnot, 0.7 * kKnot * view.dt);
    holdSpeed(view, mControls.targetSpeed);
    if (miles < 3.2)
        mControls.propeller = approach(mControls.propeller, 2700.0, 60.0 * view.dt);
}

void Pilot::land(const View& view)
{
    double height = view.airframe.altitude() - arrivalRunway().elevation;
    mControls.flare = true;
    mControls.throttle = approach(mControls.throttle, 0.0, 0.07 * view.dt);
    mControls.verticalSpeed =
        approach(mControls.verticalSpeed, -0.35 - 0.22 * height, 1.2 * view.dt);
    steerCentreline(view, arrivalRunway());
    if (view.airframe.onGround())
        enter(Phase::RollOut);
}

bool Pilot::timeToTurnBack(const View& view) const
{
    if (mPhase != Phase::Cruise || mPhaseTime < 240.0)
        return false;
    double back = distance(view.airframe.position(), gate()) / kReturnSpeed;
    return view.time + back + kTimeFromGate > mDuration;
}

void Pilot::navigate(const View& view)
{
    const Position& here = view.airframe.position();
    mControls.lateralMode = mControls.autopilot ? LateralDisplay::Navigation : LateralDisplay::Off;
    switch (mLeg) {
    case Leg::Straight:
        steerCentreline(view, departureRunway());
        if (mPhaseTime > 30.0)
            mLeg = Leg::ToLake;
        break;
    case Leg::ToLake:
        steerTrack(view, bearing(here, kLake));
        if (distance(here, kLake) < 2500.0)
            mLeg = Leg::Outbound;
        break;
    case Leg::Outbound:
        steerTrack(view, kOutboundTrack);
        if (timeToTurnBack(view))
            mLeg = Leg::Back;
        break;
    case Leg::Back:
        steerTrack(view, bearing(here, gate()));
        if (distance(here, gate()) < 1800.0) {
            mControls.targetSpeed = view.airframe.indicatedAirspeed();
            mLeg = Leg::Final;
        }
        break;
    case Leg::Final:
        steerCentreline(view, arrivalRunway());
        break;
    }
}

} // namespace TARN::Demo
