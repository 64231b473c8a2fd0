#pragma once

#include "Controls.h"
#include "Engine.h"
#include "Random.h"
#include "Signals.h"

namespace TARN::Demo {

/// Fuel tanks, fuel pressure and the 28 V electrical system.
class Systems
{
public:
    explicit Systems(Random& random) : mRandom(random) {}

    /// Advances by dt seconds; gearMoving tells that the gear motor runs.
    void step(const Controls& controls, const Engine& engine, bool gearMoving, bool flying,
              double dt);
    void report(Signals& signals) const;

    double fuelMass() const { return (mLeft + mRight) * 0.72; } ///< kg
    double voltage() const { return mVoltage; }
    bool alternatorOnline() const { return mAlternator; }
    bool rightTank() const { return mRightTank; }

private:
    void feed(const Controls& controls, const Engine& engine, bool flying, double dt);
    void charge(const Controls& controls, const Engine& engine, bool gearMoving, double dt);

    Random& mRandom;
    Wander mSlosh{3.0};
    Wander mRipple{0.8};
    double mLeft = 132.0; // l
    double mRight = 128.0;
    bool mRightTank = false;
    double mOnTank = 0.0; // s since the selector was turned
    double mUsed = 0.0;   // l
    double mPressure = 0.0;
    bool mAlternator = false;
    double mVoltage = 24.6;
    double mDischarged = 2.0; // how far the battery is from full, decides the charging current
    double mAlternatorCurrent = 0.0;
    double mBatteryCurrent = 0.0;
    double mBatteryTemperature = 15.0;
};

} // namespace TARN::Demo
