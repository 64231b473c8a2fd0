#include "Engine.h"

#include "PortableMath.h"

#include <cmath>

namespace TARN::Demo {

namespace {

constexpr double kRatedRpm = 2700.0;
constexpr double kRatedPower = 300.0; // hp
constexpr double kWattsPerHorsepower = 745.7;
constexpr double kInertia = 1.5;         // kg m^2, propeller and crankshaft
constexpr double kDisplacement = 9.0e-3; // m^3
constexpr double kFillRatio = 0.97;
constexpr double kRatedAirFlow = 0.205;       // kg/s
constexpr double kFuelDensity = 0.72;         // kg/l
constexpr double kNoPowerManifold = 9.0;      // inHg that only overcome friction
constexpr double kWindmillingPerSpeed = 36.0; // 1/min per m/s at the fine stop

} // namespace

void Engine::step(const Controls& controls, const Air& air, double airspeed, double dt)
{
    ignite(controls, dt);
    breathe(controls, air, dt);
    turn(controls, air, airspeed, dt);
    mRevolutions += mRpm / 60.0 * dt;
    if (mRunning)
        mSeconds += dt;
}

void Engine::ignite(const Controls& controls, double dt)
{
    mOneMagneto = controls.magnetos == Magnetos::Left || controls.magnetos == Magnetos::Right;
    mCranked = controls.starter ? mCranked + dt : 0.0;
    if (mCranked > 1.6 && controls.magnetos != Magnetos::Off)
        mRunning = true;
    if (controls.magnetos == Magnetos::Off)
        mRunning = false;
}

// The throttle plate is a restriction: the faster the engine turns behind it, the lower the
// pressure. At rest the manifold shows the pressure of the day.
void Engine::breathe(const Controls& controls, const Air& air, double dt)
{
    double opening = 0.024 + 0.976 * controls.throttle * controls.throttle;
    double choke = mRpm / kRatedRpm * 0.2417 / opening;
    double target = air.inchesOfMercury() / std::sqrt(1.0 + choke * choke);
    mManifold += (target - mManifold) * clampTo(dt / 0.25, 0.0, 1.0);
    mMixture = approach(mMixture, controls.airFuelRatio, 0.5 * dt);

    double manifoldDensity = mManifold * 3386.389 / (287.053 * (air.temperature + 20.0));
    double flow = manifoldDensity * kDisplacement * mRpm / 120.0 * kFillRatio;
    mAirFlow = flow / kRatedAirFlow;
    mFuelFlow = mRunning ? flow / mMixture : 0.0;
}

void Engine::turn(const Controls& controls, const Air& air, double airspeed, double dt)
{
    double speed = mRpm / kRatedRpm;
    double lean = mMixture - 12.6; // best power
    // Thin air outside eases the exhaust, which gains some power at the same manifold pressure.
    double exhaust = 1.0 + 0.4 * (1.0 - air.pressure / 101325.0);
    mPower = kRatedPower * speed * (mManifold - kNoPowerManifold) / 20.2 * exhaust *
             (1.0 - 0.0035 * lean * lean) * (mOneMagneto ? 0.925 : 1.0);
    if (!mRunning)
        mPower = -12.0 * clampTo(mRpm / 200.0, 0.0, 1.0);

    double windmilling = kWindmillingPerSpeed * airspeed;
    double load = 302.0 * (air.density / kSeaLevelDensity) * speed *
                  (mRpm * mRpm - windmilling * windmilling) / (kRatedRpm * kRatedRpm);
    double shaft = mPower - load;
    if (controls.starter && !mRunning)
        shaft += 14.0 * clampTo(1.0 - mRpm / 210.0, 0.0, 1.0);
    double angular = mRpm * kPi / 30.0;
    double gain = shaft * kWattsPerHorsepower / (kInertia * clampTo(angular, 12.0, 400.0));
    mRpm += gain * 30.0 / kPi * dt;

    mGoverned = approach(mGoverned, controls.propeller, 140.0 * dt);
    double ceiling = mGoverned + 2.5 * mHunting.step(mRandom, dt);
    mRpm = clampTo(mRpm, 0.0, ceiling);
}

double Engine::thrust(double airspeed) const
{
    double v2 = airspeed * airspeed;
    double speed = std::sqrt(std::sqrt(v2 * v2 + 38.0 * 38.0 * 38.0 * 38.0));
    return mPower * kWattsPerHorsepower * 0.84 / speed;
}

void Engine::report(const Controls& controls, const Air& air, Signals& signals) const
{
    signals[Signal::Rpm] = mRpm;
    signals[Signal::ManifoldPressure] = mManifold;
    signals[Signal::Power] = mRunning ? 100.0 * clampTo(mPower / kRatedPower, 0.0, 1.1) : 0.0;
    signals[Signal::FuelFlow] = mFuelFlow * 3600.0 / kFuelDensity;
    signals[Signal::ThrottleLever] = 100.0 * controls.throttle;
    signals[Signal::PropellerLever] = clampTo((controls.propeller - 1700.0) / 10.0, 0.0, 100.0);
    signals[Signal::MixtureLever] = clampTo(100.0 - 11.0 * (mMixture - 10.3), 0.0, 100.0);
    signals[Signal::InductionTemperature] = air.temperature - 273.15 + (mRunning ? 3.5 : 0.5);
    signals[Signal::CrankPulses] = mRevolutions * 60.0;
    signals[Signal::EngineSeconds] = mSeconds;
}

} // namespace TARN::Demo
