#include "Pilot.h"

#include "PortableMath.h"

#include <cmath>

namespace TARN::Demo {

namespace {

constexpr double kWarmUp = 195.0; // s

} // namespace

Pilot::Pilot(double duration, double delay) : mDuration(duration), mWarmUp(kWarmUp + delay)
{
    mControls.brake = 3.0;
}

void Pilot::enter(Phase phase)
{
    mPhase = phase;
    mPhaseTime = 0.0;
}

void Pilot::step(double time, const Airframe& airframe, const Engine& engine,
                 const Thermal& thermal, double dt)
{
    using Task = void (Pilot::*)(const View&);
    static constexpr Task kTasks[] = {
        &Pilot::preStart, &Pilot::warmUp,  &Pilot::taxiOut, &Pilot::runUp,   &Pilot::lineUp,
        &Pilot::takeOff,  &Pilot::climb,   &Pilot::cruise,  &Pilot::descend, &Pilot::approachField,
        &Pilot::land,     &Pilot::rollOut, &Pilot::taxiIn,  &Pilot::parked};
    View view{time, dt, airframe, engine, thermal};
    mPhaseTime += dt;
    (this->*kTasks[static_cast<std::size_t>(mPhase)])(view);
}

void Pilot::holdRpm(const View& view, double rpm)
{
    double push = clampTo((rpm - view.engine.rpm()) * 0.00009, -0.05, 0.05);
    mControls.throttle = clampTo(mControls.throttle + push * view.dt, 0.0, 1.0);
}

void Pilot::holdManifold(const View& view, double inches)
{
    double push = clampTo((inches - view.engine.manifoldPressure()) * 0.012, -0.06, 0.06);
    mControls.throttle = clampTo(mControls.throttle + push * view.dt, 0.0, 1.0);
}

void Pilot::holdSpeed(const View& view, double speed)
{
    double error = (speed - view.airframe.indicatedAirspeed()) / kKnot;
    mSpeedTrim = clampTo(mSpeedTrim + 0.012 * error * view.dt, 10.5, 22.0);
    holdManifold(view, clampTo(mSpeedTrim + 0.18 * error, 10.5, 23.0));
}

void Pilot::holdAltitude(const View& view, double altitude, double rate)
{
    double wanted = clampTo(0.12 * (altitude - view.airframe.altitude()), -rate, rate);
    mControls.vertical = VerticalMode::Rate;
    mControls.verticalSpeed = approach(mControls.verticalSpeed, wanted, 0.5 * view.dt);
}

void Pilot::steerTrack(const View& view, double track)
{
    double error = wrapAngle(track - view.airframe.track());
    double rate = clampTo(0.14 * error, -3.0 * kDegree, 3.0 * kDegree);
    double bank = arcTangent2(view.airframe.trueAirspeed() * rate, kGravity);
    mControls.bank = clampTo(bank, -25.0 * kDegree, 25.0 * kDegree);
}

void Pilot::steerCentreline(const View& view, const Runway& runway)
{
    const Position& here = view.airframe.position();
    double angle = bearing(runway.threshold, here) - runway.course;
    double right = distance(runway.threshold, here) * sine(angle);
    if (view.airframe.onGround()) {
        double wanted = runway.course - clampTo(0.02 * right, -0.4, 0.4);
        double error = wrapAngle(wanted - view.airframe.heading());
        mControls.turnRate = clampTo(0.8 * error, -0.12, 0.12);
        return;
    }
    steerTrack(view, runway.course - clampTo(0.0007 * right, -0.6, 0.6));
}

bool Pilot::followRoute(const View& view, double speed)
{
    const Airframe& airframe = view.airframe;
    double toGo = distance(airframe.position(), mRoute[mRoutePoint]);
    bool last = mRoutePoint + 1 == mRoute.size();
    double error =
        wrapAngle(bearing(airframe.position(), mRoute[mRoutePoint]) - airframe.heading());
    bool passed = std::fabs(error) > kPi / 2.0 && toGo < 6.0;
    if (toGo < (last ? 2.0 : 13.0) || (last && passed)) {
        if (last) {
            mControls.brake = 1.2;
            mControls.turnRate = 0.0;
            return true;
        }
        ++mRoutePoint;
    }
    mControls.turnRate = clampTo(1.2 * error, -0.22, 0.22);
    // Slow down for corners and for the end of the route.
    double wanted = std::fabs(error) > 0.35 || toGo < 30.0 ? 3.6 : speed;
    if (last)
        wanted = clampTo(wanted, 1.0, 0.8 + 0.2 * toGo);
    double excess = airframe.groundSpeed() - wanted;
    mControls.brake = clampTo(0.7 * (excess - 0.3), 0.0, 1.0);
    holdRpm(view, clampTo(1080.0 - 160.0 * excess, 850.0, 1450.0));
    return false;
}

} // namespace TARN::Demo
