#pragma once

#include "Atmosphere.h"
#include "Controls.h"
#include "Random.h"
#include "Signals.h"

namespace TARN::Demo {

/// Six-cylinder injected piston engine of 300 hp with a constant-speed propeller: crankshaft
/// speed, manifold pressure, power, air and fuel flow. Temperatures are another class's task.
class Engine
{
public:
    explicit Engine(Random& random) : mRandom(random) {}

    /// Advances by dt seconds; airspeed in m/s.
    void step(const Controls& controls, const Air& air, double airspeed, double dt);
    void report(const Controls& controls, const Air& air, Signals& signals) const;

    bool running() const { return mRunning; }
    double rpm() const { return mRpm; }
    double manifoldPressure() const { return mManifold; } ///< inHg
    double powerFraction() const { return mPower / 300.0; }
    double airFlow() const { return mAirFlow; }   ///< fraction of the flow at full power
    double fuelFlow() const { return mFuelFlow; } ///< kg/s
    double airFuelRatio() const { return mMixture; }
    bool oneMagneto() const { return mOneMagneto; }

    /// N, forward.
    double thrust(double airspeed) const;

private:
    void ignite(const Controls& controls, double dt);
    void breathe(const Controls& controls, const Air& air, double dt);
    void turn(const Controls& controls, const Air& air, double airspeed, double dt);

    Random& mRandom;
    Wander mHunting{1.5};
    bool mRunning = false;
    bool mOneMagneto = false;
    double mCranked = 0.0; // s the starter has turned
    double mRpm = 0.0;
    double mGoverned = 2700.0; // what the governor holds now, 1/min
    double mManifold = 29.0;
    double mPower = 0.0; // hp at the shaft
    double mAirFlow = 0.0;
    double mFuelFlow = 0.0;
    double mMixture = 11.6;
    double mRevolutions = 174.6e6;
    double mSeconds = 1238.4 * 3600.0;
};

} // namespace TARN::Demo
