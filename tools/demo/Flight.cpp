#include "Flight.h"

namespace TARN::Demo {

namespace {

constexpr double kMassWithoutFuel = 1385.0; // kg, two persons and baggage

} // namespace

Flight::Flight(double duration, std::uint64_t seed, const Week& week)
    : mRandom(seed), mAirframe(mRandom), mEngine(mRandom), mThermal(mRandom, week.wear),
      mSystems(mRandom), mPilot(duration, week.delay), mStory(mRandom)
{
    report();
}

void Flight::step()
{
    ++mSteps;
    mBefore = mAfter;
    double time = timeAfter();
    mPilot.step(time, mAirframe, mEngine, mThermal, kStep);
    const Controls& controls = mPilot.controls();
    mEngine.step(controls, mAirframe.air(), mAirframe.trueAirspeed(), kStep);
    double mass = kMassWithoutFuel + mSystems.fuelMass();
    mAirframe.step(controls, mEngine.thrust(mAirframe.trueAirspeed()), mass, kStep);
    mThermal.step(controls, mAirframe, mEngine, mStory.oilFactor(time), kStep);
    bool gearMoving = mAirframe.gear() > 0.0 && mAirframe.gear() < 1.0;
    mSystems.step(controls, mEngine, gearMoving, !mAirframe.onGround(), kStep);
    report();
}

void Flight::report()
{
    const Controls& controls = mPilot.controls();
    mAirframe.report(mAfter);
    mEngine.report(controls, mAirframe.air(), mAfter);
    mThermal.report(mAfter);
    mSystems.report(mAfter);
    mAfter[Signal::Gear] = mAirframe.gear() <= 0.0 ? 0.0 : (mAirframe.gear() >= 1.0 ? 2.0 : 1.0);
    // The receiver finds its satellites one after the other after power-up.
    double time = timeAfter();
    double found = time < 12.0 ? 0.0 : (time - 12.0) * 0.4;
    mAfter[Signal::Satellites] = found < 11.0 ? static_cast<int>(found) : 11.0;
    mStory.judge(time, controls, mEngine.running(), mAfter);
}

} // namespace TARN::Demo
