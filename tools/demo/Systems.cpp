#include "Systems.h"

#include "PortableMath.h"

namespace TARN::Demo {

namespace {

constexpr double kFuelDensity = 0.72;       // kg/l
constexpr double kTankChange = 20.0 * 60.0; // s, habit of the pilot
constexpr double kTankCapacity = 140.0;     // l, each side

} // namespace

void Systems::step(const Controls& controls, const Engine& engine, bool gearMoving, bool flying,
                   double dt)
{
    feed(controls, engine, flying, dt);
    charge(controls, engine, gearMoving, dt);
}

void Systems::feed(const Controls& controls, const Engine& engine, bool flying, double dt)
{
    mOnTank += engine.running() ? dt : 0.0;
    if (mOnTank > kTankChange && flying) {
        mRightTank = !mRightTank;
        mOnTank = 0.0;
    }
    double litres = engine.fuelFlow() / kFuelDensity * dt;
    mUsed += litres;
    (mRightTank ? mRight : mLeft) -= litres;
    mSlosh.step(mRandom, dt);

    double driven = engine.running() ? 1.35 + 0.25 * clampTo(engine.rpm() / 2700.0, 0.0, 1.0) : 0.0;
    double boosted = controls.fuelPump ? 1.55 : 0.0;
    double target = driven > 0.0 ? driven + 0.12 * boosted : boosted;
    mPressure += (target - mPressure) * dt / 0.8;
}

void Systems::charge(const Controls& controls, const Engine& engine, bool gearMoving, double dt)
{
    double load = 6.5 + (controls.avionics ? 14.0 : 0.0) + (controls.fuelPump ? 5.0 : 0.0) +
                  (controls.landingLight ? 8.5 : 0.0) + (gearMoving ? 22.0 : 0.0);
    mAlternator = engine.running() && engine.rpm() > 650.0;
    double target = 0.0;
    if (mAlternator) {
        double charging = 1.2 + 9.0 * mDischarged;
        mAlternatorCurrent += (load + charging - mAlternatorCurrent) * dt / 0.4;
        target = 28.25 - 0.006 * load;
    } else {
        double starter = controls.starter && !engine.running() ? 245.0 : 0.0;
        load += starter;
        mAlternatorCurrent = 0.0;
        target = 24.75 - 0.021 * load;
    }
    mBatteryCurrent = mAlternatorCurrent - load;
    mDischarged = clampTo(mDischarged - mBatteryCurrent * dt / 1500.0, 0.0, 6.0);
    mVoltage += (target - mVoltage) * clampTo(dt / 0.15, 0.0, 1.0);
    mRipple.step(mRandom, dt);
    double warm = engine.running() ? 24.0 : 15.0;
    mBatteryTemperature += (warm - mBatteryTemperature) * dt / 1400.0;
}

void Systems::report(Signals& signals) const
{
    signals[Signal::FuelPressure] = mPressure * (1.0 + 0.006 * mRipple.value());
    signals[Signal::FuelUsed] = mUsed * 1000.0;
    double slosh = 0.12 * mSlosh.value();
    signals[Signal::FuelLeft] = mLeft + slosh;
    signals[Signal::FuelRight] = mRight - slosh;
    signals[Signal::FuelPercent] = 100.0 * (mLeft + mRight) / (2.0 * kTankCapacity);
    signals[Signal::FuelSelector] = mRightTank ? 2.0 : 1.0;
    signals[Signal::BusVoltage] = mVoltage + 0.03 * mRipple.value();
    signals[Signal::StandbyVoltage] = mVoltage - 0.35 + 0.02 * mRipple.value();
    signals[Signal::AlternatorCurrent] = mAlternatorCurrent;
    signals[Signal::BatteryCurrent] = mBatteryCurrent;
    signals[Signal::BatteryTemperature] = mBatteryTemperature;
}

} // namespace TARN::Demo
