#include "Thermal.h"

#include "PortableMath.h"

#include <cmath>

namespace TARN::Demo {

namespace {

// No two cylinders are alike: the injectors meter a little differently, the middle cylinders get
// less air, the probes sit differently deep.
constexpr std::array<double, 6> kMixtureSpread{-0.12, 0.08, 0.14, -0.05, 0.02, -0.10};
constexpr std::array<double, 6> kHeadSpread{0.97, 1.00, 1.035, 1.02, 0.985, 0.955};
constexpr std::array<double, 6> kProbeSpread{-7.0, 3.0, 9.0, -2.0, 6.0, -11.0};
constexpr std::size_t kThirdCylinder = 2;
constexpr std::size_t kSixthCylinder = 5;
constexpr double kCruisePower = 0.61; // of full power
constexpr double kHeadRise = 6.0;     // degrees at cruise power for each week of wear
constexpr double kExhaustRise = 12.0;

double peakExhaust(double airFlow)
{
    return 565.0 + 280.0 * (1.0 - exponential(-3.2 * airFlow));
}

} // namespace

void Thermal::step(const Controls& controls, const Airframe& airframe, const Engine& engine,
                   double oilFactor, double dt)
{
    liftSeal(airframe, engine, dt);
    heatHeads(controls, airframe, engine, dt);
    heatExhaust(engine, dt);
    pumpOil(airframe, engine, oilFactor, dt);
}

// The baffle seal at cylinder 3 has come loose. It works its way up where much power meets little
// airspeed, and the stream of air above 130 kt presses it back.
void Thermal::liftSeal(const Airframe& airframe, const Engine& engine, double dt)
{
    double speed = airframe.indicatedAirspeed() / kKnot;
    bool lifts = !airframe.onGround() && engine.powerFraction() > 0.58 && speed < 121.0;
    double loss = lifts ? 0.33 : 0.33 * clampTo((130.0 - speed) / 9.0, 0.0, 1.0);
    if (lifts || loss < mSealLoss)
        mSealLoss = approach(mSealLoss, loss, (lifts ? 0.0028 : 0.007) * dt);
    if (airframe.onGround() || engine.powerFraction() < 0.5)
        mSealLoss = approach(mSealLoss, 0.0, 0.004 * dt);
}

void Thermal::heatHeads(const Controls& controls, const Airframe& airframe, const Engine& engine,
                        double dt)
{
    double outside = airframe.air().temperature - 273.15;
    double slipstream = engine.rpm() / 2700.0 * 24.0;
    double speed = airframe.trueAirspeed();
    double wind = std::sqrt(speed * speed + slipstream * slipstream);
    double stream = airframe.air().density / kSeaLevelDensity * wind / 62.0;
    double cowl = 1.0 + 0.07 * static_cast<double>(static_cast<int>(controls.cowlFlaps));
    double cooling = (0.25 + 0.75 * power(stream + 0.01, 0.6)) * cowl;
    double lean = engine.airFuelRatio() - 13.8;
    double mixture = 1.0 - 0.011 * lean * lean;
    double share = (engine.powerFraction() * 300.0 + 20.0) / 320.0;
    double heat = engine.running() ? 264.0 * power(clampTo(share, 0.01, 1.2), 0.65) * mixture : 0.0;
    for (std::size_t i = 0; i < mHead.size(); ++i) {
        double loss = i == kThirdCylinder ? mSealLoss : 0.0;
        double target = outside + heat * kHeadSpread[i] * (1.0 + loss) / cooling +
                        kHeadRise * leaning(engine, i);
        mHead[i] += (target - mHead[i]) * cooling / 95.0 * dt;
    }
}

// The injector of cylinder 6, the coolest one, clogs from week to week. What the leaner mixture
// does is given: at cruise mixture the curve of the exhaust temperature is too near its peak to
// rise so.
double Thermal::leaning(const Engine& engine, std::size_t cylinder) const
{
    bool lean = cylinder == kSixthCylinder && engine.running();
    return lean ? mWear * clampTo(engine.powerFraction(), 0.0, 1.1) / kCruisePower : 0.0;
}

void Thermal::heatExhaust(const Engine& engine, double dt)
{
    for (std::size_t i = 0; i < mExhaust.size(); ++i) {
        double target = 14.0;
        if (engine.running()) {
            double offPeak = std::fabs(engine.airFuelRatio() + kMixtureSpread[i] - 14.9);
            target = peakExhaust(engine.airFlow()) - 14.0 * offPeak * std::sqrt(offPeak) +
                     kProbeSpread[i];
            // With one plug the flame is late and the gas still burns when it leaves.
            target += engine.oneMagneto() ? 42.0 : 0.0;
            target += kExhaustRise * leaning(engine, i);
        }
        mFlicker[i] += -mFlicker[i] * dt / 3.0 + 1.6 * std::sqrt(2.0 * dt / 3.0) * mRandom.normal();
        mExhaust[i] += (target - mExhaust[i]) * dt / (engine.running() ? 3.0 : 60.0);
    }
}

void Thermal::pumpOil(const Airframe& airframe, const Engine& engine, double oilFactor, double dt)
{
    double outside = airframe.air().temperature - 273.15;
    double heat = engine.running() ? 62.0 + 46.0 * clampTo(engine.powerFraction(), 0.0, 1.0) : 0.0;
    double target = outside + heat;
    // Above 82 degrees the thermostat sends the oil through the cooler.
    if (mOilTemperature > 82.0 && target > 82.0)
        target = 82.0 + (target - 82.0) * 0.45;
    mOilTemperature += (target - mOilTemperature) * dt / (engine.running() ? 300.0 : 900.0);

    double thickness = 0.62 + 0.75 * exponential(-(mOilTemperature - 14.0) / 30.0);
    double delivery = engine.rpm() / 2700.0 * thickness;
    double relief = 4.15 + 1.2 * exponential(-(mOilTemperature - 14.0) / 28.0);
    double pressure = relief * (1.0 - exponential(-5.2 * delivery)) * oilFactor;
    mOilRipple.step(mRandom, dt);
    mOilPressure += (pressure - mOilPressure) * dt / 0.5;
}

void Thermal::report(Signals& signals) const
{
    for (std::size_t i = 0; i < mHead.size(); ++i) {
        signals[ofCylinder(Signal::Cht1, i)] = mHead[i];
        signals[ofCylinder(Signal::Egt1, i)] = mExhaust[i] + mFlicker[i];
    }
    signals[Signal::OilTemperature] = mOilTemperature;
    signals[Signal::OilPressure] = mOilPressure * (1.0 + 0.006 * mOilRipple.value());
}

} // namespace TARN::Demo
