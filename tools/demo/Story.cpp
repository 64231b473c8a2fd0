#include "Story.h"

#include "PortableMath.h"

namespace TARN::Demo {

namespace {

constexpr double kHeadWarning = 215.0; // degrees Celsius
constexpr double kStoryHeadLimit = 238.0;
constexpr double kOilWarning = 1.8; // bar
constexpr double kOilLimit = 1.0;

enum LampBit
{
    kOilLamp = 0,
    kVoltageLamp = 2,
    kHeadLampBit = 4,
    kFuelLamp = 6,
    kStarterLamp = 8
};

double bit(int number, bool on)
{
    return on ? static_cast<double>(1U << number) : 0.0;
}

} // namespace

Story::Story(Random& random)
{
    mOilDip = 1742.0 + 6.0 * random.symmetric();
    struct Plan
    {
        double start;
        double length;
        double readings[3]; // 0 is no spike
    };
    constexpr Plan kPlans[] = {
        {1118.0, 9.0, {241.0, 0.0, 388.0}},  {1386.0, 14.0, {176.5, 402.0, 0.0}},
        {1829.0, 6.0, {0.0, 97.0, 0.0}},     {2205.0, 21.0, {318.5, 1088.0, 133.0}},
        {2612.0, 11.0, {205.0, 0.0, 264.5}}, {3046.0, 8.0, {0.0, 150.5, 0.0}}};
    for (const Plan& plan : kPlans) {
        double start = plan.start + 4.0 * random.symmetric();
        mBursts.push_back({start, start + plan.length});
        for (int i = 0; i < 3; ++i) {
            double moment = start + plan.length * (0.2 + 0.28 * i + 0.05 * random.symmetric());
            if (plan.readings[i] > 0.0)
                mSpikes.push_back({moment, plan.readings[i]});
        }
    }
}

double Story::oilFactor(double time) const
{
    double since = time - mOilDip;
    if (since < 0.0 || since > 10.0)
        return 1.0;
    double down = clampTo(since / 2.0, 0.0, 1.0);
    double up = clampTo((since - 5.5) / 3.5, 0.0, 1.0);
    return 1.0 - 0.82 * (down - up);
}

bool Story::wireLoose(double time) const
{
    for (const Burst& burst : mBursts) {
        if (time >= burst.start && time < burst.stop)
            return true;
    }
    return false;
}

double Story::exhaustReading(double time, double temperature)
{
    if (mNextSpike >= mSpikes.size() || time < mSpikes[mNextSpike].time)
        return temperature;
    return mSpikes[mNextSpike++].reading;
}

void Story::judge(double time, const Controls& controls, bool running, Signals& signals)
{
    mHottestHead = 0.0;
    for (std::size_t i = 0; i < 6; ++i) {
        double head = signals[ofCylinder(Signal::Cht1, i)];
        mHottestHead = head > mHottestHead ? head : mHottestHead;
    }
    judgeLamps(controls, running, signals);
    judgeEngine(time, controls, running, signals);
    judgeSystem(time, controls, signals);
}

void Story::judgeLamps(const Controls& controls, bool running, Signals& signals)
{
    // The head lamp keeps its worst colour until the cylinder is well below the warning again.
    if (mHottestHead >= kStoryHeadLimit)
        mHeadLamp = 2;
    else if (mHottestHead >= kHeadWarning && mHeadLamp == 0)
        mHeadLamp = 1;
    else if (mHottestHead < kHeadWarning - 4.0)
        mHeadLamp = 0;
    // Before the first start there is no pressure to lose.
    mOilSeen = mOilSeen || signals[Signal::OilPressure] > kOilWarning;
    bool oil = mOilSeen && running && signals[Signal::OilPressure] < kOilLimit;
    bool fuel = signals[Signal::FuelPercent] < 8.0;
    unsigned word = (oil ? 2U : 0U) << kOilLamp;
    word |= (signals[Signal::BusVoltage] < 25.5 ? 1U : 0U) << kVoltageLamp;
    word |= mHeadLamp << kHeadLampBit;
    word |= (fuel ? 1U : 0U) << kFuelLamp;
    word |= (controls.starter ? 1U : 0U) << kStarterLamp;
    signals[Signal::Lamps] = word;
}

void Story::judgeEngine(double time, const Controls& controls, bool running, Signals& signals) const
{
    bool cold = signals[Signal::OilTemperature] < 40.0;
    double state = running ? (cold ? 2.0 : 3.0) : (controls.starter ? 1.0 : 0.0);
    signals[Signal::EngineState] =
        state + 16.0 * static_cast<int>(controls.magnetos) + bit(6, controls.starter) +
        256.0 * static_cast<int>(controls.cowlFlaps) + bit(10, controls.fuelPump);
    signals[Signal::EngineStatus] =
        bit(0, running) + bit(1, controls.starter) + bit(2, running && cold) +
        bit(3, controls.fuelPump) + bit(8, mHottestHead >= kHeadWarning) +
        bit(9, mOilSeen && running && signals[Signal::OilPressure] < kOilWarning) +
        bit(10, running && signals[Signal::FuelPressure] < 0.9) + bit(20, wireLoose(time));
}

void Story::judgeSystem(double time, const Controls& controls, Signals& signals) const
{
    signals[Signal::Autopilot] = bit(0, controls.autopilot) +
                                 2.0 * static_cast<int>(controls.lateralMode) +
                                 16.0 * static_cast<int>(controls.verticalMode);
    signals[Signal::SystemStatus] = bit(0, true) + bit(1, signals[Signal::Satellites] >= 4.0) +
                                    bit(2, time > 2.0) + bit(3, controls.autopilot) +
                                    bit(8, signals[Signal::BusVoltage] < 25.5) +
                                    bit(9, time < 32.0);
}

} // namespace TARN::Demo
