#pragma once

#include "Airframe.h"
#include "Engine.h"
#include "Pilot.h"
#include "Random.h"
#include "Signals.h"
#include "Story.h"
#include "Systems.h"
#include "Thermal.h"
#include "Week.h"

#include <cstdint>

namespace TARN::Demo {

/// The whole aircraft, advanced in fixed steps. The flight depends on what it is made of
/// only, not on how often its signals are looked at.
class Flight
{
public:
    static constexpr double kStep = 0.05; ///< s

    /// Duration of the recording in seconds.
    Flight(double duration, std::uint64_t seed, const Week& week);

    void step();

    /// Signals at the begin and at the end of the last step.
    const Signals& before() const { return mBefore; }
    const Signals& after() const { return mAfter; }
    double timeBefore() const { return static_cast<double>(mSteps - 1) * kStep; }
    double timeAfter() const { return static_cast<double>(mSteps) * kStep; }

    /// Reading of the probe of cylinder 5 for an exhaust temperature; asked once for each message.
    double exhaustReading(double time, double temperature)
    {
        return mStory.exhaustReading(time, temperature);
    }

private:
    void report();

    Random mRandom;
    Airframe mAirframe;
    Engine mEngine;
    Thermal mThermal;
    Systems mSystems;
    Pilot mPilot;
    Story mStory;
    Signals mBefore;
    Signals mAfter;
    std::int64_t mSteps = 0;
};

} // namespace TARN::Demo
