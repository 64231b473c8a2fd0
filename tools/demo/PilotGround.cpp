#include "Pilot.h"
#include "PortableMath.h"

// What the pilot does while the wheels are on the ground.

namespace TARN::Demo {

namespace {

constexpr double kParkingBrake = 3.0; // m/s^2

} // namespace

void Pilot::preStart(const View& view)
{
    mControls.fuelPump = view.time > 36.0;
    mControls.magnetos = view.time > 46.0 ? Magnetos::Both : Magnetos::Off;
    mControls.throttle = 0.11;
    mControls.starter = view.time > 50.0 && !view.engine.running();
    if (view.engine.running())
        enter(Phase::WarmUp);
}

void Pilot::warmUp(const View& view)
{
    mControls.starter = false;
    mControls.fuelPump = mPhaseTime < 12.0;
    mControls.avionics = mPhaseTime > 22.0;
    if (mPhaseTime > 1.5)
        holdRpm(view, mPhaseTime < 60.0 ? 1000.0 : 1200.0);
    if (mPhaseTime < mWarmUp)
        return;
    const Runway& runway = departureRunway();
    mRoute = {runway.at(900.0, 112.0), runway.at(40.0, 110.0), runway.at(30.0, 72.0)};
    mRoutePoint = 0;
    enter(Phase::TaxiOut);
}

void Pilot::taxiOut(const View& view)
{
    if (followRoute(view, 7.2))
        enter(Phase::RunUp);
}

void Pilot::runUp(const View& view)
{
    mControls.brake = kParkingBrake;
    if (mPhaseTime < 16.0)
        holdRpm(view, 1100.0);
    else if (mPhaseTime < 36.0)
        holdRpm(view, 1800.0);
    else if (mPhaseTime < 92.0)
        testMagnetos(view);
    else if (mPhaseTime < 108.0)
        holdRpm(view, 750.0);
    else
        holdRpm(view, 1050.0);
    if (mPhaseTime < 128.0)
        return;
    const Runway& runway = departureRunway();
    mRoute = {runway.at(32.0, 12.0), runway.at(60.0, 1.0), runway.at(105.0, 0.0)};
    mRoutePoint = 0;
    mControls.flaps = 10.0;
    mControls.fuelPump = true;
    mControls.landingLight = true;
    enter(Phase::LineUp);
}

// The throttle stays where it is, so that the drop of each magneto can be read off.
void Pilot::testMagnetos(const View&)
{
    double time = mPhaseTime - 36.0;
    mControls.magnetos = Magnetos::Both;
    if (time > 2.0 && time < 10.0)
        mControls.magnetos = Magnetos::Right;
    if (time > 17.0 && time < 25.0)
        mControls.magnetos = Magnetos::Left;
    bool pulled = (time > 32.0 && time < 35.5) || (time > 42.0 && time < 45.5);
    mControls.propeller = pulled ? 1450.0 : 2700.0;
}

void Pilot::lineUp(const View& view)
{
    if (!followRoute(view, 4.0))
        mPhaseTime = 0.0;
    else if (mPhaseTime > 9.0) {
        mControls.brake = 0.0;
        mControls.airFuelRatio = 10.3;
        enter(Phase::TakeOff);
    }
}

void Pilot::rollOut(const View& view)
{
    steerCentreline(view, arrivalRunway());
    mControls.rotate = false;
    mControls.throttle = approach(mControls.throttle, 0.0, 0.3 * view.dt);
    mControls.bank = 0.0;
    bool fast = view.airframe.groundSpeed() > 7.5;
    mControls.brake = fast && mPhaseTime > 2.5 ? 1.7 : 0.0;
    if (fast)
        return;
    const Runway& runway = arrivalRunway();
    mRoute = {runway.at(1010.0, 4.0), runway.at(1040.0, 105.0), runway.at(660.0, 112.0),
              runway.at(650.0, 210.0)};
    mRoutePoint = 0;
    mControls.flaps = 0.0;
    mControls.fuelPump = false;
    enter(Phase::TaxiIn);
}

void Pilot::taxiIn(const View& view)
{
    mControls.landingLight = mRoutePoint < 2;
    mControls.airFuelRatio = 11.8;
    if (followRoute(view, 7.0))
        enter(Phase::Parked);
}

// The engine cools down at idle; the recording ends before it is stopped.
void Pilot::parked(const View& view)
{
    mControls.brake = kParkingBrake;
    mControls.cowlFlaps = CowlFlaps::Open;
    holdRpm(view, 1000.0);
}

} // namespace TARN::Demo
