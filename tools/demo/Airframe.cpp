#include "Airframe.h"

#include "PortableMath.h"

#include <cmath>

namespace TARN::Demo {

namespace {

constexpr double kWingArea = 16.8; // m^2
constexpr double kParasiteDrag = 0.0180;
constexpr double kInducedDrag = 0.068;
constexpr double kLiftSlope = 5.2; // per rad
constexpr double kIncidence = 2.4 * kDegree;
constexpr double kLiftOffSpeed = 74.0 * kKnot;
constexpr double kRollingFriction = 0.02;

} // namespace

Airframe::Airframe(Random& random)
    : mRandom(random), mPosition(departureRunway().at(900.0, 220.0)),
      mAltitude(departureRunway().elevation), mHeading(departureRunway().course - kPi / 2.0),
      mTrack(mHeading)
{
    mAir = airAt(mAltitude);
}

void Airframe::step(const Controls& controls, double thrust, double mass, double dt)
{
    mAir = airAt(mAltitude);
    moveSurfaces(controls, dt);
    blow(dt);
    if (mOnGround)
        roll(controls, thrust, mass, dt);
    else
        fly(controls, thrust, mass, dt);
    drift(dt);
    settleAttitude(mass, dt);
}

void Airframe::moveSurfaces(const Controls& controls, double dt)
{
    mGear = approach(mGear, controls.gearDown ? 1.0 : 0.0, dt / 6.0);
    mFlaps = approach(mFlaps, controls.flaps, 4.0 * dt);
}

// Thermals bump the aircraft near the ground and hardly any more at cruising level.
void Airframe::blow(double dt)
{
    double height = mAltitude - departureRunway().elevation;
    mTurbulence = mOnGround ? 0.0 : clampTo(1.0 - height / 2200.0, 0.28, 1.0);
    mGust.step(mRandom, dt);
    mSurge.step(mRandom, dt);
    mRock.step(mRandom, dt);
    mSway.step(mRandom, dt);
}

double Airframe::drag(const Controls& controls, double mass) const
{
    double dynamic = 0.5 * mAir.density * mAirspeed * mAirspeed;
    double lift = mOnGround ? 0.3 : mLoad * mass * kGravity / (dynamic * kWingArea);
    double cowl = 0.0008 * static_cast<double>(static_cast<int>(controls.cowlFlaps));
    double parasite = kParasiteDrag + 0.014 * mGear + 0.0016 * mFlaps + cowl;
    return dynamic * kWingArea * (parasite + kInducedDrag * lift * lift);
}

void Airframe::roll(const Controls& controls, double thrust, double mass, double dt)
{
    double resistance = drag(controls, mass) / mass + kRollingFriction * kGravity + controls.brake;
    double push = thrust / mass - (mGroundSpeed > 0.0 ? resistance : 0.0);
    if (mGroundSpeed <= 0.0)
        push = push > resistance ? push - resistance : 0.0;
    double speed = mGroundSpeed + push * dt;
    speed = speed < 0.0 ? 0.0 : speed;
    mForward = (speed - mGroundSpeed) / dt;
    mGroundSpeed = speed;
    mYawRate = controls.turnRate * clampTo(mGroundSpeed / 1.5, 0.0, 1.0);
    mHeading += mYawRate * dt;
    mTrack = mHeading;
    double headwind = mAir.windSpeed * cosine(mAir.windFrom - mHeading);
    mAirspeed = clampTo(mGroundSpeed + headwind + 0.5 * mSurge.value(), 0.0, 100.0);
    mClimbRate = 0.0;
    mClimbAngle = 0.0;
    mBank = approach(mBank, 0.0, 0.1 * dt);
    mLoad = 1.0;
    if (controls.rotate && indicatedAirspeed() > kLiftOffSpeed) {
        mOnGround = false;
        mAirspeed = mGroundSpeed + headwind;
    }
}

double Airframe::climbCommand(const Controls& controls, double excess) const
{
    if (controls.vertical == VerticalMode::Rate)
        return controls.verticalSpeed / mAirspeed;
    double error = controls.targetSpeed - indicatedAirspeed();
    return clampTo(excess - 0.02 * error, 0.028, 0.19);
}

void Airframe::fly(const Controls& controls, double thrust, double mass, double dt)
{
    double excess = (thrust - drag(controls, mass)) / (mass * kGravity);
    double bend = (climbCommand(controls, excess) - mClimbAngle) / 1.5;
    double limit = 0.22 * kGravity / mAirspeed;
    bend = clampTo(bend, -limit, limit);
    mClimbAngle += bend * dt;
    mForward = (excess - sine(mClimbAngle)) * kGravity;
    mAirspeed += mForward * dt;

    double rollRate = clampTo((controls.bank - mBank) / 0.9, -7.0 * kDegree, 7.0 * kDegree);
    mBank += rollRate * dt;
    mYawRate = kGravity * tangent(mBank) / mAirspeed;
    mHeading += mYawRate * dt;
    mLoad = (bend * mAirspeed / kGravity + cosine(mClimbAngle)) / cosine(mBank);

    mClimbRate = mAirspeed * sine(mClimbAngle) + 0.25 * mTurbulence * mGust.value();
    mAltitude += mClimbRate * dt;
    if (controls.flare && mAltitude <= arrivalRunway().elevation) {
        mAltitude = arrivalRunway().elevation;
        mBump = 0.12 - 0.25 * mClimbRate;
        mOnGround = true;
    }
}

void Airframe::drift(double dt)
{
    double north = mGroundSpeed * cosine(mHeading);
    double east = mGroundSpeed * sine(mHeading);
    if (!mOnGround) {
        double forward = mAirspeed * cosine(mClimbAngle);
        north = forward * cosine(mHeading) - mAir.windSpeed * cosine(mAir.windFrom);
        east = forward * sine(mHeading) - mAir.windSpeed * sine(mAir.windFrom);
        mGroundSpeed = std::sqrt(north * north + east * east);
        mTrack = mHeading + wrapAngle(arcTangent2(east, north) - mHeading);
    }
    mPosition = moved(mPosition, north * dt, east * dt);
}

void Airframe::settleAttitude(double mass, double dt)
{
    double attack = 0.0;
    if (!mOnGround) {
        double dynamic = 0.5 * mAir.density * mAirspeed * mAirspeed;
        double lift = mLoad * mass * kGravity / (dynamic * kWingArea);
        attack = lift / kLiftSlope - kIncidence - 0.0012 * mFlaps;
        attack += 0.2 * mTurbulence * mGust.value() / mAirspeed;
    }
    double target = mOnGround ? 1.2 * kDegree - 0.004 * mForward : mClimbAngle + attack;
    double pitch = mPitch + (target - mPitch) * dt / 0.5;
    double rolled = mBank + mTurbulence * 1.1 * kDegree * mRock.value();
    double rollChange = (rolled - mRoll) * dt / 0.3;
    mPitchRate = (pitch - mPitch) / dt;
    mRollRate = rollChange / dt;
    mPitch = pitch;
    mRoll += rollChange;
    mBump *= 1.0 - 6.0 * dt;
}

void Airframe::report(Signals& signals) const
{
    double cosRoll = cosine(mRoll);
    double sinRoll = sine(mRoll);
    double cosPitch = cosine(mPitch);
    double gust = 0.0021 * mAir.density * mAirspeed * mTurbulence * mGust.value();
    double shake = mOnGround ? clampTo(0.004 * mGroundSpeed, 0.0, 0.08) : 0.012 * mTurbulence;

    signals[Signal::LongitudinalAcceleration] = mForward / kGravity + sine(mPitch);
    signals[Signal::LateralAcceleration] = shake * mSway.value();
    signals[Signal::NormalAcceleration] = mLoad * (mOnGround ? 1.0 : cosine(mPitch - mClimbAngle)) +
                                          gust + mBump + (mOnGround ? shake * mRock.value() : 0.0);
    signals[Signal::RollRate] = (mRollRate - mYawRate * sine(mPitch)) / kDegree;
    signals[Signal::PitchRate] = (mPitchRate * cosRoll + mYawRate * cosPitch * sinRoll) / kDegree;
    signals[Signal::YawRate] = (mYawRate * cosPitch * cosRoll - mPitchRate * sinRoll) / kDegree;
    signals[Signal::Pitch] = mPitch / kDegree;
    signals[Signal::Roll] = mRoll / kDegree;
    signals[Signal::Heading] = mHeading / kDegree;
    signals[Signal::Slip] = -signals[Signal::LateralAcceleration];

    double airspeed = mOnGround ? mAirspeed : mAirspeed + 0.8 * mTurbulence * mSurge.value();
    double indicated = indicatedSpeed(airspeed, mAir);
    signals[Signal::VerticalSpeed] = mClimbRate / kFoot * 60.0;
    // The indicator's needle rests on its stop below 20 kt.
    signals[Signal::IndicatedAirspeed] = indicated < 20.0 * kKnot ? 0.0 : indicated / kKnot;
    signals[Signal::TrueAirspeed] = indicated < 20.0 * kKnot ? 0.0 : airspeed / kKnot;
    signals[Signal::ImpactPressure] = 0.5 * kSeaLevelDensity * indicated * indicated / 100.0;
    signals[Signal::Qnh] = kQnh;
    signals[Signal::BaroAltitude] = mAltitude / kFoot;
    signals[Signal::PressureAltitude] = pressureAltitude(mAir.pressure) / kFoot;
    signals[Signal::OutsideTemperature] = mAir.temperature - 273.15;
    signals[Signal::StaticPressure] = mAir.pressure / 100.0;
    signals[Signal::Latitude] = mPosition.latitude;
    signals[Signal::Longitude] = mPosition.longitude;
    signals[Signal::GpsAltitude] = mAltitude;
    signals[Signal::GroundSpeed] = mGroundSpeed / kKnot;
    signals[Signal::Track] = mTrack / kDegree;
    signals[Signal::DistanceToGo] = distance(mPosition, arrivalRunway().threshold) / kNauticalMile;
    signals[Signal::WindSpeed] = mOnGround ? 0.0 : mAir.windSpeed / kKnot;
    signals[Signal::WindDirection] = mOnGround ? 0.0 : mAir.windFrom / kDegree;
    signals[Signal::Flaps] = mFlaps;
}

} // namespace TARN::Demo
